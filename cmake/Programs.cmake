# The two programs, their manuals and the program folders that they are installed into.

# gradewell_program(NAME EDITION): the program of one edition, with the window rooms that it offers, and the install
# rules of its component: the program at the top of its folder, the manual in Manuals, nothing else.
function(gradewell_program name edition edition_source)
    add_executable(${name} app/main.cpp ${edition_source})
    target_link_libraries(${name} PRIVATE gradewell_flags app_windows options_windows import_windows
        admin_windows transfer_windows)
    if(WIN32)
        gradewell_windows_properties(${name} ${edition}) # Qt's main for windows makes the shared header unfit
    else()
        target_precompile_headers(${name} REUSE_FROM precompiled_widgets)
    endif()
    install(TARGETS ${name} RUNTIME DESTINATION . COMPONENT ${edition})
    if(TARGET manuals)
        add_dependencies(${name} manuals)
    endif()
    if(TARGET manuals OR GRADEWELL_MANUALS)
        install(FILES "${manual_folder}/${edition}/Gradewell Config.PDF" DESTINATION Manuals COMPONENT ${edition})
    endif()
endfunction()

# gradewell_manual(EDITION): turns docs/manual/EDITION.html into the PDF that Help opens.
function(gradewell_manual edition)
    set(source "${PROJECT_SOURCE_DIR}/docs/manual/${edition}.html")
    file(GLOB pictures CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/manual/pictures/${edition}/*.png")
    set(folder "${PROJECT_BINARY_DIR}/manuals/${edition}")
    file(MAKE_DIRECTORY "${folder}")
    add_custom_command(OUTPUT "${folder}/Gradewell Config.PDF"
        COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false
            $<TARGET_FILE:manual_writer> "${source}" "${folder}/Gradewell Config.PDF"
        DEPENDS manual_writer "${source}" ${pictures}
        COMMENT "Writing the manual of the ${edition} edition"
        VERBATIM)
endfunction()

# What Windows shows of the program's file: icon, version and manifest; and that it is no console program.
function(gradewell_windows_properties name edition)
    set(program_file ${name})
    if(edition STREQUAL "english")
        set(product_name "Gradewell 2016 Config")
    else()
        set(product_name "Carnelle 2016 Config")
    endif()
    set(source "${PROJECT_SOURCE_DIR}/packaging/windows")
    configure_file("${source}/program.rc.in" "${PROJECT_BINARY_DIR}/windows/${name}.rc" @ONLY)
    target_sources(${name} PRIVATE "${PROJECT_BINARY_DIR}/windows/${name}.rc")
    set_source_files_properties("${PROJECT_BINARY_DIR}/windows/${name}.rc" PROPERTIES
        OBJECT_DEPENDS "${source}/program.manifest;${PROJECT_SOURCE_DIR}/resources/pictures/icon.ico")
    set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()

# The manuals are no matter for the sanitizers: their build tests the program's own code. A cross build, which cannot run
# what it makes, takes them from the folder that another build wrote them to.
set(GRADEWELL_MANUALS "" CACHE PATH "Folder with ready manuals (english/..., french/...), for cross builds")
if(CMAKE_CROSSCOMPILING)
    set(manual_folder "${GRADEWELL_MANUALS}")
else()
    set(manual_folder "${PROJECT_BINARY_DIR}/manuals")
endif()
if(NOT CMAKE_CROSSCOMPILING)
    add_library(manual_pages STATIC tools/manual/ManualPages.cpp tools/manual/ManualText.cpp tools/manual/PdfFile.cpp
        tools/manual/PdfNavigation.cpp)
    target_link_libraries(manual_pages PUBLIC Qt6::Gui PRIVATE gradewell_flags)
endif()
if(NOT GRADEWELL_SANITIZE AND NOT CMAKE_CROSSCOMPILING)
    add_executable(manual_writer tools/manual/ManualWriter.cpp)
    target_link_libraries(manual_writer PRIVATE manual_pages gradewell_flags)
    gradewell_manual(english)
    gradewell_manual(french)
    add_custom_target(manuals ALL DEPENDS
        "${PROJECT_BINARY_DIR}/manuals/english/Gradewell Config.PDF"
        "${PROJECT_BINARY_DIR}/manuals/french/Gradewell Config.PDF")
endif()

if(EXISTS "${PROJECT_SOURCE_DIR}/app/main.cpp")
    gradewell_program(gradewell-config english app/EditionEnglish.cpp)
    gradewell_program(carnelle-config french app/EditionFrench.cpp)
    add_custom_target(programs DEPENDS gradewell-config carnelle-config)
endif()
