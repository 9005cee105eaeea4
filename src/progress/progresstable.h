// General progress as a table, for those who want the figures rather than the picture.
#pragma once

#include "progress/progresstexts.h"

#include <QStringList>

namespace progress {

struct DaysText
{
    QStringList header;
    std::vector<QStringList> rows; ///< a row for each day; what is not known is empty

    /// Lines of cells with tabs between, as spreadsheets paste them.
    QString toTabSeparated() const;
};

/// Numbers have the locale's decimals and no group separators, so that they can be computed with.
DaysText tableOf(const DaySeries &series, const ProgressTexts &texts);

} // namespace progress
