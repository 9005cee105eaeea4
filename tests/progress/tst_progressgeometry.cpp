// Where things stand on the progress chart.
#include "progress/progresslayout.h"
#include "properties.h"

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
    series.addMeasured(Series::Weight, {series.date(qint16(day)), double(weight)});
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

/// Any period: with gaps, an early end, values near to or far from each other, many notes or none,
/// now and then without measurements, calories or both.
DaySeries anySeries(quint32 seed)
{
    QRandomGenerator random(seed);
    const int days = 28 + random.bounded(157);
    DaySeries series = seriesWithNotes(days, seed % 5 == 0 ? 0 : random.bounded(60));
    const auto girth = [&] { return 80 + float(random.bounded(seed % 2 ? 30 : 2)); };
    const int end = seed % 7 == 0 ? 0 : random.bounded(2 * days);
    for (int before = 0; before < int(seed % 3); ++before)
        series.addMeasured(Series::Weight, {firstDay.addDays(-3 * before - 1), 60 + 20.0 * before});
    for (int day = 1; day <= days; ++day) {
        if (day < end && random.bounded(3) > 0) {
            Day &measured = series.at(qint16(day));
            measured = {girth(), girth(),
                        girth(), 70 + float(random.bounded(200)) / 10,
                        0,       BodySource::Measured,
                        false};
            series.weights.widen(measured.weight);
            series.addMeasured(Series::Weight, {series.date(qint16(day)), double(measured.weight)});
            for (const float value : {measured.breast, measured.waist, measured.hips})
                series.girths.widen(value);
        }
        if (seed % 11 > 0 && random.bounded(5) > 0)
            balance(series, day, qint16(random.bounded(8000) - 4000));
    }
    series.Approximate();
    if (seed % 4 == 0)
        series.targets = {{60.0 + random.bounded(40), {}, 60.0 + random.bounded(60), 85.0},
                          series.period().dateTo};
    return series;
}

/// In a fixed-width font.
ProgressGeometry geometryOf(const DaySeries &series, const QRectF &area = {0, 0, 1000, 640},
                            double lineHeight = 16)
{
    const auto width = [lineHeight](const QString &text, TextRole role) {
        return lineHeight * (role == TextRole::Figure ? 0.63 : 0.44) * double(text.size());
    };
    const LocaleText english(QLocale(QLocale::English, QLocale::UnitedKingdom));
    return progressGeometry(series, area, {lineHeight, 1.4 * lineHeight, width}, {english, true});
}

/// A period in an area of at least the control's least size, between 600 x 400 and 4K.
struct Sample
{
    explicit Sample(quint32 seed)
        : series(anySeries(seed))
    {
        QRandomGenerator random(seed);
        area = anyArea(random);
        lineHeight = anyLineHeight(random, area, 30, 24);
        g = geometryOf(series, area, lineHeight);
    }

    double center(int day) const { return g.plot.left() + (day - 0.5) * g.plot.width() / days(); }
    double days() const { return series.nDays(); }
    std::array<const ProgressLane *, 3> lanes() const { return {&g.weight, &g.girths, &g.balance}; }

    DaySeries series;
    QRectF area;
    double lineHeight;
    ProgressGeometry g;
};

bool anyText(const Sample &s, const std::function<bool(const PlacedText &)> &predicate)
{
    return std::any_of(s.g.texts.begin(), s.g.texts.end(), predicate);
}

bool textsFit(const Sample &s)
{
    std::vector<QRectF> rects;
    for (const PlacedText &text : s.g.texts)
        rects.push_back(text.rect);
    for (const LegendEntry &entry : s.g.legend)
        rects.push_back(entry.sample);
    for (const SeriesLine &line : s.g.lines) {
        if (!line.label.text.isEmpty())
            rects.push_back(line.label.rect);
    }
    for (const BalanceColumn &column : s.g.columns) {
        if (!column.value.text.isEmpty())
            rects.push_back(column.value.rect);
    }
    return fit(rects, s.area);
}

/// One below the other in the plot, which leaves room for the dates; none too low.
bool lanesKeepTheirHeight(const Sample &s)
{
    double bottom = s.g.lanesTop;
    for (const ProgressLane *lane : s.lanes()) {
        const QRectF &area = lane->area;
        if (area.height() < 1.5 * s.lineHeight ||
            !near(area.top() - bottom, s.lineHeight, s.lineHeight) ||
            !near(area.left(), s.g.plot.left()) || !near(area.right(), s.g.plot.right()))
            return false;
        bottom = area.bottom();
    }
    return near(bottom + 0.45 * s.lineHeight, s.g.plot.bottom(), 0.5 * s.lineHeight) &&
           s.g.plot.width() > 0.5 * s.area.width() && s.g.plot.contains(s.g.girths.area) &&
           near(s.area.bottom() - s.g.plot.bottom(), 2.5 * s.lineHeight) &&
           near(s.g.weight.area.height() * 32, s.g.girths.area.height() * 28, 1e-3) &&
           near(s.g.balance.area.height() * 32, s.g.girths.area.height() * 40, 1e-3);
}

/// From a value's place on its lane, the lowest label's at the foot.
double heightOf(const ProgressLane &lane, double value)
{
    const auto [top, bottom] = std::pair(lane.scale.topY, lane.scale.bottomY);
    return bottom - (value - lane.scale.low) * (bottom - top) / (lane.scale.high - lane.scale.low);
}

double numberIn(QString text)
{
    return text.remove(u',').replace(QChar(0x2212), u'-').toDouble();
}

bool scalesAreLabelled(const Sample &s)
{
    for (const ProgressLane *lane : s.lanes()) {
        const bool isEmpty = lane == &s.g.balance ? false : !s.series.hasBody();
        if (isEmpty ? !lane->grid.empty() : lane->grid.size() < 2)
            return false;
        const double above = lane->scale.topY - lane->area.top();
        const double below = lane->area.bottom() - lane->scale.bottomY;
        if (!isEmpty &&
            (below < -1e-6 || below > above + 1e-6 || above > 0.25 * lane->area.height() + 1e-6))
            return false;
        for (size_t i = 0; i < lane->grid.size(); ++i) {
            const double y = lane->grid[i];
            if (y < lane->area.top() - 1e-6 || y > lane->area.bottom() + 1e-6 ||
                (i > 0 && lane->grid[i - 1] - y < 1.2 * s.lineHeight))
                return false;
            const bool isLabelled = anyText(s, [&](const PlacedText &text) {
                return near(text.rect.right(), s.g.plot.left() - 0.4 * s.lineHeight) &&
                       near(text.rect.center().y(), y) &&
                       near(heightOf(*lane, numberIn(text.text)), y, 0.6);
            });
            if (!isLabelled)
                return false;
        }
    }
    return true;
}

/// A mark for each known day at its height, lines from day to day and bridges over filled gaps.
bool linesFollowTheValues(const Sample &s)
{
    if (s.g.lines.size() != (s.series.hasBody() ? 4U : 0U))
        return false;
    for (const SeriesLine &line : s.g.lines) {
        const ProgressLane &lane = s.g.laneOf(line.series);
        auto mark = line.marks.begin();
        const Mark *before = nullptr;
        size_t joined = 0, bridged = 0;
        for (qint16 day = 1; day <= s.series.nDays(); ++day) {
            const Day &record = s.series.at(day);
            if (!record.isKnown(line.series))
                continue;
            if (mark == line.marks.end() || mark->day != day || !near(mark->at.x(), s.center(day)))
                return false;
            const double y = heightOf(lane, double(record.value(line.series)));
            const bool isMeasured = record.source == BodySource::Measured;
            if (isMeasured != (mark->kind == Mark::Kind::Measured) ||
                !near(mark->at.y(), std::clamp(y, lane.scale.topY, lane.area.bottom()),
                      mark->kind == Mark::Kind::AboveScale ? s.lineHeight : 1e-3) ||
                !lane.area.adjusted(0, -1e-6, 0, 1e-6).contains(mark->at))
                return false;
            if (isMeasured && before) {
                const QLineF way(before->at, mark->at);
                const bool isNext = before->day + 1 == day;
                bool isFilled = true;
                for (qint16 gap = qint16(before->day + 1); gap < day; ++gap)
                    isFilled = isFilled && s.series.at(gap).source == BodySource::FilledIn;
                if (isNext && (joined >= line.measured.size() || line.measured[joined++] != way))
                    return false;
                if (!isNext && isFilled &&
                    (bridged >= line.bridges.size() || line.bridges[bridged++] != way))
                    return false;
            }
            if (isMeasured)
                before = &*mark;
            ++mark;
        }
        if (mark != line.marks.end() || joined != line.measured.size() ||
            bridged != line.bridges.size())
            return false;
    }
    return true;
}

/// The mean of what was measured on seven days, where that are three or more; broken elsewhere.
/// Across the plot at their heights, where these are on the scale; those of all that are near what
/// was measured, and the legend says what they are.
bool targetsStandAtTheirHeights(const Sample &s)
{
    size_t drawn = 0;
    for (const Series series : allSeries) {
        const std::optional<double> target = s.series.targets.of(series);
        const ProgressLane &lane = s.g.laneOf(series);
        const Range &range = series == Series::Weight ? s.series.weights : s.series.girths;
        if (!target || !s.series.hasBody())
            continue;
        const bool isNear =
            *target > double(range.minimum) - 4 && *target < double(range.maximum) + 4;
        const double y = heightOf(lane, *target);
        const bool isDrawn = drawn < s.g.targets.size() && s.g.targets[drawn].series == series;
        if (!isDrawn && (isNear || (y >= lane.scale.topY && y <= lane.scale.bottomY)))
            return false;
        if (!isDrawn)
            continue;
        const QLineF &line = s.g.targets[drawn++].line;
        if (!near(line.y1(), y, 1e-3) || line.dy() != 0 || !near(line.x1(), s.g.plot.left()) ||
            !near(line.x2(), s.g.plot.right()) || y < lane.area.top() - 1e-6 ||
            y > lane.area.bottom() + 1e-6)
            return false;
    }
    const bool isSaid = anyText(s, [](const PlacedText &text) {
        return text.text.startsWith(QStringLiteral("Hips: target 85 cm"));
    });
    const bool isHigh = s.area.height() > 28 * s.lineHeight;
    const bool hasOne = s.series.targets.of(Series::Hips).has_value();
    return drawn == s.g.targets.size() && (isSaid || !hasOne || !isHigh) && (hasOne || !isSaid);
}

bool trendFollowsTheAverages(const Sample &s)
{
    const MeasuredValues &measured = s.series.measured(Series::Weight);
    size_t line = 0, point = 0;
    for (qint16 day = 1; s.series.hasBody() && day <= s.series.nDays(); ++day) {
        double sum = 0, count = 0;
        for (const MeasuredValue &value : measured) {
            const qint64 ago = value.date.daysTo(s.series.date(day));
            sum += ago >= 0 && ago < 7 ? value.value : 0;
            count += ago >= 0 && ago < 7 ? 1 : 0;
        }
        if (count < 3) {
            line += point > 0;
            point = 0;
            continue;
        }
        if (line >= s.g.trend.size() || point >= s.g.trend[line].size())
            return false;
        const QPointF at = s.g.trend[line][point++];
        const bool isAlone = s.g.trend[line].size() == 2 && at.y() == s.g.trend[line][1].y();
        if (!near(at.y(), heightOf(s.g.weight, sum / count), 1e-3) ||
            !near(at.x(), s.center(day), isAlone ? 0.51 * s.lineHeight : 1e-6) ||
            !s.g.weight.area.adjusted(0, -1e-6, 0, 1e-6).contains(at))
            return false;
    }
    const bool isNamed = std::any_of(s.g.legend.begin(), s.g.legend.end(), [](const auto &entry) {
        return entry.kind == LegendKind::Trend;
    });
    return line + (point > 0) == s.g.trend.size() && isNamed == !s.g.trend.empty();
}

/// Beside the last mark of its line, or as near as those of the other lines leave room.
bool linesAreLabelled(const Sample &s)
{
    for (const SeriesLine &line : s.g.lines) {
        const QRectF &rect = line.label.rect;
        if (line.marks.empty() != line.label.text.isEmpty())
            return false;
        if (line.marks.empty())
            continue;
        const double y = line.marks.back().at.y();
        if (!near(rect.left(), s.g.plot.right() + 0.5 * s.lineHeight) ||
            std::abs(rect.center().y() - y) > 2.51 * s.lineHeight)
            return false;
        bool isAlone = y - s.lineHeight / 2 > s.g.laneOf(line.series).area.top();
        for (const SeriesLine &other : s.g.lines) {
            if (other.series == line.series || other.marks.empty() ||
                &s.g.laneOf(other.series) != &s.g.laneOf(line.series))
                continue;
            const double below = other.marks.back().at.y() - y;
            isAlone = isAlone && std::abs(below) > 2.01 * s.lineHeight;
            if (below > 0 && other.label.rect.top() < rect.top())
                return false;
        }
        if (isAlone && !near(rect.center().y(), y))
            return false;
    }
    return true;
}

/// As high as the calories, from zero up or down, in the middle of their days; strips for the rest.
bool columnsStandOnZero(const Sample &s)
{
    const ProgressLane &lane = s.g.balance;
    const double zero = heightOf(lane, 0);
    auto column = s.g.columns.begin();
    double missing = 0, covered = 0, sum = 0;
    for (qint16 day = 1; day <= s.series.nDays(); ++day) {
        const Day &record = s.series.at(day);
        const auto strips =
            std::count_if(s.g.notRecorded.begin(), s.g.notRecorded.end(), [&](const QRectF &strip) {
                return strip.contains(QPointF(s.center(day), zero));
            });
        if (strips != (record.hasCalories ? 0 : 1))
            return false;
        missing += record.hasCalories ? 0 : s.g.days.dayWidth;
        if (!record.hasCalories)
            continue;
        sum += record.calories;
        const double end = heightOf(lane, record.calories);
        if (column == s.g.columns.end() || column->day != day ||
            column->isSurplus != (record.calories > 0) ||
            !near(column->rect.center().x(), s.center(day)) ||
            column->rect.width() > 0.77 * s.g.days.dayWidth ||
            column->rect.width() < std::min(0.75 * s.g.days.dayWidth, 2 * s.lineHeight) ||
            !near(column->rect.top(), std::min(zero, end)) ||
            !near(column->rect.bottom(), std::max(zero, end)))
            return false;
        ++column;
    }
    for (const QRectF &strip : s.g.notRecorded)
        covered += strip.width();
    const double count = double(s.g.columns.size());
    return column == s.g.columns.end() && near(missing, covered, 1e-3) &&
           s.g.hasAverage == (count > 0) &&
           (count == 0 || near(s.g.averageY, heightOf(lane, sum / count), 1e-3));
}

/// Beyond the end of its own column and on no other one; all where they are
/// narrower than a day. The line of the average passes none.
bool valuesStandAtTheirColumns(const Sample &s)
{
    double widest = 0, told = 0;
    for (const BalanceColumn &column : s.g.columns) {
        const int calories = s.series.at(column.day).calories;
        widest = std::max(widest, 0.44 * s.lineHeight * double(QString::number(calories).size()));
        const QRectF &rect = column.value.rect;
        const bool isTold = !column.value.text.isEmpty();
        if (!isTold)
            continue;
        ++told;
        if (numberIn(column.value.text) != calories || !s.g.balance.area.contains(rect.center()) ||
            !near(rect.center().x(), s.center(column.day)) ||
            !near(calories < 0 ? rect.top() : rect.bottom(), heightOf(s.g.balance, calories)) ||
            std::any_of(s.g.columns.begin(), s.g.columns.end(), [&](const BalanceColumn &other) {
                const QRectF common = other.rect & rect;
                return common.width() > 0.01 && common.height() > 0.01;
            }))
            return false;
        for (const QLineF &line : s.g.averageLine) {
            if (line.y1() > rect.top() && line.y1() < rect.bottom() && line.x1() < rect.right() &&
                line.x2() > rect.left())
                return false;
        }
    }
    if (s.g.balance.area.height() < 6 * s.lineHeight || widest == 0)
        return told == 0;
    const bool isAllRoom = widest + 0.25 * s.lineHeight < s.g.days.dayWidth;
    return isAllRoom ? told == double(s.g.columns.size())
                     : (widest > 1.35 * s.g.days.dayWidth) == (told == 0);
}

bool datesStandAtTheirDays(const Sample &s)
{
    const auto has = [](const std::vector<double> &lines, double x) {
        return std::any_of(lines.begin(), lines.end(), [x](double line) { return near(line, x); });
    };
    size_t weeks = 0, months = 0, numbers = 0;
    for (qint16 day = 1; day <= s.series.nDays(); ++day) {
        const QDate date = s.series.date(day);
        const double left = s.center(day) - s.g.days.dayWidth / 2;
        const bool isMonday = date.dayOfWeek() == Qt::Monday;
        const bool isFirst = date.day() == 1 && day > 1;
        weeks += isMonday;
        months += isFirst;
        if ((isMonday && !has(s.g.weekLines, left)) || (isFirst && !has(s.g.monthLines, left)) ||
            s.g.days.dayAt(s.center(day)) != day)
            return false;
        // A month that ends here, or with the period, is named in the middle of its days.
        const int days = std::min<int>(date.day(), day);
        if ((day == s.series.nDays() || date.day() == date.daysInMonth()) &&
            days * s.g.days.dayWidth > 3 * s.lineHeight && !anyText(s, [&](const PlacedText &text) {
                return text.text.startsWith(QLocale::c().monthName(date.month()).left(3)) &&
                       near(text.rect.center().x(), left + (1 - days / 2.0) * s.g.days.dayWidth) &&
                       text.rect.top() > s.g.plot.bottom();
            }))
            return false;
        numbers += anyText(s, [&](const PlacedText &text) {
            return text.text == QString::number(date.day()) &&
                   near(text.rect.top(), s.g.plot.bottom() + 0.2 * s.lineHeight) &&
                   near(text.rect.center().x(), s.center(day), day < 3 ? s.lineHeight : 1e-6);
        });
    }
    return weeks == s.g.weekLines.size() && months == s.g.monthLines.size() && numbers > 1 &&
           s.g.days.dayAt(s.area.left()) == 1 && s.g.days.dayAt(s.area.right()) == s.series.nDays();
}

/// Clipped to the period, through all lanes, the letters of a row beside each other; hit where
/// they are drawn.
bool notesSpanTheirDays(const Sample &s)
{
    if (s.g.isEmpty || s.g.notes.size() != s.series.notes.size())
        return s.g.isEmpty && s.g.notes.empty() && s.g.noteAt(s.g.plot.center()) == std::nullopt;
    const double left = s.g.plot.left();
    for (size_t i = 0; i < s.g.notes.size(); ++i) {
        const NoteSpan &note = s.g.notes[i];
        const qint64 from = std::max<qint64>(1, firstDay.daysTo(s.series.notes[i].DateFrom) + 1);
        const qint64 to =
            std::min<qint64>(s.series.nDays(), firstDay.daysTo(s.series.notes[i].DateTo) + 1);
        const double begin = left + double(from - 1) * s.g.days.dayWidth;
        const double end = left + double(std::max(from, to)) * s.g.days.dayWidth;
        if (note.firstDay != from || note.lastDay != std::max(from, to) ||
            note.letter != QChar(u'A' + ushort(i % 26)) || !near(note.reach.left(), begin) ||
            !near(note.reach.right(), end) || note.reach.top() > s.g.lanesTop ||
            !near(note.reach.bottom(), s.g.plot.bottom()) ||
            note.bar.top() < s.g.plot.top() - 1e-6 || note.bar.bottom() > s.g.lanesTop + 1e-6 ||
            note.bar.left() < left - 1e-6 || note.bar.right() > s.g.plot.right() + 1e-6 ||
            !(note.bar.right() > end - 1e-6 && note.bar.left() < begin + 1e-6))
            return false;
        const auto hit = s.g.noteAt(note.bar.center());
        if (!hit || *hit < i || !s.g.notes[*hit].bar.contains(note.bar.center()) ||
            s.g.noteAt({note.bar.center().x(), s.g.lanesTop + 1}))
            return false;
        for (size_t j = 0; j < i && note.hasRoom; ++j) {
            const NoteSpan &other = s.g.notes[j];
            if (other.hasRoom && near(other.bar.top(), note.bar.top()) &&
                note.bar.center().x() - other.bar.center().x() < 0.3 * s.lineHeight)
                return false;
        }
    }
    return s.g.notes.empty() || s.g.notes[0].hasRoom;
}

/// What is missing is said where it would be.
bool emptyLanesSayWhy(const Sample &s)
{
    const auto said = [&](const QRectF &rect) {
        return anyText(s, [&](const PlacedText &text) {
            return rect.contains(text.rect) && text.tone == Tone::Muted && text.text.size() > 20;
        });
    };
    if (s.series.isEmpty())
        return s.g.isEmpty && said(s.g.plot) && s.g.columns.empty() && s.g.legend.empty();
    const bool hasBody = s.series.hasBody();
    return !s.g.isEmpty && said(s.g.weight.area) != hasBody && said(s.g.girths.area) != hasBody &&
           said(s.g.balance.area) != s.series.hasCalories();
}

/// Of the same period, in an area that is wider by a third. The line of figures may grow larger
/// there, which takes height from the scales.
bool widerShowsNoLess(const Sample &s)
{
    QRectF wide = s.area;
    wide.setWidth(1.34 * wide.width());
    const ProgressGeometry g = geometryOf(s.series, wide, s.lineHeight);
    const auto lettered = [](const ProgressGeometry &geometry) {
        return std::count_if(geometry.notes.begin(), geometry.notes.end(),
                             [](const NoteSpan &note) { return note.hasRoom; });
    };
    const auto unscaled = [](const ProgressGeometry &geometry) {
        return std::count_if(geometry.texts.begin(), geometry.texts.end(),
                             [&](const PlacedText &text) {
                                 return text.rect.right() > geometry.plot.left() &&
                                        text.rect.top() > geometry.plot.top();
                             });
    };
    return unscaled(g) >= unscaled(s.g) && g.legend.size() >= s.g.legend.size() &&
           lettered(g) >= lettered(s.g);
}

constexpr std::array properties = {
    Property<Sample>{"texts fit", textsFit},
    Property<Sample>{"lanes keep their height", lanesKeepTheirHeight},
    Property<Sample>{"scales are labelled",
                     [](const Sample &s) { return s.g.isEmpty || scalesAreLabelled(s); }},
    Property<Sample>{"lines follow the values", linesFollowTheValues},
    Property<Sample>{"trend follows the averages", trendFollowsTheAverages},
    Property<Sample>{"targets stand at their heights", targetsStandAtTheirHeights},
    Property<Sample>{"lines are labelled", linesAreLabelled},
    Property<Sample>{"columns stand on zero",
                     [](const Sample &s) { return s.g.isEmpty || columnsStandOnZero(s); }},
    Property<Sample>{"values stand at their columns", valuesStandAtTheirColumns},
    Property<Sample>{"dates stand at their days", datesStandAtTheirDays},
    Property<Sample>{"notes span their days", notesSpanTheirDays},
    Property<Sample>{"empty lanes say why", emptyLanesSayWhy},
    Property<Sample>{"wider shows no less", widerShowsNoLess},
};

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
    void holdsOfEveryPeriod() { QVERIFY(hold(properties, 1000)); }
    void areasOfNoSize()
    {
        for (const QRectF &area : {QRectF(), QRectF(5, 5, 1, 1), QRectF(0, 0, 5000, 2),
                                   QRectF(0, 0, 2, 5000), QRectF(0, 0, 100, 60)}) {
            for (quint32 seed = 1; seed <= 30; ++seed) {
                const ProgressGeometry g = geometryOf(anySeries(seed), area);
                QVERIFY(g.days.dayWidth > 0);
                for (const PlacedText &text : g.texts)
                    QVERIFY(std::isfinite(text.rect.top()) && std::isfinite(text.rect.width()));
                for (const BalanceColumn &column : g.columns)
                    QVERIFY(std::isfinite(column.rect.height()));
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
    void lastValueIsMeasured()
    {
        DaySeries series = seriesOf(4);
        for (const int day : {1, 2, 4})
            measure(series, day, 80);
        series.at(4).breast = 0; // left out, but filled in on the day before
        series.Approximate();
        QVERIFY(series.at(3).isKnown(Series::Breast));
        const SeriesLine breast = geometryOf(series).lines[1];
        QCOMPARE(breast.label.text, QStringLiteral("Breast 100"));
        QVERIFY(near(breast.label.rect.center().y(), breast.marks[1].at.y()));
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
        const ProgressGeometry crowded = geometryOf(seriesWithNotes(184, 40), {0, 0, 545, 420});
        for (const NoteSpan &note : crowded.notes)
            QVERIFY(note.hasRoom);
    }
};

QTEST_GUILESS_MAIN(tst_progressgeometry)
#include "tst_progressgeometry.moc"
