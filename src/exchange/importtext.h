// The text of a file that is to be imported.
#pragma once

#include <QString>

#include <stdexcept>

/// A file can't be imported at all; what() is a sentence for the user.
class ImportError : public std::runtime_error
{
public:
    explicit ImportError(const QString &why)
        : std::runtime_error(why.toStdString())
    {
    }
};

struct ImportText
{
    QString text;
    QString encoding; ///< as it was recognized
    bool hasMark;     ///< a byte order mark, which is not in the text
};

/// UTF-8 and UTF-16 by their byte order mark, UTF-8 by itself, too, and Windows-1252 for what is
/// none. Throws ImportError for what is no text in one of them.
ImportText decodeImport(const QByteArray &bytes);

/// The text of a file of at most 100 MB. Throws ImportError.
ImportText readImport(const QString &path);
