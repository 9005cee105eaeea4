#include "exchange/csvformat.h"

#include <algorithm>

namespace {

constexpr int lastYear = 9999; // ISO 8601 has four digits for it

/// Whether a spreadsheet would compute such a text, or hand it to another program. Some read the
/// wide forms, too, and what stands behind a tab or a line break.
bool isTakenForFormula(const QString &text)
{
    constexpr QStringView beginnings = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20";
    return !text.isEmpty() && beginnings.contains(text.front());
}

} // namespace

CsvFormat::CsvFormat(const LocaleText *locale)
    : m_locale(locale)
    , m_separator(locale && locale->locale().decimalPoint() == QLatin1String(",") ? ';' : ',')
{
}

QByteArray CsvFormat::mark() const
{
    return m_locale ? QByteArrayLiteral("\xEF\xBB\xBF") : QByteArray();
}

QByteArray CsvFormat::cell(const Value &value, CellKind kind) const
{
    if (value.isNull())
        return {};
    if (const auto *text = std::get_if<QString>(&value.storage()))
        return textCell(*text);
    const auto *day = std::get_if<qint64>(&value.storage());
    if (kind == CellKind::Date && day) {
        const QDate date = value.toDate();
        if (date.isValid() && date.year() >= 1 && date.year() <= lastYear)
            return quoted(this->date(date));
    }
    if (kind == CellKind::Time) {
        const QString time = this->time(value.toDouble());
        if (!time.isEmpty())
            return quoted(time);
    }
    return quoted(number(value));
}

QByteArray CsvFormat::textCell(const QString &text) const
{
    if (text.isEmpty())
        return QByteArrayLiteral("\"\"");
    return quoted(m_locale && isTakenForFormula(text) ? u'\'' + text : text);
}

QByteArray CsvFormat::quoted(const QString &text) const
{
    QByteArray cell = text.toUtf8();
    const bool isPlain = std::none_of(cell.begin(), cell.end(), [this](char c) {
        return c == m_separator || c == '"' || c == '\r' || c == '\n';
    });
    return isPlain ? cell : '"' + cell.replace('"', "\"\"") + '"';
}

QString CsvFormat::date(QDate date) const
{
    return m_locale ? m_locale->locale().toString(date, m_locale->dateInputFormat())
                    : date.toString(Qt::ISODate);
}

/// Empty for what is no time of day, or in the plain dialect would not read back as it is stored.
QString CsvFormat::time(double fraction) const
{
    const bool isTime = fraction >= 0 && fraction < 1;
    const QTime time = isTime ? timeOfDayFraction(fraction) : QTime();
    if (!isTime || m_locale)
        return isTime ? m_locale->listTime(time) : QString();
    return dayFraction(time) == fraction ? time.toString(QStringLiteral("HH:mm")) : QString();
}

QString CsvFormat::number(const Value &value) const
{
    const auto *real = std::get_if<double>(&value.storage());
    if (m_locale || !real)
        return m_locale ? m_locale->toText(value) : value.toText();
    return QString::number(*real, 'g', QLocale::FloatingPointShortest);
}
