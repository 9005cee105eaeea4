// The series of a period: what is stored, filled in, missing and too large.
#include "progress/progresstable.h"
#include "progresssamples.h"

#include <QTest>

using namespace progress;

namespace {

const QDate firstDay(2026, 6, 1);
constexpr double rate = 60;

Period days(int count)
{
    return {firstDay, firstDay.addDays(count - 1)};
}

void measure(ProgressJournal &journal, int day, double weight = 70)
{
    journal.addMeasurement(firstDay.addDays(day - 1), weight, 90, 80, 95);
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

class TestProgressSeries : public QObject
{
    Q_OBJECT

private slots:
    void gaps_data();
    void gaps();
    void valuesFilledIn();
    void waistOfZeroIsNoMeasurement();
    void ranges();
    void balance_data();
    void balance();
    void missingIsNotZero();
    void notes();
    void emptyPeriod();
    void faults();
    void summary();
    void table();
    void dayInWords();
};

void TestProgressSeries::gaps_data()
{
    QTest::addColumn<QList<int>>("measured");
    QTest::addColumn<QString>("sources");
    QTest::newRow("days 1, 3 and 7") << QList<int>{1, 3, 7} << "MFM...M...";
    QTest::newRow("two days") << QList<int>{2, 5, 6} << ".MFFMM....";
    QTest::newRow("three days") << QList<int>{1, 5} << "M...M.....";
    QTest::newRow("at both ends") << QList<int>{2, 9} << ".M......M.";
    QTest::newRow("up to the last day") << QList<int>{7, 10} << "......MFFM";
    QTest::newRow("several") << QList<int>{1, 3, 5, 8} << "MFMFMFFM..";
}

void TestProgressSeries::gaps()
{
    QFETCH(QList<int>, measured);
    ProgressJournal journal;
    for (const int day : measured)
        measure(journal, day);
    const DaySeries series = loadSeries(*journal.data, days(10), rate);
    QTEST(sources(series), "sources");
    for (qint16 day = 1; day <= 10; ++day)
        QCOMPARE(series.at(day).waist == -1, series.at(day).source == BodySource::None);
}

void TestProgressSeries::valuesFilledIn()
{
    ProgressJournal journal;
    measure(journal, 1, 150);
    measure(journal, 3, 148);
    measure(journal, 6, 147);
    const DaySeries series = loadSeries(*journal.data, days(7), rate);
    QCOMPARE(series.at(2).weight, 223.0F);
    QCOMPARE(series.at(2).waist, 120.0F);
    const float step = 147 - 148.0F / 3;
    QCOMPARE(series.at(4).weight, step + 148);
    QCOMPARE(series.at(5).weight, 2 * step + 148);
    QCOMPARE(series.weights.maximum, 150.0F); // filled-in values widen nothing
    QCOMPARE(series.girths.maximum, 95.0F);
}

void TestProgressSeries::waistOfZeroIsNoMeasurement()
{
    ProgressJournal journal;
    journal.addMeasurement(firstDay, 71, 0, 0, 0);
    measure(journal, 2);
    journal.addMeasurement(firstDay.addDays(2), 69, 0, 0, 0);
    measure(journal, 4);
    const DaySeries series = loadSeries(*journal.data, days(4), rate);
    QCOMPARE(sources(series), QStringLiteral("MMFM"));
    QCOMPARE(series.at(1).weight, 71.0F); // its values stay where no gap is filled
    QVERIFY(series.at(1).isKnown(Series::Weight));
    QVERIFY(!series.at(1).isKnown(Series::Waist));
    QCOMPARE(series.girths.minimum, 0.0F);
}

void TestProgressSeries::ranges()
{
    ProgressJournal journal;
    journal.addMeasurement(firstDay, 82.5, 101, 92, 104.5);
    journal.addMeasurement(firstDay.addDays(1), 80, 100, 88.5, 103);
    journal.addMeal(firstDay, rate * 24 + 2500);
    journal.addMeal(firstDay.addDays(1), rate * 24 - 500);
    const DaySeries series = loadSeries(*journal.data, days(2), rate);
    QCOMPARE(series.weights.minimum, 80.0F);
    QCOMPARE(series.weights.maximum, 82.5F);
    QCOMPARE(series.girths.minimum, 88.5F);
    QCOMPARE(series.girths.maximum, 104.5F);
    QCOMPARE(series.calories.minimum, -2000.0F);
    QCOMPARE(series.calories.maximum, 2500.0F);
}

void TestProgressSeries::balance_data()
{
    QTest::addColumn<double>("eaten");
    QTest::addColumn<double>("burnt");
    QTest::addColumn<int>("balance");
    QTest::newRow("a day") << 1800.0 << 300.0 << 60;
    QTest::newRow("half to even, down") << 1440.5 << 0.0 << 0;
    QTest::newRow("half to even, up") << 1441.5 << 0.0 << 2;
    QTest::newRow("the largest") << 1440 + 32767.0 << 0.0 << 32767;
    QTest::newRow("the smallest") << 1440.0 << 32768.0 << -32768;
}

void TestProgressSeries::balance()
{
    QFETCH(double, eaten);
    QFETCH(double, burnt);
    ProgressJournal journal;
    journal.addMeal(firstDay, eaten);
    journal.addActivity(firstDay, burnt);
    QTEST(int(loadSeries(*journal.data, days(1), rate).at(1).calories), "balance");
}

void TestProgressSeries::missingIsNotZero()
{
    ProgressJournal journal;
    journal.addMeal(firstDay, rate * 24);
    const DaySeries series = loadSeries(*journal.data, days(2), rate);
    QCOMPARE(series.at(1).calories, series.at(2).calories);
    QVERIFY(series.at(1).hasCalories);
    QVERIFY(!series.at(2).hasCalories);
}

void TestProgressSeries::notes()
{
    ProgressJournal journal;
    journal.addNote(firstDay.addDays(-9), firstDay.addDays(-4), QStringLiteral("before"));
    journal.addNote(firstDay.addDays(5), firstDay.addDays(40), QStringLiteral("into it"));
    journal.addNote(firstDay.addDays(-3), firstDay, QStringLiteral("out of it"));
    journal.addNote(firstDay.addDays(50), firstDay.addDays(50), QStringLiteral("after"));
    const DaySeries series = loadSeries(*journal.data, days(10), rate);
    QCOMPARE(series.notes.size(), size_t(2));
    QCOMPARE(series.notes[0].NoteText, QStringLiteral("out of it"));
    QCOMPARE(series.notes[0].DateFrom, firstDay.addDays(-3)); // whole, not clipped
    QCOMPARE(series.notes[1].DateTo, firstDay.addDays(40));
    QCOMPARE(notesOn(series, firstDay.addDays(5)), std::vector<size_t>{1});
}

void TestProgressSeries::emptyPeriod()
{
    ProgressJournal journal;
    const DaySeries series = loadSeries(*journal.data, days(30), rate);
    QVERIFY(series.isEmpty());
    QCOMPARE(sources(series), QString(30, u'.'));
    QCOMPARE(series.girths.minimum, 500.0F);
    QCOMPARE(series.weights.minimum, 1000.0F);
    QCOMPARE(series.weights.maximum, 0.0F);
}

void TestProgressSeries::faults()
{
    ProgressJournal journal;
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, loadSeries(*journal.data, days(187), rate));
    QCOMPARE(loadSeries(*journal.data, days(186), rate).nDays(), qint16(186));
    QVERIFY_THROWS_EXCEPTION(OverflowError, loadSeries(*journal.data, days(40000), rate));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, DaySeries(days(10)).at(0));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, DaySeries(days(10)).at(187));

    journal.addMeal(firstDay, rate * 24 + 32768);
    QVERIFY_THROWS_EXCEPTION(OverflowError, loadSeries(*journal.data, days(10), rate));
    journal.exec("delete from MealConsume");
    journal.addMeasurement(firstDay, 1e300, 90, 80, 95);
    QVERIFY_THROWS_EXCEPTION(OverflowError, loadSeries(*journal.data, days(10), rate));
    journal.exec("delete from Body");
    QVERIFY(loadSeries(*journal.data, days(10), rate).isEmpty()); // a fault leaves nothing open
}

void TestProgressSeries::summary()
{
    ProgressJournal journal;
    journal.addMeasurement(firstDay.addDays(1), 80, 100, 0, 104);
    journal.addMeasurement(firstDay.addDays(3), 79, 0, 88, 104);
    journal.addMeasurement(firstDay.addDays(5), 78.5, 99, 87, 104);
    journal.addMeal(firstDay, rate * 24 - 400);
    journal.addMeal(firstDay.addDays(6), rate * 24 + 100);
    const Summary found = summaryOf(loadSeries(*journal.data, days(8), rate));
    QCOMPARE(found.change(Series::Weight), std::optional(-1.5));
    QCOMPARE(found.change(Series::Breast), std::optional(-1.0)); // 0 is no value
    QCOMPARE(found.change(Series::Waist), std::optional(-1.0));
    QCOMPARE(found.change(Series::Hips), std::optional(0.0));
    QCOMPARE(found.averageBalance, std::optional(-150.0)); // over two days, not eight
    QCOMPARE(found.calorieDays, 2);
    QCOMPARE(found.measuredDays, 3);
    QCOMPARE(found.days, 8);

    const Summary single = summaryOf(loadSeries(*journal.data, days(2), rate));
    QVERIFY(!single.change(Series::Weight)); // one measurement tells of no change
    const Period later = {firstDay.addDays(20), firstDay.addDays(25)};
    QVERIFY(!summaryOf(loadSeries(*journal.data, later, rate)).averageBalance);
}

void TestProgressSeries::table()
{
    ProgressJournal journal(QLocale(QLocale::German, QLocale::Germany));
    journal.addMeasurement(firstDay, 1079.5, 100, 90, 0);
    journal.addMeasurement(firstDay.addDays(2), 78.25, 98, 88, 103);
    journal.addMeal(firstDay.addDays(2), rate * 24 - 1234);
    journal.addNote(firstDay.addDays(1), firstDay.addDays(1), QStringLiteral("one\n\ttwo"));
    const ProgressTexts texts(journal.session->text(), true);
    const QStringList lines =
        tableOf(loadSeries(*journal.data, days(4), rate), texts).toTabSeparated().split(u'\n');
    QCOMPARE(lines.size(), 6); // header, four days, behind the last line break
    QVERIFY(lines[0].startsWith(QStringLiteral("Date\tWeight (kg)\tBreast (cm)\t")));
    QCOMPARE(lines[1], QStringLiteral("01.06.26\t1079,5\t100\t90\t\tmeasured\t\t"));
    QVERIFY2(lines[2].endsWith(QStringLiteral("\tfilled in\t\tA: one two")), qPrintable(lines[2]));
    QCOMPARE(lines[3], QStringLiteral("03.06.26\t78,25\t98\t88\t103\tmeasured\t-1234\t"));
    QCOMPARE(lines[4], QStringLiteral("04.06.26\t\t\t\t\t\t\t"));
}

void TestProgressSeries::dayInWords()
{
    ProgressJournal journal;
    measure(journal, 1, 150);
    measure(journal, 3, 148);
    journal.addMeal(firstDay.addDays(1), rate * 24 - 500);
    journal.addNote(firstDay, firstDay.addDays(1), QStringLiteral("Holiday"));
    const DaySeries series = loadSeries(*journal.data, days(5), rate);
    const ProgressTexts texts(journal.session->text(), false);
    QCOMPARE(texts.dayWords(series, 2),
             QStringLiteral("Tuesday, 2 June 2026\nWeight: 223 lb (filled in)\n"
                            "Breast: 135 inch (filled in)\nWaist: 120 inch (filled in)\n"
                            "Hips: 142.5 inch (filled in)\n"
                            "Balance: -500 kcal, less eaten than burnt\nNote: A"));
    QVERIFY(texts.dayWords(series, 5).contains(QStringLiteral("Weight: not measured")));
    QVERIFY(texts.dayWords(series, 5).endsWith(
        QStringLiteral("Balance: no meals or activities recorded")));
}

QTEST_GUILESS_MAIN(TestProgressSeries)
#include "tst_progressseries.moc"
