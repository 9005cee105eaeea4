// Setting goals as a person does it, and what the day's chart says of them.
#include "goals/goals.h"
#include "mainwindowtest.h"
#include "redraws.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::Literals;

class tst_goalswindow : public MainWindowTest
{
    Q_OBJECT

private slots:
    // Eaten 30 of what the body burns at 60 an hour; on a German machine.
    void init()
    {
        open("insert into MealConsume values (1, 1, 46225, 0.25, 1);"
             "insert into Body values (1, 46220, 80, 90, 80, 95, 'M');"
             "update Common set metabolicRate = 60",
             QLocale(QLocale::German, QLocale::Germany));
    }
    void setsThemAndTheChartTells();
    void refusesWhatIsNone();
    void saysWhatIsTooFast();

private:
    Goals goals() const { return goalsOf(installationOf(m_journal->data->Con)); }
    QString budgetSaid()
    {
        const QString said = chartText();
        return said.contains(u"budget"_s) ? said.mid(said.indexOf(u"Of a budget"_s)) : QString();
    }
};

void tst_goalswindow::setsThemAndTheChartTells()
{
    QCOMPARE(budgetSaid(), QString());
    const Redraws redraws(*m_journal);
    inWindow("mnuGoals", "frmGoals", [&](QWidget &window) {
        typeInto(control<QLineEdit>(window, "txtWeight"), u"76,5"_s);
        typeInto(control<QLineEdit>(window, "txtWaist"), u"75"_s);
        control<QRadioButton>(window, "optDeficit").click();
        typeInto(control<QLineEdit>(window, "txtDeficit"), u"440"_s);
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    const Goals set = {76.5,
                       {std::optional<double>(), 75.0},
                       true,
                       {},
                       DailyBudget{DailyBudget::Kind::BurnLessDeficit, 440}};
    QVERIFY(goals() == set);
    QCOMPARE(redraws.count(), 1);
    QCOMPARE(budgetSaid(), u"Of a budget of 1.000 kcal, 970 kcal are left."_s);
    inWindow("mnuGoals", "frmGoals",
             [&](QWidget &window) { // shown as they were set, and one of them changed
                 QCOMPARE(control<QLineEdit>(window, "txtWeight").text(), u"76,5"_s);
                 QCOMPARE(control<QLineEdit>(window, "txtDeficit").text(), u"440"_s);
                 QVERIFY(!control<QCheckBox>(window, "chkDate").isChecked());
                 control<QRadioButton>(window, "optBudget").click();
                 typeInto(control<QLineEdit>(window, "txtBudget"), u"20"_s);
                 press(window, "btnOK");
             });
    QCOMPARE(budgetSaid(), u"Of a budget of 20 kcal, 10 kcal too much was eaten."_s);
    inWindow("mnuGoals", "frmGoals", [&](QWidget &window) {
        control<QRadioButton>(window, "optNoBudget").click();
        press(window, "btnOK");
    });
    QCOMPARE(budgetSaid(), QString());
    QCOMPARE(*goals().weight, 76.5);
}

void tst_goalswindow::refusesWhatIsNone()
{
    const QString budget = u"The Daily Budget must be a whole number from 1 to 20000"_s;
    inWindow("mnuGoals", "frmGoals", [&](QWidget &window) {
        control<QRadioButton>(window, "optDeficit").click();
        type(window, "txtDeficit", u"x"_s); // not looked at in the end
        control<QRadioButton>(window, "optBudget").click();
        type(window, "txtBudget", u"1,5"_s);
        type(window, "txtHips", u"501"_s);
        type(window, "txtWeight", u"x"_s);
        m_journal->refuses(window, "txtWeight", u"The Weight field contains illegal data"_s,
                           u"0"_s);
        m_journal->refuses(window, "txtWeight",
                           u"The Weight must be more than 0 and at most 1000"_s, {});
        m_journal->refuses(window, "txtHips", u"The Hips must be more than 0 and at most 500"_s,
                           {});
        m_journal->refuses(window, "txtBudget", budget, u"20001"_s);
        m_journal->refuses(window, "txtBudget", budget, {});
        m_journal->refuses(window, "txtBudget", budget, u"1800"_s);
        press(window, "btnCancel");
    });
    QVERIFY(goals().isEmpty());
}

void tst_goalswindow::saysWhatIsTooFast()
{
    inWindow("mnuGoals", "frmGoals", [&](QWidget &window) {
        const auto &pace = control<QLabel>(window, "lblPace");
        typeInto(control<QLineEdit>(window, "txtWeight"), u"72"_s);
        QCOMPARE(pace.text(), QString());
        control<QCheckBox>(window, "chkDate").click();
        auto &date = control<QDateEdit>(window, "dtpDate");
        date.setDate(QDate(2026, 7, 22).addDays(70));
        QCOMPARE(pace.text(), u"From 80 kg to the target by then: 0,80 kg a week, 1,0 % of your"
                              " weight."_s);
        date.setDate(QDate(2026, 7, 22).addDays(69));
        QVERIFY(pace.text().contains(u"unhealthily fast"_s));
        press(window, "btnOK"); // answered with No
        QVERIFY(m_journal->messages.takeText().contains(u"unhealthily fast"_s));
        QVERIFY(window.isVisible() && goals().isEmpty());
        m_journal->messages.answers = {true};
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(goals().date, QDate(2026, 7, 22).addDays(69));
}

QTEST_MAIN(tst_goalswindow)
#include "tst_goalswindow.moc"
