// How names compare and sort.
#pragma once

#include <QString>

struct sqlite3;

/// Name of the collation in the schema.
inline constexpr char nameCollation[] = "CORVANA_NAME";

/// Orders names without regard to case: letters with accents beside their plain ones, whatever
/// the user's locale, since an index on disk must mean the same everywhere. 0 only for names that
/// differ in case alone.
int compareNames(QStringView a, QStringView b);

/// Equal for two names exactly where compareNames() is 0.
QString nameKey(const QString &name);

/// The text without case and accents, for finding by typing.
QString foldedForSearch(const QString &text);

void registerNameCollation(sqlite3 *database);
