#include "data/sqlfunctions.h"

#include "data/numbers.h"

#include <sqlite3.h>

#include <cmath>

namespace {

void roundFunction(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    for (int i = 0; i < count; ++i) {
        if (sqlite3_value_type(arguments[i]) == SQLITE_NULL)
            return; // a function that sets no result returns Null
    }
    const double value = sqlite3_value_double(arguments[0]);
    sqlite3_result_double(context, count == 1
                                       ? roundHalfEven(value)
                                       : roundHalfEven(value, sqlite3_value_int(arguments[1])));
}

void intFunction(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) != SQLITE_NULL)
        sqlite3_result_double(context, std::floor(sqlite3_value_double(arguments[0])));
}

} // namespace

void registerFunctions(sqlite3 *database)
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const auto add = [&](const char *name, int count, auto function) {
        sqlite3_create_function_v2(database, name, count, flags, nullptr, function, nullptr,
                                   nullptr, nullptr);
    };
    add("Round", 1, &roundFunction);
    add("Round", 2, &roundFunction);
    add("Int", 1, &intFunction);
}
