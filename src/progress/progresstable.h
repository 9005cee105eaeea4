// General progress as a table, for those who want the figures rather than the picture.
#pragma once

#include "progress/progresstexts.h"

#include <QStringList>

namespace progress {

/// What is not known is empty.
struct TableText
{
    QStringList header;
    std::vector<QStringList> rows;
    std::vector<QStringList> foot = {}; ///< what the rows come to
    QStringList remarks = {};           ///< for each row, what its last cell says in short

    /// Lines of cells with tabs between, as spreadsheets paste them.
    QString toTabSeparated() const;
};

/// The header of the days.
QStringList dayHeader(const ProgressTexts &texts);
/// A row for each day. Numbers have the locale's decimals and no group separators, so that they can
/// be computed with.
TableText tableOf(const DaySeries &series, const ProgressTexts &texts);

} // namespace progress
