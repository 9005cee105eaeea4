#include "chart/TrellumGraph.h"

#include "chart/daylayout.h"
#include "chart/emphasis.h"
#include "chart/graphaccessible.h"
#include "chart/secondclickguard.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>
#include <utility>

using namespace daychart;

TrellumGraph::TrellumGraph(QWidget *parent)
    : ChartWidget(parent)
    , m_targets(allTargets(m_shown))
    , m_colors(DayColors(palette()))
{
    [[maybe_unused]] static const bool installed =
        (QAccessible::installFactory(graphAccessibleFactory), true);
    setObjectName(QStringLiteral("graph"));
    setAccessibleName(tr("Daily calorie chart"));
    relayout();
}

void TrellumGraph::clear()
{
    m_held = {.backgroundRate = m_held.backgroundRate, .now = m_held.now, .budget = m_held.budget};
    forgetSelection();
}

void TrellumGraph::setBackgroundRate(double caloriesPerMinute)
{
    m_held.backgroundRate = std::isfinite(caloriesPerMinute) ? caloriesPerMinute : 0;
}

void TrellumGraph::setBudget(std::optional<daychart::Budget> budget)
{
    m_held.budget = budget;
}

void TrellumGraph::set24HourClock(bool on)
{
    m_clock24 = on;
}

void TrellumGraph::addMeal(int id, QTime time, const Nutrients<int> &calories,
                           const ItemWords &words)
{
    m_held.add(MealItem{id, time, calories, words});
}

void TrellumGraph::addActivity(int id, QTime begin, QTime end, int calories, const ItemWords &words)
{
    m_held.add(ActivityItem{id, begin, end, calories, words});
}

void TrellumGraph::setNow(QTime now)
{
    std::optional<int> minute;
    if (now.isValid())
        minute = int(minuteOf(now));
    if (minute == m_held.now)
        return;
    // Not as repaintChart does it: a screen reader need not meet the same items anew each minute.
    m_held.now = m_shown.now = minute;
    relayout();
}

void TrellumGraph::repaintChart()
{
    const int id = idOf(m_shown, m_cursor.target);
    m_shown = m_held;
    m_targets = allTargets(m_shown);
    m_cursor.target = sameItem(m_cursor.target, id);
    m_pointed = {};
    m_pressed = {};
    relayout();
    forgetAccessibleChildren(this);
    if (underMouse())
        point(mapFromGlobal(QCursor::pos()));
}

void TrellumGraph::select(const std::vector<int> &mealIds, const std::vector<int> &activityIds)
{
    m_selected.clear();
    for (const Target &target : m_targets) {
        const std::vector<int> &ids = target.lane == Lane::Meals ? mealIds : activityIds;
        if (target.kind == Target::Kind::Item &&
            std::find(ids.begin(), ids.end(), idOf(m_shown, target)) != ids.end())
            m_selected.push_back(target);
    }
    if (!m_selected.empty())
        m_cursor = placedOn(m_shown, m_selected.front(), m_cursor.minute);
    update();
}

void TrellumGraph::forgetSelection()
{
    if (!std::exchange(m_selected, {}).empty())
        update();
}

void TrellumGraph::paintChart(QPainter &painter, const QRectF &area, const QPalette &palette) const
{
    const plot::Fonts fonts(font(), logicalDpiY(), painter.device());
    const DayGeometry geometry =
        dayGeometry(m_held, area, plot::metricsOf(fonts, painter.device()), texts());
    paintDayChart(painter, geometry, DayColors(palette), fonts, Medium::Paper);
}

QSize TrellumGraph::sizeHint() const
{
    return QSize(56, 34) * fontMetrics().height();
}

QSize TrellumGraph::minimumSizeHint() const
{
    return QSize(30, 18) * fontMetrics().height();
}

void TrellumGraph::forgetLayout()
{
    m_colors = DayColors(palette());
    m_geometry.reset();
    setAccessibleDescription(texts().daySummary(m_shown));
}

const DayGeometry &TrellumGraph::geometry()
{
    if (!m_geometry)
        m_geometry = dayGeometry(m_shown, rect(), plot::metricsOf(fonts(), this), texts());
    return *m_geometry;
}

void TrellumGraph::paintPicture(QPainter &painter)
{
    paintDayChart(painter, geometry(), m_colors, fonts(), Medium::Screen);
}

void TrellumGraph::paintEmphasis(QPainter &painter)
{
    for (const Target &target : m_selected)
        daychart::paintEmphasis(painter, geometry(), m_colors, fonts(), texts(), {target}, true);
    daychart::paintEmphasis(painter, geometry(), m_colors, fonts(), texts(), m_pointed, false);
    if (showsFocus())
        daychart::paintEmphasis(painter, geometry(), m_colors, fonts(), texts(), m_cursor, true);
}

void TrellumGraph::point(QPointF position)
{
    setPointed({targetAt(geometry(), position), minuteAt(geometry(), position.x())});
}

/// Shows by the pointer's shape and by emphasis what a click would do.
void TrellumGraph::setPointed(const Cursor &pointed)
{
    const bool place = pointed.target.kind == Target::Kind::FreePlace;
    if (pointed.target == m_pointed.target && (!place || pointed.minute == m_pointed.minute))
        return;
    m_pointed = pointed;
    if (place)
        setCursor(Qt::CrossCursor);
    else if (pointed.target.kind == Target::Kind::None)
        unsetCursor();
    else
        setCursor(Qt::PointingHandCursor);
    update();
}

void TrellumGraph::mouseMoveEvent(QMouseEvent *event)
{
    point(event->position());
}

void TrellumGraph::leaveEvent(QEvent *)
{
    setPointed({});
}

void TrellumGraph::mousePressEvent(QMouseEvent *event)
{
    forgetSelection();
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_byKeyboard = false;
    m_pressed = targetAt(geometry(), event->position());
    m_pressedAt = event->position();
    if (m_pressed.kind == Target::Kind::None)
        return;
    const bool hasTime = m_pressed.kind != Target::Kind::Caption;
    moveCursor({m_pressed, hasTime ? minuteAt(geometry(), m_pressedAt.x()) : m_cursor.minute});
}

/// The first click has chosen already.
void TrellumGraph::mouseDoubleClickEvent(QMouseEvent *)
{
    m_pressed = {};
}

void TrellumGraph::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const Target pressed = std::exchange(m_pressed, {});
    const QPointF position = event->position();
    const bool moved =
        (position - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (pressed != targetAt(geometry(), position) ||
        (pressed.kind == Target::Kind::FreePlace && moved))
        return;
    const SecondClickGuard guard(event->globalPosition());
    choose(pressed, minuteAt(geometry(), position.x()));
}

void TrellumGraph::moveCursor(const Cursor &cursor)
{
    m_cursor = cursor;
    update();
    if (hasFocus())
        announceTarget(this, m_cursor.target);
}

std::optional<Cursor> TrellumGraph::cursorAfter(const QKeyEvent &key) const
{
    const bool placing = key.modifiers() & Qt::ShiftModifier;
    const int minutes = key.modifiers() & Qt::ControlModifier ? 1 : 5;
    const Lane lane = m_cursor.target.lane;
    switch (key.key()) {
    case Qt::Key_Left:
        return placing ? shifted(m_cursor, -minutes)
                       : stepped(m_shown, m_cursor, WalkStep::Previous);
    case Qt::Key_Right:
        return placing ? shifted(m_cursor, minutes) : stepped(m_shown, m_cursor, WalkStep::Next);
    case Qt::Key_PageUp:
        return shifted(m_cursor, -60);
    case Qt::Key_PageDown:
        return shifted(m_cursor, 60);
    case Qt::Key_Home:
        return stepped(m_shown, m_cursor, WalkStep::First);
    case Qt::Key_End:
        return stepped(m_shown, m_cursor, WalkStep::Last);
    case Qt::Key_Up:
        return lane == Lane::Activities ? stepped(m_shown, m_cursor, WalkStep::OtherLane)
                                        : m_cursor;
    case Qt::Key_Down:
        return lane == Lane::Meals ? stepped(m_shown, m_cursor, WalkStep::OtherLane) : m_cursor;
    default:
        return std::nullopt;
    }
}

void TrellumGraph::keyPressEvent(QKeyEvent *event)
{
    forgetSelection();
    m_byKeyboard = true;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        choose(m_cursor.target, m_cursor.minute);
        return;
    default:
        break;
    }
    if (const std::optional<Cursor> moved = cursorAfter(*event))
        moveCursor(*moved);
    else
        QWidget::keyPressEvent(event);
}

void TrellumGraph::contextMenuEvent(QContextMenuEvent *event)
{
    Cursor wanted = m_cursor;
    QPoint at = mapToGlobal(boundsOf(geometry(), wanted.target).center().toPoint());
    if (event->reason() != QContextMenuEvent::Keyboard) {
        wanted = {targetAt(geometry(), event->pos()), minuteAt(geometry(), event->pos().x())};
        at = event->globalPos();
    }
    if (wanted.target.kind == Target::Kind::None)
        return;
    const int id = idOf(m_shown, wanted.target);
    const QTime time =
        wanted.target.kind == Target::Kind::Caption ? QTime() : timeOf(wanted.minute);
    if (wanted.target.lane == Lane::Meals)
        Q_EMIT mealMenuWanted(id, time, at);
    else
        Q_EMIT activityMenuWanted(id, time, at);
}

void TrellumGraph::focusInEvent(QFocusEvent *event)
{
    ChartWidget::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        m_byKeyboard = true;
    if (m_cursor.target.kind == Target::Kind::None)
        m_cursor = stepped(m_shown, m_cursor, WalkStep::First);
    moveCursor(m_cursor);
}

/// Raises the signal of a target. Nothing may follow: the answer may be a dialog, after which the
/// chart holds other items.
void TrellumGraph::choose(const Target &target, int minute)
{
    const QTime time = target.kind == Target::Kind::Caption ? QTime() : timeOf(minute);
    const bool meals = target.lane == Lane::Meals;
    const bool hit = target.kind == Target::Kind::Item;
    switch (target.kind) {
    case Target::Kind::Item:
    case Target::Kind::Caption:
        if (meals)
            Q_EMIT mealItemChosen(idOf(m_shown, target), hit, time);
        else
            Q_EMIT activityItemChosen(idOf(m_shown, target), hit, time);
        break;
    case Target::Kind::FreePlace:
        if (meals)
            Q_EMIT freeMealPlaceChosen(time);
        else
            Q_EMIT freeActivityPlaceChosen(time);
        break;
    case Target::Kind::None:
        break;
    }
}

int TrellumGraph::idOf(const DayData &day, const Target &target) const
{
    if (target.kind != Target::Kind::Item)
        return 0;
    return target.lane == Lane::Meals ? day.meals[size_t(target.item)].id
                                      : day.activities[size_t(target.item)].id;
}

/// The item of an id among those now shown, else the caption of its lane.
Target TrellumGraph::sameItem(const Target &before, int id) const
{
    if (before.kind != Target::Kind::Item)
        return before;
    for (const Target &target : m_targets) {
        if (target.isItem(before.lane) && idOf(m_shown, target) == id)
            return target;
    }
    return {Target::Kind::Caption, before.lane};
}

QString TrellumGraph::nameOf(const Target &target) const
{
    switch (target.kind) {
    case Target::Kind::Item:
        return target.lane == Lane::Meals
                   ? texts().mealName(m_shown.meals[size_t(target.item)])
                   : texts().activityName(m_shown.activities[size_t(target.item)]);
    case Target::Kind::Caption:
        return texts().openListName(target.lane);
    case Target::Kind::FreePlace:
        return texts().newItemName(target.lane, timeOf(m_cursor.minute));
    case Target::Kind::None:
        break;
    }
    return {};
}

QString TrellumGraph::tipOf(const Cursor &cursor) const
{
    const Target &target = cursor.target;
    switch (target.kind) {
    case Target::Kind::Item:
        return target.lane == Lane::Meals
                   ? texts().mealTip(m_shown.meals[size_t(target.item)])
                   : texts().activityTip(m_shown.activities[size_t(target.item)]);
    case Target::Kind::Caption:
        return tr("Open the list");
    case Target::Kind::FreePlace:
        return texts().placeTip(target.lane, timeOf(cursor.minute),
                                balanceAt(balanceCurve(m_shown), cursor.minute));
    case Target::Kind::None:
        break;
    }
    return {};
}

bool TrellumGraph::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const Cursor pointed = {targetAt(geometry(), help->pos()),
                            minuteAt(geometry(), help->pos().x())};
    // The tip of a free place tells of one time only and goes when the pointer moves on.
    const QRect extent = pointed.target.kind == Target::Kind::FreePlace
                             ? QRect(help->pos(), QSize(2, 2))
                             : boundsOf(geometry(), pointed.target).toAlignedRect();
    QToolTip::showText(help->globalPos(), tipOf(pointed), this, extent);
    return true;
}
