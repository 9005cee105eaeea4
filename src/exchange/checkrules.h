// What each column of the journal should hold.
#pragma once

#include "data/schema.h"
#include "session/localetext.h"

#include <SQLiteCpp/Column.h>

#include <QCoreApplication>

#include <optional>
#include <vector>

/// What a check says.
class CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(CheckTexts)
};

enum class CellRule
{
    Text,
    Quantity,  ///< a number, not negative
    Time,      ///< a fraction of a day
    Day,       ///< a whole day number that the windows can show
    UnitSystem ///< M or I
};

struct ColumnRule
{
    schema::Column column;
    CellRule rule;
    QString name; ///< in words
};

struct TableRules
{
    const schema::Table *table;
    QString title;                       ///< in words
    const char *order;                   ///< by day, where there is one
    const schema::Column *day = nullptr; ///< on which a record is
    const char *naming = nullptr;        ///< the statement that names a record by its key
    std::vector<ColumnRule> columns;
};

/// Of every table of the file, the catalogues first.
std::vector<TableRules> tableRules();

/// A sentence on a value that is not what it should be; none for one that is. Null is the engine's
/// to find.
std::optional<QString> faultOf(const ColumnRule &rule, const SQLite::Column &cell,
                               const LocaleText &text);

/// Whether a cell is a day that the windows can show.
bool isDay(const SQLite::Column &cell);
