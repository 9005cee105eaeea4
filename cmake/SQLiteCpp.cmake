# The archive itself is linked: SQLiteCpp's own CMake target would bring the system's SQLite in
# beside the engine of this program.
find_path(SQLITECPP_INCLUDE_DIR SQLiteCpp/SQLiteCpp.h)
find_library(SQLITECPP_LIBRARY NAMES libSQLiteCpp.a SQLiteCpp)
if(NOT SQLITECPP_INCLUDE_DIR OR NOT SQLITECPP_LIBRARY)
  message(FATAL_ERROR "SQLiteCpp is not installed (Debian: libsqlitecpp-dev).")
endif()
add_library(sqlitecpp INTERFACE)
target_include_directories(sqlitecpp SYSTEM INTERFACE ${SQLITECPP_INCLUDE_DIR})
target_link_libraries(sqlitecpp INTERFACE ${SQLITECPP_LIBRARY} sqlite3mc)
