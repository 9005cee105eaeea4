// The meal consumption editor.
#include "dayjournal.h"

#include "journal/frmMealConsume.h"

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

} // namespace

class tst_mealconsume : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void choosesAndRecalculates();
    void checksInOrder();
    void takesTypedTime_data();
    void takesTypedTime();
    void createsMeal();

private:
    std::unique_ptr<DayJournal> journal;
};

void tst_mealconsume::choosesAndRecalculates()
{
    journal->edit<frmMealConsume>(0, [](QWidget &editor) {
        choose(editor, "dcbMealCategory", "fruit");
        QCOMPARE(entry(editor), "Apple 1.5 piece 15 22 8 45");
        auto &quantity = control<QLineEdit>(editor, "txtQty");
        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text(), "1.75");
        choose(editor, "dcbMeal", "Banana");
        QCOMPARE(entry(editor), "Banana 1 piece 2 90 4 96");
        typeInto(quantity, "-0.5");
        QCOMPARE(entry(editor), "Banana -0.5 piece -1 -45 -2 -48");
        for (const char *none : {"1,5", "900000000000000"}) { // beyond what is shown
            typeInto(quantity, none);
            QCOMPARE(entry(editor), QString("Banana %1 piece").arg(none));
        }
        choose(editor, "dcbMealCategory", "Vacant");
        QCOMPARE(entry(editor), QString());
    });
}

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
    row("digits alone", "en_GB", "2359", 1439);
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
            QCOMPARE(control<DataCombo>(meal, "dcbMealCategory").displayedText(), "Vacant");
            choose(meal, "dcbMealCategory", "Dairy");
            for (const char *box : {"txtName", "txtUnit"})
                type(meal, box, "Cheese");
            type(meal, "txtDefaultQty", "2");
            for (const char *box : {"txtCalories", "txtFat", "txtCarboHydrate", "txtProtein"})
                type(meal, box, "10");
            press(meal, "btnOK");
        });
        QCOMPARE(control<DataCombo>(editor, "dcbMealCategory").displayedText(), "Dairy");
        QCOMPARE(entry(editor).left(15), "Cheese 2 Cheese");
        press(editor, "btnOK");
    });
    QCOMPARE(journal->row("select Name, Qty from MealConsume natural join Meal"), "Cheese|2");
}

QTEST_MAIN(tst_mealconsume)
#include "tst_mealconsume.moc"
