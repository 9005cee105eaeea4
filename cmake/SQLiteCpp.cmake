# The library itself is linked: SQLiteCpp's own CMake target would bring the system's SQLite in
# beside the engine of this program. It is the distribution's, or where that has none for the
# machine that is built for, made from the same source: CORVANA_SQLITECPP_SOURCE.
set(CORVANA_SQLITECPP_SOURCE "" CACHE PATH "Folder with the source of SQLiteCpp; empty: the installed one")

if(CORVANA_SQLITECPP_SOURCE)
  file(GLOB sources ${CORVANA_SQLITECPP_SOURCE}/src/*.cpp)
  if(NOT sources)
    message(FATAL_ERROR "CORVANA_SQLITECPP_SOURCE=${CORVANA_SQLITECPP_SOURCE} holds no SQLiteCpp.")
  endif()
  add_library(sqlitecpp STATIC ${sources})
  target_include_directories(sqlitecpp SYSTEM PUBLIC ${CORVANA_SQLITECPP_SOURCE}/include)
  target_compile_definitions(sqlitecpp PRIVATE SQLITE_ENABLE_COLUMN_METADATA)
  target_compile_options(sqlitecpp PRIVATE -w) # it is not ours to put right
  target_link_libraries(sqlitecpp PUBLIC sqlite3mc)
  set_target_properties(sqlitecpp PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
  return()
endif()

find_path(SQLITECPP_INCLUDE_DIR SQLiteCpp/SQLiteCpp.h)
find_library(SQLITECPP_LIBRARY NAMES libSQLiteCpp.a SQLiteCpp)
if(NOT SQLITECPP_INCLUDE_DIR OR NOT SQLITECPP_LIBRARY)
  message(FATAL_ERROR "SQLiteCpp is not installed (Debian: libsqlitecpp-dev).")
endif()
add_library(sqlitecpp INTERFACE)
target_include_directories(sqlitecpp SYSTEM INTERFACE ${SQLITECPP_INCLUDE_DIR})
target_link_libraries(sqlitecpp INTERFACE ${SQLITECPP_LIBRARY} sqlite3mc)
