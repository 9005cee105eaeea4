// The totals of a day's list.
#pragma once

#include "data/numbers.h"

#include <QString>

#include <optional>
#include <vector>

/// Adds up columns of whole figures, row by row, as the list shows them: a total is the sum of
/// the rounded figures and never the rounded sum of what is behind them. A total beyond 32 bits is
/// unknown from then on, so that one absurd row does not keep the list from being shown.
class DayTotals
{
public:
    explicit DayTotals(size_t columns)
        : m_totals(columns, 0)
    {
    }

    void addRow(const std::vector<double> &figures);

    int count() const { return m_count; }
    /// A single row needs no totals.
    bool areShown() const { return m_count > 1; }
    const std::vector<std::optional<qint32>> &totals() const { return m_totals; }

private:
    std::vector<std::optional<qint32>> m_totals;
    int m_count = 0;
};
