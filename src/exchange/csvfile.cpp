#include "exchange/csvfile.h"

CsvFile::CsvFile(const QString &path, const CsvFormat &format)
    : m_file(path)
    , m_format(format)
    , m_buffer(format.mark())
{
    if (!m_file.open(QIODevice::WriteOnly))
        throw ExportError(m_file.errorString());
}

void CsvFile::add(const Value &value, CellKind kind)
{
    if (m_isRowBegun)
        m_buffer += m_format.separator();
    m_isRowBegun = true;
    m_buffer += m_format.cell(value, kind);
}

void CsvFile::endRow()
{
    constexpr qsizetype enough = 65536;
    m_buffer += "\r\n";
    m_isRowBegun = false;
    if (m_buffer.size() >= enough)
        flush();
}

void CsvFile::commit()
{
    flush();
    if (!m_file.commit())
        throw ExportError(m_file.errorString());
}

void CsvFile::flush()
{
    if (m_file.write(m_buffer) != m_buffer.size() || !m_file.flush())
        throw ExportError(m_file.errorString());
    m_buffer.clear();
}
