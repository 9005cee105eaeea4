#include "journal/daytotals.h"

void DayTotals::addRow(const std::vector<double> &figures)
{
    ++m_count;
    for (size_t i = 0; i < m_totals.size(); ++i) {
        if (!m_totals[i])
            continue;
        try {
            m_totals[i] = roundToInt32(*m_totals[i] + figures.at(i));
        } catch (const OverflowError &) {
            m_totals[i].reset();
        }
    }
}
