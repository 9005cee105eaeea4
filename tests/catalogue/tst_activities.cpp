// Describing an activity, and the weight adjustment calculator behind "For Me".
#include "guitest.h"
#include "testjournal.h"

#include "catalogue/frmExercise.h"
#include "catalogue/frmWeightAdjustment.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr char allActivities[] = "select Name, Unit, DefaultQty, CaloriesConsume, "
                                 "CaloriesConsumeBase, WeightDependent from Exercise";

QLineEdit &box(const QWidget &window, const char *name)
{
    return control<QLineEdit>(window, name);
}

void press(const QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

void toggleDependence(const QWidget &window)
{
    auto &check = control<QCheckBox>(window, "chkWeightDependent");
    check.setFocus();
    QTest::keyClick(&check, Qt::Key_Space);
}

void setWeight(TestJournal &journal, int weight, const char *measurement = "M")
{
    journal.exec(qPrintable(QStringLiteral("update Common set weight = %1, Measurement = '%2'")
                                .arg(weight)
                                .arg(QLatin1String(measurement))));
    journal.data->rsCommon.close();
    journal.session->readCommonParameters();
}

void describe(const QWidget &window, const QString &name, const QString &calories)
{
    typeInto(box(window, "txtName"), name);
    typeInto(box(window, "txtCaloriesConsume"), calories);
    typeInto(box(window, "txtUnit"), "hour");
}

} // namespace

class tst_activities : public QObject
{
    Q_OBJECT

private slots:
    void checksInOrder();
    void storesTheBase_data();
    void storesTheBase();
    void untouchedCaloriesKeepTheirBase();
    void tickingCountsAsAChange();
    void withoutWeightThereIsNoBase();
    void calculatorAnswersForMe();
    void calculatorRefuses();
    void calculatorFollowsUnitsAndLocale();
};

void tst_activities::checksInOrder()
{
    TestJournal journal(QLocale("de_DE"));
    journal.exec("insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase, "
                 "WeightDependent) values ('Walking', 'km', 50, 50, 0)");
    RecordedMessages messages;
    frmExercise editor(*journal.session, messages);
    inDialog(
        "frmExercise", [&] { editor.run(0); },
        [&](QWidget &window) {
            const auto refuses = [&](const char *field, const char *message, const char *remedy) {
                press(window, "btnOK");
                QCOMPARE(messages.takeText(), message);
                QVERIFY2(box(window, field).hasFocus(), field);
                typeInto(box(window, field), remedy);
            };
            QCOMPARE(window.windowTitle(), "Activity Description - New");
            refuses("txtName", "The Name should be specified", "walking");
            refuses("txtCaloriesConsume", "The Calories Consume should be specified", " ");
            refuses("txtCaloriesConsume", "The Calories Consume field contains illegal data",
                    "7.5");
            refuses("txtCaloriesConsume", "The Calories Consume field contains illegal data",
                    "7,5");
            typeInto(box(window, "txtDefaultQty"), "x");
            refuses("txtUnit", "The Unit should be specified", "minute");
            refuses("txtDefaultQty", "The Default Quantity field contains illegal data", "0,5");
            press(window, "btnOK");
            QCOMPARE(messages.takeText(),
                     "Can't store this record in database. Please check whether there is already "
                     "Activity with the same name in the database");
            typeInto(box(window, "txtName"), "Running");
            press(window, "btnOK");
        });
    QCOMPARE(editor.storedName(), "Running");
    QCOMPARE(journal.rows(allActivities).value(1), "Running|minute|0.5|7.5|7.5|0");
}

void tst_activities::storesTheBase_data()
{
    QTest::addColumn<int>("weight");
    QTest::addColumn<QByteArray>("measurement");
    QTest::addColumn<QString>("base");

    QTest::newRow("metric") << 90 << QByteArray("M") << "226.8";
    QTest::newRow("imperial") << 200 << QByteArray("I") << "225";
}

void tst_activities::storesTheBase()
{
    QFETCH(int, weight);
    QFETCH(QByteArray, measurement);
    QFETCH(QString, base);
    TestJournal journal;
    setWeight(journal, weight, measurement);
    RecordedMessages messages;
    frmExercise editor(*journal.session, messages);
    inDialog(
        "frmExercise", [&] { editor.run(0); },
        [&](QWidget &window) {
            auto &forMe = control<QPushButton>(window, "btnWeightAdjust");
            QVERIFY(!forMe.isEnabled());
            QCOMPARE(control<QLabel>(window, "lblPerWhat").text(), "per unit");
            toggleDependence(window);
            QVERIFY(forMe.isEnabled());
            QCOMPARE(control<QLabel>(window, "lblPerWhat").text(), "per unit, for my body");
            describe(window, "Rowing", "300");
            press(window, "btnOK"); // answered with No
            QCOMPARE(messages.said.size(), size_t(1));
            QVERIFY(messages.said.front().isQuestion);
            QCOMPARE(messages.said.front().title, "Are you sure?");
            QCOMPARE(
                messages.takeText(),
                "This activity is body weight dependent. Are you sure you've specified the "
                "Calories Consume value exactly for your body weight? If No, please press 'For "
                "Me' button and use our weight adjustment calculator.");
            QVERIFY(window.isVisible());
            messages.answers = {true};
            press(window, "btnOK");
        });
    QCOMPARE(journal.row(allActivities), "Rowing|hour||300|" + base + "|1");
}

void tst_activities::untouchedCaloriesKeepTheirBase()
{
    TestJournal journal;
    // A base that does not follow from these calories and this user's 70 kg.
    journal.exec("insert into Exercise (Name, Unit, DefaultQty, CaloriesConsume, "
                 "CaloriesConsumeBase, WeightDependent) "
                 "values ('Rowing', 'hour', 2, 299.999947, 123, 1)");
    RecordedMessages messages;
    frmExercise editor(*journal.session, messages);
    inDialog(
        "frmExercise", [&] { editor.run(1); },
        [&](QWidget &window) {
            QCOMPARE(box(window, "txtCaloriesConsume").text(), "299.9999");
            QVERIFY(control<QPushButton>(window, "btnWeightAdjust").isEnabled());
            typeInto(box(window, "txtName"), "Rowing, slowly");
            typeInto(box(window, "txtDefaultQty"), " ");
            press(window, "btnOK");
            QVERIFY(window.isVisible()); // blanks are no number
            typeInto(box(window, "txtDefaultQty"), "");
            press(window, "btnOK");
        });
    QVERIFY(editor.isStored());
    QCOMPARE(journal.row("select Name, DefaultQty, CaloriesConsumeBase, "
                         "CaloriesConsume = 299.999947 from Exercise"),
             "Rowing, slowly||123|1");
}

void tst_activities::tickingCountsAsAChange()
{
    TestJournal journal;
    setWeight(journal, 90);
    journal.exec("insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase, "
                 "WeightDependent) values ('Rowing', 'hour', 300, 300, 0)");
    RecordedMessages messages;
    frmExercise editor(*journal.session, messages);
    messages.answers = {true};
    inDialog(
        "frmExercise", [&] { editor.run(1); },
        [&](QWidget &window) {
            toggleDependence(window);
            press(window, "btnOK");
        });
    QCOMPARE(messages.said.size(), size_t(1));
    QCOMPARE(journal.row(allActivities), "Rowing|hour||300|226.8|1");
}

void tst_activities::withoutWeightThereIsNoBase()
{
    TestJournal journal;
    setWeight(journal, 0);
    RecordedMessages messages;
    messages.answers = {true};
    frmExercise editor(*journal.session, messages);
    inDialog(
        "frmExercise", [&] { editor.run(0); },
        [&](QWidget &window) {
            toggleDependence(window);
            describe(window, "Rowing", "300");
            press(window, "btnOK");
            QVERIFY(messages.takeText().startsWith("Can't store this record in database."));
            // Without the dependence the very same input is stored.
            toggleDependence(window);
            press(window, "btnOK");
        });
    QCOMPARE(journal.row(allActivities), "Rowing|hour||300|300|0");
}

void tst_activities::calculatorAnswersForMe()
{
    TestJournal journal;
    setWeight(journal, 90);
    RecordedMessages messages;
    frmExercise editor(*journal.session, messages);
    inDialog(
        "frmExercise", [&] { editor.run(0); },
        [&](QWidget &window) {
            toggleDependence(window);
            describe(window, "Rowing", "450");
            const auto forMe = [&] { press(window, "btnWeightAdjust"); };
            inDialog("frmWeightAdjustment", forMe, [&](QWidget &calculator) {
                typeInto(box(calculator, "txtCaloriesConsume"), "1");
                press(calculator, "btnCancel");
            });
            QCOMPARE(box(window, "txtCaloriesConsume").text(), "450");
            inDialog("frmWeightAdjustment", forMe, [&](QWidget &calculator) {
                QCOMPARE(box(calculator, "txtCaloriesConsume").text(), "450");
                press(calculator, "btnOK");
            });
            QCOMPARE(box(window, "txtCaloriesConsume").text(), "595");
            press(window, "btnOK");
        });
    QCOMPARE(messages.takeText(), QString()); // nothing to ask: they are for the user's body
    QCOMPARE(journal.row(allActivities), "Rowing|hour||595|449.82|1");
}

void tst_activities::calculatorRefuses()
{
    TestJournal journal;
    RecordedMessages messages;
    frmWeightAdjustment calculator(*journal.session, messages);
    calculator.setCaloriesConsume(QString());
    inDialog(
        "frmWeightAdjustment", [&] { calculator.run(); },
        [&](QWidget &window) {
            const auto refuses = [&](const char *weight, const char *calories, const char *field,
                                     const char *message) {
                typeInto(box(window, "txtWeight"), weight);
                typeInto(box(window, "txtCaloriesConsume"), calories);
                press(window, "btnOK");
                QCOMPARE(messages.takeText(), message);
                QVERIFY2(box(window, field).hasFocus(), message);
                QCOMPARE(box(window, "txtWeight").text(), weight);
                QCOMPARE(box(window, "txtCaloriesConsume").text(), calories);
            };
            refuses("x", "", "txtCaloriesConsume", "Calories field contains illegal value");
            refuses("", "450", "txtWeight", "For Weight field contains illegal value");
            refuses("0.0", "450", "txtWeight", "For Weight should be other than 0");
            refuses("0.0001", "450", "txtCaloriesConsume",
                    "The calories for your weight are out of range (-32768 to 32767)");
            QVERIFY(!calculator.OK());
            typeInto(box(window, "txtWeight"), "35");
            press(window, "btnOK");
        });
    QVERIFY(calculator.OK());
    QCOMPARE(int(calculator.caloriesAdjusted()), 900);
}

void tst_activities::calculatorFollowsUnitsAndLocale()
{
    TestJournal journal(QLocale("de_DE"));
    RecordedMessages messages;
    {
        const frmWeightAdjustment metric(*journal.session, messages);
        QCOMPARE(box(metric, "txtWeight").text(), "68,04");
        QCOMPARE(control<QLabel>(metric, "lblMeasurement").text(), "kg");
    }
    setWeight(journal, 160, "I");
    const frmWeightAdjustment imperial(*journal.session, messages);
    QCOMPARE(box(imperial, "txtWeight").text(), "150");
    QCOMPARE(control<QLabel>(imperial, "lblMeasurement").text(), "lb");
}

QTEST_MAIN(tst_activities)
#include "tst_activities.moc"
