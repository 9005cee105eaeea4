// The lists of the catalogues: what they show, what is selected after every action.
#include "dayjournal.h"

#include "catalogue/frmExercises.h"
#include "catalogue/frmMealCategories.h"
#include "catalogue/frmMeals.h"

namespace {

/// Name of the selected row; empty for none.
QString selected(const QWidget &window)
{
    return shown(window).value(selectedRow(window)).section('|', 0, 0);
}

void typeName(const QWidget &window, const QString &name)
{
    type(window, "txtName", name);
}

} // namespace

class tst_cataloguelists : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(QLocale("de_DE")); }
    void categories();
    void activities();
    void meals();

private:
    std::unique_ptr<DayJournal> journal;
};

void tst_cataloguelists::categories()
{
    journal->inList<frmMealCategories>([this](QWidget &window) {
        QCOMPARE(shown(window), (QStringList{"Dairy", "Fruit", "Vacant"}));
        press(window, "btnEdit"); // nothing is selected
        QCOMPARE(journal->messages.takeText(), "Nothing to edit");
        journal->messages.answers = {true};
        press(window, "btnDelete"); // asks all the same, as there are rows
        QCOMPARE(journal->messages.said.size(), size_t(2));
        QCOMPARE(journal->messages.takeText(), "Nothing to delete");
        QCOMPARE(shown(window).size(), 3);
        selectRow(window, 0);
        pressKey(Qt::Key_Delete); // answered with No
        QCOMPARE(journal->messages.said.back().title, "Are you sure");
        QCOMPARE(journal->messages.takeText(),
                 "Are you sure you want to delete the selected record?");
        journal->messages.answers = {true, true};
        pressKey(Qt::Key_Delete);
        QCOMPARE(journal->messages.takeText(),
                 "This record can't be deleted because there are records in the database, which "
                 "refer to it");
        QCOMPARE(selected(window), "Dairy");
        const auto pressEnter = [] { pressKey(Qt::Key_Return); };
        inDialog("frmMealCategory", pressEnter, [this](QWidget &editor) {
            typeName(editor, "");
            journal->refuses(editor, "txtName", "The Name should be specified", "FRUIT");
            press(editor, "btnOK");
            QVERIFY(journal->messages.takeText().contains("already Meal Category with the same"));
            typeName(editor, "milk");
            press(editor, "btnOK");
        });
        QCOMPARE(shown(window), (QStringList{"Fruit", "milk", "Vacant"}));
        QCOMPARE(selected(window), "milk");
    });
}

void tst_cataloguelists::activities()
{
    journal->exec("update Exercise set DefaultQty = 0.5, CaloriesConsume = 53.999998"
                  " where Name = 'Walking'");
    journal->inList<frmExercises>([](QWidget &window) {
        QCOMPARE(shown(window), (QStringList{"Rowing|7|lap|", "Walking|54|minute|0,5"}));
        const auto doubleClickSecond = [&] {
            auto &view = control<QTreeView>(window, "lvwList");
            const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
        };
        inDialog("frmExercise", doubleClickSecond, [](QWidget &editor) {
            typeName(editor, "A walk");
            press(editor, "btnOK");
        });
        QCOMPARE(selected(window), "A walk");
    });
    journal->exec("update Exercise set Unit = replace(hex(zeroblob(99)), '00', 'lap ')");
    journal->inList<frmExercises>([](QWidget &window) {
        const QModelIndex unit = control<QTreeView>(window, "lvwList").model()->index(0, 2);
        QVERIFY(unit.data(Qt::ToolTipRole).toString().contains("lap lap"));
    });
}

// From the first category to wherever the last meal has gone.
void tst_cataloguelists::meals()
{
    journal->inList<frmMeals>([](QWidget &window) {
        const auto &category = control<DataCombo>(window, "dcbMealCategory");
        QCOMPARE(category.displayedText(), "Dairy");
        QCOMPARE(shown(window), QStringList{"Crème brûlée|cup|1|1|1|300|1|1"});
        choose(window, "dcbMealCategory", "Fruit");
        QCOMPARE(shown(window),
                 (QStringList{"Apple|piece|1|1|1|30|1,5|0,25", "Banana|piece|1|1|1|100||"}));
        QCOMPARE(selected(window), QString());
        press(window, "btnNew", "frmMeal", [](QWidget &editor) {
            const auto &chosen = control<DataCombo>(editor, "dcbMealCategory");
            press(editor, "btnNewCategory", "frmMealCategory", [](QWidget &) {});
            QCOMPARE(chosen.displayedText(), "Fruit"); // it was cancelled
            press(editor, "btnNewCategory", "frmMealCategory", [](QWidget &dialog) {
                typeName(dialog, "Sweets");
                press(dialog, "btnOK");
            });
            QCOMPARE(chosen.displayedText(), "Sweets");
        });
        QCOMPARE(category.displayedText(), "Sweets"); // though the meal was cancelled
        QCOMPARE(shown(window), QStringList());
        choose(window, "dcbMealCategory", "Dairy");
        selectRow(window, 0);
        press(window, "btnEdit", "frmMeal", [](QWidget &editor) {
            choose(editor, "dcbMealCategory", "Fruit");
            press(editor, "btnOK");
        });
        QCOMPARE(category.displayedText(), "Fruit");
        QCOMPARE(selected(window), "Crème brûlée");
    });
    QCOMPARE(journal->row("select MealCategoryID from Meal where MealID = 3"), "1");
}

QTEST_MAIN(tst_cataloguelists)
#include "tst_cataloguelists.moc"
