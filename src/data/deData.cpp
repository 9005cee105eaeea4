#include "data/deData.h"

int deData::run(const Command &command, std::initializer_list<Value> values)
{
    return guarded([&] {
        SQLite::Statement &statement = Con.prepared(command.sql);
        bindParameters(statement, command, values);
        const int changed = statement.exec();
        statement.tryReset();
        return changed;
    });
}

int deData::run(const char *sql)
{
    return guarded([&] { return Con.database().exec(sql); });
}
