// Goals are kept beside the journal and read as they were set, and what they take is said as it is.
#include "goals/goalpace.h"
#include "goals/presentweight.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

class tst_goals : public QObject
{
    Q_OBJECT

private slots:
    void areReadAsTheyWereSet();
    void nonsenseCountsAsMissing();
    void followTheUnitSystem();
    void paces();
    void reaching();
    void presentWeightIsTheLastMeasured();

private:
    QTemporaryDir m_folder;
    Installation m_installation{m_folder.path()};
};

void tst_goals::areReadAsTheyWereSet()
{
    QVERIFY(goalsOf(m_installation).isEmpty());
    QVERIFY(keepGoals(m_installation, {71.1, {}, false, QDate(2027, 3, 1), {}}));
    const Goals all = {65.05,
                       {90.5, {}, 95.0},
                       true,
                       QDate(2027, 3, 1),
                       DailyBudget{DailyBudget::Kind::BurnLessDeficit, 500}};
    QVERIFY(keepGoals(m_installation, all));
    QVERIFY(goalsOf(m_installation) == all);
    QCOMPARE(m_installation.firstStart(), Installation::FirstStart::Pending); // left as it was
    // None are left behind by those that follow.
    const Goals fixed = {{}, {}, false, {}, DailyBudget{DailyBudget::Kind::Fixed, 1800}};
    QVERIFY(keepGoals(m_installation, fixed));
    QVERIFY(goalsOf(m_installation) == fixed && !fixed.isEmpty());
    QVERIFY(keepGoals(m_installation, {}));
    QVERIFY(goalsOf(m_installation).isEmpty());
}

void tst_goals::nonsenseCountsAsMissing()
{
    for (const QString &nonsense : {u"x"_s, u"-1"_s, u"0"_s, u"nan"_s, u"inf"_s, u"1e300"_s}) {
        for (const char *key :
             {"Weight", "Breast", "Waist", "Hips", "Date", "DailyBudget", "DailyDeficit"})
            m_installation.setValue(u"Goals/"_s + QLatin1String(key), nonsense);
        QVERIFY2(goalsOf(m_installation).isEmpty(), qPrintable(nonsense));
    }
}

void tst_goals::followTheUnitSystem()
{
    const Goals metric = {68.04,
                          {100.8, {}, {}},
                          true,
                          QDate(2027, 3, 1),
                          DailyBudget{DailyBudget::Kind::Fixed, 1800}};
    const Goals imperial = metric.in(false);
    QCOMPARE(*imperial.weight, 150.0);
    QCOMPARE(*imperial.girths[0], 40.0); // by the factor that measurements are converted with
    QVERIFY(!imperial.girths[1] && imperial.date == metric.date);
    QVERIFY(imperial.budget == metric.budget);
    QCOMPARE(*imperial.in(true).weight, 68.0);
    QVERIFY(metric.in(true) == metric);
}

void tst_goals::paces()
{
    const QDate today(2026, 7, 22);
    Goals goals;
    goals.weight = 72;
    goals.date = today.addDays(70);
    const auto pace = paceToDate(goals, 80, today);
    QCOMPARE(pace->perWeek, 0.8);
    QCOMPARE(pace->share, 0.01);
    QVERIFY(!pace->isUnhealthy()); // 1 % is not more than 1 %
    goals.weight = 88;
    QVERIFY(!paceToDate(goals, 80, today)->isUnhealthy());
    goals.weight = 88.1; // gaining, too
    QVERIFY(paceToDate(goals, 80, today)->isUnhealthy());
    QVERIFY(!paceToDate(goals, {}, today) && !paceToDate(goals, 0, today));
    goals.date = today;
    QVERIFY(!paceToDate(goals, 80, today));

    QVERIFY(!paceOfDeficit(goals, 80));
    goals.budget = DailyBudget{DailyBudget::Kind::BurnLessDeficit, 550};
    QCOMPARE(paceOfDeficit(goals, 80)->perWeek, 0.5);
    goals.isMetric = false;
    QCOMPARE(paceOfDeficit(goals, 160)->perWeek, 0.5 / 0.4536);
    goals.budget->kind = DailyBudget::Kind::Fixed;
    QVERIFY(!paceOfDeficit(goals, 160));
}

void tst_goals::reaching()
{
    const QDate today(2026, 7, 22);
    QCOMPARE(*reachedOn(80, -0.5, 75, today), today.addDays(70));
    QCOMPARE(*reachedOn(60, 0.7, 61, today), today.addDays(10));
    for (const double change : {0.0, 0.5, -0.01}) // never, away from it, in ten years
        QVERIFY(!reachedOn(80, change, 75, today));
    QVERIFY(!reachedOn(75, -0.5, 75, today)); // there already
    QVERIFY(!reachedOn(75, 0, 75, today));
}

void tst_goals::presentWeightIsTheLastMeasured()
{
    TestJournal journal;
    journal.exec("update Common set weight = 81, Measurement = 'M'");
    journal.session->readCommonParameters();
    QCOMPARE(*presentWeight(*journal.session), 81.0);
    journal.exec("insert into Body values (1, 46200, 79.5, 1, 1, 1, 'M'), (2, 46210, 78.5, 1, 1, 1,"
                 " 'M'), (3, 46220, 0, 90, 1, 1, 'M'), (4, 46221, 170, 1, 1, 1, 'I'),"
                 " (5, 49000, 60, 1, 1, 1, 'M')");
    QCOMPARE(*presentWeight(*journal.session), 78.5);
    journal.exec("delete from Body; update Common set weight = 0");
    journal.session->readCommonParameters();
    QVERIFY(!presentWeight(*journal.session));
}

QTEST_GUILESS_MAIN(tst_goals)
#include "tst_goals.moc"
