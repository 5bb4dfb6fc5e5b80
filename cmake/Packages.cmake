# The packages that "cmake --build BUILD --target package" makes: a .deb with a program folder for each edition under
# /opt/gradewell, and a .tar.gz with the same two folders. Each has install rules of its own, so that a plain install
# of an edition stays its program folder and nothing else.

# gradewell_packaged(PROGRAM EDITION): the program folder of the edition in both packages, and its entry in the menu.
function(gradewell_packaged program edition)
    foreach(package IN ITEMS archive debian)
        set(folder ${edition})
        if(package STREQUAL "debian")
            set(folder opt/gradewell/${edition})
        endif()
        install(TARGETS ${program} RUNTIME DESTINATION ${folder} COMPONENT ${package} EXCLUDE_FROM_ALL)
        install(FILES "${PROJECT_BINARY_DIR}/manuals/${edition}/Gradewell Config.PDF" DESTINATION ${folder}/Manuals
            COMPONENT ${package} EXCLUDE_FROM_ALL)
    endforeach()
    install(FILES packaging/debian/${program}.desktop DESTINATION usr/share/applications
        COMPONENT debian EXCLUDE_FROM_ALL)
    foreach(size IN ITEMS 16 32 48 256)
        install(FILES resources/pictures/icon-${size}.png RENAME ${program}.png COMPONENT debian EXCLUDE_FROM_ALL
            DESTINATION usr/share/icons/hicolor/${size}x${size}/apps)
    endforeach()
    install(FILES resources/pictures/icon.svg RENAME ${program}.svg COMPONENT debian EXCLUDE_FROM_ALL
        DESTINATION usr/share/icons/hicolor/scalable/apps)
endfunction()

gradewell_packaged(gradewell-config english)
gradewell_packaged(carnelle-config french)

set(package_folder "${PROJECT_BINARY_DIR}/packages")
file(MAKE_DIRECTORY "${package_folder}")
add_custom_command(OUTPUT "${package_folder}/changelog.gz"
    COMMAND ${CMAKE_COMMAND} -E copy "${PROJECT_SOURCE_DIR}/packaging/debian/changelog" "${package_folder}/changelog"
    COMMAND gzip -9nf "${package_folder}/changelog"
    DEPENDS packaging/debian/changelog
    VERBATIM)
add_custom_target(package_documents ALL DEPENDS "${package_folder}/changelog.gz")
install(FILES packaging/debian/copyright "${package_folder}/changelog.gz"
    DESTINATION usr/share/doc/gradewell-config COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES packaging/debian/lintian-overrides RENAME gradewell-config DESTINATION usr/share/lintian/overrides
    COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME gradewell-config)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "configuration of the Gradewell gradebook for a school")
set(CPACK_PACKAGE_DESCRIPTION "An administrator sets with it what every teacher's copy of the gradebook reads
when it starts: folders, dates, mail, printing, grade schemes, student data
and course codes. This package has the English edition (Gradewell) and the
French one (Carnelle), each in a program folder under /opt/gradewell.")
set(CPACK_PACKAGE_CONTACT "Gradewell Config maintainers <maintainers@gradewell.example>")
set(CPACK_PACKAGE_FILE_NAME "gradewell-config-${PROJECT_VERSION}")
set(CPACK_PACKAGE_DIRECTORY "${package_folder}")
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/PackageKinds.cmake")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core | fonts-liberation2")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, evince | pdf-viewer")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
