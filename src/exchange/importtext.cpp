#include "exchange/importtext.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>

namespace {

class ImportTextWords
{
    Q_DECLARE_TR_FUNCTIONS(ImportTextWords)
};

std::optional<QString> decoded(QStringConverter::Encoding encoding, const QByteArray &bytes)
{
    QStringDecoder decoder(encoding);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

// The upper half is that of Latin-1, but for these.
std::optional<QString> fromWindows1252(const QByteArray &bytes)
{
    constexpr std::array<char16_t, 32> from80 = {
        0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    QString text = QString::fromLatin1(bytes);
    for (QChar &c : text) {
        if (c.unicode() < 0x80 || c.unicode() >= 0xA0)
            continue;
        c = QChar(from80[size_t(c.unicode() - 0x80)]);
        if (c.isNull())
            return std::nullopt;
    }
    return text;
}

bool isText(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.unicode() < 0x20 && c != u'\t' && c != u'\n' && c != u'\r' && c != u'\f';
    });
}

} // namespace

ImportText decodeImport(const QByteArray &bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    std::optional<QString> text = decoded(marked.value_or(QStringConverter::Utf8), bytes);
    QString encoding = QString::fromLatin1(
        QStringConverter::nameForEncoding(marked.value_or(QStringConverter::Utf8)));
    if (!marked && !text) {
        text = fromWindows1252(bytes);
        encoding = QStringLiteral("Windows-1252");
    }
    if (!text || !isText(*text))
        throw ImportError(ImportTextWords::tr("It is no text in UTF-8, UTF-16 or Windows-1252."));
    if (text->trimmed().isEmpty())
        throw ImportError(ImportTextWords::tr("It is empty."));
    return {*text, encoding, marked.has_value()};
}

ImportText readImport(const QString &path)
{
    constexpr qint64 most = 100'000'000;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ImportError(file.errorString());
    if (file.size() > most)
        throw ImportError(ImportTextWords::tr("It is larger than 100 MB."));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw ImportError(file.errorString());
    return decodeImport(bytes);
}
