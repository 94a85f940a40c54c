# What of Qt's base module is built for Windows: Core, Gui, Widgets and Test as DLLs.
macro(switch value)
    foreach(name ${ARGN})
        set(${name} ${value} CACHE STRING "" FORCE)
    endforeach()
endmacro()

set(CMAKE_BUILD_TYPE Release CACHE STRING "")
set(QT_QMAKE_TARGET_MKSPEC win32-g++ CACHE STRING "")
set(INPUT_opengl no CACHE STRING "")
switch(ON BUILD_SHARED_LIBS FEATURE_relocatable FEATURE_testlib)
switch(OFF QT_BUILD_EXAMPLES QT_BUILD_TESTS)

# Modules and services that the program does not use.
switch(OFF FEATURE_concurrent FEATURE_dbus FEATURE_network FEATURE_printsupport FEATURE_sql
    FEATURE_vulkan FEATURE_xml)

# Libraries of this machine are not the target's: Qt's own copies are used, or none.
switch(OFF FEATURE_fontconfig FEATURE_glib FEATURE_icu FEATURE_pkg_config FEATURE_zstd)
foreach(library doubleconversion freetype harfbuzz jpeg pcre2 png zlib)
    switch(OFF FEATURE_system_${library})
endforeach()

# Tablets need a header that Debian leaves out of its copy of the source.
switch(OFF FEATURE_tabletevent)

# The window plugin wants the fonts of DirectWrite, which Qt's Gui only has where Direct2D is on.
# Without version 1.1 of it the second window plugin is not built, which we do not need.
switch(ON FEATURE_direct2d)
switch(OFF FEATURE_direct2d1_1)
