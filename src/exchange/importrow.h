// The values of a line that is imported.
#pragma once

#include "exchange/importfile.h"

#include <stdexcept>

/// A line can't be imported; what() is a sentence for the user.
class ImportRowFault : public std::runtime_error
{
public:
    explicit ImportRowFault(const QString &why)
        : std::runtime_error(why.toStdString())
    {
    }
};

/// Reads the fields of one line after the other, by their headers in an export. What is no value of
/// its kind, and a required one that is empty, throws ImportRowFault.
class ImportRow
{
public:
    ImportRow(const ImportFile &file, const ImportPlace &place);

    void take(const CsvRecord &record) { m_record = &record; }
    int line() const { return m_record->line; }

    /// Whether the file has a column for it.
    bool has(const char *field) const { return m_file.match(field).column >= 0; }
    bool isEmpty(const char *field) const { return text(field).trimmed().isEmpty(); }
    /// As it stands, or what stands for an empty cell.
    QString text(const char *field) const;
    /// Of a name or a unit, not blank.
    QString shortText(const char *field) const;
    /// Not blank, of any length.
    QString longText(const char *field) const;
    /// In the stored unit; Null where it is empty and need not be given.
    Value number(const char *field, bool isMetric = true) const;
    /// The same from another unit than that of the column, empty for the stored one.
    Value number(const char *field, const QString &unit, bool isMetric) const;
    QDate date(const char *field) const;
    /// A fraction of a day.
    Value time(const char *field) const;

private:
    struct Cell
    {
        QString text;
        const ImportField &field;
        const FieldMatch &match;
        bool isTyped; ///< by the user, for the empty one
    };

    Cell cell(const char *field) const;
    double plainNumber(const Cell &cell) const;

    const ImportFile &m_file;
    const ImportPlace &m_place;
    const CsvRecord *m_record = nullptr;
};
