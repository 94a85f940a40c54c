# Toolchain: programs for 64-bit Windows out of Debian's MinGW, in its variant with threads of C++.
# TESSARO_QT_WINDOWS names the folder with Qt for Windows (packaging/windows/qt makes it); without
# it there is the logic.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)
find_program(CMAKE_AR ${target}-gcc-ar-posix)
find_program(CMAKE_RANLIB ${target}-gcc-ranlib-posix)

# Libraries, headers and packages are the target's, programs to run (moc, uic) this machine's.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TESSARO_QT_WINDOWS)
set(CMAKE_FIND_ROOT_PATH ${TESSARO_QT_WINDOWS} /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} /usr/${target}/lib/pkgconfig)

# Qt's own tools are those that Debian installs for building on this machine.
if(TESSARO_QT_WINDOWS)
    set(CMAKE_PREFIX_PATH ${TESSARO_QT_WINDOWS})
endif()
set(QT_HOST_PATH /usr CACHE PATH "Where Qt's tools for this machine are")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake
    CACHE PATH "Where CMake finds them")
