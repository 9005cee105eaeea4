// The page of the progress window that shows the weeks as a table.
#pragma once

#include "progress/figurestable.h"
#include "progress/progressweeks.h"

/// A row for each week, and below them what the period comes to.
class WeeksTable : public FiguresTable
{
    Q_OBJECT

public:
    /// The texts must outlive the table.
    explicit WeeksTable(const progress::ProgressTexts &texts, QWidget *parent = nullptr);

    /// Of what was eaten there must be a day for each of the series.
    void showWeeks(const progress::DaySeries &series,
                   const std::vector<progress::Consumed> &consumed);

private:
    const progress::ProgressTexts &m_texts;
};
