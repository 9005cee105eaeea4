#include "chart/itemlabels.h"

#include "chart/charttexts.h"

#include <cmath>
#include <numeric>
#include <optional>

namespace daychart {

namespace {

/// Gives room to one label after the other.
class LabelRoom
{
public:
    LabelRoom(const QRectF &area, const std::vector<QPointF> &balance, const TextMetrics &metrics)
        : m_area(area)
        , m_balance(balance)
        , m_metrics(metrics)
    {
    }

    void addObstacle(int item, const QRectF &rect) { m_obstacles.push_back({item, rect}); }

    QSizeF sizeOf(const QString &text) const
    {
        return {m_metrics.width(text, TextRole::Plain) + 0.2 * m_metrics.lineHeight,
                m_metrics.lineHeight};
    }

    /// With its lower edge at bottom, above a column, or below it for a direction of 1. Centred, or
    /// else to one side: between higher neighbours there is room only on that of the lower one.
    /// Where the balance takes the room, up to a line further away or beside the column's end.
    std::optional<QRectF> nextTo(int item, const QString &text, const QRectF &column, double bottom,
                                 double direction)
    {
        const double half = sizeOf(text).width() / 2;
        const double middle = column.center().x();
        const double line = direction * m_metrics.lineHeight;
        bool isBalanceThere = false;
        const auto at = [&](double x, double y) -> std::optional<QRectF> {
            const QRectF rect = above(text, x, y);
            const bool isFree = hasRoom(item, rect);
            isBalanceThere |= isFree && coversBalance(rect);
            return isFree ? take(item, rect) : std::nullopt;
        };
        for (const double x :
             {middle, column.right() - half, column.left() + half, middle - half, middle + half}) {
            if (const auto rect = at(x, bottom))
                return rect;
        }
        if (!isBalanceThere)
            return std::nullopt;
        for (const QPointF &place :
             {QPointF(middle, bottom + 0.5 * line), QPointF(middle, bottom + line),
              QPointF(column.right() + half, bottom - line),
              QPointF(column.left() - half, bottom - line)}) {
            if (const auto rect = at(place.x(), place.y()))
                return rect;
        }
        return std::nullopt;
    }

    /// The rectangle itself, unless there is no room or it covers the balance.
    std::optional<QRectF> take(int item, const QRectF &rect)
    {
        if (!hasRoom(item, rect) || coversBalance(rect))
            return std::nullopt;
        m_obstacles.push_back({-1, rect});
        return rect;
    }

private:
    /// Centred on x, with its lower edge at bottom; moved sideways into the lane if need be.
    QRectF above(const QString &text, double x, double bottom) const
    {
        const QSizeF size = sizeOf(text);
        const double leftmost = m_area.left();
        const double left = std::clamp(x - size.width() / 2, leftmost,
                                       std::max(leftmost, m_area.right() - size.width()));
        return {QPointF(left, bottom - size.height()), size};
    }

    bool hasRoom(int item, const QRectF &rect) const
    {
        const double slack = 0.5; // rounding must not push a label out of its lane
        return m_area.adjusted(-slack, -slack, slack, slack).contains(rect) &&
               std::none_of(m_obstacles.begin(), m_obstacles.end(), [&](const auto &obstacle) {
                   return obstacle.first != item && obstacle.second.intersects(rect);
               });
    }

    bool coversBalance(const QRectF &rect) const
    {
        return std::any_of(m_balance.begin(), m_balance.end(),
                           [&rect](const QPointF &corner) { return rect.contains(corner); });
    }

    QRectF m_area;
    const std::vector<QPointF> &m_balance;
    const TextMetrics &m_metrics;
    std::vector<std::pair<int, QRectF>> m_obstacles;
};

std::vector<int> largestFirst(const std::vector<qint64> &calories)
{
    std::vector<int> order(calories.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&calories](int a, int b) {
        return std::abs(calories[size_t(a)]) > std::abs(calories[size_t(b)]);
    });
    return order;
}

const QRectF &widest(const std::vector<QRectF> &segments)
{
    return *std::max_element(
        segments.begin(), segments.end(),
        [](const QRectF &a, const QRectF &b) { return a.width() < b.width(); });
}

const QRectF &highest(const std::vector<QRectF> &segments)
{
    return *std::min_element(segments.begin(), segments.end(),
                             [](const QRectF &a, const QRectF &b) { return a.top() < b.top(); });
}

} // namespace

std::vector<ItemLabel> mealLabels(const DayData &day, const std::vector<MealColumn> &columns,
                                  const LaneGeometry &lane, const std::vector<QPointF> &balance,
                                  const TextMetrics &metrics, const ChartTexts &texts)
{
    LabelRoom room(lane.area, balance, metrics);
    std::vector<qint64> calories;
    for (size_t i = 0; i < columns.size(); ++i) {
        room.addObstacle(int(i), columns[i].rect);
        calories.push_back(day.meals[i].calories());
    }
    std::vector<ItemLabel> labels;
    const double gap = 0.1 * metrics.lineHeight;
    for (const int item : largestFirst(calories)) {
        const QRectF &column = columns[size_t(item)].rect;
        const QString text = texts.number(calories[size_t(item)]);
        const bool hangs = column.top() > lane.scale.zeroY - gap;
        const double bottom =
            hangs ? column.bottom() + metrics.lineHeight + gap : column.top() - gap;
        if (const auto rect = room.nextTo(item, text, column, bottom, hangs ? 1 : -1))
            labels.push_back({item, {*rect, text}});
    }
    return labels;
}

std::vector<ItemLabel> activityLabels(const DayData &day, const std::vector<ActivityBlock> &blocks,
                                      const LaneGeometry &lane, const std::vector<QPointF> &balance,
                                      const TextMetrics &metrics, const ChartTexts &texts)
{
    LabelRoom room(lane.area, balance, metrics);
    std::vector<qint64> calories;
    for (size_t i = 0; i < blocks.size(); ++i) {
        for (const QRectF &segment : blocks[i].segments)
            room.addObstacle(int(i), segment);
        calories.push_back(day.activities[i].calories);
    }
    std::vector<ItemLabel> labels;
    for (const int item : largestFirst(calories)) {
        const ActivityBlock &block = blocks[size_t(item)];
        const QString text = texts.number(calories[size_t(item)]);
        QRectF inside(QPointF(), room.sizeOf(text));
        inside.moveCenter(widest(block.segments).center());
        if (!block.cut && widest(block.segments).contains(inside)) {
            if (const auto rect = room.take(item, inside))
                labels.push_back(
                    {item, {*rect, text, Qt::AlignCenter, TextRole::Plain, Tone::OnFill}});
            continue;
        }
        const QRectF &top = highest(block.segments);
        if (const auto rect =
                room.nextTo(item, text, top, top.top() - 0.1 * metrics.lineHeight, -1))
            labels.push_back({item, {*rect, text}});
    }
    return labels;
}

} // namespace daychart
