// Describing an activity, and the weight adjustment calculator behind "For Me".
#include "dayjournal.h"

#include "catalogue/frmExercise.h"
#include "catalogue/frmWeightAdjustment.h"

#include <QCheckBox>

namespace {

void toggleDependence(const QWidget &window)
{
    auto &check = control<QCheckBox>(window, "chkWeightDependent");
    check.setFocus();
    QTest::keyClick(&check, Qt::Key_Space);
}

} // namespace

class tst_activities : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        journal = std::make_unique<DayJournal>(QLocale("de_DE"));
        journal->exec("delete from Exercise");
        journal->setUser(90, "M");
    }
    void checksInOrder();
    void asksOrCalculatesForMe();
    void changedCaloriesAloneChangeTheBase();
    void calculatorRefuses();

private:
    QString stored()
    {
        return journal->row("select Name, Unit, DefaultQty, CaloriesConsume, CaloriesConsumeBase,"
                            " WeightDependent from Exercise order by Name");
    }

    std::unique_ptr<DayJournal> journal;
};

void tst_activities::checksInOrder()
{
    journal->exec("insert into Exercise values (1, 'Walking', 'km', null, 50, 50, 0)");
    journal->edit<frmExercise>(0, [this](QWidget &window) {
        const QString illegal = "The Calories Consume field contains illegal data";
        journal->refuses(window, "txtName", "The Name should be specified", "walking");
        journal->refuses(window, "txtCaloriesConsume", "The Calories Consume should be specified",
                         "7.5");
        journal->refuses(window, "txtCaloriesConsume", illegal, "7,5");
        type(window, "txtDefaultQty", "x");
        journal->refuses(window, "txtUnit", "The Unit should be specified", "minute");
        journal->refuses(window, "txtDefaultQty",
                         "The Default Quantity field contains illegal data", "0,5");
        press(window, "btnOK");
        QVERIFY(journal->messages.takeText().contains("already Activity with the same name"));
        type(window, "txtName", "Running");
        press(window, "btnOK");
    });
    QCOMPARE(stored(), "Running|minute|0.5|7.5|7.5|0\nWalking|km||50|50|0");
}

void tst_activities::asksOrCalculatesForMe()
{
    journal->edit<frmExercise>(0, [this](QWidget &window) {
        QVERIFY(!control<QPushButton>(window, "btnWeightAdjust").isEnabled());
        toggleDependence(window);
        type(window, "txtName", "Rowing");
        type(window, "txtCaloriesConsume", "450");
        type(window, "txtUnit", "hour");
        press(window, "btnOK"); // answered with No
        QVERIFY(journal->messages.said.front().isQuestion);
        QVERIFY(journal->messages.takeText().contains("body weight dependent"));
        QCOMPARE(stored(), QString());
        const auto forMe = [&](const char *button) {
            press(window, "btnWeightAdjust", "frmWeightAdjustment", [&](QWidget &calculator) {
                QCOMPARE(textOf(calculator, "txtCaloriesConsume"), "450");
                press(calculator, button);
            });
            return textOf(window, "txtCaloriesConsume");
        };
        QCOMPARE(forMe("btnCancel"), "450");
        QCOMPARE(forMe("btnOK"), "595");
        press(window, "btnOK");
    });
    QCOMPARE(journal->messages.takeText(), QString()); // they are for the user's body
    QCOMPARE(stored(), "Rowing|hour||595|449.82|1");
}

void tst_activities::changedCaloriesAloneChangeTheBase()
{
    // A base that does not follow from these calories and this user's weight.
    journal->exec("insert into Exercise values (1, 'Rowing', 'hour', 2, 299.999947, 123, 1)");
    journal->edit<frmExercise>(1, [](QWidget &window) {
        QCOMPARE(textOf(window, "txtCaloriesConsume"), "299,9999");
        type(window, "txtDefaultQty", "");
        press(window, "btnOK");
    });
    QVERIFY(journal->messages.said.empty());
    QCOMPARE(journal->row("select DefaultQty, CaloriesConsume = 299.999947, CaloriesConsumeBase"
                          " from Exercise"),
             "|1|123");
    journal->exec("update Exercise set CaloriesConsume = 300, WeightDependent = 0");
    journal->setUser(200, "I");
    journal->messages.answers = {true};
    journal->edit<frmExercise>(1, [](QWidget &window) {
        toggleDependence(window); // which counts as a change
        press(window, "btnOK");
    });
    QCOMPARE(stored(), "Rowing|hour||300|225|1");
}

void tst_activities::calculatorRefuses()
{
    journal->setUser(160, "I");
    QCOMPARE(textOf(frmWeightAdjustment(*journal->session, journal->messages), "txtWeight"), "150");
    journal->setUser(70, "M");
    frmWeightAdjustment calculator(*journal->session, journal->messages);
    inDialog(
        "frmWeightAdjustment", [&] { calculator.run(); },
        [&](QWidget &window) {
            QCOMPARE(textOf(window, "txtWeight"), "68,04");
            type(window, "txtWeight", "x");
            journal->refuses(window, "txtCaloriesConsume", "Calories field contains illegal value",
                             "450");
            journal->refuses(window, "txtWeight", "For Weight field contains illegal value", "0,0");
            journal->refuses(window, "txtWeight", "For Weight should be other than 0", "0,0001");
            journal->refuses(window, "txtCaloriesConsume",
                             "The calories for your weight are out of range (-32768 to 32767)",
                             "450");
            QVERIFY(!calculator.OK());
        });
}

QTEST_MAIN(tst_activities)
#include "tst_activities.moc"
