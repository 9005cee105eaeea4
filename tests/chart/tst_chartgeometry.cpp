// The balance of a day, and what holds of its chart whatever the day, the size and the font are.
#include "chart/charttexts.h"
#include "chart/daylayout.h"
#include "chart/hittest.h"
#include "properties.h"
#include "samples.h"

#include <QTest>

#include <numeric>

using namespace daychart;
using namespace Qt::Literals;
using Kind = Target::Kind;

namespace {

/// In text of which every character is half as wide as it is high, more in larger roles.
DayGeometry geometryOf(const DayData &day, const QRectF &area = {0, 0, 600, 400},
                       double lineHeight = 16, bool clock24 = true)
{
    const auto width = [lineHeight](const QString &text, TextRole role) {
        return lineHeight * (role == TextRole::Figure ? 0.69 : 0.5) * double(text.size());
    };
    return dayGeometry(day, area, {lineHeight, 1.4 * lineHeight, width},
                       ChartTexts(QLocale::c(), clock24));
}

/// A day in an area of at least the control's least size, between 600 x 400 and 4K; of every other
/// sample it is the current one.
struct Sample
{
    explicit Sample(quint32 seed)
        : day(samples::anyDay(seed))
    {
        QRandomGenerator random(seed);
        area = anyArea(random);
        lineHeight = anyLineHeight(random, area, 37, 25);
        if (seed % 2 == 0)
            day.now = random.bounded(1440);
        clock24 = seed % 4 > 0;
        g = geometryOf(day, area, lineHeight, clock24);
    }

    DayData day;
    QRectF area;
    double lineHeight;
    bool clock24;
    DayGeometry g;
};

/// What stands behind a name in the line of figures; empty where it is not there.
QString figureNamed(const QString &name, const DayData &day, const QRectF &area)
{
    const DayGeometry g = geometryOf(day, area);
    const auto found = std::find_if(g.texts.begin(), g.texts.end(),
                                    [&](const PlacedText &text) { return text.text == name; });
    return found == g.texts.end() ? QString() : std::next(found)->text;
}

std::vector<QRectF> textRects(const DayGeometry &g)
{
    std::vector<QRectF> rects = {g.balanceEnd.rect};
    if (g.now && g.now->label)
        rects.push_back(g.now->label->rect);
    for (const auto &texts : {g.texts, g.hints}) {
        for (const PlacedText &text : texts)
            rects.push_back(text.rect);
    }
    for (const auto &labels : {g.mealLabels, g.activityLabels}) {
        for (const ItemLabel &label : labels)
            rects.push_back(label.text.rect);
    }
    return rects;
}

bool textsFit(const Sample &s)
{
    std::vector<QRectF> rects = textRects(s.g);
    for (const Swatch &swatch : s.g.swatches)
        rects.push_back(swatch.rect);
    return fit(rects, s.area);
}

bool textsKeepOffTheBalance(const Sample &s)
{
    const auto covers = [&](const QRectF &rect) {
        return std::any_of(s.g.balance.begin(), s.g.balance.end(), [&](const QPointF &point) {
            return rect.adjusted(0.01, 0.01, -0.01, -0.01).contains(point);
        });
    };
    for (const auto &labels : {s.g.mealLabels, s.g.activityLabels}) {
        for (const ItemLabel &label : labels) {
            if (covers(label.text.rect))
                return false;
        }
    }
    return std::none_of(s.g.hints.begin(), s.g.hints.end(),
                        [&](const PlacedText &hint) { return covers(hint.rect); });
}

/// Two lanes of about the same height, one below the other, as wide as the time is long.
bool lanesShareTheArea(const Sample &s)
{
    const QRectF &meals = s.g.meals.area;
    const QRectF &activities = s.g.activities.area;
    return meals.bottom() == activities.top() && meals.bottom() == s.g.balanceZeroY &&
           near(meals.height(), activities.height(), 1) &&
           meals.height() + activities.height() > s.area.height() - 7 * s.lineHeight &&
           meals.left() == s.g.time.left && near(meals.width(), s.g.time.width) &&
           meals.width() > 0.45 * s.area.width() && meals.right() < s.area.right() &&
           meals.left() == activities.left() && meals.right() == activities.right() &&
           s.g.timeAxis.top() == activities.bottom() && s.g.timeAxis.width() == meals.width();
}

bool everyItemIsDrawn(const Sample &s)
{
    std::vector<QRectF> columns, segments;
    for (const MealColumn &column : s.g.columns) {
        columns.push_back(column.rect);
        if (column.rect.height() < 0.24 * s.lineHeight || column.rect.width() < 3)
            return false;
    }
    for (const ActivityBlock &block : s.g.blocks) {
        segments.insert(segments.end(), block.segments.begin(), block.segments.end());
        if (block.bounds.width() < 3 || block.bounds.height() < 1)
            return false;
    }
    return columns.size() == s.day.meals.size() && s.g.blocks.size() == s.day.activities.size() &&
           fit(columns, s.g.meals.area) && fit(segments, s.g.activities.area);
}

/// The parts are stacked from zero, carbohydrate first, what is negative downwards.
bool columnsAreStackedToScale(const Sample &s)
{
    const double zero = s.g.meals.scale.zeroY;
    for (size_t i = 0; i < s.g.columns.size(); ++i) {
        const MealColumn &column = s.g.columns[i];
        const Nutrients<int> &calories = s.day.meals[i].byNutrient;
        double up = 0, down = 0, top = zero, bottom = zero;
        for (const int value : calories)
            (value > 0 ? up : down) += std::abs(value);
        const double length = column.rect.height();
        if (up + down == 0) {
            if (column.rect.bottom() != zero || !near(length, 0.25 * s.lineHeight))
                return false;
            continue;
        }
        const double perCalorie = length / (up + down);
        const bool isStub = std::max(up, down) * s.g.meals.scale.perValue < 0.25 * s.lineHeight;
        if (!column.cut && !isStub && !near(perCalorie, s.g.meals.scale.perValue))
            return false;
        if (column.cut && perCalorie > s.g.meals.scale.perValue)
            return false;
        for (const Nutrient n : {Nutrient::Carbohydrate, Nutrient::Fat, Nutrient::Protein}) {
            const QRectF &part = column.parts[n];
            double &edge = calories[n] > 0 ? top : bottom;
            if (!near(part.height(), std::abs(calories[n]) * perCalorie, 1e-6 * length))
                return false;
            if (calories[n] == 0)
                continue;
            if (!near(calories[n] > 0 ? part.bottom() : part.top(), edge) ||
                part.left() != column.rect.left() || !near(part.width(), column.rect.width()))
                return false;
            edge = calories[n] > 0 ? part.top() : part.bottom();
        }
        if (!near(column.rect.top(), top) || !near(column.rect.bottom(), bottom))
            return false;
    }
    return true;
}

/// In order of time, those of one moment in theirs. Columns that touch stand around their times,
/// and so does one alone, where the midnights leave room; if need be, all are narrow.
bool columnsStandAtTheirTimes(const Sample &s)
{
    std::vector<size_t> order(s.g.columns.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t a, size_t b) { return s.day.meals[a].time < s.day.meals[b].time; });
    const QRectF &lane = s.g.meals.area;
    double moved = 0; // of the columns that touch
    double edge = 0;  // of the one before
    bool isFree = false;
    for (const size_t i : order) {
        const MealColumn &column = s.g.columns[i];
        const QRectF &rect = column.rect;
        const int minute = QTime(0, 0).secsTo(s.day.meals[i].time) / 60;
        const double x = s.g.time.left + s.g.time.width * minute / 1440;
        const double away = rect.center().x() - x;
        const double gap = std::min(0.15 * s.lineHeight, 0.25 * rect.width());
        const bool isNew = edge == 0 || rect.left() - edge > gap + 1e-6;
        if (!near(column.timeX, x) || !near(rect.width(), s.g.columns[0].rect.width()) ||
            (std::abs(away) > 0.81 * s.lineHeight && rect.width() > 0.36 * s.lineHeight) ||
            rect.left() < edge + gap - 1e-6 || (isNew && isFree && !near(moved, 0, 1e-4)))
            return false;
        moved = isNew ? away : moved + away;
        isFree = (isNew ? rect.left() > lane.left() + 1e-6 : isFree) &&
                 rect.right() < lane.right() - 1e-6;
        edge = rect.right();
    }
    return !isFree || near(moved, 0, 1e-4);
}

/// As long as they last, as high as what is burnt in a minute, on each other and on the background.
bool blocksAreStackedToScale(const Sample &s)
{
    const ValueScale &scale = s.g.activities.scale;
    const double base = scale.y(s.day.backgroundRate);
    if (!near(s.g.band.top(), std::min(base, scale.zeroY)) ||
        !near(s.g.band.bottom(), scale.zeroY) || s.g.band.left() != s.g.time.left ||
        !near(s.g.band.width(), s.g.time.width))
        return false;
    const double shortest = 0.36 * s.lineHeight / 0.7;
    for (size_t i = 0; i < s.g.blocks.size(); ++i) {
        const ActivityBlock &block = s.g.blocks[i];
        const ActivityItem &activity = s.day.activities[i];
        const double minutes = activity.endMinute() - activity.beginMinute();
        const double rate = std::abs(activity.calories) / minutes;
        const double left = s.g.time.x(activity.beginMinute());
        const double right = s.g.time.x(activity.endMinute());
        if (right - left > shortest &&
            (!near(block.bounds.left(), left) || !near(block.bounds.right(), right)))
            return false;
        if (block.bounds.left() > left + shortest || block.bounds.right() < right - shortest)
            return false;
        if (block.negative != (activity.calories < 0))
            return false;
        double x = block.bounds.left();
        for (const QRectF &segment : block.segments) {
            const double height = segment.height();
            if (!near(segment.left(), x) || !near(height, block.segments[0].height(), 1e-4))
                return false;
            if (!block.cut && height > 0.26 * s.lineHeight &&
                !near(height, rate * scale.perValue, 1e-4))
                return false;
            if (block.cut && height > rate * scale.perValue)
                return false;
            x = segment.right();
            // It stands on what comes before it, or on the background.
            const double at = segment.left() + 0.37 * segment.width();
            double floor = base;
            for (size_t j = 0; j < i; ++j) {
                for (const QRectF &below : s.g.blocks[j].segments) {
                    if (s.g.blocks[j].negative == block.negative && below.left() < at &&
                        at < below.right())
                        floor = block.negative ? below.bottom() : below.top();
                }
            }
            if (!near(block.negative ? segment.top() : segment.bottom(), floor, 1e-4))
                return false;
        }
    }
    return true;
}

bool balanceRunsThroughTheDay(const Sample &s)
{
    const auto curve = balanceCurve(s.day);
    if (curve.front().minute != 0 || curve.back().minute != 1440 ||
        !near(curve.back().calories, double(dayFigures(s.day).balance()), 0.5) ||
        curve.size() != s.g.balance.size())
        return false;
    double extent = 0;
    for (size_t i = 0; i < curve.size(); ++i) {
        const double height = s.g.balanceZeroY - s.g.balance[i].y();
        extent = std::max(extent, std::abs(height));
        if (!near(s.g.balance[i].x(), s.g.time.x(curve[i].minute)) ||
            height * curve[i].calories < 0 || !s.area.contains(s.g.balance[i]))
            return false;
        // Two points of one scale around zero.
        if (i > 0 && !near(height * curve[i - 1].calories,
                           (s.g.balanceZeroY - s.g.balance[i - 1].y()) * curve[i].calories,
                           1e-6 * (1 + std::abs(curve[i].calories))))
            return false;
    }
    // The line is as high as it can be, and its end is told beside it.
    const QRectF &end = s.g.balanceEnd.rect;
    return (s.g.balance.size() == 2 && s.day.backgroundRate == 0) ||
           (extent > 0.4 * s.g.meals.area.height() && end.left() > s.g.meals.area.right() &&
            std::abs(end.center().y() - s.g.balance.back().y()) <= 0.6 * s.lineHeight);
}

/// A labelled value, its line and its height say the same.
bool scalesAreLabelled(const Sample &s)
{
    const auto isLabelled = [&](double y, double edge, const ValueScale *scale) {
        return std::any_of(s.g.texts.begin(), s.g.texts.end(), [&](const PlacedText &text) {
            const double side = scale ? text.rect.right() : text.rect.left();
            if (!near(side, edge) || !near(text.rect.center().y(), y))
                return false;
            return !scale || near(scale->y(QLocale::c().toDouble(text.text)), y, 0.6);
        });
    };
    const double left = s.g.time.left - labelGap * s.lineHeight;
    const double right = s.g.time.left + s.g.time.width + labelGap * s.lineHeight;
    for (const LaneGeometry *lane : {&s.g.meals, &s.g.activities}) {
        if (lane->gridLines.size() < 2)
            return false;
        for (const double y : lane->gridLines) {
            if (!isLabelled(y, left, &lane->scale) || y < lane->area.top() - 1 ||
                y > lane->area.bottom() + 1)
                return false;
        }
    }
    return std::all_of(s.g.balanceMarks.begin(), s.g.balanceMarks.end(), [&](double y) {
        return isLabelled(y, right, nullptr) ||
               near(y, s.g.balanceEnd.rect.center().y(), 1.2 * s.lineHeight);
    });
}

bool hoursAreLabelled(const Sample &s)
{
    if (s.g.hourLines.size() < 2 || (!s.g.hourMarks.empty() && s.g.hourMarks.size() != 25))
        return false;
    const int hours = qRound(24 * (s.g.hourLines[1] - s.g.hourLines[0]) / s.g.time.width);
    const auto x = [&](double hour) { return s.g.time.left + s.g.time.width * hour / 24; };
    for (size_t i = 0; i < s.g.hourLines.size(); ++i) {
        const bool isNamed =
            std::any_of(s.g.texts.begin(), s.g.texts.end(), [&](const PlacedText &text) {
                return near(text.rect.center().x(), s.g.hourLines[i]) &&
                       text.rect.top() > s.g.timeAxis.top();
            });
        if (!isNamed || !near(s.g.hourLines[i], x(double(i) * hours), 0.51))
            return false;
    }
    for (size_t i = 0; i < s.g.hourMarks.size(); ++i) {
        if (!near(s.g.hourMarks[i], x(double(i)), 0.51))
            return false;
    }
    return int(s.g.hourLines.size()) == 24 / hours + 1;
}

/// What lies under any point, found without the chart's own search.
bool whatIsSeenIsHit(const Sample &s)
{
    QRandomGenerator random(7);
    const auto distance = [](const QRectF &rect, const QPointF &p) {
        return std::max(
            {rect.left() - p.x(), p.x() - rect.right(), rect.top() - p.y(), p.y() - rect.bottom()});
    };
    const auto holds = [&](const QPointF &point) {
        const Target target = targetAt(s.g, point);
        for (const Lane which : {Lane::Meals, Lane::Activities}) {
            const LaneGeometry &lane = s.g.lane(which);
            if (lane.header.contains(point) || lane.figure.contains(point))
                return target == Target{Kind::Caption, which};
            if (!lane.area.contains(point))
                continue;
            if (target.lane != which)
                return point.y() == lane.area.bottom();
            std::vector<std::pair<double, int>> found;
            for (size_t i = 0; i < s.g.columns.size() && which == Lane::Meals; ++i)
                found.push_back({distance(s.g.columns[i].rect, point), int(i)});
            for (size_t i = 0; i < s.g.blocks.size() && which == Lane::Activities; ++i) {
                for (const QRectF &segment : s.g.blocks[i].segments)
                    found.push_back({distance(segment, point), int(i)});
            }
            const auto nearest = std::min_element(found.begin(), found.end());
            if (nearest != found.end() && nearest->first < 0)
                return target == Target{Kind::Item, which, nearest->second};
            for (const ItemLabel &label :
                 which == Lane::Meals ? s.g.mealLabels : s.g.activityLabels) {
                if (label.text.rect.contains(point))
                    return target.kind == Kind::Item && target.item == label.item;
            }
            const double away = nearest == found.end() ? 1e9 : nearest->first;
            if (std::abs(away - 0.15 * s.lineHeight) < 1e-3 || away < 0.15 * s.lineHeight)
                return target.kind == Kind::Item || away > 0.149 * s.lineHeight;
            return target.kind == Kind::FreePlace;
        }
        return target.kind == Kind::None;
    };
    for (int i = 0; i < 100; ++i) {
        if (!holds(s.area.topLeft() +
                   QPointF(random.bounded(s.area.width()), random.bounded(s.area.height()))))
            return false;
    }
    for (const MealColumn &column : s.g.columns) {
        const QRectF &r = column.rect;
        for (const QPointF &p : {r.center(), QPointF(r.left() - 0.1 * s.lineHeight, r.center().y()),
                                 QPointF(r.center().x(), r.top() - 0.3 * s.lineHeight)}) {
            if (!holds(p))
                return false;
        }
    }
    for (int minute = 0; minute < 1440; minute += 7) {
        const int grid = s.g.time.width < 1152 ? 5 : 1;
        const int hit = minuteAt(s.g, s.g.time.x(minute));
        if (std::abs(hit - minute) > grid / 2 || (hit % grid != 0 && hit != 1439))
            return false;
    }
    return minuteAt(s.g, s.area.left()) == 0 && minuteAt(s.g, s.area.right()) == 1439;
}

/// The larger figures are written; the smaller where they find room.
bool itemsAreLabelled(const Sample &s)
{
    const ChartTexts texts(QLocale::c(), true);
    for (const ItemLabel &label : s.g.mealLabels) {
        const QRectF &column = s.g.columns[size_t(label.item)].rect;
        const QRectF &rect = label.text.rect;
        if (label.text.text != texts.number(s.day.meals[size_t(label.item)].calories()) ||
            rect.right() < column.left() - 0.01 || rect.left() > column.right() + 0.01 ||
            std::min(std::abs(rect.bottom() - column.top()),
                     std::abs(rect.top() - column.bottom())) > 1.11 * s.lineHeight)
            return false;
    }
    for (const ItemLabel &label : s.g.activityLabels) {
        const QRectF &bounds = s.g.blocks[size_t(label.item)].bounds;
        if (label.text.text != texts.number(s.day.activities[size_t(label.item)].calories) ||
            !bounds
                 .adjusted(-3 * s.lineHeight, -1.7 * s.lineHeight, 3 * s.lineHeight,
                           0.5 * s.lineHeight)
                 .contains(label.text.rect.center()))
            return false;
    }
    return s.g.hints.size() <= size_t(s.day.meals.empty()) + size_t(s.day.activities.empty()) &&
           (s.day.meals.empty() || !s.g.mealLabels.empty()) &&
           (s.day.activities.empty() || !s.g.activityLabels.empty() || s.day.activities.size() > 2);
}

/// Beside a lane, one below the other, each part's name and figure in the line of its sample.
bool legendsNameTheParts(const Sample &s)
{
    const ChartTexts texts(QLocale::c(), true);
    const DayFigures figures = dayFigures(s.day);
    size_t values = 0;
    for (const Swatch &swatch : s.g.swatches) {
        if (swatch.part == Part::Balance)
            continue;
        const bool isBurn = swatch.part == Part::Activity || swatch.part == Part::Background;
        const LaneGeometry &lane = isBurn ? s.g.activities : s.g.meals;
        const qint64 calories = swatch.part == Part::Activity ? figures.activities
                                : swatch.part == Part::Background
                                    ? figures.background
                                    : figures.byNutrient[nutrientOf(swatch.part)];
        size_t names = 0;
        for (const PlacedText &text : s.g.texts) {
            if (!near(text.rect.center().y(), swatch.rect.center().y()) ||
                text.rect.right() > lane.header.right())
                continue;
            names += text.text == texts.part(swatch.part);
            values += text.text == texts.number(calories);
        }
        if (names != 1 || !lane.header.contains(swatch.rect) || lane.header.right() > s.g.time.left)
            return false;
    }
    return s.g.swatches.size() == 6 && (values == 5 || values == 0);
}

/// Of the same day, in an area that is wider by a third. Figures keep off the balance and the
/// items, which a wider area moves against them: of a crowded day one or two may find no place
/// there.
bool widerShowsNoLess(const Sample &s)
{
    QRectF wide = s.area;
    wide.setWidth(1.34 * wide.width());
    const DayGeometry g = geometryOf(s.day, wide, s.lineHeight);
    return g.texts.size() + 1 >= s.g.texts.size() && g.hints.size() >= s.g.hints.size() &&
           g.hourLines.size() >= s.g.hourLines.size() && g.swatches.size() == s.g.swatches.size() &&
           g.mealLabels.size() + 2 >= s.g.mealLabels.size() &&
           g.activityLabels.size() + 1 >= s.g.activityLabels.size();
}

/// From the top to the bottom of both lanes, but for the texts that it would run through.
bool nowIsMarked(const Sample &s)
{
    if (!s.day.now || !s.g.now)
        return !s.day.now && !s.g.now;
    const NowMark &now = *s.g.now;
    if (!near(now.x, s.g.time.x(*s.day.now)))
        return false;
    const std::vector<QRectF> texts = textRects(s.g);
    const auto isIn = [](double y, double from, double to) { return from < y && y < to; };
    const double top = s.g.meals.area.top();
    const double height = s.g.activities.area.bottom() - top;
    const int places = int(4 * height / s.lineHeight);
    for (int i = 0; i < places; ++i) {
        const double y = top + height * (i + 0.43) / places;
        const auto pieces =
            std::count_if(now.pieces.begin(), now.pieces.end(), [&](const QLineF &piece) {
                return piece.x1() == now.x && piece.x2() == now.x &&
                       isIn(y, piece.y1() - 1e-6, piece.y2() + 1e-6);
            });
        const bool isText = std::any_of(texts.begin(), texts.end(), [&](const QRectF &text) {
            return isIn(now.x, text.left(), text.right()) && isIn(y, text.top(), text.bottom());
        });
        if (pieces != (isText ? 0 : 1))
            return false;
    }
    return true;
}

/// Beside the mark, on nothing of the day; certainly where the upper lane is empty.
bool nowLabelIsClear(const Sample &s)
{
    if (!s.g.now)
        return true;
    if (!s.g.now->label)
        return !s.day.meals.empty();
    const QRectF &rect = s.g.now->label->rect;
    std::vector<QRectF> rects;
    for (const MealColumn &column : s.g.columns)
        rects.push_back(column.rect);
    for (const ActivityBlock &block : s.g.blocks)
        rects.insert(rects.end(), block.segments.begin(), block.segments.end());
    for (size_t i = 1; i < s.g.balance.size(); ++i) {
        const QPointF from = s.g.balance[i - 1];
        for (int step = 0; step <= 20; ++step)
            rects.push_back({from + (s.g.balance[i] - from) * (step / 20.0), QSizeF(1e-6, 1e-6)});
    }
    const double away = std::max(rect.left() - s.g.now->x, s.g.now->x - rect.right());
    return s.g.now->label->text == ChartTexts(QLocale::c(), s.clock24).time(timeOf(*s.day.now)) &&
           away > 0 && away < s.lineHeight &&
           std::none_of(rects.begin(), rects.end(),
                        [&](const QRectF &other) { return other.intersects(rect); });
}

/// The balance is split where the mark meets it, a meal of this minute counted.
bool balanceIsSplitAtNow(const Sample &s)
{
    if (!s.g.now)
        return true;
    const std::vector<BalancePoint> curve = balanceCurve(s.day);
    const auto highest =
        std::max_element(curve.begin(), curve.end(), [](const auto &a, const auto &b) {
            return std::abs(a.calories) < std::abs(b.calories);
        });
    const double height = s.g.balanceZeroY - s.g.balance[size_t(highest - curve.begin())].y();
    return s.g.now->balance.x() == s.g.now->x &&
           near((s.g.balanceZeroY - s.g.now->balance.y()) * highest->calories,
                height * balanceAt(curve, *s.day.now), 1e-6 * (1 + std::abs(highest->calories)));
}

/// From one minute to the next nothing jumps: all else stands where it does on any other day.
bool nowMovesNothing(const Sample &s)
{
    if (!s.g.now)
        return true;
    DayData past = s.day;
    past.now.reset();
    const DayGeometry g = geometryOf(past, s.area, s.lineHeight, s.clock24);
    const auto same = [](const std::vector<ItemLabel> &a, const std::vector<ItemLabel> &b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](const ItemLabel &l, const ItemLabel &r) {
                              return l.item == r.item && l.text.rect == r.text.rect;
                          });
    };
    return same(g.mealLabels, s.g.mealLabels) && same(g.activityLabels, s.g.activityLabels) &&
           g.balance == s.g.balance && g.hints.size() == s.g.hints.size() &&
           g.meals.area == s.g.meals.area && g.meals.header == s.g.meals.header &&
           g.balanceEnd.rect == s.g.balanceEnd.rect;
}

constexpr std::array properties = {
    Property<Sample>{"texts fit", textsFit},
    Property<Sample>{"texts keep off the balance", textsKeepOffTheBalance},
    Property<Sample>{"lanes share the area", lanesShareTheArea},
    Property<Sample>{"every item is drawn", everyItemIsDrawn},
    Property<Sample>{"columns are stacked to scale", columnsAreStackedToScale},
    Property<Sample>{"columns stand at their times", columnsStandAtTheirTimes},
    Property<Sample>{"blocks are stacked to scale", blocksAreStackedToScale},
    Property<Sample>{"balance runs through the day", balanceRunsThroughTheDay},
    Property<Sample>{"scales are labelled", scalesAreLabelled},
    Property<Sample>{"hours are labelled", hoursAreLabelled},
    Property<Sample>{"what is seen is hit", whatIsSeenIsHit},
    Property<Sample>{"items are labelled", itemsAreLabelled},
    Property<Sample>{"legends name the parts", legendsNameTheParts},
    Property<Sample>{"wider shows no less", widerShowsNoLess},
    Property<Sample>{"now is marked", nowIsMarked},
    Property<Sample>{"now's label is clear", nowLabelIsClear},
    Property<Sample>{"the balance is split at now", balanceIsSplitAtNow},
    Property<Sample>{"now moves nothing", nowMovesNothing},
};

} // namespace

class tst_chartgeometry : public QObject
{
    Q_OBJECT

private slots:
    void balanceThroughTheDay()
    {
        const auto curve = balanceCurve(samples::typicalDay());
        // 1.25 a minute all day; 430 at 7:30, 4 a minute more from 8:00 to 8:30, 1530 later on.
        QCOMPARE(balanceAt(curve, 450), 430 - 562.5);
        QCOMPARE(balanceAt(curve, 495), 430 - 618.75 - 60);
        QCOMPARE(balanceAt(curve, 1440), 1960.0 - 1800 - 600);
        DayData rounded = samples::typicalDay();
        rounded.backgroundRate = 1.2345; // 1777.68 a day
        QCOMPARE(dayFigures(rounded).balance(), 1960 - 600 - 1778);
    }
    void impossibleItems()
    {
        const int most = std::numeric_limits<int>::max();
        const ActivityItem atOnce = {1, QTime(10, 0), QTime(10, 0), most};
        const ActivityItem backwards = {1, QTime(23, 59, 30), QTime(1, 0), most};
        QCOMPARE(backwards.beginMinute(), 1439.0);
        QCOMPARE(backwards.endMinute(), 1440.0);
        const DayData day = {0, {{1, QTime(12, 0), {most, most, most}}}, {atOnce, backwards}};
        QCOMPARE(dayFigures(day).balance(), qint64(most));
    }
    void holdsOfEveryDay() { QVERIFY(hold(properties, 2000)); }
    void areasOfNoSize()
    {
        for (const QRectF &area : {QRectF(), QRectF(5, 5, 1, 1), QRectF(0, 0, 5000, 2),
                                   QRectF(0, 0, 2, 5000), QRectF(0, 0, 100, 60)}) {
            for (quint32 seed = 1; seed <= 50; ++seed) {
                DayData day = samples::anyDay(seed);
                day.now = int(seed) * 28;
                const DayGeometry g = geometryOf(day, area);
                QCOMPARE(g.columns.size(), day.meals.size());
                for (const QRectF &rect : textRects(g))
                    QVERIFY(std::isfinite(rect.width()) && std::isfinite(rect.top()));
                for (const MealColumn &column : g.columns)
                    QVERIFY(column.rect.width() > 0 && std::isfinite(column.rect.top()));
                for (const QPointF &point : g.balance)
                    QVERIFY(std::isfinite(point.x()) && std::isfinite(point.y()));
                QVERIFY(minuteAt(g, area.center().x()) <= 1439);
            }
        }
    }
    void headerTellsWhatIsLeft()
    {
        DayData day = samples::typicalDay(); // 1960 eaten, 2400 burnt
        day.now = 12 * 60;
        QCOMPARE(figureNamed(u"Left"_s, day, {0, 0, 900, 600}), QString());
        day.budget = Budget{false, 2200};
        QCOMPARE(figureNamed(u"Left"_s, day, {0, 0, 900, 600}), u"240"_s);
        QCOMPARE(figureNamed(u"Left"_s, day, {0, 0, 600, 400}), u"240"_s); // before the balance now
        day.budget = Budget{true, 500};
        QCOMPARE(figureNamed(u"Over budget"_s, day, {0, 0, 900, 600}), u"60"_s);
        day.budget = Budget{true, 440};
        QCOMPARE(figureNamed(u"Left"_s, day, {0, 0, 900, 600}), u"0"_s);
    }
    void headerTellsTheBalanceSoFar()
    {
        DayData day = samples::typicalDay();
        const auto soFar = [&day](const QRectF &area) {
            return figureNamed(u"so far"_s, day, area);
        };
        const QRectF wide(0, 0, 900, 600);
        QCOMPARE(soFar(wide), QString()); // of another day nothing
        // 1.25 a minute and 120 for an activity; 430 eaten, and 780 more in this minute.
        day.now = 12 * 60 + 44;
        QCOMPARE(soFar(wide), u"-645"_s);
        day.now = 12 * 60 + 45;
        QCOMPARE(soFar(wide), u"+134"_s);
        QCOMPARE(soFar({0, 0, 500, 400}), QString()); // no room
    }
    void outlierLeavesOthersVisible()
    {
        DayData day = samples::typicalDay();
        day.meals.push_back({14, QTime(20, 0), {10000, 15000, 5000}});
        day.activities.push_back({23, QTime(21, 0), QTime(21, 1), 30000});
        const DayGeometry g = geometryOf(day);
        QVERIFY(g.columns[3].cut && g.blocks[2].cut && !g.columns[1].cut && !g.blocks[1].cut);
        QVERIFY(g.columns[1].rect.height() > g.meals.area.height() / 3);
        QVERIFY(g.blocks[1].bounds.height() > g.activities.area.height() / 3);
        QVERIFY(std::any_of(g.mealLabels.begin(), g.mealLabels.end(), [](const ItemLabel &label) {
            return label.item == 3 && label.text.text == QStringLiteral("30000");
        }));
    }
};

QTEST_APPLESS_MAIN(tst_chartgeometry)
#include "tst_chartgeometry.moc"
