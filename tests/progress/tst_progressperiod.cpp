// The period and whether there is enough in it.
#include "progress/progressperiod.h"
#include "progress/timemarks.h"
#include "progresssamples.h"

#include <QTest>

using namespace progress;

namespace {

const QDate firstDay(2026, 6, 1);
const Period thirtyDays = {firstDay, firstDay.addDays(30)};

} // namespace

class TestProgressPeriod : public QObject
{
    Q_OBJECT

private slots:
    void calendarMonths_data();
    void calendarMonths();
    void coverage_data();
    void coverage();
    void coverageIsOfEveryKindOfRowInThePeriod();
    void contiguity_data();
    void contiguity();
    void monthsAndWeeks();
};

void TestProgressPeriod::calendarMonths_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<int>("months");
    QTest::addColumn<QDate>("to");
    QTest::newRow("same day") << QDate(2026, 4, 22) << 3 << QDate(2026, 7, 22);
    QTest::newRow("31 January") << QDate(2026, 1, 31) << 1 << QDate(2026, 2, 28);
    QTest::newRow("31 January, leap year") << QDate(2028, 1, 31) << 1 << QDate(2028, 2, 29);
    QTest::newRow("across the year") << QDate(2026, 8, 31) << 6 << QDate(2027, 2, 28);
}

void TestProgressPeriod::calendarMonths()
{
    QFETCH(QDate, from);
    QFETCH(int, months);
    QTEST(periodOfMonths(from, qint16(months)).dateTo, "to");
}

void TestProgressPeriod::coverage_data()
{
    QTest::addColumn<QList<int>>("days"); // with a measurement, counted from 0
    QTest::addColumn<bool>("isEnough");
    QTest::newRow("nothing") << QList<int>{} << false;
    QTest::newRow("one day") << QList<int>{4} << false;
    QTest::newRow("8 of 30") << QList<int>{2, 10} << false;
    QTest::newRow("9 of 30") << QList<int>{2, 11} << true;
    QTest::newRow("both ends belong to it") << QList<int>{0, 30} << true;
}

void TestProgressPeriod::coverage()
{
    QFETCH(QList<int>, days);
    ProgressJournal journal;
    for (const int day : days)
        journal.addMeasurement(firstDay.addDays(day), 70, 90, 80, 95);
    const Coverage found = checkCoverage(*journal.data, thirtyDays);
    QTEST(found.isEnough, "isEnough");
    QCOMPARE(found.minDt, days.isEmpty() ? QDate() : firstDay.addDays(days.first()));
    QCOMPARE(found.maxDt, days.isEmpty() ? QDate() : firstDay.addDays(days.last()));
}

void TestProgressPeriod::coverageIsOfEveryKindOfRowInThePeriod()
{
    ProgressJournal journal;
    journal.addMeal(firstDay.addDays(-1), 100);
    journal.addMeal(firstDay.addDays(31), 100);
    journal.addNote(firstDay, firstDay.addDays(30), QStringLiteral("covers nothing"));
    QVERIFY(checkCoverage(*journal.data, thirtyDays).minDt.isNull());

    journal.addMeasurement(firstDay.addDays(5), 70, 90, 80, 95);
    journal.addActivity(firstDay.addDays(3), 100);
    journal.addMeal(firstDay.addDays(20), 100);
    const Coverage found = checkCoverage(*journal.data, thirtyDays);
    QCOMPARE(found.minDt, firstDay.addDays(3));
    QCOMPARE(found.maxDt, firstDay.addDays(20));
}

void TestProgressPeriod::contiguity_data()
{
    QTest::addColumn<QList<int>>("meals");
    QTest::addColumn<QList<int>>("activities");
    QTest::addColumn<QList<int>>("measurements");
    QTest::addColumn<bool>("isContiguous");
    const QList<int> none;
    QTest::newRow("nothing") << none << none << none << false;
    QTest::newRow("meals or activities on every day")
        << QList<int>{0, 1, 3} << QList<int>{2, 3} << none << true;
    QTest::newRow("one day without") << QList<int>{0, 1, 3} << QList<int>{3} << none << false;
    QTest::newRow("a day counts once") << QList<int>{0, 0, 2} << QList<int>{0} << none << false;
    QTest::newRow("a measurement before the first calories")
        << QList<int>{1, 2} << none << QList<int>{0} << false;
    QTest::newRow("measurements 10 days apart")
        << QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10} << none << QList<int>{0, 10} << true;
}

void TestProgressPeriod::contiguity()
{
    QFETCH(QList<int>, meals);
    QFETCH(QList<int>, activities);
    QFETCH(QList<int>, measurements);
    ProgressJournal journal;
    for (const int day : meals)
        journal.addMeal(firstDay.addDays(day), 100);
    for (const int day : activities)
        journal.addActivity(firstDay.addDays(day), 100);
    for (const int day : measurements)
        journal.addMeasurement(firstDay.addDays(day), 70, 90, 80, 95);
    const Coverage coverage = checkCoverage(*journal.data, thirtyDays);
    QTEST(checkContiguity(*journal.data, coverage), "isContiguous");
}

void TestProgressPeriod::monthsAndWeeks()
{
    const Period period = {QDate(2026, 1, 31), QDate(2026, 3, 1)}; // from a Saturday to a Sunday
    const auto months = monthsOf(period);
    QCOMPARE(months.size(), size_t(3));
    QCOMPARE(months[0].lastDay, qint16(1));
    QCOMPARE(months[1].firstDay, qint16(2));
    QCOMPARE(months[1].lastDay, qint16(29));
    QCOMPARE(months[2].month, QDate(2026, 3, 1));
    QCOMPARE(months[2].firstDay, qint16(30));

    const auto mondays = weekStarts(period, QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(mondays, (std::vector<qint16>{3, 10, 17, 24}));
    const auto sundays = weekStarts(period, QLocale(QLocale::English, QLocale::UnitedStates));
    QCOMPARE(sundays, (std::vector<qint16>{2, 9, 16, 23, 30}));
}

QTEST_GUILESS_MAIN(TestProgressPeriod)
#include "tst_progressperiod.moc"
