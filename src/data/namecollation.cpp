#include "data/namecollation.h"

#include <sqlite3.h>

#include <algorithm>

namespace {

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

int sign(int comparison)
{
    return (comparison > 0) - (comparison < 0);
}

int compareStored(void *, int lengthA, const void *a, int lengthB, const void *b)
{
    const auto view = [](int bytes, const void *text) {
        return QStringView(static_cast<const char16_t *>(text), bytes / 2);
    };
    return compareNames(view(lengthA, a), view(lengthB, b));
}

} // namespace

QString foldedForSearch(const QString &text)
{
    if (isAscii(text))
        return text.toLower();
    QString folded;
    for (const QChar c : text.toCaseFolded().normalized(QString::NormalizationForm_KD)) {
        if (!c.isMark())
            folded += c;
    }
    return folded;
}

int compareNames(QStringView a, QStringView b)
{
    if (isAscii(a) && isAscii(b))
        return sign(a.compare(b, Qt::CaseInsensitive));
    const QString textA = a.toString();
    const QString textB = b.toString();
    if (const int letters = sign(foldedForSearch(textA).compare(foldedForSearch(textB))))
        return letters;
    return sign(nameKey(textA).compare(nameKey(textB)));
}

QString nameKey(const QString &name)
{
    return isAscii(name) ? name.toLower()
                         : name.toCaseFolded().normalized(QString::NormalizationForm_C);
}

void registerNameCollation(sqlite3 *database)
{
    sqlite3_create_collation_v2(database, nameCollation, SQLITE_UTF16, nullptr, &compareStored,
                                nullptr);
}
