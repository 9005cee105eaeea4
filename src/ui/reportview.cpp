#include "ui/reportview.h"

#include "ui/reportstyle.h"
#include "ui/tooltips.h"

#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

ReportView::ReportView(ListModel &rows, QWidget *parent)
    : QTreeView(parent)
    , m_rows(rows)
{
    setReportStyle(*this);
    setModel(&rows);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    arrangeColumns();
}

QSize ReportView::sizeHint() const
{
    constexpr int rows = 18;
    const int width = header()->length() + verticalScrollBar()->sizeHint().width();
    const int height = header()->sizeHint().height() + rows * fontMetrics().height() * 5 / 4;
    return QSize(width, height) + QSize(2, 2) * frameWidth();
}

void ReportView::arrangeColumns()
{
    const int last = m_rows.columnCount() - 1;
    header()->setSectionsMovable(false);
    // Stretched, a last number would stand far from the others of its row.
    header()->setStretchLastSection(!m_rows.column(last).isNumber);
    for (int column = 0; column <= last; ++column) {
        if (m_rows.column(column).isLongText)
            header()->setSectionResizeMode(column, QHeaderView::Stretch);
    }
}

// Of all rows and not only those in sight, so that nothing is cut off when it is scrolled to; but
// measuring thousands would take longer than reading them, and the widest is among the longest.
int ReportView::contentsWidth(int column) const
{
    int width = header()->sectionSizeHint(column);
    for (const int row : m_rows.longestRows(column, 60))
        width = qMax(width, sizeHintForIndex(m_rows.index(row, column)).width());
    return width;
}

void ReportView::sizeColumns()
{
    const int widest = fontMetrics().averageCharWidth() * ListModel::longText;
    for (int column = 0; column < m_rows.columnCount(); ++column) {
        if (m_rows.column(column).isLongText)
            continue;
        const int before = m_isSized ? columnWidth(column) : 0;
        setColumnWidth(column, qMax(before, qMin(contentsWidth(column), widest)));
    }
    m_isSized = true;
    keepNumbersInSight();
}

// Where the columns are wider than the list, its names and units give way, the widest first.
void ReportView::keepNumbersInSight()
{
    constexpr int fewestCharacters = 12; // of a text, in the narrowest window
    int excess = isVisible() ? header()->length() - viewport()->width() : 0;
    std::vector<int> texts; // widths of their columns, 0 for the others
    for (int column = 0; column < m_rows.columnCount(); ++column)
        texts.push_back(isText(column) ? columnWidth(column) : 0);
    const int step = fontMetrics().averageCharWidth();
    for (; excess > 0; excess -= step) {
        const auto widest = std::max_element(texts.begin(), texts.end());
        if (*widest <= fewestCharacters * step)
            break;
        *widest -= step;
        setColumnWidth(static_cast<int>(widest - texts.begin()), *widest);
    }
}

bool ReportView::isText(int column) const
{
    return !m_rows.column(column).isNumber &&
           header()->sectionResizeMode(column) == QHeaderView::Interactive;
}

void ReportView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    keepNumbersInSight();
}

void ReportView::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    keepNumbersInSight();
}

bool ReportView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    if (!index.isValid() || index.data(Qt::ToolTipRole).isValid() ||
        sizeHintForIndex(index).width() <= columnWidth(index.column()))
        return QTreeView::viewportEvent(event);
    QToolTip::showText(help->globalPos(), toolTipOf(index.data().toString()), viewport(),
                       visualRect(index));
    return true;
}

void ReportView::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    // The first row is current now though not selected, and Down would pass it by.
    if (!selectionModel()->hasSelection())
        selectionModel()->clearCurrentIndex();
    // Behind what Qt says of the list itself, whose row it does not tell.
    QMetaObject::invokeMethod(this, &ReportView::announceRow, Qt::QueuedConnection);
}

// Another one than before, where the list comes back from the editor of its records.
void ReportView::announceRow()
{
    if (!hasFocus() || !currentIndex().isValid() || !QAccessible::isActive())
        return;
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(this);
    const QAccessibleTableInterface *table = list ? list->tableInterface() : nullptr;
    QAccessibleInterface *cell = table ? table->cellAt(currentIndex().row(), 0) : nullptr;
    if (!cell)
        return;
    QAccessibleEvent event(cell, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

// Whichever column the pointer has made current.
void ReportView::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex box = currentIndex().siblingAtColumn(0);
    if (event->key() != Qt::Key_Space || !box.data(Qt::CheckStateRole).isValid()) {
        QTreeView::keyPressEvent(event);
        return;
    }
    const bool isChecked = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model()->setData(box, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}
