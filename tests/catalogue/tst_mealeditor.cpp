// Describing a meal: the split while typing and the order of the checks.
#include "dayjournal.h"

#include "catalogue/frmMeal.h"

#include <QLabel>

namespace {

/// What the three boxes show: fat, carbohydrate, protein.
QString byCalories(const QWidget &window)
{
    return textOf(window, "txtFatBC") + '|' + textOf(window, "txtCarboHydrateBC") + '|' +
           textOf(window, "txtProteinBC");
}

} // namespace

class tst_mealeditor : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(QLocale("de_DE")); }
    void checksInOrder();
    void splitsUnlessItIsLeftAlone();
    void mealWithoutNutrientsNeedsItsShares();

private:
    QString stored(const char *name)
    {
        return journal->row(qPrintable(
            QString("select MealCategoryID, Name, Unit, DefaultQty, Increment, Calories, Fat,"
                    " Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC from Meal"
                    " where Name = '%1'")
                .arg(name)));
    }

    std::unique_ptr<DayJournal> journal;
};

void tst_mealeditor::checksInOrder()
{
    const auto editor = journal->edit<frmMeal>(0, [this](QWidget &window) {
        const auto refuses = [&](const char *field, const QString &message, const char *remedy) {
            journal->refuses(window, field, message, remedy);
        };
        const QString category = "The Meal Category is not specified or specified incorrect";
        refuses("dcbMealCategory", category, "Fru"); // the beginning of a name is no name
        refuses("dcbMealCategory", category, "fruit");
        refuses("txtName", "The Meal Name should be specified", "   ");
        refuses("txtName", "The Meal Name should be specified", "APPLE");
        refuses("txtUnit", "The Unit should be specified", "slice");
        type(window, "txtIncrement", "1.5");
        type(window, "txtDefaultQty", " ");
        refuses("txtDefaultQty", "The Default Quantity field contains illegal data", "");
        refuses("txtIncrement", "The Increment field contains illegal data", "0,25");
        refuses("txtFat", "The Fat should be specified", "1.5");
        refuses("txtFat", "The Fat field contains illegal data", "10,0");
        refuses("txtCarboHydrate", "The CarboHydrate should be specified", "x");
        refuses("txtCarboHydrate", "The CarboHydrate field contains illegal data", "20");
        refuses("txtProtein", "The Protein should be specified", "1e3");
        refuses("txtProtein", "The Protein field contains illegal data", "5");
        refuses("txtCalories", "The Calories should be specified", "9999999999999999");
        refuses("txtCalories", "The Calories field contains illegal data", "250");
        press(window, "btnOK");
        QVERIFY(journal->messages.takeText().contains("already Meal with the same name"));
        type(window, "txtName", " Pie ");
        QTest::keyClick(&window, Qt::Key_Return);
    });
    QCOMPARE(editor->storedName(), " Pie ");
    QCOMPARE(stored(" Pie "), "1| Pie |slice||0.25|250|10|20|5|118.4211|105.2631|26.3158");
}

void tst_mealeditor::splitsUnlessItIsLeftAlone()
{
    journal->exec("update Meal set Calories = 95, Fat = 10, Carbohydrate = 20, Protein = 5,"
                  " FatBC = 1, CarbohydrateBC = 2, ProteinBC = 3 where MealID = 2");
    journal->edit<frmMeal>(2, [](QWidget &window) {
        QCOMPARE(textOf(window, "txtIncrement"), QString());
        type(window, "txtCalories", "190");
        QCOMPARE(byCalories(window), "90|80|20");
        type(window, "txtProtein", "5x"); // no number, the shares stay
        QCOMPARE(byCalories(window), "90|80|20");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    journal->edit<frmMeal>(2, [](QWidget &window) {
        type(window, "txtUnit", "cup & saucer");
        QCOMPARE(control<QLabel>(window, "lblCalories").text(), "Ca&lories per cup && saucer");
        press(window, "btnOK");
    });
    QCOMPARE(stored("Banana"), "1|Banana|cup & saucer|||95|10|20|5|1|2|3");
}

void tst_mealeditor::mealWithoutNutrientsNeedsItsShares()
{
    journal->edit<frmMeal>(0, [this](QWidget &window) {
        choose(window, "dcbMealCategory", "Fruit");
        for (const char *box : {"txtName", "txtUnit"})
            type(window, box, "Water");
        for (const char *box : {"txtFat", "txtCarboHydrate", "txtProtein", "txtCalories"})
            type(window, box, "0");
        QCOMPARE(byCalories(window), "||");
        press(window, "btnOK");
        QVERIFY(!journal->messages.said.empty());
        for (const char *share : {"txtFatBC", "txtCarboHydrateBC", "txtProteinBC"})
            type(window, share, "7");
        press(window, "btnOK");
    });
    QCOMPARE(stored("Water"), "1|Water|Water|||0|0|0|0|7|7|7"); // nothing runs the other way
}

QTEST_MAIN(tst_mealeditor)
#include "tst_mealeditor.moc"
