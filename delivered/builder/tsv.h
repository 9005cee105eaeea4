// The readable sources of the delivered database: tables of tab-separated values.
#pragma once

#include "data/currency.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTime>

#include <memory>
#include <optional>
#include <stdexcept>

namespace delivered {

/// A defect of a source file; what() reads "file:line: sentence".
class SourceError : public std::runtime_error
{
public:
    SourceError(const QString &file, int line, const QString &sentence);
};

/// One row of a table. The readers take the name of a column that the table was opened with and
/// throw SourceError at the row's line where its text is not of their form.
class TsvRow
{
public:
    /// Never empty; blanks around it are refused.
    QString text(const QString &column) const;
    /// A decimal with at most four places.
    Currency decimal(const QString &column) const;
    /// The same, or nothing where the cell is empty.
    std::optional<Currency> optionalDecimal(const QString &column) const;
    int wholeNumber(const QString &column) const;
    /// Hours and minutes, HH:MM.
    QTime time(const QString &column) const;
    /// Year, month and day, YYYY-MM-DD.
    QDate date(const QString &column) const;

    int line() const { return m_line; }
    [[noreturn]] void refuse(const QString &sentence) const;

private:
    friend class TsvTable;
    const QString &cell(const QString &column) const;

    struct Source
    {
        QString file;
        QStringList columns;
    };
    std::shared_ptr<const Source> m_source;
    int m_line = 0;
    QStringList m_cells;
};

/// A file in UTF-8: a line that names the columns, then a line per row. Empty lines and lines that
/// begin with "#" are passed over.
class TsvTable
{
public:
    /// Throws SourceError where the file can't be read, has other columns than these, or a row
    /// has more or fewer cells.
    TsvTable(const QString &path, const QStringList &columns);

    /// The file's first line where it begins with "# ", without that; else empty.
    const QString &heading() const { return m_heading; }
    const QList<TsvRow> &rows() const { return m_rows; }

private:
    QString m_heading;
    QList<TsvRow> m_rows;
};

} // namespace delivered
