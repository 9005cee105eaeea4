// The records of a text of separated values.
#pragma once

#include <QStringList>

#include <vector>

/// An empty cell is a null text, and one that is empty between quotation marks an empty one.
struct CsvRecord
{
    int line = 0; ///< on which it begins, counted from 1
    QStringList cells = {};
    QString fault = {}; ///< a sentence, where the line can't be read; it has no cells then
};

/// Reads RFC 4180 with any separator and any line ends, quoted line breaks among them. Empty lines
/// are no records. A line that breaks the rules of quotation is a record with a fault, and the next
/// one is read as if it were not there.
std::vector<CsvRecord> readCsv(const QString &text, char separator);

struct CsvText
{
    char separator;
    std::vector<CsvRecord> records;
};

/// Of the library that reads the records.
QString libcsvVersion();

/// The same with the one of comma, semicolon, tab and bar by which most of the first records have
/// as many cells as the very first. A first line "sep=;" says it, too, and is no record.
CsvText readCsv(const QString &text);
