// A list in report view.
#pragma once

#include "ui/listmodel.h"

#include <QTreeView>

/// Shows the rows of a ListModel, a screenful high and, unless told otherwise, as wide as their
/// columns. Where there is less room, names and units give way to the numbers, and whatever is cut
/// off tells itself in a tooltip. Space turns the check box of the current row, where it has one.
/// A screen reader says the current row when the list gets the focus.
class ReportView : public QTreeView
{
    Q_OBJECT

public:
    ReportView(ListModel &rows, QWidget *parent);

    /// To be called whenever the rows are others. Columns only grow, so that they stand still while
    /// one day or category after the other is shown.
    void sizeColumns();

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void announceRow();
    void arrangeColumns();
    int contentsWidth(int column) const;
    void keepNumbersInSight();
    bool isText(int column) const;

    ListModel &m_rows;
    bool m_isSized = false;
};
