// The lists of the catalogues: what they show, what is selected after every action.
#include "guitest.h"
#include "testjournal.h"

#include "catalogue/frmExercises.h"
#include "catalogue/frmMealCategories.h"
#include "catalogue/frmMeals.h"
#include "ui/datacombo.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace {

constexpr char question[] = "Are you sure you want to delete the selected record?";

QTreeView &list(const QWidget &window)
{
    return control<QTreeView>(window, "lvwList");
}

void press(const QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

QString cell(const QTreeView &view, int row, int column)
{
    return view.model()->index(row, column).data().toString();
}

/// The rows' first column.
QStringList names(const QWidget &window)
{
    QStringList result;
    for (int row = 0; row < list(window).model()->rowCount(); ++row)
        result += cell(list(window), row, 0);
    return result;
}

/// Name of the selected row; empty for none.
QString selected(const QWidget &window)
{
    return list(window).selectionModel()->selectedRows().value(0).data().toString();
}

void select(const QWidget &window, const QString &name)
{
    auto &view = list(window);
    view.setCurrentIndex(view.model()->index(int(names(window).indexOf(name)), 0));
}

/// Runs a list window and the steps on it.
template<typename Window>
void inList(TestJournal &journal, RecordedMessages &messages,
            const std::function<void(QWidget &)> &steps)
{
    Window window(*journal.session, messages);
    inDialog(
        window.objectName().toLatin1().constData(), [&] { window.run(); }, steps);
}

void storeMeal(TestJournal &journal, int category, const QString &name)
{
    journal.exec(qPrintable(
        QStringLiteral("insert into Meal (MealCategoryID, Name, Unit, DefaultQty, Calories, Fat, "
                       "Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC) "
                       "values (%1, '%2', 'slice', 1.5, 95.25, 1, 20, 3, 9, 74.25, 12)")
            .arg(category)
            .arg(name)));
}

/// Types a new category's name into the meal editor's "New Category" dialog.
void createCategory(QWidget &mealEditor, const QString &name)
{
    inDialog(
        "frmMealCategory", [&] { press(mealEditor, "btnNewCategory"); },
        [&](QWidget &dialog) {
            typeInto(control<QLineEdit>(dialog, "txtName"), name);
            press(dialog, "btnOK");
        });
}

void describeMeal(QWidget &editor, const QString &name)
{
    typeInto(control<QLineEdit>(editor, "txtName"), name);
    typeInto(control<QLineEdit>(editor, "txtUnit"), "cup");
    for (const char *field : {"txtFat", "txtCarboHydrate", "txtProtein", "txtCalories"})
        typeInto(control<QLineEdit>(editor, field), "1");
    press(editor, "btnOK");
}

} // namespace

class tst_cataloguelists : public QObject
{
    Q_OBJECT

private slots:
    void keepsCategories();
    void refusesToDeleteWhatIsReferredTo();
    void showsActivitiesInTheUsersNumbers();
    void mealsBeginWithTheFirstCategory();
    void movedMealIsFollowed();
    void newCategoryIsSelectedThoughTheMealIsCancelled();
    void withoutCategories();
};

void tst_cataloguelists::keepsCategories()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('fruit'), ('Bread'), ('Cheese')");
    RecordedMessages messages;
    inList<frmMealCategories>(journal, messages, [&](QWidget &window) {
        auto &view = list(window);
        QCOMPARE(names(window), (QStringList{"Bread", "Cheese", "fruit"}));
        QCOMPARE(selected(window), QString());
        press(window, "btnEdit");
        QCOMPARE(messages.takeText(), "Nothing to edit");
        QVERIFY(view.hasFocus());

        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(selected(window), "Bread");
        inDialog(
            "frmMealCategory", [&] { QTest::keyClick(&view, Qt::Key_Return); },
            [](QWidget &editor) {
                typeInto(control<QLineEdit>(editor, "txtName"), "Rolls");
                press(editor, "btnOK");
            });
        QCOMPARE(names(window), (QStringList{"Cheese", "fruit", "Rolls"}));
        QCOMPARE(selected(window), "Rolls");

        QTest::keyClick(&view, Qt::Key_Delete); // answered with No
        QCOMPARE(messages.said.back().title, "Are you sure");
        QCOMPARE(messages.takeText(), question);
        QCOMPARE(names(window).size(), 3);
        for (const char *next : {"fruit", "Cheese", ""}) {
            messages.answers = {true};
            QTest::keyClick(&view, Qt::Key_Delete);
            QCOMPARE(selected(window), QLatin1String(next));
        }
        messages.said.clear();
        press(window, "btnDelete");
        QCOMPARE(messages.takeText(), "Nothing to delete");
        QVERIFY(view.hasFocus());

        inDialog(
            "frmMealCategory", [&] { QTest::keyClick(&view, Qt::Key_Insert); },
            [](QWidget &editor) {
                typeInto(control<QLineEdit>(editor, "txtName"), " Eggs");
                press(editor, "btnOK");
            });
        QCOMPARE(selected(window), " Eggs");
    });
    QCOMPARE(journal.rows("select Name from MealCategory"), QStringList{" Eggs"});
}

void tst_cataloguelists::refusesToDeleteWhatIsReferredTo()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Bread'), ('Fruit')");
    storeMeal(journal, 1, "Toast");
    RecordedMessages messages;
    inList<frmMealCategories>(journal, messages, [&](QWidget &window) {
        select(window, "Bread");
        messages.answers = {true};
        press(window, "btnDelete");
        QCOMPARE(messages.takeText(),
                 "This record can't be deleted because there are records in the database, which "
                 "refer to it");
        QCOMPARE(names(window), (QStringList{"Bread", "Fruit"}));
        QCOMPARE(selected(window), "Bread");
        QVERIFY(list(window).hasFocus());
        QVERIFY(!journal.data->rsMealCategory.isOpen());

        journal.exec("delete from Meal");
        messages.answers = {true};
        press(window, "btnDelete");
        QCOMPARE(selected(window), "Fruit");
    });
}

void tst_cataloguelists::showsActivitiesInTheUsersNumbers()
{
    TestJournal journal(QLocale("de_DE"));
    journal.exec("insert into Exercise (Name, Unit, DefaultQty, CaloriesConsume, "
                 "CaloriesConsumeBase, WeightDependent) values "
                 "('Walking', 'km', null, 53.999998, 50, 1), ('Rowing', 'hour', 0.5, 1300, 1, 0)");
    RecordedMessages messages;
    inList<frmExercises>(journal, messages, [&](QWidget &window) {
        const auto &view = list(window);
        const auto row = [&](int at) {
            QStringList texts;
            for (int column = 0; column < 4; ++column)
                texts += cell(view, at, column);
            return texts.join(u'|');
        };
        QCOMPARE(row(0), "Rowing|1300|hour|0,5");
        QCOMPARE(row(1), "Walking|54|km|");
        const auto alignment = [&](int column) {
            return view.model()->index(0, column).data(Qt::TextAlignmentRole).toInt();
        };
        QVERIFY(alignment(1) & Qt::AlignRight);
        QVERIFY(!(alignment(2) & Qt::AlignRight));

        inDialog(
            "frmExercise",
            [&] {
                const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
                QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
                QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
            },
            [](QWidget &editor) {
                QCOMPARE(control<QLineEdit>(editor, "txtName").text(), "Walking");
                typeInto(control<QLineEdit>(editor, "txtName"), "A walk");
                press(editor, "btnOK");
            });
        QCOMPARE(row(0), "A walk|54|km|");
        QCOMPARE(selected(window), "A walk");
    });
}

void tst_cataloguelists::mealsBeginWithTheFirstCategory()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Fruit'), ('Bread')");
    storeMeal(journal, 2, "Toast");
    storeMeal(journal, 2, "Bagel");
    storeMeal(journal, 1, "Pear");
    RecordedMessages messages;
    inList<frmMeals>(journal, messages, [&](QWidget &window) {
        QCOMPARE(control<DataCombo>(window, "dcbMealCategory").displayedText(), "Bread");
        QCOMPARE(names(window), (QStringList{"Bagel", "Toast"}));
        QStringList texts;
        for (int column = 1; column < 8; ++column)
            texts += cell(list(window), 0, column);
        QCOMPARE(texts.join(u'|'), "slice|1|20|3|95.25|1.5|");

        control<DataCombo>(window, "dcbMealCategory").setDisplayedText("Fruit");
        QCOMPARE(names(window), QStringList{"Pear"});
        QCOMPARE(selected(window), QString());
        select(window, "Pear");
        messages.answers = {true};
        press(window, "btnDelete");
        QCOMPARE(names(window), QStringList()); // and not those of the first category
    });
    QCOMPARE(journal.rows("select Name from Meal order by MealID"),
             (QStringList{"Toast", "Bagel"}));
}

void tst_cataloguelists::movedMealIsFollowed()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Bread'), ('Fruit')");
    storeMeal(journal, 1, "Pear");
    storeMeal(journal, 1, "Toast");
    storeMeal(journal, 2, "Apple");
    RecordedMessages messages;
    inList<frmMeals>(journal, messages, [&](QWidget &window) {
        auto &category = control<DataCombo>(window, "dcbMealCategory");
        select(window, "Pear");
        inDialog(
            "frmMeal", [&] { press(window, "btnEdit"); },
            [](QWidget &editor) {
                createCategory(editor, "Sweets");
                control<DataCombo>(editor, "dcbMealCategory").setDisplayedText("Fruit");
                press(editor, "btnOK");
            });
        QCOMPARE(category.displayedText(), "Fruit");
        QCOMPARE(category.count(), 3);
        QCOMPARE(names(window), (QStringList{"Apple", "Pear"}));
        QCOMPARE(selected(window), "Pear");
    });
    QCOMPARE(journal.row("select MealCategoryID from Meal where Name = 'Pear'"), "2");
}

void tst_cataloguelists::newCategoryIsSelectedThoughTheMealIsCancelled()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Bread')");
    storeMeal(journal, 1, "Toast");
    RecordedMessages messages;
    inList<frmMeals>(journal, messages, [&](QWidget &window) {
        inDialog(
            "frmMeal", [&] { press(window, "btnNew"); },
            [](QWidget &editor) { createCategory(editor, "Sweets"); });
        QCOMPARE(control<DataCombo>(window, "dcbMealCategory").displayedText(), "Sweets");
        QCOMPARE(names(window), QStringList());
        QVERIFY(list(window).hasFocus());
    });
}

void tst_cataloguelists::withoutCategories()
{
    TestJournal journal;
    RecordedMessages messages;
    inList<frmMeals>(journal, messages, [&](QWidget &window) {
        QCOMPARE(control<DataCombo>(window, "dcbMealCategory").boundValue(), std::nullopt);
        press(window, "btnDelete");
        QCOMPARE(messages.takeText(), "Nothing to delete");
        inDialog(
            "frmMeal", [&] { press(window, "btnNew"); },
            [](QWidget &editor) {
                createCategory(editor, "Sweets");
                describeMeal(editor, "Fudge");
            });
        QCOMPARE(names(window), QStringList{"Fudge"});
    });
}

QTEST_MAIN(tst_cataloguelists)
#include "tst_cataloguelists.moc"
