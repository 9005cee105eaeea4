#include "backup/integrity.h"

#include "data/connection.h"

bool isWhole(Connection &connection)
{
    // The look at an index jumps through its table. With less room than a large journal takes, each
    // page would be read and decrypted many times.
    connection.exec("PRAGMA cache_size=-65536"); // kibibytes
    return guarded([&] {
        SQLite::Statement check(connection.database(), "PRAGMA integrity_check(1)");
        return check.executeStep() && check.getColumn(0).getString() == "ok";
    });
}
