#include "exchange/importpreview.h"

#include "session/excerpt.h"

#include <algorithm>

namespace {

/// The field that fills a column; the subject's where it refers to another table.
const ImportField &fieldFor(const ImportTable &table, const schema::Column &column)
{
    const auto found =
        std::find_if(table.fields.begin(), table.fields.end(), [&](const ImportField &field) {
            return QString::fromLatin1(field.header).section(u' ', 0, 0) ==
                   QLatin1String(column.name());
        });
    return found == table.fields.end() ? table.fields[table.fieldOf(table.subject)] : *found;
}

QString shownValue(const Value &value, FieldKind kind, const LocaleText &text)
{
    constexpr qsizetype longest = 60;
    if (kind == FieldKind::Date)
        return text.mediumDate(value.toDate());
    if (kind == FieldKind::Time)
        return text.listTime(value.toTime());
    return excerptOf(text.toText(value).simplified(), longest);
}

} // namespace

QStringList previewHeaders(const ImportTable &table)
{
    QStringList headers;
    for (const schema::Column *column = table.table->begin() + 1; column != table.table->end();
         ++column)
        headers += fieldFor(table, *column).caption;
    return headers;
}

QStringList previewOf(const ImportTable &table, const PlannedRecord &record, ImportPlan &plan,
                      const LocaleText &text)
{
    QStringList texts;
    const schema::Column *column = table.table->begin();
    for (const Value &value : record.values)
        texts += shownValue(value, fieldFor(table, *++column).kind, text);
    const CatalogueNames &names =
        table.kind == ImportKind::Meals ? plan.categories : plan.namesOf(table.kind);
    if (record.subject)
        texts.front() = names[*record.subject].name;
    return texts;
}
