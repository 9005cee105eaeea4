#include "exchange/importfields.h"

#include "data/namecollation.h"
#include "settings/units.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <stdexcept>

using namespace Qt::Literals;

namespace {

class ImportFieldTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportFieldTexts)
};

QStringList namesIn(const char *list)
{
    return QString::fromUtf8(list).split(u'|');
}

struct UnitFactor
{
    FieldKind kind;
    const char *unit;
    double factor; ///< to kcal, g, kg or cm
};

// By definition: a kilocalorie is 4.184 kJ, an ounce 28.349523125 g, a stone 14 lb. Pounds and
// inches are converted as everywhere in this system.
const std::vector<UnitFactor> &unitFactors()
{
    static const double lb = units::LbToKg.toDouble();
    static const std::vector<UnitFactor> factors = {
        {FieldKind::Energy, "kcal", 1},
        {FieldKind::Energy, "kJ", 1 / 4.184},
        {FieldKind::FoodWeight, "g", 1},
        {FieldKind::FoodWeight, "mg", 0.001},
        {FieldKind::FoodWeight, "oz", 28.349523125},
        {FieldKind::BodyWeight, "kg", 1},
        {FieldKind::BodyWeight, "lb", lb},
        {FieldKind::BodyWeight, "st", 14 * lb},
        {FieldKind::Girth, "cm", 1},
        {FieldKind::Girth, "inch", units::InchToCm.toDouble()},
        {FieldKind::Girth, "mm", 0.1},
    };
    return factors;
}

/// The usual unit that a word of a header stands for; empty where it is none.
QString unitNamed(const QString &word)
{
    static const QHash<QString, QString> others = {
        {u"cal"_s, u"kcal"_s},    {u"calories"_s, u"kcal"_s}, {u"kalorien"_s, u"kcal"_s},
        {u"lbs"_s, u"lb"_s},      {u"pounds"_s, u"lb"_s},     {u"pfund"_s, u"lb"_s},
        {u"inches"_s, u"inch"_s}, {u"in"_s, u"inch"_s},       {u"zoll"_s, u"inch"_s},
        {u"gram"_s, u"g"_s},      {u"grams"_s, u"g"_s},       {u"gramm"_s, u"g"_s},
        {u"stone"_s, u"st"_s},    {u"kilograms"_s, u"kg"_s}};
    for (const UnitFactor &known : unitFactors()) {
        if (word.compare(QLatin1String(known.unit), Qt::CaseInsensitive) == 0)
            return QLatin1String(known.unit);
    }
    return others.value(word);
}

/// Without case and accents, "100g" in two words.
QStringList wordsOf(const QString &header)
{
    static const QRegularExpression gap(u"[^\\pL\\pN]+|(?<=\\d)(?=\\pL)"_s,
                                        QRegularExpression::UseUnicodePropertiesOption);
    return foldedForSearch(header).split(gap, Qt::SkipEmptyParts);
}

ImportTable mealCategoriesFields()
{
    return {ImportKind::MealCategories,
            &schema::MealCategory::table,
            ImportFieldTexts::tr("Meal categories"),
            {{"Name",
              ImportFieldTexts::tr("Name"),
              FieldKind::Text,
              true,
              {},
              namesIn("category|meal category|food category|food group|kategorie|gruppe|"
                      "lebensmittelgruppe|warengruppe")}}};
}

ImportTable mealsFields()
{
    const QString none = u"0"_s;
    return {
        ImportKind::Meals,
        &schema::Meal::table,
        ImportFieldTexts::tr("Meals"),
        {{"MealCategory", ImportFieldTexts::tr("Category"), FieldKind::Text, true,
          ImportFieldTexts::tr("Imported"), mealCategoriesFields().fields.front().names},
         {"Name",
          ImportFieldTexts::tr("Name"),
          FieldKind::Text,
          true,
          {},
          namesIn("name|food|food name|meal|meal name|product|product name|item|description|"
                  "lebensmittel|produkt|speise|gericht|mahlzeit|bezeichnung|artikel")},
         {"Unit",
          ImportFieldTexts::tr("Unit"),
          FieldKind::Text,
          true,
          {},
          namesIn("unit|portion|serving|serving size|portion size|einheit|portionsgrosse|menge")},
         {"DefaultQty (units)",
          ImportFieldTexts::tr("Default quantity"),
          FieldKind::Number,
          false,
          {},
          namesIn("defaultqty|default quantity|default qty|standardmenge")},
         {"Increment (units)",
          ImportFieldTexts::tr("Increment"),
          FieldKind::Number,
          false,
          {},
          namesIn("increment|step|schritt|schrittweite")},
         {"Calories (kcal per unit)",
          ImportFieldTexts::tr("Calories"),
          FieldKind::Energy,
          true,
          {},
          namesIn("calories|energy|kcal|kalorien|energie|brennwert|kj|cal")},
         {"Fat (g per unit)", ImportFieldTexts::tr("Fat"), FieldKind::FoodWeight, true, none,
          namesIn("fat|total fat|fat total|fats|lipid|lipids|total lipid|fett|fette|fett gesamt|"
                  "gesamtfett")},
         {"Carbohydrate (g per unit)", ImportFieldTexts::tr("Carbohydrate"), FieldKind::FoodWeight,
          true, none,
          namesIn("carbohydrate|carbohydrates|carbs|total carbohydrate|carbohydrates total|"
                  "total carbs|kohlenhydrate|kohlenhydrat|kh|kohlenhydrate gesamt")},
         {"Protein (g per unit)", ImportFieldTexts::tr("Protein"), FieldKind::FoodWeight, true,
          none, namesIn("protein|proteins|total protein|eiweiss|eiweiß|proteine")},
         {"FatBC (kcal per unit)", ImportFieldTexts::tr("Fat by calories"), FieldKind::Energy},
         {"CarbohydrateBC (kcal per unit)", ImportFieldTexts::tr("Carbohydrate by calories"),
          FieldKind::Energy},
         {"ProteinBC (kcal per unit)", ImportFieldTexts::tr("Protein by calories"),
          FieldKind::Energy}},
        "MealCategory"};
}

ImportTable activitiesFields()
{
    return {
        ImportKind::Activities,
        &schema::Exercise::table,
        ImportFieldTexts::tr("Activities"),
        {{"Name",
          ImportFieldTexts::tr("Name"),
          FieldKind::Text,
          true,
          {},
          namesIn("activity|activity name|exercise|exercise name|sport|aktivitat|ubung|sportart|"
                  "name")},
         {"Unit", ImportFieldTexts::tr("Unit"), FieldKind::Text, true, {}, namesIn("unit|einheit")},
         {"DefaultQty (units)",
          ImportFieldTexts::tr("Default quantity"),
          FieldKind::Number,
          false,
          {},
          namesIn("defaultqty|default quantity|default qty|standardmenge")},
         {"CaloriesConsume (kcal per unit)",
          ImportFieldTexts::tr("Calories"),
          FieldKind::Energy,
          true,
          {},
          namesIn("caloriesconsume|calories|calories burned|calories burnt|burned|burnt|energy|"
                  "kcal|kalorien|kalorienverbrauch|verbrauch|energie|kj|cal")},
         {"CaloriesConsumeBase (kcal per unit at 68.04 kg or 150 lb)",
          ImportFieldTexts::tr("Base calories"), FieldKind::Energy},
         {"WeightDependent (1 = yes)", ImportFieldTexts::tr("Weight dependent"), FieldKind::Number,
          false, u"0"_s, namesIn("weightdependent|weight dependent|gewichtsabhangig")}}};
}

ImportTable mealsConsumedFields()
{
    return {ImportKind::MealsConsumed,
            &schema::MealConsume::table,
            ImportFieldTexts::tr("Meals consumed"),
            {{"ConsumeDate",
              ImportFieldTexts::tr("Date"),
              FieldKind::Date,
              true,
              {},
              namesIn("consumedate|date|day|datum|tag|date time|datetime|timestamp|zeitpunkt")},
             {"ConsumeTime",
              ImportFieldTexts::tr("Time"),
              FieldKind::Time,
              true,
              {},
              namesIn("consumetime|time|zeit|uhrzeit")},
             {"Meal",
              ImportFieldTexts::tr("Meal"),
              FieldKind::Text,
              true,
              {},
              mealsFields().fields[1].names},
             {"Qty (units)",
              ImportFieldTexts::tr("Quantity"),
              FieldKind::Number,
              true,
              {},
              namesIn("qty|quantity|amount|servings|menge|anzahl|portionen")}},
            "Meal"};
}

ImportTable activitiesPerformedFields()
{
    return {ImportKind::ActivitiesPerformed,
            &schema::ExercisePerform::table,
            ImportFieldTexts::tr("Activities performed"),
            {{"PerformDate",
              ImportFieldTexts::tr("Date"),
              FieldKind::Date,
              true,
              {},
              namesIn("performdate|date|day|datum|tag|date time|datetime|timestamp|zeitpunkt")},
             {"timeBeg",
              ImportFieldTexts::tr("Begin"),
              FieldKind::Time,
              true,
              {},
              namesIn("timebeg|begin|begin time|start|start time|from|time|beginn|von|anfang|"
                      "startzeit|uhrzeit")},
             {"timeEnd",
              ImportFieldTexts::tr("End"),
              FieldKind::Time,
              true,
              {},
              namesIn("timeend|end|end time|finish|to|until|ende|bis|endzeit")},
             {"Exercise",
              ImportFieldTexts::tr("Activity"),
              FieldKind::Text,
              true,
              {},
              activitiesFields().fields[0].names},
             {"Qty (units)",
              ImportFieldTexts::tr("Quantity"),
              FieldKind::Number,
              true,
              {},
              namesIn("qty|quantity|amount|menge|anzahl|dauer|duration")}},
            "Exercise"};
}

ImportTable measurementsFields()
{
    const QString none = u"0"_s;
    return {ImportKind::Measurements,
            &schema::Body::table,
            ImportFieldTexts::tr("Body measurements"),
            {{"DateMeasured",
              ImportFieldTexts::tr("Date"),
              FieldKind::Date,
              true,
              {},
              namesIn("datemeasured|date|day|datum|tag|date time|datetime|timestamp|zeitpunkt")},
             {"Weight", ImportFieldTexts::tr("Weight"), FieldKind::BodyWeight, true, none,
              namesIn("weight|body weight|mass|gewicht|korpergewicht|masse")},
             {"WeightUnit",
              ImportFieldTexts::tr("Unit of the weight"),
              FieldKind::Text,
              false,
              {},
              namesIn("weightunit|weight unit|gewichtseinheit")},
             {"Breast", ImportFieldTexts::tr("Breast"), FieldKind::Girth, true, none,
              namesIn("breast|chest|bust|brust|brustumfang")},
             {"Waist", ImportFieldTexts::tr("Waist"), FieldKind::Girth, true, none,
              namesIn("waist|taille|taillenumfang|bauch|bauchumfang")},
             {"Hips", ImportFieldTexts::tr("Hips"), FieldKind::Girth, true, none,
              namesIn("hips|hip|hufte|huftumfang|huften")},
             {"GirthUnit",
              ImportFieldTexts::tr("Unit of the girths"),
              FieldKind::Text,
              false,
              {},
              namesIn("girthunit|girth unit|masseinheit")},
             {"Measurement (M = metric / I = imperial)", ImportFieldTexts::tr("Unit system"),
              FieldKind::Text}}};
}

ImportTable notesFields()
{
    return {ImportKind::Notes,
            &schema::UserNote::table,
            ImportFieldTexts::tr("Notes"),
            {{"DateFrom",
              ImportFieldTexts::tr("Date from"),
              FieldKind::Date,
              true,
              {},
              namesIn("datefrom|date from|from|date|day|start|begin|datum|tag|von|beginn")},
             {"DateTo",
              ImportFieldTexts::tr("Date to"),
              FieldKind::Date,
              false,
              {},
              namesIn("dateto|date to|to|until|end|bis|ende")},
             {"NoteText",
              ImportFieldTexts::tr("Text"),
              FieldKind::Text,
              true,
              {},
              namesIn("notetext|note|text|notes|comment|notiz|notizen|kommentar|bemerkung")}}};
}

} // namespace

size_t ImportTable::fieldOf(const char *header) const
{
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const ImportField &field) {
        return qstrcmp(field.header, header) == 0;
    });
    if (found == fields.end())
        throw std::logic_error(std::string("no such field: ") + header);
    return size_t(found - fields.begin());
}

const std::vector<ImportTable> &importTables()
{
    static const std::vector<ImportTable> tables = {mealCategoriesFields(),
                                                    mealsFields(),
                                                    activitiesFields(),
                                                    mealsConsumedFields(),
                                                    activitiesPerformedFields(),
                                                    measurementsFields(),
                                                    notesFields()};
    return tables;
}

const ImportTable &importTable(ImportKind kind)
{
    return importTables().at(size_t(kind));
}

QString columnName(const QString &header)
{
    static const QStringList fillers = {u"per"_s, u"je"_s,   u"pro"_s, u"in"_s, u"of"_s,
                                        u"100"_s, u"unit"_s, u"g"_s,   u"ml"_s, u"units"_s};
    const QStringList all = wordsOf(header);
    QStringList left;
    for (const QString &word : all) {
        const bool isUnit =
            !unitNamed(word).isEmpty() && word != u"calories"_s && word != u"kalorien"_s;
        if (!isUnit && !fillers.contains(word))
            left += word;
    }
    return left.isEmpty() ? all.value(0) : left.join(u' ');
}

QString unitInHeader(const QString &header, FieldKind kind)
{
    const QStringList fitting = unitsOf(kind);
    for (const QString &word : wordsOf(header)) {
        if (QString unit = unitNamed(word); fitting.contains(unit))
            return unit;
    }
    return {};
}

QString portionInHeader(const QString &header)
{
    const QStringList all = wordsOf(header);
    const qsizetype at = all.indexOf(u"100"_s);
    if (at < 0)
        return {};
    return all.value(at + 1) == u"ml"_s ? u"100 ml"_s : u"100 g"_s;
}

QStringList unitsOf(FieldKind kind)
{
    QStringList found;
    for (const UnitFactor &known : unitFactors()) {
        if (known.kind == kind)
            found += QLatin1String(known.unit);
    }
    return found;
}

QString bodyUnit(FieldKind kind, bool isMetric)
{
    if (kind == FieldKind::BodyWeight)
        return isMetric ? u"kg"_s : u"lb"_s;
    return isMetric ? u"cm"_s : u"inch"_s;
}

double factorOf(FieldKind kind, const QString &unit, bool isMetric)
{
    const auto toMetric = [kind](const QString &named) {
        for (const UnitFactor &known : unitFactors()) {
            if (known.kind == kind && named == QLatin1String(known.unit))
                return known.factor;
        }
        return 1.0;
    };
    if (isMetric || (kind != FieldKind::BodyWeight && kind != FieldKind::Girth))
        return toMetric(unit);
    const QString stored = bodyUnit(kind, false);
    return unit == stored ? 1.0 : toMetric(unit) / toMetric(stored);
}
