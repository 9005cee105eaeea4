// Writes the delivered database.
#pragma once

#include "sample.h"

namespace delivered {

/// Everything that the delivered database is made from.
struct Sources
{
    QByteArray schema; ///< SQL that makes the tables
    CommonRow common;
    Catalogue catalogue;
    SampleJournal sample;
};

/// Reads the folder with schema.sql, common.tsv and the folders "catalogue" and "sample"; throws
/// SourceError.
Sources loadSources(const QString &folder);

/// Makes the database file from these sources. Rows get their keys in the order of the sources, so
/// that the same sources give the same rows; those of the sample journal are -1, -2 and so on. The
/// file appears under its name, in the place of an older one, only when it is whole. Throws
/// StoreError, and std::runtime_error where the file can't be put in its place.
void writeDatabase(const QString &path, const Sources &sources);

} // namespace delivered
