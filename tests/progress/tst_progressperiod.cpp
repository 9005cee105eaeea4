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
    void calendarMonths()
    {
        QCOMPARE(periodOfMonths(QDate(2026, 4, 22), 3).dateTo, QDate(2026, 7, 22));
        QCOMPARE(periodOfMonths(QDate(2028, 1, 31), 1).dateTo, QDate(2028, 2, 29));
        QCOMPARE(periodOfMonths(QDate(2026, 8, 31), 6).dateTo, QDate(2027, 2, 28));
    }
    void coverage()
    {
        ProgressJournal journal;
        journal.addMeal(firstDay.addDays(-1), 100);
        journal.addMeal(firstDay.addDays(31), 100);
        journal.addNote(firstDay, firstDay.addDays(30), QStringLiteral("covers nothing"));
        QVERIFY(checkCoverage(*journal.data, thirtyDays).minDt.isNull());

        journal.addActivity(firstDay.addDays(3), 100);
        journal.addMeasurement(firstDay.addDays(11), 70);
        QVERIFY(!checkCoverage(*journal.data, thirtyDays).isEnough); // 8 days of 30
        journal.addMeal(firstDay.addDays(12), 100);
        const Coverage found = checkCoverage(*journal.data, thirtyDays);
        QVERIFY(found.isEnough);
        QCOMPARE(found.minDt, firstDay.addDays(3));
        QCOMPARE(found.maxDt, firstDay.addDays(12));
    }
    void contiguity_data()
    {
        QTest::addColumn<QList<int>>("meals");
        QTest::addColumn<QList<int>>("activities");
        QTest::addColumn<QList<int>>("measurements");
        QTest::addColumn<bool>("isContiguous");
        using Days = QList<int>;
        QTest::newRow("either kind") << Days{0, 1, 3} << Days{2, 3} << Days{0, 3} << true;
        QTest::newRow("a day counts once") << Days{0, 0, 2} << Days{0} << Days{} << false;
        QTest::newRow("measured before") << Days{1, 2} << Days{} << Days{0} << false;
    }
    void contiguity()
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
            journal.addMeasurement(firstDay.addDays(day), 70);
        const Coverage coverage = checkCoverage(*journal.data, thirtyDays);
        QTEST(checkContiguity(*journal.data, coverage), "isContiguous");
    }
    void monthsAndWeeks()
    {
        const Period period = {QDate(2026, 1, 31), QDate(2026, 3, 1)}; // a Saturday to a Sunday
        const auto months = monthsOf(period);
        QCOMPARE(months.size(), size_t(3));
        QCOMPARE(months[0].lastDay, qint16(1));
        QCOMPARE(months[1].lastDay, qint16(29));
        QCOMPARE(months[2].firstDay, qint16(30));
        QCOMPARE(weekStarts(period, QLocale(QLocale::German)),
                 (std::vector<qint16>{3, 10, 17, 24}));
        QCOMPARE(weekStarts(period, QLocale(QLocale::English, QLocale::UnitedStates)),
                 (std::vector<qint16>{2, 9, 16, 23, 30}));
    }
};

QTEST_GUILESS_MAIN(TestProgressPeriod)
#include "tst_progressperiod.moc"
