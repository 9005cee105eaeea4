// The engine without this program: prepared statements and nothing else.
#pragma once

#include "data/commands.h"
#include "data/connection.h"

#include <QList>

struct sqlite3_stmt;

/// A prepared statement of the C interface.
class BareStatement
{
public:
    BareStatement(Connection &connection, const char *sql);
    ~BareStatement();
    BareStatement(const BareStatement &) = delete;
    BareStatement &operator=(const BareStatement &) = delete;

    /// Binds whole numbers to the first parameters, runs the statement and reads every column of
    /// every row; the number of rows.
    int run(const QList<int> &parameters);

private:
    sqlite3_stmt *m_statement = nullptr;
    double m_sum = 0; ///< keeps the readings alive
};
