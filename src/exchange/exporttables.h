// The files of an export that hold a table each: their columns and where these come from.
#pragma once

#include "exchange/csvformat.h"

#include <vector>

struct ExportColumn
{
    /// With its unit where it has one. Programs find columns by it: it is the same in every
    /// language and dialect.
    const char *header;
    CellKind kind = CellKind::Stored;
};

struct ExportTable
{
    const char *file; ///< its name without the ending
    const char *from; ///< for the number of its rows, too
    const char *values;
    /// Of the rows of a period from ?1 to ?2; null where the whole table belongs to any.
    const char *condition;
    const char *order; ///< by an index: rows are never gathered to be sorted
    std::vector<ExportColumn> columns;
};

/// In the order in which they are written. Records whose meal or activity is missing are in them,
/// too, with empty names.
const std::vector<ExportTable> &exportTables();
