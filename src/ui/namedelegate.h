// How a list of names is painted.
#pragma once

#include <QStyledItemDelegate>

/// Names as wide as their list: a longer one ends in an ellipsis and has the whole of it in its
/// tooltip. The detail of a row, if it has one, stands in grey at the other end of its line.
class NameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// What a row says beside its name, heard from a screen reader as what is seen.
    static constexpr int DetailRole = Qt::AccessibleDescriptionRole;

    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
