# The reader of comma-separated values. It is the distribution's, or where that has none for the
# machine that is built for, made from the same source: CORVANA_LIBCSV_SOURCE.
set(CORVANA_LIBCSV_SOURCE "" CACHE PATH "Folder with the source of libcsv; empty: the installed one")

if(CORVANA_LIBCSV_SOURCE)
  if(NOT EXISTS ${CORVANA_LIBCSV_SOURCE}/libcsv.c)
    message(FATAL_ERROR "CORVANA_LIBCSV_SOURCE=${CORVANA_LIBCSV_SOURCE} holds no libcsv.c.")
  endif()
  add_library(libcsv STATIC ${CORVANA_LIBCSV_SOURCE}/libcsv.c)
  target_include_directories(libcsv SYSTEM PUBLIC ${CORVANA_LIBCSV_SOURCE})
  target_compile_options(libcsv PRIVATE -w) # it is not ours to put right
  set_target_properties(libcsv PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
  return()
endif()

find_path(LIBCSV_INCLUDE_DIR csv.h)
find_library(LIBCSV_LIBRARY NAMES libcsv.a csv)
if(NOT LIBCSV_INCLUDE_DIR OR NOT LIBCSV_LIBRARY)
  message(FATAL_ERROR "libcsv is not installed (Debian: libcsv-dev).")
endif()
add_library(libcsv INTERFACE)
target_include_directories(libcsv SYSTEM INTERFACE ${LIBCSV_INCLUDE_DIR})
target_link_libraries(libcsv INTERFACE ${LIBCSV_LIBRARY})
