#include "exchange/importrecords.h"

#include "catalogue/nutrition.h"
#include "catalogue/weightadjustment.h"
#include "session/excerpt.h"
#include "settings/units.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class ImportRecordTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportRecordTexts)
};

constexpr int categoryAt = 0; // among the values of a meal

bool areSame(const std::vector<Value> &a, const std::vector<Value> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Value &x, const Value &y) { return x.storage() == y.storage(); });
}

/// Tells an entry of a day from every other.
QString entryKey(const schema::Table &table, const std::vector<Value> &values)
{
    QString key = QLatin1String(table.name());
    for (const Value &value : values) {
        constexpr int exact = 17; // digits
        const auto *text = std::get_if<QString>(&value.storage());
        key += u'|' + (text ? *text : QString::number(value.toDouble(), 'g', exact));
    }
    return key;
}

/// Calls with the values of each record of a journal's table, the key first.
template<typename Call>
void forEachRecord(Connection &connection, const schema::Table &table, Call call)
{
    std::string columns;
    for (const schema::Column &column : table)
        columns += (columns.empty() ? "" : ", ") + std::string(column.name());
    guarded([&] {
        SQLite::Statement rows(connection.database(),
                               "select " + columns + " from " + table.name() + " order by 1");
        std::vector<Value> values(size_t(rows.getColumnCount()));
        while (rows.executeStep()) {
            for (size_t i = 0; i < values.size(); ++i)
                values[i] = columnValue(rows, int(i));
            const qint64 key = rows.getColumn(0).getInt64();
            call(key, std::vector<Value>(values.begin() + 1, values.end()));
        }
    });
}

qint64 dayOf(const Value &value)
{
    const auto *day = std::get_if<qint64>(&value.storage());
    return day ? *day : -1;
}

/// Which unit system a unit of weight or girth belongs to; none where it is unknown.
std::optional<bool> isMetricUnit(FieldKind kind, const QString &unit)
{
    if (!unitsOf(kind).contains(unit))
        return std::nullopt;
    return unit != QLatin1String("lb") && unit != QLatin1String("st") &&
           unit != QLatin1String("inch");
}

/// The unit of a record's weight or girths: that in its own column or that of the values' column.
QString unitOf(const ImportRow &row, const ImportFile &file, const char *unitField,
               const char *valueField, FieldKind kind)
{
    const QString own = row.text(unitField).trimmed();
    QString unit = own.isEmpty() ? file.match(valueField).unit : unitInHeader(own, kind);
    if (!own.isEmpty() && unit.isEmpty())
        throw ImportRowFault(ImportRecordTexts::tr("The unit is unknown: %1.").arg(own));
    return unit;
}

} // namespace

RecordPlanner::RecordPlanner(Session &session, ImportPlan &plan, ExistingRecords existing)
    : m_session(session)
    , m_plan(plan)
    , m_existing(existing)
    , m_place{session.text(), session.clock().now().date()}
{
    readEntries(schema::MealConsume::table);
    readEntries(schema::ExercisePerform::table);
    readMeasurements();
    readNotes();
}

void RecordPlanner::readEntries(const schema::Table &table)
{
    forEachRecord(m_session.data().Con, table,
                  [&](qint64, const Values &values) { ++m_entries[entryKey(table, values)]; });
}

void RecordPlanner::readMeasurements()
{
    forEachRecord(m_session.data().Con, schema::Body::table, [&](qint64 key, Values values) {
        const qint64 day = dayOf(values.front());
        m_measured[day] = {key, std::move(values), 0};
    });
}

// Where an odd journal has notes that share days, their days are joined.
void RecordPlanner::readNotes()
{
    std::multimap<qint64, Noted> found;
    forEachRecord(m_session.data().Con, schema::UserNote::table, [&](qint64, const Values &values) {
        found.insert({dayOf(values[0]), {dayOf(values[1]), values[2].toText(), 0}});
    });
    for (const auto &[from, note] : found) {
        if (!m_notes.empty() && m_notes.rbegin()->second.to >= from)
            m_notes.rbegin()->second.to = std::max(m_notes.rbegin()->second.to, note.to);
        else
            m_notes.insert({from, note});
    }
}

void RecordPlanner::begin(const ImportFile &file)
{
    m_file = &file;
    m_row = std::make_unique<ImportRow>(file, m_place);
}

void RecordPlanner::add(const CsvRecord &record, FilePlan &plan)
{
    m_row->take(record);
    switch (*m_file->kind) {
    case ImportKind::MealCategories:
        return addCategory(plan);
    case ImportKind::Meals:
    case ImportKind::Activities:
        return addNamed(plan);
    case ImportKind::MealsConsumed:
    case ImportKind::ActivitiesPerformed:
        return addEntry(plan);
    case ImportKind::Measurements:
        return addMeasurement(plan);
    case ImportKind::Notes:
        return addNote(plan);
    }
}

// There is nothing to a category but its name.
void RecordPlanner::addCategory(FilePlan &plan)
{
    const QString name = m_row->shortText("Name");
    if (m_plan.categories.find(name)) {
        ++plan.existing;
        return;
    }
    plan.records.push_back({{Value(name)}, true, 0, m_plan.categories.add(name), {}});
    ++plan.added;
}

void RecordPlanner::addNamed(FilePlan &plan)
{
    const bool isMeal = m_file->kind == ImportKind::Meals;
    CatalogueNames &names = m_plan.namesOf(*m_file->kind);
    const QString name = m_row->shortText("Name");
    const std::optional<size_t> found = names.find(name);
    if (found && m_existing == ExistingRecords::Kept) {
        ++plan.existing;
        return;
    }
    const Values *base =
        found && m_existing == ExistingRecords::Updated ? &names[*found].values : nullptr;
    PlannedRecord record = {isMeal ? mealValues(name, base) : activityValues(name, base)};
    if (isMeal && (!base || m_row->has("MealCategory"))) {
        const QString categoryName = m_row->shortText("MealCategory");
        const auto known = m_plan.categories.find(categoryName);
        record.values[categoryAt] = Value(known ? m_plan.categories[*known].id : 0);
        if (found && known && areSame(record.values, names[*found].values)) {
            ++plan.existing;
            return;
        }
        record.subject = known ? *known : m_plan.categories.add(categoryName);
    } else if (found && areSame(record.values, names[*found].values)) {
        ++plan.existing;
        return;
    }
    if (base) {
        record.isNew = false;
        record.self = found;
        names[*found].values = record.values;
        ++plan.updated;
    } else {
        const QString own = found ? names.freeName(name) : name;
        record.values[isMeal ? 1 : 0] = Value(own);
        record.self = names.add(own, record.values);
        if (found)
            names.redirect(name, *record.self); // entries of the same files mean this one
        ++plan.added;
    }
    plan.records.push_back(std::move(record));
}

RecordPlanner::Values RecordPlanner::mealValues(const QString &name, const Values *base) const
{
    const auto value = [&](const char *field, size_t at) {
        return base && !m_row->has(field) ? (*base)[at] : m_row->number(field);
    };
    const std::array figures = {"Calories (kcal per unit)", "Fat (g per unit)",
                                "Carbohydrate (g per unit)", "Protein (g per unit)"};
    const std::array shares = {"FatBC (kcal per unit)", "CarbohydrateBC (kcal per unit)",
                               "ProteinBC (kcal per unit)"};
    constexpr size_t figuresAt = 5;
    constexpr size_t sharesAt = figuresAt + figures.size();
    const bool keepsUnit = base && !m_row->has("Unit");
    Values values = {base ? (*base)[categoryAt] : Value(), Value(name),
                     keepsUnit ? (*base)[2] : Value(m_row->shortText("Unit")),
                     value("DefaultQty (units)", 3), value("Increment (units)", 4)};
    values.reserve(sharesAt + shares.size());
    for (size_t i = 0; i < figures.size(); ++i)
        values.push_back(value(figures[i], figuresAt + i));
    const auto isGiven = [&](const char *field) { return !m_row->isEmpty(field); };
    const auto has = [&](const char *field) { return m_row->has(field); };
    if (std::all_of(shares.begin(), shares.end(), isGiven)) {
        for (const char *share : shares)
            values.push_back(m_row->number(share));
    } else if (base && std::none_of(figures.begin(), figures.end(), has)) {
        values.insert(values.end(), base->begin() + sharesAt, base->end());
    } else {
        const Currency calories = values[figuresAt].toCurrency();
        const auto split = caloriesByNutrient(calories, {values[figuresAt + 1].toCurrency(),
                                                         values[figuresAt + 2].toCurrency(),
                                                         values[figuresAt + 3].toCurrency()});
        // Of calories from nothing, as those of spirits, carbohydrate takes all.
        for (const Currency share :
             split.value_or(Nutrients<Currency>{Currency(), calories, Currency()}))
            values.push_back(Value(share));
    }
    return values;
}

RecordPlanner::Values RecordPlanner::activityValues(const QString &name, const Values *base) const
{
    const char *const baseCaloriesField =
        "CaloriesConsumeBase (kcal per unit at 68.04 kg or 150 lb)";
    const auto value = [&](const char *field, size_t at) {
        return base && !m_row->has(field) ? (*base)[at] : m_row->number(field);
    };
    const bool keepsUnit = base && !m_row->has("Unit");
    Values values = {Value(name), keepsUnit ? (*base)[1] : Value(m_row->shortText("Unit")),
                     value("DefaultQty (units)", 2), value("CaloriesConsume (kcal per unit)", 3)};
    const Value dependent = value("WeightDependent (1 = yes)", 5);
    const bool isDependent = dependent.toDouble() == 1;
    const CommonParameters &user = m_session.parameters();
    if (!m_row->isEmpty(baseCaloriesField))
        values.push_back(m_row->number(baseCaloriesField));
    else if (base && !m_row->has("CaloriesConsume (kcal per unit)"))
        values.push_back((*base)[4]);
    else if (isDependent)
        values.push_back(Value(baseCalories(values[3].toDouble(), user.weight, user.isMetric())));
    else
        values.push_back(values[3]);
    values.push_back(Value(isDependent ? 1 : 0));
    return values;
}

void RecordPlanner::addEntry(FilePlan &plan)
{
    const bool isMeal = m_file->kind == ImportKind::MealsConsumed;
    const QString name = m_row->shortText(m_file->table().subject);
    const CatalogueNames &names = m_plan.namesOf(*m_file->kind);
    const std::optional<size_t> subject = names.find(name);
    PlannedRecord record = {{Value(subject ? names[*subject].id : 0),
                             Value(m_row->date(isMeal ? "ConsumeDate" : "PerformDate"))}};
    if (isMeal) {
        record.values.push_back(m_row->time("ConsumeTime"));
    } else {
        record.values.push_back(m_row->time("timeBeg"));
        record.values.push_back(m_row->time("timeEnd"));
        if (record.values[2].toDouble() >= record.values[3].toDouble())
            throw ImportRowFault(ImportRecordTexts::tr("The end is not after the begin."));
    }
    record.values.push_back(m_row->number("Qty (units)"));
    if (!subject)
        throw ImportRowFault((isMeal
                                  ? ImportRecordTexts::tr("There is no meal of this name: %1.")
                                  : ImportRecordTexts::tr("There is no activity of this name: %1."))
                                 .arg(excerptOf(name, 60)));
    record.subject = subject;
    // Of two in the file and one in the journal, one comes in.
    const auto known = m_entries.find(entryKey(*m_file->table().table, record.values));
    if (known != m_entries.end() && *known > 0) {
        --*known;
        ++plan.existing;
        return;
    }
    plan.records.push_back(std::move(record));
    ++plan.added;
}

void RecordPlanner::addMeasurement(FilePlan &plan)
{
    const char *const systemField = "Measurement (M = metric / I = imperial)";
    QString weightUnit = unitOf(*m_row, *m_file, "WeightUnit", "Weight", FieldKind::BodyWeight);
    QString girthUnit = unitOf(*m_row, *m_file, "GirthUnit", "Waist", FieldKind::Girth);
    // What has no unit is in the system of the other.
    if (const auto ofWeight = isMetricUnit(FieldKind::BodyWeight, weightUnit);
        ofWeight && girthUnit.isEmpty())
        girthUnit = bodyUnit(FieldKind::Girth, *ofWeight);
    else if (const auto ofGirth = isMetricUnit(FieldKind::Girth, girthUnit);
             ofGirth && weightUnit.isEmpty())
        weightUnit = bodyUnit(FieldKind::BodyWeight, *ofGirth);
    const QString system = m_row->text(systemField).trimmed().toUpper();
    if (!system.isEmpty() && system != u"M" && system != u"I")
        throw ImportRowFault(
            ImportRecordTexts::tr("The unit system is neither M nor I: %1.").arg(system));
    const bool isMetric = system.isEmpty() ? !m_session.parameters().isImperial() : system == u"M";
    const Value date(m_row->date("DateMeasured"));
    PlannedRecord record = {
        {date, m_row->number("Weight", weightUnit, isMetric),
         m_row->number("Breast", girthUnit, isMetric), m_row->number("Waist", girthUnit, isMetric),
         m_row->number("Hips", girthUnit, isMetric), Value(units::codeOf(isMetric))}};
    const bool hasNone = std::all_of(record.values.begin() + 1, record.values.begin() + 5,
                                     [](const Value &value) { return value.toDouble() == 0; });
    if (hasNone && !m_file->isExport)
        throw ImportRowFault(ImportRecordTexts::tr("Nothing was measured."));
    const auto [known, isNew] = m_measured.insert({dayOf(date), {0, record.values, m_row->line()}});
    Measured &there = known->second;
    if (!isNew && there.line > 0 && !areSame(there.values, record.values))
        throw ImportRowFault(
            ImportRecordTexts::tr("Line %1 has a measurement of the same day.").arg(there.line));
    const bool isUpdate = !isNew && there.line == 0 && m_existing == ExistingRecords::Updated;
    if (!isNew && (!isUpdate || areSame(there.values, record.values))) {
        ++plan.existing;
        return;
    }
    record.isNew = isNew;
    record.id = there.id;
    ++(isNew ? plan.added : plan.updated);
    there.values = record.values;
    there.line = m_row->line();
    plan.records.push_back(std::move(record));
}

void RecordPlanner::addNote(FilePlan &plan)
{
    const QDate from = m_row->date("DateFrom");
    const QDate to = m_row->isEmpty("DateTo") ? from : m_row->date("DateTo");
    const QString text = m_row->longText("NoteText");
    if (to < from)
        throw ImportRowFault(ImportRecordTexts::tr("It ends before it begins."));
    const auto same = m_notes.find(dayNumber(from));
    if (same != m_notes.end() && same->second.to == dayNumber(to) && same->second.text == text) {
        ++plan.existing;
        return;
    }
    requireFreeDays(dayNumber(from), dayNumber(to));
    m_notes.insert({dayNumber(from), {dayNumber(to), text, m_row->line()}});
    plan.records.push_back({{Value(from), Value(to), Value(text)}});
    ++plan.added;
}

// Notes never share a day.
void RecordPlanner::requireFreeDays(qint64 from, qint64 to) const
{
    const auto behind = m_notes.upper_bound(to);
    if (behind == m_notes.begin())
        return;
    const Noted &before = std::prev(behind)->second;
    if (before.to < from)
        return;
    if (before.line > 0)
        throw ImportRowFault(
            ImportRecordTexts::tr("It shares days with the note on line %1.").arg(before.line));
    throw ImportRowFault(ImportRecordTexts::tr("It shares days with a note of the journal: %1.")
                             .arg(excerptOf(before.text.simplified(), 60)));
}
