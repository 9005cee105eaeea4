// Describing a meal: the split while typing, the order of the checks, categories made on the way.
#include "guitest.h"
#include "testjournal.h"

#include "catalogue/frmMeal.h"
#include "catalogue/frmMealCategory.h"
#include "ui/datacombo.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr char allMeals[] = "select MealCategoryID, Name, Unit, DefaultQty, Increment, Calories, "
                            "Fat, Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC "
                            "from Meal order by MealID";

QLineEdit &box(const QWidget &window, const char *name)
{
    return control<QLineEdit>(window, name);
}

void press(const QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

/// What the three boxes show: fat, carbohydrate, protein.
QString byCalories(const QWidget &window)
{
    return QStringList{box(window, "txtFatBC").text(), box(window, "txtCarboHydrateBC").text(),
                       box(window, "txtProteinBC").text()}
        .join(u'|');
}

void typeFigures(const QWidget &window, const QStringList &figures)
{
    typeInto(box(window, "txtFat"), figures.at(0));
    typeInto(box(window, "txtCarboHydrate"), figures.at(1));
    typeInto(box(window, "txtProtein"), figures.at(2));
    typeInto(box(window, "txtCalories"), figures.at(3));
}

} // namespace

class tst_mealeditor : public QObject
{
    Q_OBJECT

private slots:
    void storesWhatIsTyped_data();
    void storesWhatIsTyped();
    void checksInOrder();
    void showsWhatIsStoredUntilItIsEdited();
    void mealWithoutNutrientsNeedsItsShares();
    void takenNameKeepsTheInput();
    void labelNamesTheUnit();
    void createsACategory();
    void vanishedRecordIsRefused();
};

void tst_mealeditor::storesWhatIsTyped_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QStringList>("figures"); // fat, carbohydrate, protein, calories, increment
    QTest::addColumn<QString>("shares");

    QTest::newRow("Boston") << QLocale("en_US") << QStringList{"10", "20", "5", "250", "0.25"}
                            << "118.4211|105.2631|26.3158";
    QTest::newRow("Berlin") << QLocale("de_DE") << QStringList{"10", "20", "5,0", "250", "0,25"}
                            << "118,4211|105,2631|26,3158";
}

void tst_mealeditor::storesWhatIsTyped()
{
    QFETCH(QLocale, locale);
    QFETCH(QStringList, figures);
    TestJournal journal(locale);
    journal.exec("insert into MealCategory (Name) values ('Bread'), ('Fruit')");
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    editor.setCategoryId(2);
    inDialog(
        "frmMeal", [&] { editor.run(0); },
        [&](QWidget &window) {
            QCOMPARE(window.windowTitle(), "Meal Description - New");
            QCOMPARE(control<DataCombo>(window, "dcbMealCategory").displayedText(), "Fruit");
            typeInto(box(window, "txtName"), " Pie ");
            typeInto(box(window, "txtUnit"), "slice");
            typeInto(box(window, "txtIncrement"), figures.at(4));
            typeFigures(window, figures);
            QTEST(byCalories(window), "shares");
            // What is no number leaves the shares as they were.
            typeInto(box(window, "txtProtein"), "5x");
            QTEST(byCalories(window), "shares");
            typeInto(box(window, "txtProtein"), figures.at(2));
            QTest::keyClick(&window, Qt::Key_Return);
            QVERIFY(!window.isVisible());
        });
    QCOMPARE(messages.takeText(), QString());
    QVERIFY(editor.isStored());
    QCOMPARE(editor.storedName(), " Pie ");
    QCOMPARE(editor.categoryId(), 2);
    QCOMPARE(journal.row(allMeals), "2| Pie |slice||0.25|250|10|20|5|118.4211|105.2631|26.3158");
}

void tst_mealeditor::checksInOrder()
{
    TestJournal journal(QLocale("de_DE"));
    journal.exec("insert into MealCategory (Name) values ('Bread')");
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    inDialog(
        "frmMeal", [&] { editor.run(0); },
        [&](QWidget &window) {
            const auto refuses = [&](const char *field, const char *message, const char *remedy) {
                press(window, "btnOK");
                QCOMPARE(messages.takeText(), message);
                auto &refused = control<QWidget>(window, field);
                QVERIFY2(refused.hasFocus(), field);
                typeInto(refused, remedy);
            };
            constexpr char category[] = "The Meal Category is not specified or specified incorrect";
            refuses("dcbMealCategory", category, "Bre"); // the beginning of a name is no name
            refuses("dcbMealCategory", category, "bread");
            refuses("txtName", "The Meal Name should be specified", "   ");
            refuses("txtName", "The Meal Name should be specified", "Pie");
            refuses("txtUnit", "The Unit should be specified", "slice");
            typeInto(box(window, "txtIncrement"), "1.5");
            typeInto(box(window, "txtDefaultQty"), " ");
            refuses("txtDefaultQty", "The Default Quantity field contains illegal data", "");
            refuses("txtIncrement", "The Increment field contains illegal data", "");
            refuses("txtFat", "The Fat should be specified", "1.5");
            refuses("txtFat", "The Fat field contains illegal data", "1,5");
            refuses("txtCarboHydrate", "The CarboHydrate should be specified", "x");
            refuses("txtCarboHydrate", "The CarboHydrate field contains illegal data", "2");
            refuses("txtProtein", "The Protein should be specified", "1e3");
            refuses("txtProtein", "The Protein field contains illegal data", "-1");
            refuses("txtCalories", "The Calories should be specified", "9999999999999999");
            refuses("txtCalories", "The Calories field contains illegal data", "0");
            press(window, "btnOK");
            QVERIFY(!window.isVisible());
        });
    QCOMPARE(journal.row(allMeals), "1|Pie|slice|||0|1.5|2|-1|0|0|0");
}

void tst_mealeditor::showsWhatIsStoredUntilItIsEdited()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Bread');"
                 "insert into Meal (MealCategoryID, Name, Unit, DefaultQty, Calories, Fat, "
                 "Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC) "
                 "values (1, 'Toast', 'slice', 2.5, 95, 10, 20, 5, 1, 2, 3)");
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    inDialog(
        "frmMeal", [&] { editor.run(1); },
        [&](QWidget &window) {
            QCOMPARE(window.windowTitle(), "Meal Description");
            QCOMPARE(box(window, "txtDefaultQty").text(), "2.5");
            QCOMPARE(box(window, "txtIncrement").text(), QString());
            QCOMPARE(byCalories(window), "1|2|3");
            typeInto(box(window, "txtUnit"), "piece");
            QCOMPARE(byCalories(window), "1|2|3");
            typeInto(box(window, "txtCalories"), "190");
            QCOMPARE(byCalories(window), "90|80|20");
            QTest::keyClick(&window, Qt::Key_Escape);
        });
    QVERIFY(!editor.isStored());
    QCOMPARE(editor.storedName(), QString());
    QCOMPARE(journal.row("select Unit, Calories, FatBC from Meal"), "slice|95|1");
}

void tst_mealeditor::mealWithoutNutrientsNeedsItsShares()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Drinks')");
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    editor.setCategoryId(1);
    inDialog(
        "frmMeal", [&] { editor.run(0); },
        [&](QWidget &window) {
            typeInto(box(window, "txtName"), "Water");
            typeInto(box(window, "txtUnit"), "glass");
            typeFigures(window, {"0", "0", "0", "0"});
            QCOMPARE(byCalories(window), "||");
            press(window, "btnOK");
            QVERIFY(messages.takeText().startsWith("Can't store this record in database."));
            QVERIFY(box(window, "txtFatBC").hasFocus());
            for (const char *share : {"txtFatBC", "txtCarboHydrateBC", "txtProteinBC"})
                typeInto(box(window, share), "7");
            QCOMPARE(box(window, "txtCalories").text(), "0"); // nothing runs the other way
            press(window, "btnOK");
        });
    QCOMPARE(journal.row("select Name, Calories, FatBC + CarbohydrateBC + ProteinBC from Meal"),
             "Water|0|21");
}

void tst_mealeditor::takenNameKeepsTheInput()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Bread');"
                 "insert into Meal (MealCategoryID, Name, Unit, Calories, Fat, Carbohydrate, "
                 "Protein, FatBC, CarbohydrateBC, ProteinBC) "
                 "values (1, 'Toast', 'slice', 95, 1, 1, 1, 1, 1, 1)");
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    editor.setCategoryId(1);
    inDialog(
        "frmMeal", [&] { editor.run(0); },
        [&](QWidget &window) {
            typeInto(box(window, "txtName"), "TOAST");
            typeInto(box(window, "txtUnit"), "piece");
            typeFigures(window, {"1", "2", "3", "40"});
            press(window, "btnOK");
            QCOMPARE(
                messages.takeText(),
                "Can't store this record in database. Please check whether there is already Meal "
                "with the same name in the database");
            QVERIFY(!editor.isStored());
            QCOMPARE(box(window, "txtName").text(), "TOAST");
            typeInto(box(window, "txtName"), "Rusk");
            press(window, "btnOK");
        });
    QCOMPARE(journal.rows("select Name from Meal order by MealID"), (QStringList{"Toast", "Rusk"}));
}

void tst_mealeditor::labelNamesTheUnit()
{
    TestJournal journal;
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    inDialog(
        "frmMeal", [&] { editor.run(0); },
        [&](QWidget &window) {
            const auto caption = [&] { return control<QLabel>(window, "lblCalories").text(); };
            QCOMPARE(caption(), "Ca&lories per Unit");
            typeInto(box(window, "txtUnit"), "cup & saucer");
            QCOMPARE(caption(), "Ca&lories per cup && saucer");
            typeInto(box(window, "txtUnit"), "");
            QCOMPARE(caption(), "Ca&lories per Unit");
        });
}

void tst_mealeditor::createsACategory()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Bread')");
    RecordedMessages messages;
    frmMeal editor(*journal.session, messages);
    editor.setCategoryId(1);
    inDialog(
        "frmMeal", [&] { editor.run(0); },
        [&](QWidget &window) {
            auto &category = control<DataCombo>(window, "dcbMealCategory");
            inDialog(
                "frmMealCategory", [&] { press(window, "btnNewCategory"); }, [](QWidget &) {});
            QVERIFY(!editor.categoriesChanged()); // it was cancelled
            QCOMPARE(category.boundValue(), 1);
            inDialog(
                "frmMealCategory", [&] { press(window, "btnNewCategory"); },
                [&](QWidget &dialog) {
                    QCOMPARE(dialog.windowTitle(), "Meal Category - New");
                    press(dialog, "btnOK");
                    QCOMPARE(messages.takeText(), "The Name should be specified");
                    typeInto(box(dialog, "txtName"), "BREAD");
                    press(dialog, "btnOK");
                    QCOMPARE(messages.takeText(),
                             "Can't store this record in database. Please check whether there is "
                             "already Meal Category with the same name in the database");
                    typeInto(box(dialog, "txtName"), "Apples");
                    press(dialog, "btnOK");
                });
            QCOMPARE(category.displayedText(), "Apples");
            QCOMPARE(category.boundValue(), 2);
            QCOMPARE(category.count(), 2);
        });
    QVERIFY(!editor.isStored());
    QVERIFY(editor.categoriesChanged());
    QCOMPARE(editor.newCategoryName(), "Apples");
}

void tst_mealeditor::vanishedRecordIsRefused()
{
    TestJournal journal;
    RecordedMessages messages;
    frmMealCategory editor(*journal.session, messages);
    inDialog(
        "frmMealCategory", [&] { editor.run(5); },
        [&](QWidget &window) {
            typeInto(box(window, "txtName"), "Bread");
            press(window, "btnOK");
            QVERIFY(messages.takeText().startsWith("Can't store this record in database."));
            QVERIFY(window.isVisible());
        });
    QVERIFY(!editor.isStored());
}

QTEST_MAIN(tst_mealeditor)
#include "tst_mealeditor.moc"
