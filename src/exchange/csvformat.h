// How the cells of a file of comma-separated values are written.
#pragma once

#include "session/localetext.h"

#include <QByteArray>

/// What a column holds, which the store doesn't tell: it counts dates and times.
enum class CellKind
{
    Stored, ///< a number or a text
    Date,   ///< a whole day number
    Time    ///< a fraction of a day
};

/// One of two dialects. What is no value of its column's kind is written as it is stored; Null is
/// nothing at all, and the empty text two quotation marks.
class CsvFormat
{
public:
    /// RFC 4180 for other programs: commas, decimal points, ISO 8601. Every number, every time and
    /// every text reads back as it is stored.
    static CsvFormat plain() { return CsvFormat(nullptr); }
    /// For spreadsheets, with numbers, dates and times as the locale and the windows write them
    /// (four decimals, whole minutes). An apostrophe is put before a text that a spreadsheet would
    /// take for a formula. The locale must outlive the format.
    static CsvFormat spreadsheet(const LocaleText &locale) { return CsvFormat(&locale); }

    /// What the file begins with: by their byte order mark spreadsheets know UTF-8.
    QByteArray mark() const;
    char separator() const { return m_separator; }
    /// In UTF-8, quoted where it has to be.
    QByteArray cell(const Value &value, CellKind kind) const;

private:
    explicit CsvFormat(const LocaleText *locale);
    QByteArray textCell(const QString &text) const;
    QByteArray quoted(const QString &text) const;
    QString date(QDate date) const;
    QString time(double fraction) const;
    QString number(const Value &value) const;

    const LocaleText *m_locale; ///< null: the plain dialect
    char m_separator;
};
