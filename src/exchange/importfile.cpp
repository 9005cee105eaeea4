#include "exchange/importfile.h"

#include "exchange/exporttables.h"
#include "exchange/importtext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals;

namespace {

class ImportFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportFileTexts)
};

bool isUsed(const ImportFile &file, int column)
{
    return std::any_of(file.matches.begin(), file.matches.end(),
                       [&](const FieldMatch &match) { return match.column == column; });
}

QStringList cellsOf(const ImportFile &file, int column)
{
    QStringList cells;
    for (const CsvRecord &record : file.records) {
        if (const QString cell = record.cells.value(column); !cell.isEmpty())
            cells += cell;
    }
    return cells;
}

bool isNumber(FieldKind kind)
{
    return kind != FieldKind::Text && kind != FieldKind::Date && kind != FieldKind::Time;
}

/// Of the columns that a field may be called, a free one, and rather one in the stored unit.
int columnCalled(const ImportFile &file, const ImportField &field, bool wholeHeader)
{
    const QStringList units = unitsOf(field.kind);
    int found = -1;
    for (int column = 0; column < file.headers.size(); ++column) {
        const QString &header = file.headers[column];
        const QString name =
            wholeHeader ? header.simplified().toLower().replace(u'_', u' ') : columnName(header);
        if (!field.names.contains(name) || isUsed(file, column))
            continue;
        if (units.isEmpty() || unitInHeader(header, field.kind) == units.front())
            return column;
        found = found < 0 ? column : found;
    }
    return found;
}

// Round by round: what has a name of its own must not be taken by a field that might be meant.
void findColumns(ImportFile &file)
{
    const std::vector<ImportField> &fields = file.table().fields;
    const auto match = [&](const std::function<int(const ImportField &)> &columnOf) {
        for (size_t i = 0; i < fields.size(); ++i) {
            if (file.matches[i].column < 0)
                file.matches[i].column = columnOf(fields[i]);
        }
    };
    match([&](const ImportField &field) {
        return int(file.headers.indexOf(QLatin1String(field.header)));
    });
    match([&](const ImportField &field) { return columnCalled(file, field, true); });
    match([&](const ImportField &field) { return columnCalled(file, field, false); });
}

void findTimeBehindDate(ImportFile &file, const ImportPlace &place)
{
    const std::vector<ImportField> &fields = file.table().fields;
    if (fields.size() < 2 || fields[1].kind != FieldKind::Time || file.matches[1].column >= 0 ||
        file.matches[0].column < 0)
        return;
    const QStringList dates = cellsOf(file, file.matches[0].column);
    if (!dates.isEmpty() && hasTimeBehindDate(dates.front()))
        matchColumn(file, 1, file.matches[0].column, place);
}

/// What the figures of a food are for, where a header says so.
QString portionOf(const ImportFile &file)
{
    for (const FieldMatch &match : file.matches) {
        QString portion = portionInHeader(file.headers.value(match.column));
        if (!portion.isEmpty())
            return portion;
    }
    return {};
}

/// How much speaks for a kind; nothing where it is not above 0.
int fitness(const ImportFile &file)
{
    int sum = 0;
    for (size_t i = 0; i < file.matches.size(); ++i) {
        const ImportField &field = file.table().fields[i];
        const bool isMatched = file.matches[i].column >= 0;
        if (isMatched)
            sum += field.isRequired ? 3 : 1;
        else if (field.isRequired && field.whenEmpty.isEmpty())
            sum -= 2;
    }
    return sum;
}

bool isExportOf(const ImportFile &file, const ExportTable &table)
{
    return std::equal(file.headers.begin(), file.headers.end(), table.columns.begin(),
                      table.columns.end(), [](const QString &header, const ExportColumn &column) {
                          return header == QLatin1String(column.header);
                      });
}

/// Matches by the headers alone.
void matchNames(ImportFile &file, ImportKind kind)
{
    file.kind = kind;
    file.matches.clear();
    for (const ImportField &field : file.table().fields)
        file.matches.push_back({-1, field.whenEmpty, unitsOf(field.kind).value(0)});
    findColumns(file);
}

void recognize(ImportFile &file, const ImportPlace &place)
{
    for (const ExportTable &exported : exportTables()) {
        if (!isExportOf(file, exported))
            continue;
        file.isExport = true;
        for (const ImportTable &table : importTables()) {
            if (qstrcmp(table.table->name(), exported.file) == 0)
                takeAs(file, table.kind, place);
        }
        return;
    }
    if (file.headers.contains(u"ProgressBalance (kcal)"_s))
        return; // the days of an export, which are made from the other files
    int best = 0;
    std::optional<ImportKind> kind;
    for (const ImportTable &table : importTables()) {
        matchNames(file, table.kind);
        if (const int fits = fitness(file); fits > best) {
            best = fits;
            kind = table.kind;
        }
    }
    takeAs(file, kind, place);
}

} // namespace

QString ImportFile::name() const
{
    return QFileInfo(path).fileName();
}

QStringList ImportFile::leftOut() const
{
    QStringList headersLeft;
    for (int column = 0; column < headers.size(); ++column) {
        if (!isUsed(*this, column))
            headersLeft += headers[column];
    }
    return headersLeft;
}

ImportFile readImportFile(const QString &path, const ImportPlace &place)
{
    const ImportText text = readImport(path);
    CsvText csv = readCsv(text.text);
    ImportFile file;
    file.path = path;
    file.encoding = text.encoding;
    file.separator = csv.separator;
    file.isForSpreadsheets = text.hasMark;
    std::erase_if(csv.records, [](const CsvRecord &record) {
        return record.fault.isEmpty() &&
               std::all_of(record.cells.begin(), record.cells.end(),
                           [](const QString &cell) { return cell.isNull(); });
    });
    if (csv.records.empty() || !csv.records.front().fault.isEmpty())
        throw ImportError(ImportFileTexts::tr("Its first line has to name the columns."));
    file.headers = csv.records.front().cells;
    csv.records.erase(csv.records.begin());
    file.records = std::move(csv.records);
    recognize(file, place);
    return file;
}

QStringList tableFilesIn(const QString &folder)
{
    QStringList paths;
    const QDir directory(folder);
    for (const QString &name :
         directory.entryList({u"*.csv"_s, u"*.tsv"_s, u"*.txt"_s}, QDir::Files, QDir::Name))
        paths += directory.filePath(name);
    return paths;
}

void takeAs(ImportFile &file, std::optional<ImportKind> kind, const ImportPlace &place)
{
    file.kind.reset();
    file.matches.clear();
    if (!kind)
        return;
    matchNames(file, *kind);
    for (size_t i = 0; i < file.matches.size(); ++i)
        matchColumn(file, i, file.matches[i].column, place);
    findTimeBehindDate(file, place);
    if (kind == ImportKind::Meals)
        file.matches[file.table().fieldOf("Unit")].whenEmpty = portionOf(file);
}

void matchColumn(ImportFile &file, size_t field, int column, const ImportPlace &place)
{
    FieldMatch &match = file.matches.at(field);
    const FieldKind kind = file.table().fields.at(field).kind;
    match.column = column;
    if (column < 0)
        return;
    const QStringList units = unitsOf(kind);
    const QString named = unitInHeader(file.headers[column], kind);
    match.unit = named.isEmpty() ? units.value(0) : named;
    if (named.isEmpty() && (kind == FieldKind::BodyWeight || kind == FieldKind::Girth))
        match.unit.clear(); // the user's own, or what the record says
    const bool isSemicolon = file.separator == ';';
    if (file.isExport) {
        match.hasDecimalComma = isSemicolon;
    } else if (isNumber(kind)) {
        const int commas = decimalCommas(cellsOf(file, column));
        match.hasDecimalComma = commas > 0 || (commas == 0 && isSemicolon);
    }
    if (kind == FieldKind::Date)
        match.dateOrder = dateOrderOf(cellsOf(file, column), place);
}
