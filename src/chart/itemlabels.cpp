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
    LabelRoom(const QRectF &area, const TextMetrics &metrics)
        : m_area(area)
        , m_metrics(metrics)
    {
    }

    void addObstacle(int item, const QRectF &rect) { m_obstacles.push_back({item, rect}); }

    QSizeF sizeOf(const QString &text) const
    {
        return {m_metrics.width(text, TextRole::Plain) + 0.2 * m_metrics.lineHeight,
                m_metrics.lineHeight};
    }

    /// Centred on x, with its lower edge at bottom; moved sideways into the lane if need be.
    std::optional<QRectF> tryAbove(int item, const QString &text, double x, double bottom)
    {
        const QSizeF size = sizeOf(text);
        const double leftmost = m_area.left();
        const double left = std::clamp(x - size.width() / 2, leftmost,
                                       std::max(leftmost, m_area.right() - size.width()));
        return taken(item, QRectF(QPointF(left, bottom - size.height()), size));
    }

    std::optional<QRectF> taken(int item, const QRectF &rect)
    {
        const double slack = 0.5; // rounding must not push a label out of its lane
        if (!m_area.adjusted(-slack, -slack, slack, slack).contains(rect))
            return std::nullopt;
        for (const auto &[owner, obstacle] : m_obstacles) {
            if (owner != item && obstacle.intersects(rect))
                return std::nullopt;
        }
        m_obstacles.push_back({-1, rect});
        return rect;
    }

private:
    QRectF m_area;
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
                                  const LaneGeometry &lane, const TextMetrics &metrics,
                                  const ChartTexts &texts)
{
    LabelRoom room(lane.area, metrics);
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
        // Between higher neighbours a label finds room only on the side of the lower one.
        const double half = room.sizeOf(text).width() / 2;
        const double middle = column.center().x();
        for (const double x :
             {middle, column.right() - half, column.left() + half, middle - half, middle + half}) {
            if (const auto rect = room.tryAbove(item, text, x, bottom)) {
                labels.push_back({item, {*rect, text}});
                break;
            }
        }
    }
    return labels;
}

std::vector<ItemLabel> activityLabels(const DayData &day, const std::vector<ActivityBlock> &blocks,
                                      const LaneGeometry &lane, const TextMetrics &metrics,
                                      const ChartTexts &texts)
{
    LabelRoom room(lane.area, metrics);
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
            if (const auto rect = room.taken(item, inside))
                labels.push_back(
                    {item, {*rect, text, Qt::AlignCenter, TextRole::Plain, Tone::OnFill}});
            continue;
        }
        const QRectF &top = highest(block.segments);
        if (const auto rect =
                room.tryAbove(item, text, top.center().x(), top.top() - 0.1 * metrics.lineHeight))
            labels.push_back({item, {*rect, text}});
    }
    return labels;
}

} // namespace daychart
