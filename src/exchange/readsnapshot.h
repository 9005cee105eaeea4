// One state of the file for everything that is read.
#pragma once

#include "data/connection.h"

/// A transaction that only reads: from its first row on, no other program can store anything, until
/// it ends. Statements on it must be gone before it is. Throws StoreError.
class ReadSnapshot
{
public:
    explicit ReadSnapshot(Connection &connection)
        : m_connection(connection)
    {
        m_connection.exec("begin");
    }
    ~ReadSnapshot() { m_connection.database().tryExec("rollback"); }
    ReadSnapshot(const ReadSnapshot &) = delete;
    ReadSnapshot &operator=(const ReadSnapshot &) = delete;

private:
    Connection &m_connection;
};
