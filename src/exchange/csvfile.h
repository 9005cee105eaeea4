// A file of comma-separated values while it is written.
#pragma once

#include "exchange/csvformat.h"

#include <QSaveFile>

#include <stdexcept>

/// A file or folder of an export can't be made or written; what() says why, in the system's words.
class ExportError : public std::runtime_error
{
public:
    explicit ExportError(const QString &why)
        : std::runtime_error(why.toStdString())
    {
    }
};

/// Row by row to the disk, with a carriage return and a line feed behind each. Everything that the
/// disk refuses throws ExportError.
class CsvFile
{
public:
    CsvFile(const QString &path, const CsvFormat &format);

    /// Adds a cell to the row.
    void add(const Value &value, CellKind kind = CellKind::Stored);
    void endRow();
    /// The file is on the disk when it returns. One without it is not there in the end.
    void commit();

private:
    void flush();

    QSaveFile m_file;
    CsvFormat m_format;
    QByteArray m_buffer;
    bool m_isRowBegun = false;
};
