#include "data/deData.h"

int deData::run(const Command &command, std::initializer_list<Value> values)
{
    WriteTransaction transaction(Con);
    const int changed = guarded([&] {
        const StatementUse statement = Con.prepared(command.sql);
        bindParameters(*statement, command, values);
        return statement->exec();
    });
    transaction.commit();
    return changed;
}

int deData::run(const char *sql)
{
    WriteTransaction transaction(Con);
    const int changed = guarded([&] { return Con.database().exec(sql); });
    transaction.commit();
    return changed;
}
