#include "bareengine.h"

#include <sqlite3.h>

BareStatement::BareStatement(Connection &connection, const char *sql)
{
    if (sqlite3_prepare_v2(connection.database().getHandle(), sql, -1, &m_statement, nullptr) !=
        SQLITE_OK)
        qFatal("%s: %s", sql, sqlite3_errmsg(connection.database().getHandle()));
}

BareStatement::~BareStatement()
{
    sqlite3_finalize(m_statement);
}

int BareStatement::run(const QList<int> &parameters)
{
    int index = 0;
    for (const int parameter : parameters)
        sqlite3_bind_int(m_statement, ++index, parameter);
    int rows = 0;
    int result = SQLITE_DONE;
    while ((result = sqlite3_step(m_statement)) == SQLITE_ROW) {
        ++rows;
        for (int column = 0; column < sqlite3_column_count(m_statement); ++column) {
            if (sqlite3_column_type(m_statement, column) == SQLITE_TEXT)
                m_sum += sqlite3_column_text(m_statement, column)[0];
            else
                m_sum += sqlite3_column_double(m_statement, column);
        }
    }
    if (result != SQLITE_DONE)
        qFatal("a bare statement failed with code %d", result);
    sqlite3_reset(m_statement);
    return rows;
}
