// Whether schema.sql makes the tables that the program counts on.
#pragma once

class Connection;

namespace delivered {

/// Throws SourceError, naming the first table or column that differs, unless the file has exactly
/// the tables and columns of schema::tables, in their order, with their types and "not null".
void checkSchema(Connection &connection);

} // namespace delivered
