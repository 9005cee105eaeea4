# Read by CPack for each kind of package: which component of the installation it holds, and where.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(component system)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(component relocatable)
  set(CPACK_PACKAGE_FILE_NAME
    Corvana-${CPACK_PACKAGE_VERSION}-linux-${CPACK_CORVANA_PROCESSOR})
endif()
string(REPLACE ";ALL;" ";${component};" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
