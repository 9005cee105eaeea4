// The daily chart as a screen reader meets it: a chart whose children can be chosen one by one.
#pragma once

#include "chart/navigation.h"

#include <QAccessible>
#include <QAccessibleWidget>

class QMenu;
class TrellumGraph;

namespace daychart {

/// The children are, lane by lane, its caption, its items by time and its free place, each a button
/// named in words, and at last the menu that is open over the chart.
class GraphAccessible : public QAccessibleWidget
{
public:
    explicit GraphAccessible(TrellumGraph *graph);
    ~GraphAccessible() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

    /// What a child asks about itself.
    QString childName(int index) const;
    QRect childRect(int index) const; ///< on the screen
    bool isCurrent(int index) const;
    bool isSelected(int index) const; ///< the current one, too
    void choose(int index);
    void moveTo(int index);

    int indexOf(const Target &target) const;
    bool hasTarget(int index) const { return index >= 0 && index < int(targets().size()); }
    void forgetChildren();

private:
    TrellumGraph *graph() const;
    QMenu *openMenu() const;
    const std::vector<Target> &targets() const;

    mutable std::vector<QAccessible::Id> m_children;
};

/// For QAccessible::installFactory.
QAccessibleInterface *graphAccessibleFactory(const QString &className, QObject *object);

/// Tells an assistive technology, if there is one, where the keyboard stands.
void announceTarget(TrellumGraph *graph, const Target &target);

/// Tells it that the items are others now.
void forgetAccessibleChildren(TrellumGraph *graph);

} // namespace daychart
