# Debian's MinGW-w64 (posix threads) for 64-bit Windows, with the host's own Qt of the same version for moc and rcc.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "$ENV{QT_WINDOWS}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(QT_HOST_PATH /usr CACHE PATH "The host's Qt")
file(GLOB hostQt "/usr/lib/*/cmake/Qt6")
foreach(place IN LISTS hostQt)
    get_filename_component(place "${place}" DIRECTORY)
    set(QT_HOST_PATH_CMAKE_DIR "${place}" CACHE PATH "The host's Qt for CMake")
endforeach()
# A function that each source compiles for itself, such as a template's, is kept once by the linker. For Windows GCC takes
# for granted that it is this source's own copy, and keeps values in registers that the copy leaves alone; another copy,
# compiled otherwise, destroys them. So nothing compiled here relies on that, and all is optimised alike: -O2, as Qt is. A
# Qt that was made elsewhere may rely on it; the tests therefore use no std::mt19937, of which it has a copy.
set(CMAKE_C_FLAGS_INIT -fno-ipa-ra)
set(CMAKE_CXX_FLAGS_INIT -fno-ipa-ra)
