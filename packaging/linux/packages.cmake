# The program as packages for Linux, which packaging/linux/build makes by CPack: an archive whose
# folder runs wherever it is unpacked, and a package of the system. What each holds is a component
# of the installation: "relocatable", which is also what a plain `cmake --install` installs, and "system".
set(CORVANA_PACKAGE_RELEASE 1 CACHE STRING "Counts the packages made of one version")
set(files ${CMAKE_CURRENT_LIST_DIR})
set(packed ${CMAKE_BINARY_DIR}/linux)
set(maintainer "Corvana developers <corvana@example.org>")
include(GNUInstallDirs)

# What may not change is compressed without names and times of this machine.
set(compressed "")
function(compress input output)
  add_custom_command(OUTPUT ${packed}/${output}
    COMMAND sh -c "gzip -9nc '${input}' >'${packed}/${output}'"
    DEPENDS ${input} VERBATIM)
  set(compressed ${compressed} ${packed}/${output} PARENT_SCOPE)
endfunction()

foreach(text changelog corvana.1 org.example.corvana.metainfo.xml)
  configure_file(${files}/${text}.in ${packed}/${text} @ONLY)
endforeach()
compress(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog.gz)
compress(${packed}/changelog changelog.Debian.gz)
compress(${packed}/corvana.1 corvana.1.gz)
add_custom_target(package_files DEPENDS ${compressed})
add_dependencies(package_files program_folder desktop_icons)

install(FILES ${files}/README.txt ${CMAKE_SOURCE_DIR}/packaging/copyright ${CMAKE_SOURCE_DIR}/LICENSE
  DESTINATION . COMPONENT relocatable EXCLUDE_FROM_ALL)

macro(install_in_system)
  install(${ARGN} COMPONENT system EXCLUDE_FROM_ALL)
endmacro()
install_in_system(TARGETS corvana RUNTIME DESTINATION bin)
# Where the class Installation looks for it, from the executable.
install_in_system(FILES ${database} ${help_file} DESTINATION share/corvana)
install_in_system(FILES ${files}/corvana.desktop DESTINATION share/applications)
install_in_system(FILES ${packed}/org.example.corvana.metainfo.xml DESTINATION share/metainfo)
install_in_system(FILES ${packed}/corvana.1.gz DESTINATION share/man/man1)
install_in_system(FILES ${CMAKE_SOURCE_DIR}/packaging/copyright ${CMAKE_SOURCE_DIR}/README.md
  ${packed}/changelog.gz ${packed}/changelog.Debian.gz DESTINATION share/doc/corvana)
install_in_system(FILES ${files}/lintian-overrides DESTINATION share/lintian/overrides RENAME corvana)
foreach(size ${desktop_icon_sizes})
  install_in_system(FILES ${CMAKE_BINARY_DIR}/icons/desktop/corvana-${size}.png
    DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME corvana.png)
endforeach()
install_in_system(FILES ${CMAKE_SOURCE_DIR}/icons/corvana.svg
  DESTINATION share/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR TXZ DEB)
set(CPACK_PROJECT_CONFIG_FILE ${files}/cpack.cmake)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_CORVANA_PROCESSOR ${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_NAME corvana)
set(CPACK_PACKAGE_VENDOR "The Corvana developers")
set(CPACK_PACKAGE_CONTACT ${maintainer})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "journal of what a person eats, does and weighs")
set(CPACK_PACKAGE_DESCRIPTION
"Corvana records meals, activities, body measurements and notes, day by day.
It draws the day as a chart of what was eaten against what the body burns,
and months as one of shape, balance and notes. It comes with catalogues of
foods and activities.

The journal is one file in the user's own folder; there is no account and
no network.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CORVANA_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
