#include "chart/graphaccessible.h"

#include "chart/TrellumGraph.h"

#include <QMenu>

#include <utility>

namespace daychart {

namespace {

/// One thing that can be chosen. It stands for an index and asks its chart about all else.
class TargetAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    TargetAccessible(GraphAccessible *chart, int index)
        : m_chart(chart)
        , m_index(index)
    {
    }

    bool isValid() const override { return m_chart->isValid() && m_chart->hasTarget(m_index); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_chart->window(); }
    QAccessibleInterface *parent() const override { return m_chart; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QRect rect() const override { return isValid() ? m_chart->childRect(m_index) : QRect(); }
    QAccessible::Role role() const override { return QAccessible::Button; }
    void setText(QAccessible::Text, const QString &) override {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid() ? m_chart->childName(m_index) : QString();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.focusable = true;
        state.selectable = true;
        state.selected = m_chart->isSelected(m_index);
        state.focused = m_chart->isCurrent(m_index) && m_chart->state().focused;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }
    void doAction(const QString &name) override
    {
        if (!isValid())
            return;
        if (name == pressAction())
            m_chart->choose(m_index);
        else if (name == setFocusAction())
            m_chart->moveTo(m_index);
    }

private:
    GraphAccessible *m_chart;
    int m_index;
};

GraphAccessible *accessibleOf(TrellumGraph *graph)
{
    return dynamic_cast<GraphAccessible *>(QAccessible::queryAccessibleInterface(graph));
}

} // namespace

GraphAccessible::GraphAccessible(TrellumGraph *graph)
    : QAccessibleWidget(graph, QAccessible::Chart)
{
}

GraphAccessible::~GraphAccessible()
{
    forgetChildren();
}

TrellumGraph *GraphAccessible::graph() const
{
    return static_cast<TrellumGraph *>(object());
}

const std::vector<Target> &GraphAccessible::targets() const
{
    return graph()->m_targets;
}

/// Popups are no children of widgets on the accessibility bus, and it would stand nowhere there.
QMenu *GraphAccessible::openMenu() const
{
    for (auto *menu : graph()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly)) {
        if (menu->isVisible())
            return menu;
    }
    return nullptr;
}

int GraphAccessible::childCount() const
{
    return int(targets().size()) + (openMenu() ? 1 : 0);
}

QAccessibleInterface *GraphAccessible::child(int index) const
{
    if (!hasTarget(index))
        return index == int(targets().size()) ? QAccessible::queryAccessibleInterface(openMenu())
                                              : nullptr;
    if (m_children.size() <= size_t(index))
        m_children.resize(size_t(index) + 1, 0);
    QAccessible::Id &id = m_children[size_t(index)];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new TargetAccessible(const_cast<GraphAccessible *>(this), index));
    return QAccessible::accessibleInterface(id);
}

int GraphAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    for (size_t i = 0; i < m_children.size(); ++i) {
        if (m_children[i] != 0 && QAccessible::accessibleInterface(m_children[i]) == child)
            return int(i);
    }
    QMenu *menu = openMenu();
    return menu && child && child->object() == menu ? int(targets().size()) : -1;
}

int GraphAccessible::indexOf(const Target &target) const
{
    const std::vector<Target> &all = targets();
    const auto found = std::find(all.begin(), all.end(), target);
    return found == all.end() ? -1 : int(found - all.begin());
}

QAccessibleInterface *GraphAccessible::childAt(int x, int y) const
{
    const QPoint point = graph()->mapFromGlobal(QPoint(x, y));
    return child(indexOf(targetAt(graph()->geometry(), point)));
}

QAccessibleInterface *GraphAccessible::focusChild() const
{
    return graph()->hasFocus() ? child(indexOf(graph()->m_cursor.target)) : nullptr;
}

QString GraphAccessible::childName(int index) const
{
    return graph()->nameOf(targets()[size_t(index)]);
}

QRect GraphAccessible::childRect(int index) const
{
    const QRect rect = boundsOf(graph()->geometry(), targets()[size_t(index)]).toAlignedRect();
    return {graph()->mapToGlobal(rect.topLeft()), rect.size()};
}

bool GraphAccessible::isCurrent(int index) const
{
    return targets()[size_t(index)] == graph()->m_cursor.target;
}

bool GraphAccessible::isSelected(int index) const
{
    const std::vector<Target> &selected = graph()->m_selected;
    return isCurrent(index) ||
           std::find(selected.begin(), selected.end(), targets()[size_t(index)]) != selected.end();
}

void GraphAccessible::choose(int index)
{
    moveTo(index);
    graph()->choose(graph()->m_cursor.target, graph()->m_cursor.minute);
}

void GraphAccessible::moveTo(int index)
{
    graph()->setFocus(Qt::OtherFocusReason);
    graph()->moveCursor(
        placedOn(graph()->m_shown, targets()[size_t(index)], graph()->m_cursor.minute));
}

void GraphAccessible::forgetChildren()
{
    for (const QAccessible::Id id : std::exchange(m_children, {})) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface *graphAccessibleFactory(const QString &, QObject *object)
{
    auto *graph = qobject_cast<TrellumGraph *>(object);
    return graph ? new GraphAccessible(graph) : nullptr;
}

void announceTarget(TrellumGraph *graph, const Target &target)
{
    if (!QAccessible::isActive())
        return;
    GraphAccessible *chart = accessibleOf(graph);
    const int index = chart ? chart->indexOf(target) : -1;
    if (index < 0)
        return;
    // A free place stays the same child while its time, and with it its name, changes.
    for (const QAccessible::Event what :
         {QAccessible::NameChanged, QAccessible::Selection, QAccessible::Focus}) {
        QAccessibleEvent event(graph, what);
        event.setChild(index);
        QAccessible::updateAccessibility(&event);
    }
}

void forgetAccessibleChildren(TrellumGraph *graph)
{
    if (!QAccessible::isActive())
        return;
    if (GraphAccessible *chart = accessibleOf(graph)) {
        chart->forgetChildren();
        QAccessibleEvent event(graph, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace daychart
