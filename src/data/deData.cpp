#include "data/deData.h"

deData::deData(const QString &path, const FilePassword &password)
    : Con(path, password)
{
}

deData::~deData() = default;

int deData::run(const Command &command, std::initializer_list<Value> values)
{
    return Con.write(command.sql, [&](SQLite::Statement &statement) {
        bindParameters(statement, command, values);
    });
}

int deData::run(const char *sql)
{
    return Con.write(sql, std::vector<Value>());
}
