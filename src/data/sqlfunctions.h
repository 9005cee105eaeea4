// The functions that the named commands use and the engine lacks or defines otherwise.
#pragma once

struct sqlite3;

/// Round (half to even, with one or two arguments) and Int (down). Null in, Null out.
void registerFunctions(sqlite3 *database);
