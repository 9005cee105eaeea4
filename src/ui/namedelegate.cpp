#include "ui/namedelegate.h"

#include "ui/tooltips.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

const QStyle &styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

/// A width is told in whole dots, and what is wider by a fraction would be cut.
int widthOf(const QString &text, const QFontMetrics &metrics)
{
    return metrics.horizontalAdvance(text) + 1;
}

/// Where the texts of a row stand, and how wide they are unless they are cut.
struct Line
{
    Line(const QStyleOptionViewItem &option, const QString &detail)
        : gap(2 * option.fontMetrics.averageCharWidth())
        , nameWidth(widthOf(option.text, option.fontMetrics))
        , detailWidth(widthOf(detail, option.fontMetrics))
    {
        const QStyle &style = styleOf(option);
        area = style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
        const int margin =
            style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
        area.adjust(margin, 0, -margin, 0);
    }

    bool isCut() const { return nameWidth + gap + detailWidth > area.width(); }
    /// A long detail gets what the name leaves, or else a quarter: the name tells more.
    int detailShare() const
    {
        return qMin(detailWidth, qMax(area.width() - gap - nameWidth, area.width() / 4));
    }
    int nameShare() const { return area.width() - gap - detailShare(); }

    QRect area;
    int gap;
    int nameWidth;
    int detailWidth;
};

/// Paler than the name on whatever ground the style gives the row, and as legible as the palette's
/// own text: the colour of placeholders is too faint for that in some.
QColor detailColor(const QStyleOptionViewItem &option)
{
    const auto group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    if (option.state.testFlag(QStyle::State_Selected))
        return option.palette.color(group, QPalette::HighlightedText);
    QColor color = option.palette.color(group, QPalette::Text);
    color.setAlphaF(0.62F);
    return color;
}

} // namespace

QSize NameDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
}

void NameDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const QString detail = index.data(DetailRole).toString();
    if (detail.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const Line line(row, detail);
    row.text = row.fontMetrics.elidedText(row.text, Qt::ElideRight, line.nameShare());
    styleOf(row).drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    QRect end = line.area;
    end.setLeft(end.right() + 1 - line.detailShare());
    painter->save();
    painter->setFont(row.font);
    painter->setPen(detailColor(row));
    painter->drawText(QStyle::visualRect(row.direction, line.area, end),
                      int(QStyle::visualAlignment(row.direction, Qt::AlignRight)) |
                          Qt::AlignVCenter | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(detail, Qt::ElideRight, line.detailShare()));
    painter->restore();
}

bool NameDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                             const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString detail = index.data(DetailRole).toString();
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const bool isCut = detail.isEmpty() ? QStyledItemDelegate::sizeHint(option, index).width() >
                                              option.rect.width()
                                        : Line(row, detail).isCut();
    if (event->type() != QEvent::ToolTip || !isCut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString whole = detail.isEmpty() ? row.text : row.text + u'\n' + detail;
    QToolTip::showText(event->globalPos(), toolTipOf(whole), view);
    return true;
}
