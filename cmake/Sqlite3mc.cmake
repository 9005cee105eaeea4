# The database engine: SQLite with encryption, one C file. It is taken from a folder of the
# packager's (CORVANA_SQLITE3MC_DIR) or from a pinned package of the npm registry, whose files
# are verified by checksum before they are compiled.
set(SQLITE3MC_PACKAGE better-sqlite3-multiple-ciphers@12.11.1)
set(SQLITE3MC_ARCHIVE better-sqlite3-multiple-ciphers-12.11.1.tgz)
set(SQLITE3MC_ARCHIVE_SHA256 01388c78f46ce63c6aec021f67b364cc67bd637edba64f7add0c0230ce5f777a)

function(corvana_fetch_sqlite3mc result)
  set(folder ${CMAKE_SOURCE_DIR}/build/deps)
  set(source ${folder}/${SQLITE3MC_ARCHIVE_SHA256}/package/deps/sqlite3)
  if(NOT EXISTS ${source}/sqlite3.c)
    file(MAKE_DIRECTORY ${folder})
    find_program(NPM npm)
    if(NOT NPM)
      message(FATAL_ERROR "The database engine can't be fetched because npm is not installed; "
        "install npm or point -DCORVANA_SQLITE3MC_DIR= at a folder with its sqlite3.c and sqlite3.h.")
    endif()
    message(STATUS "Fetching the database engine (${SQLITE3MC_PACKAGE})")
    execute_process(
      COMMAND ${NPM} pack --loglevel=error ${SQLITE3MC_PACKAGE}
      WORKING_DIRECTORY ${folder}
      OUTPUT_QUIET ERROR_VARIABLE error RESULT_VARIABLE failed)
    if(failed)
      message(FATAL_ERROR "The database engine ${SQLITE3MC_PACKAGE} can't be fetched from the npm "
        "registry; point -DCORVANA_SQLITE3MC_DIR= at a folder with its sqlite3.c and sqlite3.h.\n${error}")
    endif()
    file(SHA256 ${folder}/${SQLITE3MC_ARCHIVE} found)
    if(NOT found STREQUAL SQLITE3MC_ARCHIVE_SHA256)
      file(REMOVE ${folder}/${SQLITE3MC_ARCHIVE})
      message(FATAL_ERROR "The fetched database engine is not the pinned one: "
        "SHA-256 ${found}, expected ${SQLITE3MC_ARCHIVE_SHA256}.")
    endif()
    file(ARCHIVE_EXTRACT INPUT ${folder}/${SQLITE3MC_ARCHIVE}
      DESTINATION ${folder}/${SQLITE3MC_ARCHIVE_SHA256} PATTERNS package/deps/sqlite3/*)
  endif()
  set(${result} ${source} PARENT_SCOPE)
endfunction()

if(CORVANA_SQLITE3MC_DIR)
  set(sqlite3mc_dir ${CORVANA_SQLITE3MC_DIR})
  if(NOT EXISTS ${sqlite3mc_dir}/sqlite3.c OR NOT EXISTS ${sqlite3mc_dir}/sqlite3.h)
    message(FATAL_ERROR "CORVANA_SQLITE3MC_DIR=${sqlite3mc_dir} holds no sqlite3.c and sqlite3.h.")
  endif()
else()
  corvana_fetch_sqlite3mc(sqlite3mc_dir)
endif()

# Optimized in every preset, and never instrumented: it is not ours to debug. Compiled alike, it is
# compiled once for all of them, beside everything else that they compile. Hidden symbols: a library
# of the desktop that brings the system's SQLite must not meet this one.
set(flags -O2 -w -fPIC -fvisibility=hidden
  -DSQLITE_DQS=0
  -DSQLITE_DEFAULT_FOREIGN_KEYS=1
  -DSQLITE_DEFAULT_MEMSTATUS=0
  -DSQLITE_TEMP_STORE=2
  -DSQLITE_LIKE_DOESNT_MATCH_BLOBS
  -DSQLITE_ENABLE_COLUMN_METADATA
  -DSQLITE_ENABLE_PREUPDATE_HOOK
  -DSQLITE_ENABLE_SESSION
  -DSQLITE_OMIT_DEPRECATED
  -DSQLITE_OMIT_SHARED_CACHE
  -DSQLITE_OMIT_PROGRESS_CALLBACK)
file(SHA256 ${sqlite3mc_dir}/sqlite3.c source_sum)
string(SHA256 sum "${CMAKE_C_COMPILER} ${CMAKE_C_COMPILER_VERSION} ${flags} ${source_sum}")
string(SUBSTRING ${sum} 0 16 sum)
set(SQLITE3MC_LIBRARY ${CMAKE_SOURCE_DIR}/build/deps/engine-${sum}/libsqlite3mc.a)
file(MAKE_DIRECTORY ${CMAKE_SOURCE_DIR}/build/deps/engine-${sum})
add_custom_command(
  OUTPUT ${SQLITE3MC_LIBRARY}
  COMMAND ${CMAKE_COMMAND} -D "compiler=${CMAKE_C_COMPILER}" -D "archiver=${CMAKE_AR}"
    -D "flags=${flags}" -D source=${sqlite3mc_dir}/sqlite3.c -D library=${SQLITE3MC_LIBRARY}
    -P ${CMAKE_SOURCE_DIR}/cmake/CompileEngine.cmake
  DEPENDS ${sqlite3mc_dir}/sqlite3.c
  COMMENT "Compiling the database engine"
  VERBATIM)
# Linked by its path: what is compiled against a target of CMake's would wait for the whole engine.
add_custom_target(engine DEPENDS ${SQLITE3MC_LIBRARY})
find_package(Threads REQUIRED)
add_library(sqlite3mc INTERFACE)
target_include_directories(sqlite3mc SYSTEM INTERFACE ${sqlite3mc_dir})
# The header declares the extension only where it is compiled in.
target_compile_definitions(sqlite3mc INTERFACE SQLITE_ENABLE_PREUPDATE_HOOK SQLITE_ENABLE_SESSION)
target_link_libraries(sqlite3mc INTERFACE
  ${SQLITE3MC_LIBRARY} ${CMAKE_DL_LIBS} Threads::Threads)
