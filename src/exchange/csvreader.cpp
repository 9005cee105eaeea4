#include "exchange/csvreader.h"

#include <QCoreApplication>

#include <algorithm>
#include <csv.h>
#include <limits>
#include <new>

namespace {

class CsvTexts
{
    Q_DECLARE_TR_FUNCTIONS(CsvTexts)
};

/// The library's parser, which tells of no lines: it is given one at a time.
class Parser
{
public:
    explicit Parser(char separator)
    {
        if (csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI | CSV_EMPTY_IS_NULL) != 0)
            throw std::bad_alloc();
        csv_set_delim(&m_parser, static_cast<unsigned char>(separator));
        // Blanks belong to their cell.
        csv_set_space_func(&m_parser, [](unsigned char) { return 0; });
    }
    ~Parser() { csv_free(&m_parser); }
    Parser(const Parser &) = delete;
    Parser &operator=(const Parser &) = delete;

    /// False where it breaks the rules.
    bool parse(QByteArrayView line)
    {
        return csv_parse(&m_parser, line.data(), size_t(line.size()), &Parser::addCell,
                         &Parser::endRecord, this) == size_t(line.size());
    }
    bool finish() { return csv_fini(&m_parser, &Parser::addCell, &Parser::endRecord, this) == 0; }

    bool isRecordWhole() const { return m_isWhole; }
    QStringList takeRecord()
    {
        m_isWhole = false;
        return std::exchange(m_cells, {});
    }

private:
    static void addCell(void *bytes, size_t size, void *self)
    {
        static_cast<Parser *>(self)->m_cells +=
            bytes ? QString::fromUtf8(static_cast<const char *>(bytes), qsizetype(size))
                  : QString();
    }
    static void endRecord(int, void *self) { static_cast<Parser *>(self)->m_isWhole = true; }

    csv_parser m_parser;
    QStringList m_cells;
    bool m_isWhole = false;
};

/// With their ends.
std::vector<QByteArrayView> linesOf(const QByteArray &text)
{
    std::vector<QByteArrayView> lines;
    lines.reserve(size_t(std::count(text.begin(), text.end(), '\n')) + 1);
    for (qsizetype from = 0; from < text.size();) {
        qsizetype to = from;
        while (to < text.size() && text[to] != '\n' && text[to] != '\r')
            ++to;
        if (to < text.size())
            to += text.mid(to, 2) == "\r\n" ? 2 : 1;
        lines.push_back(QByteArrayView(text).sliced(from, to - from));
        from = to;
    }
    return lines;
}

bool isBlank(QByteArrayView line)
{
    return line.trimmed().isEmpty() && !line.contains('\t');
}

std::vector<CsvRecord> records(const std::vector<QByteArrayView> &lines, size_t first,
                               char separator, size_t most)
{
    std::vector<CsvRecord> found;
    found.reserve(std::min(lines.size(), most));
    for (size_t begin = first; begin < lines.size() && found.size() < most;) {
        if (isBlank(lines[begin])) {
            ++begin;
            continue;
        }
        Parser parser(separator);
        size_t end = begin;
        bool isSound = true;
        while (isSound && end < lines.size() && !parser.isRecordWhole())
            isSound = parser.parse(lines[end++]);
        if (isSound && !parser.isRecordWhole())
            isSound = parser.finish();
        CsvRecord record{int(begin) + 1};
        if (isSound) {
            record.cells = parser.takeRecord();
        } else {
            record.fault = CsvTexts::tr("A quotation mark is not closed, or stands within a cell: "
                                        "the cell has to be quoted and the mark doubled.");
            end = begin + 1; // it has swallowed what it should not have
        }
        found.push_back(std::move(record));
        begin = end;
    }
    return found;
}

/// How well the records fit together.
double evenness(const std::vector<CsvRecord> &records)
{
    const qsizetype columns = records.empty() ? 0 : records.front().cells.size();
    if (columns < 2)
        return 0;
    const auto alike = std::count_if(records.begin(), records.end(), [&](const CsvRecord &record) {
        return record.cells.size() == columns;
    });
    return double(alike) / double(records.size()) + double(columns) / 10000;
}

constexpr size_t allRecords = std::numeric_limits<size_t>::max();

} // namespace

QString libcsvVersion()
{
    return QStringLiteral("%1.%2.%3").arg(CSV_MAJOR).arg(CSV_MINOR).arg(CSV_RELEASE);
}

std::vector<CsvRecord> readCsv(const QString &text, char separator)
{
    const QByteArray bytes = text.toUtf8();
    return records(linesOf(bytes), 0, separator, allRecords);
}

CsvText readCsv(const QString &text)
{
    constexpr size_t sample = 50;
    const QByteArray bytes = text.toUtf8();
    const std::vector<QByteArrayView> lines = linesOf(bytes);
    if (lines.empty())
        return {',', {}};
    char separator = ',';
    double best = 0;
    for (const char candidate : {',', ';', '\t', '|'}) {
        if (QByteArray("sep=") + candidate ==
            lines.front().trimmed().toByteArray().leftJustified(5, '\t'))
            return {candidate, records(lines, 1, candidate, allRecords)};
        const double even = evenness(records(lines, 0, candidate, sample));
        if (even > best) {
            best = even;
            separator = candidate;
        }
    }
    return {separator, records(lines, 0, separator, allRecords)};
}
