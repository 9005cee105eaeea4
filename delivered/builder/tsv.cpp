#include "tsv.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace delivered {

namespace {

// Places behind the point. Reading a decimal rounds all but four of them away, in silence.
qsizetype placesOf(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    return point < 0 ? 0 : number.size() - point - 1;
}

} // namespace

SourceError::SourceError(const QString &file, int line, const QString &sentence)
    : std::runtime_error(u"%1:%2: %3"_s.arg(file).arg(line).arg(sentence).toStdString())
{
}

void TsvRow::refuse(const QString &sentence) const
{
    throw SourceError(m_source->file, m_line, sentence);
}

const QString &TsvRow::cell(const QString &column) const
{
    const qsizetype index = m_source->columns.indexOf(column);
    Q_ASSERT(index >= 0);
    return m_cells[index];
}

QString TsvRow::text(const QString &column) const
{
    const QString &text = cell(column);
    if (text.isEmpty())
        refuse(u"%1 is missing"_s.arg(column));
    if (text.trimmed() != text)
        refuse(u"%1 begins or ends with a blank"_s.arg(column));
    return text;
}

Currency TsvRow::decimal(const QString &column) const
{
    const QString value = text(column);
    try {
        const std::optional<Currency> number = Currency::fromText(value);
        if (number && placesOf(value) <= 4)
            return *number;
    } catch (const OverflowError &) {
        refuse(u"%1 %2 is out of range"_s.arg(column, value));
    }
    refuse(u"%1 \"%2\" is not a decimal of at most four places"_s.arg(column, value));
}

std::optional<Currency> TsvRow::optionalDecimal(const QString &column) const
{
    if (cell(column).isEmpty())
        return std::nullopt;
    return decimal(column);
}

int TsvRow::wholeNumber(const QString &column) const
{
    bool valid = false;
    const int number = text(column).toInt(&valid);
    if (!valid)
        refuse(u"%1 \"%2\" is not a whole number"_s.arg(column, text(column)));
    return number;
}

QTime TsvRow::time(const QString &column) const
{
    const QTime time = QTime::fromString(text(column), u"HH:mm"_s);
    if (!time.isValid())
        refuse(u"%1 \"%2\" is not a time of day as HH:MM"_s.arg(column, text(column)));
    return time;
}

QDate TsvRow::date(const QString &column) const
{
    const QDate date = QDate::fromString(text(column), Qt::ISODate);
    if (!date.isValid())
        refuse(u"%1 \"%2\" is not a date as YYYY-MM-DD"_s.arg(column, text(column)));
    return date;
}

TsvTable::TsvTable(const QString &path, const QStringList &columns)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw SourceError(path, 0, u"The file can't be read"_s);
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString content = decoder(file.readAll());
    if (decoder.hasError())
        throw SourceError(path, 0, u"The file is not in UTF-8"_s);

    const auto source = std::make_shared<const TsvRow::Source>(TsvRow::Source{path, columns});
    bool named = false;
    int number = 0;
    const QStringList lines = content.remove(u'\r').split(u'\n');
    if (lines.constFirst().startsWith(u"# "))
        m_heading = lines.constFirst().mid(2);
    for (const QString &line : lines) {
        ++number;
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        TsvRow row;
        row.m_source = source;
        row.m_line = number;
        row.m_cells = line.split(u'\t');
        if (!named && row.m_cells != columns)
            row.refuse(u"The columns should be "_s + columns.join(u", "));
        if (row.m_cells.size() != columns.size())
            row.refuse(
                u"There are %1 cells instead of %2"_s.arg(row.m_cells.size()).arg(columns.size()));
        if (named)
            m_rows << row;
        named = true;
    }
    if (!named)
        throw SourceError(path, number, u"There is no line with the columns"_s);
}

} // namespace delivered
