# The toolchain of the Windows programs. The environment variable QT_WINDOWS names the folder of a static Qt for it, of
# the same version as the host's Qt.
if(NOT IS_DIRECTORY "$ENV{QT_WINDOWS}/lib/cmake/Qt6")
    message(FATAL_ERROR
        "QT_WINDOWS has to name the folder of a static Qt for Windows; packaging/windows/build-qt makes one")
endif()
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
set(Qt6_DIR "$ENV{QT_WINDOWS}/lib/cmake/Qt6" CACHE PATH "The static Qt for Windows")
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tests/windows/with-wine" CACHE FILEPATH
    "What runs the programs on the building machine")
