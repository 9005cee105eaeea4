// Where things stand on the progress chart.
#include "progress/progresslayout.h"

#include <QRandomGenerator>
#include <QTest>

using namespace progress;

namespace {

const QDate firstDay(2026, 6, 1);

DaySeries seriesOf(int days)
{
    return DaySeries({firstDay, firstDay.addDays(days - 1)});
}

void measure(DaySeries &series, int day, float weight)
{
    series.at(qint16(day)) = {100, 85, 104, weight, 0, BodySource::Measured, false};
    series.girths = {85, 104};
    series.weights.widen(weight);
}

void balance(DaySeries &series, int day, qint16 calories)
{
    series.at(qint16(day)).calories = calories;
    series.at(qint16(day)).hasCalories = true;
    series.calories.widen(calories);
}

/// Notes that touch each other and go beyond both ends of the period.
DaySeries seriesWithNotes(int days, int notes)
{
    DaySeries series = seriesOf(days);
    for (int i = 0; i < notes; ++i)
        series.notes.push_back({QStringLiteral("Note"), firstDay.addDays(i * days / notes - 1),
                                firstDay.addDays((i + 1) * days / notes - 2)});
    return series;
}

/// Any period: with gaps, an early end, values near to or far from each other, many notes or none.
DaySeries anySeries(quint32 seed)
{
    QRandomGenerator random(seed);
    const int days = 28 + random.bounded(157);
    DaySeries series = seriesWithNotes(days, random.bounded(60));
    const auto girth = [&] { return 80 + float(random.bounded(seed % 2 ? 30 : 2)); };
    const int end = random.bounded(2 * days);
    for (int day = 1; day <= days; ++day) {
        if (day < end && random.bounded(3) > 0) {
            Day &measured = series.at(qint16(day));
            measured = {girth(), girth(),
                        girth(), 70 + float(random.bounded(200)) / 10,
                        0,       BodySource::Measured,
                        false};
            series.weights.widen(measured.weight);
            for (const float value : {measured.breast, measured.waist, measured.hips})
                series.girths.widen(value);
        }
        if (random.bounded(5) > 0)
            balance(series, day, qint16(random.bounded(8000) - 4000));
    }
    series.Approximate();
    return series;
}

/// In a fixed-width font.
ProgressGeometry geometryOf(const DaySeries &series, QSizeF size = {1000, 640})
{
    const auto width = [](const QString &text, TextRole role) {
        return double(text.size()) * (role == TextRole::Figure ? 10 : 7);
    };
    const LocaleText english(QLocale(QLocale::English, QLocale::UnitedKingdom));
    return progressGeometry(series, QRectF({0, 0}, size), {16, 22, width}, {english, true});
}

} // namespace

class tst_progressgeometry : public QObject
{
    Q_OBJECT

private slots:
    void scales()
    {
        const std::vector<std::pair<Range, Range>> scales = {
            {{74.6F, 82.2F}, {74, 84}}, {{80, 90}, {80, 90}}, {{-2000, 2500}, {-2000, 3000}},
            {{81.7F, 81.7F}, {81, 82}}, {{80, 80}, {79, 81}}, {{100000, 100001}, {100000, 100005}},
        };
        for (const auto &[range, expected] : scales) {
            const SteppedScale scale = scaleOf(range, 6, 0.1, 10, 110);
            QCOMPARE(float(scale.low), expected.minimum);
            QCOMPARE(float(scale.high), expected.maximum);
            QCOMPARE(scale.y(scale.low), 110.0);
        }
        QVERIFY_THROWS_EXCEPTION(OverflowError, scaleOf({1, 1e30F}, 6, 0.1, 0, 100));
    }
    void everythingFits_data()
    {
        QTest::addColumn<DaySeries>("series");
        for (quint32 seed = 1; seed <= 60; ++seed)
            QTest::addRow("any series %u", seed) << anySeries(seed);
    }
    void everythingFits()
    {
        QFETCH(DaySeries, series);
        for (const QSizeF size : {QSizeF(416, 352), QSizeF(545, 420), QSizeF(3600, 2000)}) {
            const ProgressGeometry geometry = geometryOf(series, size);
            for (const ProgressLane *lane : {&geometry.weight, &geometry.girths, &geometry.balance})
                QVERIFY(lane->area.height() > 20 && geometry.plot.contains(lane->area));
            QList<QRectF> rects;
            for (const PlacedText &text : geometry.texts)
                rects << text.rect;
            for (const LegendEntry &entry : geometry.legend)
                rects << entry.sample;
            for (const SeriesLine &line : geometry.lines) {
                if (!line.label.text.isEmpty())
                    rects << line.label.rect;
                for (const Mark &mark : line.marks)
                    QVERIFY(geometry.laneOf(line.series).area.contains(mark.at));
            }
            for (int i = 0; i < rects.size(); ++i) {
                QVERIFY(geometry.area.adjusted(-0.5, -0.5, 0.5, 0.5).contains(rects[i]));
                for (int j = 0; j < i; ++j)
                    QVERIFY(!rects[i].adjusted(0.5, 0.5, -0.5, -0.5).intersects(rects[j]));
            }
        }
    }
    void linesBreakAtUnknownDays()
    {
        DaySeries series = seriesOf(12);
        for (const int day : {1, 2, 4, 8, 9})
            measure(series, day, 80 - float(day)); // and more than the scale holds on day 3
        series.Approximate();
        const ProgressGeometry geometry = geometryOf(series);
        const SeriesLine &line = geometry.lines.front();
        QVERIFY(line.marks[2].kind == Mark::Kind::AboveScale);
        QCOMPARE(line.marks[2].at.y(), geometry.weight.area.top());
        QCOMPARE(line.marks[1].at.y(), geometry.weight.scale.y(78));
        QCOMPARE(line.measured.size(), size_t(2));
        QCOMPARE(line.bridges.size(), size_t(1));
        QCOMPARE(line.bridges[0], QLineF(line.marks[1].at, line.marks[3].at));
    }
    void columnsStandOnZeroOrAreMissing()
    {
        DaySeries series = seriesOf(10);
        for (const auto &[day, calories] : {std::pair(1, 1000), {2, -500}, {5, 0}, {6, 0}})
            balance(series, day, qint16(calories));
        const ProgressGeometry geometry = geometryOf(series);
        const auto &columns = geometry.columns;
        QCOMPARE(columns[0].rect.bottom(), geometry.balance.scale.y(0));
        QCOMPARE(columns[1].rect.top(), geometry.balance.scale.y(0));
        QCOMPARE(geometry.notRecorded.size(), size_t(2));
        QCOMPARE(geometry.notRecorded[0].left(), geometry.days.x(3));
    }
    void notesAreClippedAndLettered()
    {
        DaySeries series = seriesWithNotes(60, 27);
        series.notes.back().DateTo = firstDay.addDays(40000); // beyond what a day number can hold
        const ProgressGeometry geometry = geometryOf(series);
        const auto &notes = geometry.notes;
        QCOMPARE(notes[0].firstDay, qint16(1));
        QCOMPARE(notes[0].letter + notes[25].letter + notes[26].letter, QStringLiteral("AZA"));
        QCOMPARE(notes[26].lastDay, qint16(60));
        const ProgressGeometry crowded = geometryOf(seriesWithNotes(184, 40), {545, 420});
        for (const NoteSpan &note : crowded.notes)
            QVERIFY(note.hasRoom);
    }
};

QTEST_GUILESS_MAIN(tst_progressgeometry)
#include "tst_progressgeometry.moc"
