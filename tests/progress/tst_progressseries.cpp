// A period, whether there is enough in it, and its series: what is stored, filled in, missing and
// too large.
#include "progress/progresstable.h"
#include "progress/targets.h"
#include "progress/timemarks.h"
#include "progress/weekstext.h"
#include "progresssamples.h"

#include <QTest>

using namespace progress;

namespace {

const QDate firstDay(2026, 6, 1);
const Period thirtyDays = {firstDay, firstDay.addDays(30)};
constexpr double rate = 60;

DaySeries load(ProgressJournal &journal, int count)
{
    return loadSeries(*journal.data, {firstDay, firstDay.addDays(count - 1)}, rate);
}

/// "MF.": measured, filled in, not known.
QString sources(const DaySeries &series)
{
    QString text;
    for (qint16 day = 1; day <= series.nDays(); ++day)
        text += QLatin1Char(".MF"[size_t(series.at(day).source)]);
    return text;
}

} // namespace

class tst_progressseries : public QObject
{
    Q_OBJECT

private slots:
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
    void contiguity()
    {
        ProgressJournal journal;
        const auto isContiguous = [&] {
            return checkContiguity(*journal.data, checkCoverage(*journal.data, thirtyDays));
        };
        for (const int day : {0, 0, 2, 3, 4, 5})
            journal.addMeal(firstDay.addDays(day), 100);
        QVERIFY(!isContiguous()); // a day counts once
        journal.addActivity(firstDay.addDays(1), 100);
        for (const int day : {0, 5}) // so far apart, yet each is beside calories
            journal.addMeasurement(firstDay.addDays(day), 70);
        QVERIFY(isContiguous());
        journal.addMeasurement(firstDay.addDays(6), 70);
        QVERIFY(!isContiguous()); // a day with nothing but a measurement
    }
    void monthsAndWeeks()
    {
        const Period period = {QDate(2026, 1, 31), QDate(2026, 3, 1)}; // a Saturday to a Sunday
        const auto months = monthsOf(period);
        QVERIFY(months.size() == 3 && months[1].lastDay == 29 && months[2].firstDay == 30);
        QCOMPARE(weekStarts(period, QLocale(QLocale::German)),
                 (std::vector<qint16>{3, 10, 17, 24}));
        QCOMPARE(weekStarts(period, QLocale(QLocale::English, QLocale::UnitedStates)),
                 (std::vector<qint16>{2, 9, 16, 23, 30}));
    }
    void stepsThereAndBack()
    {
        for (const int months : {1, 3, 6}) {
            for (QDate from(2027, 12, 25); from < QDate(2028, 3, 3); from = from.addDays(1)) {
                PeriodSteps steps(periodOfMonths(from, qint16(months)));
                const Period chosen = steps.current();
                steps.move(1);
                QCOMPARE(steps.current().dateFrom, chosen.dateTo);
                QVERIFY(DaySeries(steps.current()).nDays() >= 28 * months);
                steps.move(-11);
                QCOMPARE(steps.current().dateFrom, from.addMonths(-10 * months));
                steps.move(10);
                QVERIFY(steps.current().dateFrom == from &&
                        steps.current().dateTo == chosen.dateTo);
            }
        }
        const PeriodSteps steps(periodOfMonths(QDate(1752, 10, 14), 1));
        QVERIFY(steps.hasPrevious());
        QVERIFY(!PeriodSteps(periodOfMonths(QDate(1752, 10, 13), 1)).hasPrevious());
        QVERIFY(steps.hasNext(QDate(1752, 11, 15)) && !steps.hasNext(QDate(1752, 11, 14)));
    }
    void gaps()
    {
        for (const auto &[measured, expected] : std::vector<std::pair<QList<int>, const char *>>{
                 {{1, 3, 7}, "MFM...M..."}, {{2, 5}, ".MFFM....."}, {{7, 10}, "......MFFM"}}) {
            ProgressJournal journal;
            for (const int day : measured)
                journal.addMeasurement(firstDay.addDays(day - 1), 70);
            QCOMPARE(sources(load(journal, 10)), QLatin1String(expected));
        }
    }
    void valuesFilledIn()
    {
        ProgressJournal journal;
        for (const auto &[day, weight] : {std::pair(0, 150), {2, 148}, {5, 147}})
            journal.addMeasurement(firstDay.addDays(day), weight);
        const DaySeries series = load(journal, 7);
        QCOMPARE(series.at(2).weight, 223.0F);
        const float step = 147 - 148.0F / 3;
        QCOMPARE(series.at(5).weight, 2 * step + 148);
        QCOMPARE(series.weights.maximum, 150.0F); // filled-in values widen nothing
    }
    void waistOfZeroIsNoMeasurement()
    {
        ProgressJournal journal;
        for (const int day : {0, 1, 2, 3})
            journal.addMeasurement(firstDay.addDays(day), 71, 0, day % 2 ? 80 : 0, 0);
        const DaySeries series = load(journal, 4);
        QCOMPARE(sources(series), QStringLiteral("MMFM"));
        QCOMPARE(series.at(1).weight, 71.0F); // its values stay where no gap is filled
        QVERIFY(series.at(1).isKnown(Series::Weight) && !series.at(1).isKnown(Series::Waist));
    }
    void balance()
    {
        using Row = std::tuple<double, double, int>; // half to even; then the ends of the range
        for (const auto &[eaten, burnt, expected] :
             {Row(1440.5, 0, 0), Row(1441.5, 0, 2), Row(34207, 0, 32767),
              Row(1440, 32768, -32768)}) {
            ProgressJournal journal;
            journal.addMeal(firstDay, eaten);
            journal.addActivity(firstDay, burnt);
            const DaySeries series = load(journal, 2);
            QCOMPARE(int(series.at(1).calories), expected);
            QVERIFY(series.at(1).hasCalories && !series.at(2).hasCalories); // missing is not zero
        }
    }
    void faults()
    {
        ProgressJournal journal;
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, load(journal, 187));
        QVERIFY_THROWS_EXCEPTION(OverflowError, load(journal, 40000));
        journal.addMeal(firstDay, rate * 24 + 32768);
        QVERIFY_THROWS_EXCEPTION(OverflowError, load(journal, 10));
        journal.exec("delete from MealConsume");
        journal.addMeasurement(firstDay, 1e300);
        QVERIFY_THROWS_EXCEPTION(OverflowError, load(journal, 10));
        journal.exec("delete from Body");
        QVERIFY(load(journal, 186).isEmpty()); // a fault leaves nothing open
    }
    void summary()
    {
        ProgressJournal journal;
        journal.addMeasurement(firstDay.addDays(1), 80, 100, 0, 104);
        journal.addMeasurement(firstDay.addDays(5), 78.5, 0, 87, 104);
        journal.addMeal(firstDay, rate * 24 - 400);
        journal.addMeal(firstDay.addDays(6), rate * 24 + 100);
        const Summary found = summaryOf(load(journal, 8));
        QCOMPARE(found.change(Series::Weight), std::optional(-1.5));
        QVERIFY(!found.change(Series::Breast)); // 0 is no value, and one tells of no change
        QCOMPARE(found.averageBalance, std::optional(-150.0)); // over two days, not eight
    }
    void averages()
    {
        ProgressJournal journal;
        for (const auto &[day, weight] : {std::pair(-28, 1e9), {-3, 1e9}, {-2, 82.0}, {-1, 81.0}})
            journal.addMeasurement(firstDay.addDays(day), weight);
        for (const auto &[day, waist] : {std::pair(0, 80), {2, 0}, {3, 80}})
            journal.addMeasurement(firstDay.addDays(day), 80, 90, waist);
        const DaySeries series = load(journal, 12);
        QCOMPARE(sources(series).left(4), QStringLiteral("MFFM"));
        const auto average = [&](int day) {
            return averageAt(series.measured(Series::Weight), series.date(qint16(day)));
        };
        QCOMPARE(average(1), std::optional(81.0));  // but for what nobody weighs
        QCOMPARE(average(2), std::optional(81.0));  // nothing that is filled in counts
        QCOMPARE(average(3), std::optional(80.75)); // what was measured does where it is filled in
        QCOMPARE(average(7), std::optional(80.0));
        QVERIFY(!average(8)); // two days are left
    }
    void slopes()
    {
        const ProgressJournal journal(QLocale(QLocale::German, QLocale::Germany));
        const ProgressTexts texts(journal.session->text(), true);
        const auto told = [&](const QList<int> &days, double daily) {
            DaySeries series({firstDay, firstDay.addDays(91)});
            for (const int day : days) {
                series.addMeasured(Series::Weight, {firstDay.addDays(day), 80 + daily * day});
            }
            return texts.slopeWords(Series::Weight, summaryOf(series));
        };
        const auto minus = QStringLiteral("−0,7 kg a week over the ");
        QCOMPARE(told({85, 82, 88, 91, 3}, -0.1), // in any order; the last was long before
                 minus + QStringLiteral("last four weeks (4 days)"));
        QCOMPARE(told({0, 30, 33, 36, 39}, -0.1),
                 minus + QStringLiteral("four weeks to 10. Juli 2026 (4 days)"));
        QVERIFY(told({70, 77, 84, 91}, 0.1).startsWith(QStringLiteral("+0,")));
        QVERIFY(told({82, 84, 86, 90}, -0.002).startsWith(QStringLiteral("0,0 kg")));
        for (const QList<int> &few : {QList{0, 30, 85, 91}, {85, 87, 89, 91}, {}, {-9}})
            QVERIFY(!told(few, 1).contains(QStringLiteral("a week over")));
        MeasuredValues line;
        for (const int day : {9, 2, 0, 5, 9})
            addMeasured(line, {firstDay.addDays(day), 80 - 0.2 * day});
        const Trend trend = trendOf(line);
        QVERIFY(trend.days == 4 && qAbs(*trend.perWeek + 1.4) < 1e-9);
        QVERIFY(qAbs(*trend.now - 78.2) < 1e-9);
    }
    void targets()
    {
        const ProgressJournal journal;
        const ProgressTexts texts(journal.session->text(), true);
        const QDate last = firstDay.addDays(60);
        const auto told = [&](double daily, double target, int daysAgo = 0, int measured = 9) {
            DaySeries series({firstDay, last});
            for (int day = 60; day > 60 - 3 * measured; day -= 3) {
                const double waist = 80 + daily * (day - 60);
                series.addMeasured(Series::Waist, {firstDay.addDays(day), waist});
                series.at(qint16(day + 1)).source = BodySource::Measured;
                series.at(qint16(day + 1)).waist = float(waist);
            }
            Goals goals;
            goals.girths[1] = target;
            const Targets found = targetsOf(goals, true, last.addDays(daysAgo));
            return targetWords(summaryOf(series), found, texts).join(u'|');
        };
        for (const auto &[daily, target, days] : {std::tuple(-0.1, 75, 50), {0.1, 82, 20}})
            QCOMPARE(told(daily, target),
                     QStringLiteral("Waist: target %1 cm, reached %2 by the present trend")
                         .arg(target)
                         .arg(roughly(last.addDays(days), last, texts.locale())));
        for (const double daily : {0.1, 0.0, -0.0001})
            QVERIFY(told(daily, 75).endsWith(QStringLiteral(", not reached by the present trend")));
        QVERIFY(told(-0.1, 81).endsWith(QStringLiteral(", reached"))); // on the way
        QVERIFY(told(-0.1, 80.01).endsWith(QStringLiteral(", reached")));
        QVERIFY(told(-0.1, 75, 0, 3).endsWith(QStringLiteral(", too few days for a trend")));
        QCOMPARE(told(-0.1, 75, 28), QStringLiteral("Waist: target 75 cm")); // a period long past

        const QLocale german(QLocale::German);
        for (const auto &[date, words] : {std::pair(QDate(2026, 12, 10), "about early Dezember"),
                                          {QDate(2026, 12, 21), "about late Dezember"},
                                          {QDate(2027, 3, 11), "about mid-März 2027"}})
            QCOMPARE(roughly(date, QDate(2026, 11, 24), german), QString(words));
        QCOMPARE(ProgressTexts::withMinus(QStringLiteral("-1 kg (-0.5), mid-May, 2-3")),
                 QStringLiteral("−1 kg (−0.5), mid-May, 2-3"));
    }
    /// From a Thursday: the first week has four days, the third two.
    void weeks()
    {
        ProgressJournal journal(QLocale(QLocale::German, QLocale::Germany));
        journal.exec("update Meal set FatBC = 0.2, CarbohydrateBC = 0.2, ProteinBC = 0.2");
        const QDate thursday(2026, 6, 4);
        const auto on = [&](int day) { return thursday.addDays(day - 1); };
        for (const int day : {1, 2, 3, 5, 6, 7, 8, 10})
            journal.addMeal(on(day), day < 5 ? 1540 : 2240);
        journal.addActivity(on(3), 200);
        journal.addActivity(on(9), 60); // data, but nothing eaten
        for (const auto &[day, weight] : {std::pair(1, 80.0), {2, 80.1}, {5, 1079.4}, {7, 1079.4}})
            journal.addMeasurement(on(day), weight); // days 3, 4 and 6 are filled in
        journal.addMeasurement(on(12), 81);
        journal.addNote(on(4), on(5), QStringLiteral("Trip"));
        journal.addNote(on(6), on(99), QStringLiteral("Run"));
        journal.addNote(on(-9), on(0), QStringLiteral("before"));
        const Period period = {thursday, on(13)};
        const ProgressTexts texts(journal.session->text(), true);
        const auto lines = [&](const DaySeries &series) {
            const Weeks found = weeksOf(series, loadConsumed(*journal.data, series.period()),
                                        journal.session->text().locale());
            return weeksTable(series, found, texts);
        };
        const TableText table = lines(loadSeries(*journal.data, period, rate));
        const QStringList text = table.toTabSeparated().split(u'\n');
        // Of 200 burnt on one of three days, a third each.
        QCOMPARE(text[1], QStringLiteral("04.06.26\t3 of 4\t1540\t1507\t33\t33\t34\t33\t"
                                         "80,0\t\tA"));
        QCOMPARE(text[2], QStringLiteral("08.06.26\t6 of 7\t1867\t1450\t417\t33\t34\t33\t"
                                         "1079,4\t+999,4\tA, B"));
        QCOMPARE(text[3], QStringLiteral("15.06.26\t0 of 2\t\t\t\t\t\t\t81,0\t"
                                         "-998,4\tB"));
        QCOMPARE(text[4],
                 QStringLiteral("Average\t9 of 13\t1758\t1469\t289\t33\t34\t33\t480,0\t\t"));
        QCOMPARE(text[5], QStringLiteral("Sum\t9 of 13\t15820\t13220\t2600\t\t\t\t\t+1,0\t"));
        QCOMPARE(table.remarks[1], QStringLiteral("A: Trip\nB: Run"));

        // A week without measurements leaves both changes beside it unknown, not that over all.
        journal.exec("delete from Body where Weight > 1000; delete from MealConsume;"
                     "delete from ExercisePerform");
        const TableText gap = lines(loadSeries(*journal.data, period, rate));
        QCOMPARE(gap.rows[1].mid(1).join(QString()), QStringLiteral("0 of 7A, B"));
        QCOMPARE(gap.rows[2][9] + gap.foot[1][9], QStringLiteral("+1,0"));
    }
    void table()
    {
        ProgressJournal journal(QLocale(QLocale::German, QLocale::Germany));
        journal.addMeasurement(firstDay, 1079.5, 83.4, 90, 0);
        journal.addMeasurement(firstDay.addDays(2), 78.25, 83.4, 88, 103);
        journal.addMeal(firstDay.addDays(2), rate * 24 - 1234);
        journal.addNote(firstDay.addDays(1), firstDay.addDays(1), QStringLiteral("one\n\ttwo"));
        const ProgressTexts texts(journal.session->text(), true);
        const QStringList lines = tableOf(load(journal, 4), texts).toTabSeparated().split(u'\n');
        QVERIFY(lines[0].startsWith(QStringLiteral("Date\tWeight (kg)\tBreast (cm)\t")));
        QCOMPARE(lines[1], QStringLiteral("01.06.26\t1079,5\t83,4\t90\t\tmeasured\t\t"));
        QCOMPARE(lines[2].section(u'\t', 2, 2), QStringLiteral("125,1")); // not 125,100006
        QVERIFY(lines[2].endsWith(QStringLiteral("\tfilled in\t\tA: one two")));
        QCOMPARE(lines[3], QStringLiteral("03.06.26\t78,25\t83,4\t88\t103\tmeasured\t-1234\t"));
    }
};

QTEST_GUILESS_MAIN(tst_progressseries)
#include "tst_progressseries.moc"
