// The page of the progress window that shows the days as a table.
#pragma once

#include "progress/progresstable.h"

#include <QWidget>

class QTreeView;

/// A row for each day, with values filled in told apart from those measured.
class DaysTable : public QWidget
{
    Q_OBJECT

public:
    /// The series must outlive the table.
    DaysTable(const progress::DaySeries &series, const progress::DaysText &table,
              QWidget *parent = nullptr);

    QTreeView *list() const { return lvwDays; }

private:
    QTreeView *lvwDays;
};
