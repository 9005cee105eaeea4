# What a program of Windows carries: its icon, its version and what it asks of the system.
find_program(ICOTOOL icotool)
if(NOT ICOTOOL)
  message(FATAL_ERROR "icotool, which makes the program's icon, is not installed (Debian: icoutils).")
endif()
set_target_properties(corvana PROPERTIES OUTPUT_NAME Corvana)

set(icon ${CMAKE_CURRENT_BINARY_DIR}/corvana.ico)
set(pictures "")
foreach(size 16 24 32 48 64 128 256)
  list(APPEND pictures ${CMAKE_BINARY_DIR}/icons/program/corvana-${size}.png)
endforeach()
add_custom_command(OUTPUT ${icon}
  COMMAND ${ICOTOOL} --create --output=${icon} ${pictures}
  DEPENDS ${pictures} VERBATIM)

set(manifest ${CMAKE_CURRENT_LIST_DIR}/corvana.manifest)
set(resources ${CMAKE_CURRENT_BINARY_DIR}/corvana.rc)
configure_file(${CMAKE_CURRENT_LIST_DIR}/corvana.rc.in ${resources} @ONLY)
set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${icon};${manifest}")
target_sources(corvana PRIVATE ${resources})
