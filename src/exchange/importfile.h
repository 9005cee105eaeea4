// A file that is to be imported: what it is recognized as, and how its columns are read.
#pragma once

#include "exchange/csvreader.h"
#include "exchange/importcells.h"
#include "exchange/importfields.h"

/// Where the values of a field come from.
struct FieldMatch
{
    int column = -1;   ///< of the file; -1: none has them
    QString whenEmpty; ///< stands for an empty cell, as the user types it
    QString unit = {}; ///< in which they are; empty for a field without
    bool hasDecimalComma = false;
    DateOrder dateOrder = DateOrder::YearFirst;
};

struct ImportFile
{
    QString path;
    QString encoding;
    char separator = ',';
    QStringList headers;
    std::vector<CsvRecord> records; ///< without the headers and empty ones
    /// Written by an export of this program: numbers and texts are taken exactly as they stand.
    bool isExport = false;
    bool isForSpreadsheets = false; ///< one with apostrophes before what looks like a formula

    std::optional<ImportKind> kind;  ///< none: it is not imported
    std::vector<FieldMatch> matches; ///< of each of the kind's fields

    QString name() const;
    const ImportTable &table() const { return importTable(*kind); }
    const FieldMatch &match(const char *header) const { return matches[table().fieldOf(header)]; }
    /// The headers that no field takes.
    QStringList leftOut() const;
};

/// Reads a file and recognizes what is in it. Throws ImportError.
ImportFile readImportFile(const QString &path, const ImportPlace &place);

/// The paths of the files of a folder that may be tables of text, by name.
QStringList tableFilesIn(const QString &folder);

/// What the file holds is this: matches its columns anew.
void takeAs(ImportFile &file, std::optional<ImportKind> kind, const ImportPlace &place);

/// The values of a field come from this column: recognizes its unit, decimals and dates.
void matchColumn(ImportFile &file, size_t field, int column, const ImportPlace &place);
