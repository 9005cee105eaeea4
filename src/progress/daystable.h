// The page of the progress window that shows the days as a table.
#pragma once

#include "progress/figurestable.h"

/// A row for each day, with values filled in told apart from those measured.
class DaysTable : public FiguresTable
{
    Q_OBJECT

public:
    /// The series and the texts must outlive the table.
    DaysTable(const progress::DaySeries &series, const progress::ProgressTexts &texts,
              QWidget *parent = nullptr);

    /// To be called when the series holds another period.
    void refill();

private:
    QString explanationWords() const;

    const progress::DaySeries &m_series;
    const progress::ProgressTexts &m_texts;
};
