# The compiler flags of the whole project, once, and the helpers that make a target of a room.

add_library(gradewell_flags INTERFACE)
target_compile_features(gradewell_flags INTERFACE cxx_std_20)
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH sources)
target_include_directories(gradewell_flags INTERFACE "${sources}")
target_compile_definitions(gradewell_flags INTERFACE
    QT_NO_CAST_FROM_ASCII      # every text says which encoding it comes from
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS             # "signals" and "slots" stay ordinary words
    $<$<NOT:$<CONFIG:Release>>:QT_FORCE_ASSERTS>)
target_compile_options(gradewell_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror)
if(WIN32)
    # The program is one file. No macros min and max, and the names of Windows 10's calls.
    target_link_options(gradewell_flags INTERFACE -static)
    target_compile_options(gradewell_flags INTERFACE
        -Wno-error=restrict)  # GCC 12 reports false positives for std::string's operator+ with -O3
    target_compile_definitions(gradewell_flags INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()
if(GRADEWELL_SANITIZE)
    target_compile_options(gradewell_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
        $<$<CXX_COMPILER_ID:GNU>:-Wno-error=maybe-uninitialized>)  # false positives in Qt's headers under the sanitizers
    target_link_options(gradewell_flags INTERFACE -fsanitize=address,undefined)
endif()
if(GRADEWELL_FUZZ)
    # Not the operands of comparisons: most are places in the bytes, and telling the fuzzer of each took a third of the time.
    target_compile_options(gradewell_flags INTERFACE
        $<$<NOT:$<BOOL:$<TARGET_PROPERTY:GRADEWELL_UNCOUNTED>>>:-fsanitize=fuzzer-no-link
        -fno-sanitize-coverage=trace-cmp>)
endif()

# Line coverage is counted in the product's own sources only.
function(gradewell_counted name)
    if(GRADEWELL_COVERAGE)
        target_compile_options(${name} PRIVATE --coverage)
        target_link_options(${name} PUBLIC --coverage)
    endif()
endfunction()

# One precompiled header a layer: parsing Qt's headers is most of a compilation's time.
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/precompiled/Empty.cpp" CONTENT "") # keeps its time
function(gradewell_precompiled name)
    cmake_parse_arguments(arg "" "" "HEADERS;LINK" ${ARGN})
    add_library(${name} OBJECT "${PROJECT_BINARY_DIR}/precompiled/Empty.cpp")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(${name} PRIVATE gradewell_flags ${arg_LINK})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()
gradewell_precompiled(precompiled_core LINK Qt6::Core
    HEADERS <QByteArray> <QDate> <QDateTime> <QString> <QStringList> <array> <filesystem> <functional> <memory> <vector>)
gradewell_precompiled(precompiled_widgets LINK Qt6::Widgets Qt6::PrintSupport
    HEADERS <QtCore> <QtGui> <QtWidgets> <array> <functional> <memory> <vector>)

# gradewell_core(NAME SOURCES ... LINK ...): logic that needs no window.
function(gradewell_core name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC Qt6::Core ${arg_LINK} PRIVATE gradewell_flags)
    target_precompile_headers(${name} REUSE_FROM precompiled_core)
    gradewell_counted(${name})
endfunction()

# gradewell_windows(NAME SOURCES ... LINK ...): windows and controls.
function(gradewell_windows name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::PrintSupport ${arg_LINK} PRIVATE gradewell_flags)
    target_precompile_headers(${name} REUSE_FROM precompiled_widgets)
    gradewell_counted(${name})
endfunction()
