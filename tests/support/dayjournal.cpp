#include "dayjournal.h"

void type(const QWidget &window, const char *box, const QString &text)
{
    typeInto(control<QLineEdit>(window, box), text);
}

void choose(const QWidget &window, const char *chooser, const QString &text)
{
    control<DataCombo>(window, chooser).setDisplayedText(text);
}

void press(const QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

void press(const QWidget &window, const char *button, const char *dialog,
           const std::function<void(QWidget &)> &steps)
{
    inDialog(
        dialog, [&] { press(window, button); }, steps);
}

QString textOf(const QWidget &window, const char *box)
{
    return control<QLineEdit>(window, box).text();
}

void typeTime(QTimeEdit &picker, const QString &text)
{
    picker.setFocus();
    picker.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&picker, text);
}

QStringList shown(const QWidget &window, const char *list)
{
    const QAbstractItemModel &model = *control<QTreeView>(window, list).model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts += model.index(row, column).data().toString();
        rows += texts.join(u'|');
    }
    return rows;
}

void selectRow(const QWidget &window, int row, const char *list)
{
    auto &view = control<QTreeView>(window, list);
    view.setCurrentIndex(view.model()->index(row, 0));
}

int selectedRow(const QWidget &window, const char *list)
{
    return control<QTreeView>(window, list).selectionModel()->selectedRows().value(0).row();
}

DayJournal::DayJournal(const QLocale &locale)
    : TestJournal(locale)
{
    exec("PRAGMA synchronous=OFF;"
         "insert into MealCategory (Name) values ('Fruit'), ('Dairy'), ('Vacant');"
         "insert into Meal (MealCategoryID, Name, Unit, DefaultQty, Increment, Calories, Fat,"
         " Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC) values"
         " (1, 'Apple', 'piece', 1.5, 0.25, 30, 1, 1, 1, 10, 15, 5),"
         " (1, 'Banana', 'piece', null, null, 100, 1, 1, 1, 2.5, 90, 4),"
         " (2, 'Crème brûlée', 'cup', 1, 1, 300, 1, 1, 1, 150, 120, 30);"
         "insert into Exercise (Name, Unit, DefaultQty, CaloriesConsume, CaloriesConsumeBase,"
         " WeightDependent) values ('Rowing', 'lap', null, 7, 7, 0),"
         " ('Walking', 'minute', 30, 3.5, 3.5, 0)");
}

QStringList DayJournal::meals()
{
    return rows("select MealConsumeID, MealID, ConsumeDate, round(ConsumeTime * 1440), Qty"
                " from MealConsume order by MealConsumeID");
}

QStringList DayJournal::activities()
{
    return rows("select ExercisePerformID, ExerciseID, PerformDate, round(timeBeg * 1440),"
                " round(timeEnd * 1440), Qty from ExercisePerform order by ExercisePerformID");
}

void DayJournal::setUser(int weight, const char *measurement)
{
    exec(qPrintable(QString("update Common set weight = %1, Measurement = '%2'")
                        .arg(QString::number(weight), measurement)));
    data->rsCommon.close();
    session->readCommonParameters();
}

void DayJournal::refuses(QWidget &window, const char *field, const QString &message,
                         const QString &remedy)
{
    press(window, "btnOK");
    QCOMPARE(messages.said.size(), size_t(1));
    QCOMPARE(messages.said.front().title, "Error");
    QCOMPARE(messages.takeText(), message);
    auto &refused = control<QWidget>(window, field);
    activate(window); // on a busy machine another window's activation may have come late
    QVERIFY2(refused.hasFocus(), field);
    typeInto(refused, remedy);
}
