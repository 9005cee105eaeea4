# The program and its folder: corvana, Corvana.mdb and Corvana.hlp side by side, in
# build/<preset>/program/ and in the folder that is installed to. A Corvana.mdb that exists there is
# the user's journal and stays as it is.
set(corvana_program_folder ${CMAKE_BINARY_DIR}/program)
add_custom_target(program_folder ALL)

if(EXISTS ${CMAKE_SOURCE_DIR}/src/app/main.cpp)
  add_executable(corvana src/app/main.cpp)
  target_link_libraries(corvana PRIVATE corvana_windows corvana_compiler)
  target_compile_definitions(corvana PRIVATE CORVANA_VERSION="${PROJECT_VERSION}")
  set_target_properties(corvana PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${corvana_program_folder}
    WIN32_EXECUTABLE ON)
  if(WIN32)
    include(packaging/windows/program.cmake)
  endif()
  install(TARGETS corvana RUNTIME DESTINATION . COMPONENT relocatable)
  add_dependencies(program_folder corvana)
endif()

if(TARGET delivered_database)
  set(database ${CMAKE_BINARY_DIR}/delivered/Corvana.mdb)
  set(copy ${CMAKE_SOURCE_DIR}/cmake/CopyIfMissing.cmake)
  add_custom_target(program_database
    COMMAND ${CMAKE_COMMAND} -D from=${database} -D to=${corvana_program_folder}/Corvana.mdb -P ${copy}
    COMMENT "Providing a journal where the program folder has none" VERBATIM)
  add_dependencies(program_database delivered_database)
  add_dependencies(program_folder program_database)
  install(CODE "
    set(from \"${database}\")
    set(to \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Corvana.mdb\")
    include(\"${copy}\")" COMPONENT relocatable)
endif()

if(TARGET help_file)
  set(help_file ${CMAKE_BINARY_DIR}/help/Corvana.hlp)
  add_custom_target(program_help
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${help_file} ${corvana_program_folder}/Corvana.hlp
    COMMENT "Bringing the help file into the program folder" VERBATIM)
  add_dependencies(program_help help_file)
  add_dependencies(program_folder program_help)
  install(FILES ${help_file} DESTINATION . COMPONENT relocatable)
endif()

if(CMAKE_SYSTEM_NAME STREQUAL Linux AND TARGET corvana)
  include(packaging/linux/packages.cmake)
endif()
