# What differs between the kinds of packages; read anew for each.
if(CPACK_GENERATOR STREQUAL "DEB")
    string(REPLACE ";ALL;" ";debian;" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
    set(CPACK_PACKAGING_INSTALL_PREFIX "/")
else()
    string(REPLACE ";ALL;" ";archive;" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
endif()
