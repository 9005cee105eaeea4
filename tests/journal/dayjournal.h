// A journal with a small catalogue for the windows of the day.
#pragma once

#include "guitest.h"
#include "testjournal.h"
#include "ui/datacombo.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <QTreeView>

inline void type(const QWidget &window, const char *box, const QString &text)
{
    typeInto(control<QLineEdit>(window, box), text);
}

inline void choose(const QWidget &window, const char *chooser, const QString &text)
{
    control<DataCombo>(window, chooser).setDisplayedText(text);
}

inline void press(const QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

/// Presses a button and does the steps on the dialog that it opens.
inline void press(const QWidget &window, const char *button, const char *dialog,
                  const std::function<void(QWidget &)> &steps)
{
    inDialog(
        dialog, [&] { press(window, button); }, steps);
}

class DayJournal : public TestJournal
{
public:
    explicit DayJournal(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom))
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

    /// Rows of the two journal tables: key, catalogue key, day, minutes of the day, quantity.
    QStringList meals()
    {
        return rows("select MealConsumeID, MealID, ConsumeDate, round(ConsumeTime * 1440), Qty"
                    " from MealConsume order by MealConsumeID");
    }
    QStringList activities()
    {
        return rows("select ExercisePerformID, ExerciseID, PerformDate, round(timeBeg * 1440),"
                    " round(timeEnd * 1440), Qty from ExercisePerform order by ExercisePerformID");
    }

    /// Runs an editor on a record, 0 for a new one, and the steps on it; the editor as closed.
    template<typename Editor>
    std::unique_ptr<Editor> edit(qint32 id, const std::function<void(QWidget &)> &steps)
    {
        auto editor = std::make_unique<Editor>(*session, messages);
        inDialog(
            qPrintable(editor->objectName()), [&] { editor->run(id); }, steps);
        return editor;
    }
    template<typename List>
    void inList(const std::function<void(QWidget &)> &steps)
    {
        List list(*session, messages);
        inDialog(
            qPrintable(list.objectName()), [&] { list.run(); }, steps);
    }

    void setUser(int weight, const char *measurement)
    {
        exec(qPrintable(QString("update Common set weight = %1, Measurement = '%2'")
                            .arg(QString::number(weight), measurement)));
        data->rsCommon.close();
        session->readCommonParameters();
    }

    /// Presses OK, which is refused with the focus on a field, and types the remedy there.
    void refuses(QWidget &window, const char *field, const QString &message, const QString &remedy)
    {
        press(window, "btnOK");
        QCOMPARE(messages.said.size(), size_t(1));
        QCOMPARE(messages.said.front().title, "Error");
        QCOMPARE(messages.takeText(), message);
        auto &refused = control<QWidget>(window, field);
        QVERIFY2(refused.hasFocus(), field);
        typeInto(refused, remedy);
    }

    RecordedMessages messages;
};

inline QString textOf(const QWidget &window, const char *box)
{
    return control<QLineEdit>(window, box).text();
}

/// Types a time over the whole of a time picker.
inline void typeTime(QTimeEdit &picker, const QString &text)
{
    picker.setFocus();
    picker.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&picker, text);
}

/// The rows of a list as shown, columns joined by "|".
inline QStringList shown(const QWidget &window, const char *list = "lvwList")
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

inline void selectRow(const QWidget &window, int row, const char *list = "lvwList")
{
    auto &view = control<QTreeView>(window, list);
    view.setCurrentIndex(view.model()->index(row, 0));
}

/// The selected row, -1 for none.
inline int selectedRow(const QWidget &window, const char *list = "lvwList")
{
    return control<QTreeView>(window, list).selectionModel()->selectedRows().value(0).row();
}
