// Where things stand on the progress chart.
#include "progress/progressgeometry.h"

#include <QTest>

using namespace progress;

namespace {

const QDate firstDay(2026, 6, 1);
const LocaleText english(QLocale(QLocale::English, QLocale::UnitedKingdom));
const ProgressTexts texts(english, true);

/// A fixed-width font.
TextMetrics metrics()
{
    return {16, 22, [](const QString &text, TextRole role) {
                return double(text.size()) * (role == TextRole::Figure ? 10 : 7);
            }};
}

DaySeries seriesOf(int days)
{
    return DaySeries({firstDay, firstDay.addDays(days - 1)});
}

void measure(DaySeries &series, int day, float weight)
{
    series.at(qint16(day)) = {100, 85, 104, weight, 0, BodySource::Measured, false};
    for (const float girth : {100.0F, 85.0F, 104.0F})
        series.girths.widen(girth);
    series.weights.widen(weight);
}

void balance(DaySeries &series, int day, qint16 calories)
{
    series.at(qint16(day)).calories = calories;
    series.at(qint16(day)).hasCalories = true;
    series.calories.widen(calories);
}

/// A measurement on two days of three, calories on all but every fifth day, notes that touch.
DaySeries busySeries(int days, int notes)
{
    DaySeries series = seriesOf(days);
    for (int day = 1; day <= days; ++day) {
        if (day % 3 != 2)
            measure(series, day, 80 - float(day % 7) / 10);
        if (day % 5 != 0)
            balance(series, day, qint16(day * 37 % 3000 - 1500));
    }
    for (int i = 0; i < notes; ++i)
        series.notes.push_back({QStringLiteral("Note"), firstDay.addDays(i * days / notes - 1),
                                firstDay.addDays((i + 1) * days / notes - 2)});
    series.Approximate();
    return series;
}

ChartGeometry geometryOf(const DaySeries &series, QSizeF size = {1000, 640})
{
    return progressGeometry(series, QRectF({0, 0}, size), metrics(), texts);
}

const SeriesLine &weightLine(const ChartGeometry &geometry)
{
    return geometry.lines.front();
}

bool overlap(const QRectF &a, const QRectF &b)
{
    const QRectF common = a & b;
    return common.width() > 0.5 && common.height() > 0.5;
}

} // namespace

class TestProgressGeometry : public QObject
{
    Q_OBJECT

private slots:
    void scales_data();
    void scales();
    void scaleTooLarge();
    void everythingFits_data();
    void everythingFits();
    void linesBreakAtUnknownDays();
    void filledInDaysOffTheScale();
    void columnsStandOnZero();
    void daysWithoutCaloriesAreMissing();
    void notesAreClippedAndLettered();
    void manyNotesKeepTheirLetters();
    void daysUnderThePointer();
    void emptyPeriodSaysSo();
};

void TestProgressGeometry::scales_data()
{
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::newRow("weight") << 74.6F << 82.2F << 74.0 << 84.0;
    QTest::newRow("multiples stay") << 80.0F << 90.0F << 80.0 << 90.0;
    QTest::newRow("balance") << -2000.0F << 2000.0F << -2000.0 << 2000.0;
    QTest::newRow("balance, wider") << -2000.0F << 2500.0F << -2000.0 << 3000.0;
    QTest::newRow("a single value") << 81.7F << 81.7F << 81.0 << 82.0;
    QTest::newRow("a single whole value") << 80.0F << 80.0F << 79.0 << 81.0;
    QTest::newRow("far from zero, close together")
        << 100000.0F << 100001.0F << 100000.0 << 100005.0;
}

void TestProgressGeometry::scales()
{
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    const ValueScale scale = scaleOf({minimum, maximum}, 6, 0.1, 10, 110);
    QTEST(scale.low, "low");
    QTEST(scale.high, "high");
    QCOMPARE(scale.y(scale.low), 110.0);
    QCOMPARE(scale.y(scale.high), 10.0);
    const std::vector<double> ticks = scale.ticks(20);
    QVERIFY(ticks.size() >= 2);
    for (size_t i = 1; i < ticks.size(); ++i)
        QVERIFY(scale.y(ticks[i - 1]) - scale.y(ticks[i]) >= 19.99);
}

void TestProgressGeometry::scaleTooLarge()
{
    QVERIFY_THROWS_EXCEPTION(OverflowError, scaleOf({1, 1e30F}, 6, 0.1, 0, 100));
}

void TestProgressGeometry::everythingFits_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("notes");
    QTest::addColumn<QSizeF>("size");
    for (const QSizeF size : {QSizeF(545, 420), QSizeF(1000, 640), QSizeF(3600, 2000)}) {
        for (const int days : {1, 29, 92, 184}) {
            for (const int notes : {0, 40}) {
                if (notes <= days)
                    QTest::addRow("%d days, %d notes, %d wide", days, notes, int(size.width()))
                        << days << notes << size;
            }
        }
    }
}

void TestProgressGeometry::everythingFits()
{
    QFETCH(int, days);
    QFETCH(int, notes);
    QFETCH(QSizeF, size);
    const ChartGeometry geometry = geometryOf(busySeries(days, notes), size);
    QVERIFY(geometry.plot.width() > 0.6 * size.width());
    for (const Lane *lane : {&geometry.weight, &geometry.girths, &geometry.balance}) {
        QVERIFY(lane->area.height() > 40);
        QVERIFY(geometry.plot.contains(lane->area));
    }
    QList<QRectF> rects;
    const auto words = [&](int i) {
        return size_t(i) < geometry.texts.size() ? geometry.texts[size_t(i)].text
                                                 : QStringLiteral("a sample");
    };
    for (const PlacedText &text : geometry.texts)
        rects << text.rect;
    for (const LegendEntry &entry : geometry.legend)
        rects << entry.sample;
    for (int i = 0; i < rects.size(); ++i) {
        QVERIFY(geometry.area.adjusted(-0.5, -0.5, 0.5, 0.5).contains(rects[i]));
        for (int j = 0; j < i; ++j)
            QVERIFY2(!overlap(rects[i], rects[j]),
                     qPrintable(QStringLiteral("%1 over %2").arg(words(i), words(j))));
    }
    for (const SeriesLine &line : geometry.lines) {
        QVERIFY(line.label.rect.right() <= size.width());
        for (const SeriesLine &other : geometry.lines)
            QVERIFY(&line == &other || !overlap(line.label.rect, other.label.rect));
    }
}

void TestProgressGeometry::linesBreakAtUnknownDays()
{
    DaySeries series = seriesOf(12);
    for (const int day : {1, 2, 4, 8, 9})
        measure(series, day, 80 - float(day));
    series.Approximate();
    const ChartGeometry geometry = geometryOf(series);
    const SeriesLine &line = weightLine(geometry);
    QCOMPARE(line.marks.size(), size_t(6)); // day 3 is filled in
    QCOMPARE(line.measured.size(), size_t(2));
    QCOMPARE(line.measured[0].x1(), geometry.days.center(1));
    QCOMPARE(line.measured[1].x2(), geometry.days.center(9));
    QCOMPARE(line.bridges.size(), size_t(1));
    QCOMPARE(line.bridges[0].p1(), line.marks[1].at);
    QCOMPARE(line.bridges[0].p2(), line.marks[3].at);
    QCOMPARE(line.marks[1].at.y(), geometry.weight.scale.y(78));
}

void TestProgressGeometry::filledInDaysOffTheScale()
{
    DaySeries series = seriesOf(7);
    for (const auto &[day, weight] : {std::pair(1, 150.0F), {3, 148.0F}, {5, 40.0F}, {7, 20.0F}})
        measure(series, day, weight);
    series.Approximate();
    const ChartGeometry geometry = geometryOf(series);
    const auto &marks = weightLine(geometry).marks;
    QVERIFY(marks[1].kind == Mark::Kind::AboveScale); // 223
    QCOMPARE(marks[1].at.y(), geometry.weight.area.top());
    QVERIFY(marks[3].kind == Mark::Kind::FilledIn); // 148 + 40 - 74
    QCOMPARE(marks[3].at.y(), geometry.weight.scale.y(114));
}

void TestProgressGeometry::columnsStandOnZero()
{
    DaySeries series = seriesOf(3);
    balance(series, 1, 1000);
    balance(series, 2, -500);
    balance(series, 3, 0);
    const ChartGeometry geometry = geometryOf(series);
    const double zero = geometry.balance.scale.y(0);
    QCOMPARE(geometry.columns[0].rect.bottom(), zero);
    QCOMPARE(geometry.columns[1].rect.top(), zero);
    QCOMPARE(geometry.columns[0].rect.height(), 2 * geometry.columns[1].rect.height());
    QVERIFY(geometry.columns[0].isSurplus && !geometry.columns[1].isSurplus);
    QCOMPARE(geometry.columns[2].rect.height(), 0.0);
    QVERIFY(geometry.notRecorded.empty());
}

void TestProgressGeometry::daysWithoutCaloriesAreMissing()
{
    DaySeries series = seriesOf(10);
    for (const int day : {1, 2, 5, 6})
        balance(series, day, 0);
    const ChartGeometry geometry = geometryOf(series);
    QCOMPARE(geometry.columns.size(), size_t(4));
    QCOMPARE(geometry.notRecorded.size(), size_t(2));
    QCOMPARE(geometry.notRecorded[0].left(), geometry.days.x(3));
    QCOMPARE(geometry.notRecorded[0].right(), geometry.days.x(5));
    QCOMPARE(geometry.notRecorded[1].right(), geometry.days.right());
}

void TestProgressGeometry::notesAreClippedAndLettered()
{
    DaySeries series = busySeries(60, 0);
    for (int i = 0; i < 27; ++i)
        series.notes.push_back(
            {QStringLiteral("Note"), firstDay.addDays(2 * i - 1), firstDay.addDays(2 * i)});
    series.notes.back().DateTo = firstDay.addDays(40000); // beyond what a day number can hold
    const ChartGeometry geometry = geometryOf(series);
    QCOMPARE(geometry.notes[0].firstDay, qint16(1));
    QCOMPARE(geometry.notes[0].lastDay, qint16(1));
    QCOMPARE(geometry.notes[0].letter + geometry.notes[25].letter + geometry.notes[26].letter,
             QStringLiteral("AZA"));
    QCOMPARE(geometry.notes[26].lastDay, qint16(60));
    QCOMPARE(geometry.notes[26].reach.right(), geometry.days.right());
    QCOMPARE(geometry.noteAt(geometry.notes[5].bar.center()), std::optional<size_t>(5));
    QVERIFY(!geometry.noteAt(geometry.weight.area.center()));
}

void TestProgressGeometry::manyNotesKeepTheirLetters()
{
    const ChartGeometry geometry = geometryOf(busySeries(184, 40), {545, 420});
    for (const NoteSpan &note : geometry.notes)
        QVERIFY(note.hasRoom);
}

void TestProgressGeometry::daysUnderThePointer()
{
    const ChartGeometry geometry = geometryOf(busySeries(31, 0));
    for (const qint16 day : {qint16(1), qint16(16), qint16(31)}) {
        QCOMPARE(geometry.days.dayAt(geometry.days.center(day)), day);
        QCOMPARE(geometry.days.dayAt(geometry.days.x(day) + 0.01), day);
    }
    QCOMPARE(geometry.days.dayAt(-50), qint16(1));
    QCOMPARE(geometry.days.dayAt(5000), qint16(31));
}

void TestProgressGeometry::emptyPeriodSaysSo()
{
    const ChartGeometry geometry = geometryOf(seriesOf(92));
    QVERIFY(geometry.isEmpty);
    QVERIFY(std::any_of(geometry.texts.begin(), geometry.texts.end(), [](const PlacedText &text) {
        return text.text.startsWith(QStringLiteral("There are no measurements"));
    }));
    const ChartGeometry bodyOnly = geometryOf([] {
        DaySeries series = seriesOf(10);
        measure(series, 4, 80);
        return series;
    }());
    QVERIFY(std::any_of(bodyOnly.texts.begin(), bodyOnly.texts.end(), [](const PlacedText &text) {
        return text.text == QStringLiteral("No meals or activities in this period");
    }));
}

QTEST_GUILESS_MAIN(TestProgressGeometry)
#include "tst_progressgeometry.moc"
