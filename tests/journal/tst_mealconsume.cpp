// The editors of meals eaten and of activities performed.
#include "dayjournal.h"

#include "journal/frmExercisePerform.h"
#include "journal/frmMealConsume.h"

#include <QAbstractItemView>
#include <QLabel>

namespace {

/// The meal with its unit, the quantity and the figures of calories.
QString entry(QWidget &editor)
{
    QStringList texts{control<DataCombo>(editor, "dcbMeal").displayedText(),
                      textOf(editor, "txtQty")};
    for (const char *name : {"lblUnit", "lblFat", "lblCarboHydrate", "lblProtein", "lblCalories"})
        texts += control<QLabel>(editor, name).text();
    return texts.join(' ').trimmed();
}

QString categoryIn(QWidget &editor)
{
    return control<DataCombo>(editor, "dcbMealCategory").displayedText();
}

/// The meals that the chooser offers while nothing is typed, with what stands beside them.
QString offeredIn(QWidget &editor)
{
    const auto &chooser = control<DataCombo>(editor, "dcbMeal");
    QStringList lines;
    for (int row = 0; row < chooser.count(); ++row) {
        const QString detail = chooser.itemData(row, Qt::AccessibleDescriptionRole).toString();
        lines += QString("%1 %2").arg(chooser.itemText(row), detail).trimmed();
    }
    return lines.join('|');
}

void typeTimes(QWidget &editor, const QString &begin, const QString &end)
{
    typeTime(control<QTimeEdit>(editor, "dtpBeginTime"), begin);
    typeTime(control<QTimeEdit>(editor, "dtpEndTime"), end);
}

constexpr char everyMeal[] = "Apple Fruit|Apple juice Fruit juice|Banana Fruit|"
                             "Crème brûlée Dairy|Grape Fruit juice";

} // namespace

class tst_mealconsume : public QObject
{
    Q_OBJECT

private slots:
    void init() { makeJournal(QLocale("en_GB")); }
    void checksInOrder();
    void activityIsCheckedInOrder();
    void takesTypedTime_data();
    void takesTypedTime();
    void createsMeal();
    void mealBringsItsCategory();
    void givesUpTheCategoryWithTheMeal();
    void categoryNarrowsTheMeals();
    void readsTheCatalogueOnlyWhenNeeded();

private:
    // With a second category and meals that begin as others do.
    void makeJournal(const QLocale &locale)
    {
        journal = std::make_unique<DayJournal>(locale);
        journal->exec("insert into MealCategory values (7, 'Fruit juice');"
                      "insert into Meal values (9, 7, 'Apple juice', 'glass', 2.5, 0.5, 1, 1, 1, 1,"
                      " 0, 40, 2), (10, 7, 'Grape', 'glass', 1, 1, 1, 1, 1, 1, 0, 60, 1)");
    }
    std::unique_ptr<DayJournal> journal;
};

void tst_mealconsume::checksInOrder()
{
    journal = std::make_unique<DayJournal>(QLocale("de_DE"));
    const auto editor = journal->edit<frmMealConsume>(0, [this](QWidget &window) {
        const QString category = "The Meal Category is not specified or specified incorrect";
        journal->refuses(window, "dcbMealCategory", category, "Fru");
        journal->refuses(window, "dcbMealCategory", category, "Vacant");
        journal->refuses(window, "dcbMeal", "The Meal should be specified", "");
        choose(window, "dcbMealCategory", "Fruit");
        QCOMPARE(textOf(window, "txtQty"), "1,5");
        choose(window, "dcbMeal", "Appl");
        journal->refuses(window, "dcbMeal", "The Meal should be specified", "Apple");
        type(window, "txtQty", "  ");
        journal->refuses(window, "txtQty", "The Quantity should be specified", "2.5");
        journal->refuses(window, "txtQty", "The Quantity field contains illegal data", "-2,5");
        QCOMPARE(journal->row("select NextMealConsumeID from Common"), "1");
        press(window, "btnOK");
    });
    // The counter holds the number given out last.
    QCOMPARE(editor->storedId(), 2);
    journal->edit<frmMealConsume>(2, [](QWidget &window) {
        QCOMPARE(textOf(window, "txtQty"), "-2,5"); // and not what is usual
        press(window, "btnOK");
    });
    QCOMPARE(journal->row("select NextMealConsumeID from Common"), "2");
    QCOMPARE(journal->meals(), QStringList{"2|1|46225|750|-2.5"});
}

void tst_mealconsume::takesTypedTime_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("minute"); // -1 where it is refused
    const auto row = [](const char *name, const char *locale, const char *keys, int minute) {
        QTest::newRow(name) << QString(locale) << QString(keys) << minute;
    };
    row("one digit of the hour", "en_GB", "730", 450);
    row("minutes alone", "en_GB", ">45", 765);
    row("1:30 or 13:0x", "en_GB", "130", -1);
    row("over all", "en_GB", "^7:30", 450);
    row("no hour", "en_GB", "<", -1);
    row("afternoon as proposed", "en_US", "8:45", 1245);
    row("midnight", "en_US", "12:00 a", 0);
    row("no half of the day", "en_US", "8:45 <", -1);
}

// With the picker still focused, by Enter and by a click: neither stores a time that is on no
// screen.
void tst_mealconsume::takesTypedTime()
{
    QFETCH(QString, locale);
    QFETCH(QString, keys);
    QFETCH(int, minute);
    journal = std::make_unique<DayJournal>(QLocale(locale));
    for (const bool byEnter : {true, false}) {
        journal->exec("delete from MealConsume");
        journal->session->setCurrentTime(QTime(12, 30));
        journal->edit<frmMealConsume>(0, [&](QWidget &editor) {
            choose(editor, "dcbMealCategory", "Dairy");
            auto &picker = control<QTimeEdit>(editor, "dtpTime");
            auto *line = picker.findChild<QLineEdit *>();
            const QPoint hour(line->fontMetrics().averageCharWidth(), line->height() / 2);
            QTest::mouseClick(line, Qt::LeftButton, {}, hour);
            typeKeys(keys);
            const QString seen = picker.text();
            if (byEnter)
                pressKey(Qt::Key_Return);
            else
                press(editor, "btnOK");
            QCOMPARE(journal->messages.takeText(),
                     minute < 0 ? "The Time field contains illegal data" : QString());
            if (minute < 0)
                QCOMPARE(picker.text(), seen);
        });
        QCOMPARE(journal->row("select round(ConsumeTime * 1440) from MealConsume"),
                 minute < 0 ? QString() : QString::number(minute));
    }
}

void tst_mealconsume::createsMeal()
{
    journal->edit<frmMealConsume>(0, [](QWidget &editor) {
        choose(editor, "dcbMealCategory", "Vacant");
        press(editor, "btnNewMeal", "frmMeal", [](QWidget &meal) {
            QCOMPARE(categoryIn(meal), "Vacant");
            choose(meal, "dcbMealCategory", "Dairy");
            for (const char *box : {"txtName", "txtUnit"})
                type(meal, box, "Cheese");
            type(meal, "txtDefaultQty", "2");
            for (const char *box : {"txtCalories", "txtFat", "txtCarboHydrate", "txtProtein"})
                type(meal, box, "10");
            press(meal, "btnOK");
        });
        QCOMPARE(categoryIn(editor), "Dairy");
        QCOMPARE(entry(editor).left(15), "Cheese 2 Cheese");
        choose(editor, "dcbMealCategory", "");
        choose(editor, "dcbMeal", "Grape"); // which brings its category
        press(editor, "btnNewMeal", "frmMeal",
              [](QWidget &meal) { QCOMPARE(categoryIn(meal), "Fruit juice"); });
        QCOMPARE(entry(editor), "Grape 1 glass 0 60 1 61");
        press(editor, "btnOK");
    });
    QCOMPARE(journal->meals(), QStringList{"2|10|46225|750|1"});
    QCOMPARE(journal->row("select DefaultQty from Meal where Name = 'Cheese'"), "2");
}

// However it is chosen: the category follows, and neither its first meal nor its quantity comes.
void tst_mealconsume::mealBringsItsCategory()
{
    makeJournal(QLocale("de_DE"));
    const std::function<void(DataCombo &)> ways[] = {
        [](DataCombo &) {
            typeKeys("ap"); // Apple, Apple juice, Grape
            pressKey(Qt::Key_Down);
            pressKey(Qt::Key_Down);
            pressKey(Qt::Key_Tab);
        },
        [](DataCombo &meal) {
            meal.showPopup();
            const QAbstractItemView &list = *meal.view();
            const QRect row = list.visualRect(list.model()->index(meal.findText("Grape"), 0));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
        }};
    for (const auto &way : ways) {
        journal->exec("delete from MealConsume");
        journal->edit<frmMealConsume>(0, [&](QWidget &editor) {
            type(editor, "txtQty", "3");
            control<DataCombo>(editor, "dcbMealCategory").setFocus();
            pressKey(Qt::Key_Tab);
            QCOMPARE(offeredIn(editor), everyMeal);
            QCOMPARE(textOf(editor, "txtQty"), "3");
            way(control<DataCombo>(editor, "dcbMeal"));
            QCOMPARE(categoryIn(editor), "Fruit juice");
            QCOMPARE(entry(editor), "Grape 1 glass 0 60 1 61");
            type(editor, "txtQty", "1,5");
            pressKey(Qt::Key_Up);
            press(editor, "btnOK");
        });
        QCOMPARE(journal->messages.takeText(), QString());
        QCOMPARE(journal->row("select MealID, Qty from MealConsume"), "10|2.5");
    }
}

// A longer name may begin with a whole one, and matches are walked through before one is taken.
void tst_mealconsume::givesUpTheCategoryWithTheMeal()
{
    journal->edit<frmMealConsume>(0, [](QWidget &editor) {
        control<DataCombo>(editor, "dcbMealCategory").setFocus();
        typeKeys("Vac");
        pressKey(Qt::Key_Escape); // what is typed there is no category
        control<DataCombo>(editor, "dcbMeal").setFocus();
        typeKeys("apple");
        QCOMPARE(categoryIn(editor) + " " + entry(editor), "Fruit apple 1.5 piece 15 22 8 45");
        typeKeys(" ");
        QCOMPARE(categoryIn(editor) + " " + entry(editor), "Vac apple");
        typeKeys("<");
        pressKey(Qt::Key_Down);
        QCOMPARE(categoryIn(editor), "Fruit juice");
        QCOMPARE(entry(editor), "Apple juice 2.5 glass 0 100 5 105");
        pressKey(Qt::Key_Escape);
        QCOMPARE(categoryIn(editor), "Fruit");
        typeKeys("^ap");
        pressKey(Qt::Key_Down);
        pressKey(Qt::Key_Down);
        QCOMPARE(categoryIn(editor), "Fruit juice");
        pressKey(Qt::Key_Escape);
        QCOMPARE(categoryIn(editor) + " " + entry(editor), "Vac ap");
        control<DataCombo>(editor, "dcbMealCategory").setFocus();
        typeKeys("^Fru ");
        pressKey(Qt::Key_Escape); // it is what is typed there now
        control<DataCombo>(editor, "dcbMeal").setFocus();
        typeKeys("^br");
        QCOMPARE(categoryIn(editor), "Fru ");
        pressKey(Qt::Key_Return);
        press(editor, "btnOK");
    });
    QCOMPARE(journal->meals(), QStringList{"2|3|46225|750|1"});
}

// Once there is a category, it counts wherever it came from; without one all meals are back.
void tst_mealconsume::categoryNarrowsTheMeals()
{
    journal->edit<frmMealConsume>(0, [](QWidget &editor) {
        auto &category = control<DataCombo>(editor, "dcbMealCategory");
        const auto enterMeals = [&] {
            category.setFocus();
            pressKey(Qt::Key_Tab);
        };
        enterMeals();
        typeKeys("banana");
        pressKey(Qt::Key_Tab);
        type(editor, "txtQty", "7");
        enterMeals();
        QCOMPARE(offeredIn(editor), "Apple|Banana");
        QCOMPARE(entry(editor), "Banana 7 piece 18 630 28 676");
        type(editor, "txtQty", "900000000000000"); // beyond what is shown
        QCOMPARE(entry(editor), "Banana 900000000000000 piece");
        typeKeys("grape");
        QCOMPARE(categoryIn(editor), "Fruit");
        choose(editor, "dcbMealCategory", "Fruit juice");
        QCOMPARE(entry(editor).left(17), "Apple juice 2.5 g");
        QCOMPARE(offeredIn(editor), "Apple juice|Grape");
        category.setFocus();
        typeKeys("^<");
        type(editor, "txtQty", "7");
        enterMeals();
        QCOMPARE(offeredIn(editor), everyMeal);
        QCOMPARE(categoryIn(editor) + entry(editor), "Apple juice 7 glass 0 280 14 294");
        pressKey(Qt::Key_F4);
        pressKey(Qt::Key_Return); // the same meal once more, of which as much was eaten
        QCOMPARE(categoryIn(editor), "Fruit juice");
        press(editor, "btnOK");
    });
    QCOMPARE(journal->meals(), QStringList{"2|9|46225|750|7"});
}

void tst_mealconsume::readsTheCatalogueOnlyWhenNeeded()
{
    const Recordset &catalogue = journal->data->rsMealAll;
    journal->exec("insert into MealConsume values (5, 10, 46225, 0.25, 7.25)");
    journal->edit<frmMealConsume>(5, [&](QWidget &editor) {
        control<DataCombo>(editor, "dcbMeal").setFocus();
        QCOMPARE(offeredIn(editor), "Apple juice|Grape");
        QVERIFY(!catalogue.isOpen());
    });
    journal->edit<frmMealConsume>(0, [&](QWidget &editor) {
        journal->exec("alter table Meal rename to Unreadable");
        auto &meal = control<DataCombo>(editor, "dcbMeal");
        meal.setFocus();
        QCOMPARE(journal->messages.said.size(), size_t(1));
        journal->exec("alter table Unreadable rename to Meal");
        control<DataCombo>(editor, "dcbMealCategory").setFocus();
        meal.setFocus();
        QCOMPARE(meal.count(), 5);
    });
    QCOMPARE(journal->messages.said.size(), size_t(1));
    QVERIFY(!catalogue.isOpen());
}

// The editor of activities, where it differs.
void tst_mealconsume::activityIsCheckedInOrder()
{
    journal->edit<frmExercisePerform>(0, [this](QWidget &window) {
        choose(window, "dcbExercise", "Walk");
        journal->refuses(window, "dcbExercise",
                         "The Exercise is not specified or specified incorrect", "");
        choose(window, "dcbExercise", "Walking");
        for (const char *end : {"0030", "2300"}) { // across midnight; no time at all
            typeTimes(window, "2300", end);
            press(window, "btnOK");
            QCOMPARE(journal->messages.takeText(),
                     "The End Time value should be more than the Begin Time value");
            QVERIFY(control<QTimeEdit>(window, "dtpEndTime").hasFocus());
        }
        typeTimes(window, "2300", "2331");
        type(window, "txtQty", " ");
        journal->refuses(window, "txtQty", "The Quantity should be specified", "1 1");
        journal->refuses(window, "txtQty", "The Quantity field contains illegal data", "-30");
        QCOMPARE(control<QLabel>(window, "lblCalories").text(), "-105");
        QCOMPARE(journal->row("select NextExercisePerformID from Common"), "1");
        press(window, "btnOK");
    });
    journal->edit<frmExercisePerform>(2, [](QWidget &window) {
        QCOMPARE(textOf(window, "txtQty"), "-30"); // and not what is usual
        press(window, "btnOK");
    });
    QCOMPARE(journal->activities(), QStringList{"2|2|46225|1380|1411|-30"});
    QCOMPARE(journal->session->currentTime(), QTime(23, 0));
}

QTEST_MAIN(tst_mealconsume)
#include "tst_mealconsume.moc"
