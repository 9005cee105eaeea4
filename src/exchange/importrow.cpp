#include "exchange/importrow.h"

#include "data/numbers.h"
#include "session/excerpt.h"

#include <QCoreApplication>

#include <cmath>

namespace {

class ImportRowTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportRowTexts)
};

/// Whether an export for spreadsheets has put an apostrophe before it.
bool isMasked(const QString &text)
{
    constexpr QStringView beginnings = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20";
    return text.size() > 1 && text.front() == u'\'' && beginnings.contains(text[1]);
}

/// A sentence with marks for the field and what is in it.
[[noreturn]] void refuse(const QString &sentence, const ImportField &field, const QString &text)
{
    constexpr qsizetype most = 60;
    throw ImportRowFault(sentence.arg(field.caption, excerptOf(text.simplified(), most)));
}

} // namespace

ImportRow::ImportRow(const ImportFile &file, const ImportPlace &place)
    : m_file(file)
    , m_place(place)
{
}

ImportRow::Cell ImportRow::cell(const char *field) const
{
    const size_t at = m_file.table().fieldOf(field);
    Cell cell = {{}, m_file.table().fields[at], m_file.matches[at], false};
    if (cell.match.column >= 0)
        cell.text = m_record->cells.value(cell.match.column);
    if (!m_file.isExport)
        cell.text = cell.text.trimmed();
    else if (m_file.isForSpreadsheets && isMasked(cell.text))
        cell.text.remove(0, 1);
    if (cell.text.isEmpty()) {
        cell.text = cell.match.whenEmpty.trimmed();
        cell.isTyped = true;
    }
    if (cell.text.isEmpty() && cell.field.isRequired)
        throw ImportRowFault(ImportRowTexts::tr("%1 is empty.").arg(cell.field.caption));
    return cell;
}

QString ImportRow::text(const char *field) const
{
    return cell(field).text;
}

QString ImportRow::longText(const char *field) const
{
    const Cell cell = this->cell(field);
    if (cell.text.trimmed().isEmpty())
        throw ImportRowFault(ImportRowTexts::tr("%1 is empty.").arg(cell.field.caption));
    return cell.text;
}

QString ImportRow::shortText(const char *field) const
{
    constexpr qsizetype most = 32767; // of a box in an editor
    QString text = longText(field);
    if (text.size() > most)
        throw ImportRowFault(
            ImportRowTexts::tr("%1 is longer than 32,767 letters.").arg(cell(field).field.caption));
    return text;
}

double ImportRow::plainNumber(const Cell &cell) const
{
    std::optional<double> number;
    if (cell.isTyped) {
        if (const auto typed = m_place.text.toCurrency(cell.text))
            number = typed->toDouble();
    } else if (m_file.isExport && !m_file.isForSpreadsheets) {
        bool isNumber = false;
        const double exact = cell.text.toDouble(&isNumber);
        if (isNumber)
            number = exact;
    } else {
        number = readNumber(cell.text, cell.match.hasDecimalComma);
    }
    try {
        if (number) {
            Currency::fromDouble(*number);
            return *number;
        }
    } catch (const OverflowError &) {
        refuse(ImportRowTexts::tr("%1 is out of range: %2."), cell.field, cell.text);
    }
    refuse(ImportRowTexts::tr("%1 is no number: %2."), cell.field, cell.text);
}

Value ImportRow::number(const char *field, bool isMetric) const
{
    return number(field, m_file.match(field).unit, isMetric);
}

Value ImportRow::number(const char *field, const QString &unit, bool isMetric) const
{
    const Cell cell = this->cell(field);
    if (cell.text.isEmpty())
        return {};
    const double number = plainNumber(cell);
    const double factor =
        unit.isEmpty() || cell.isTyped ? 1 : factorOf(cell.field.kind, unit, isMetric);
    if (factor == 1)
        return Value(number);
    const bool isOfBody =
        cell.field.kind == FieldKind::BodyWeight || cell.field.kind == FieldKind::Girth;
    return Value(Currency::fromDouble(roundHalfEven(number * factor, isOfBody ? 1 : 4)));
}

QDate ImportRow::date(const char *field) const
{
    const Cell cell = this->cell(field);
    const auto date = readImportDate(cell.text, cell.match.dateOrder, m_place);
    if (!date)
        refuse(ImportRowTexts::tr("%1 is no date: %2."), cell.field, cell.text);
    return *date;
}

Value ImportRow::time(const char *field) const
{
    const Cell cell = this->cell(field);
    // An export has those that are on no minute as they are stored.
    bool isNumber = false;
    const double fraction = m_file.isExport ? cell.text.toDouble(&isNumber) : 0;
    if (isNumber && fraction >= 0 && fraction < 1)
        return Value(fraction);
    const auto time = isNumber ? std::nullopt : readImportTime(cell.text, m_place);
    if (!time)
        refuse(ImportRowTexts::tr("%1 is no time: %2."), cell.field, cell.text);
    return Value(*time);
}
