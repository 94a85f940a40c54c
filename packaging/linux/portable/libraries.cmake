# Run by the installation of the portable program: copies Qt and what it needs beside it, without
# what every desktop has, together with the licences of what is copied. Takes `strip` and
# `qt_plugins` from who includes it.
set(program ${CMAKE_INSTALL_PREFIX}/tessaro)
set(lib ${CMAKE_INSTALL_PREFIX}/lib)
# CMake leaves an empty place at the end of the build's way, which would be whatever folder is current.
file(RPATH_CHANGE FILE ${program} OLD_RPATH "$ORIGIN/lib:" NEW_RPATH "$ORIGIN/lib")
execute_process(COMMAND ${strip} ${program} COMMAND_ERROR_IS_FATAL ANY)

set(plugins platforms/libqxcb.so platforms/libqoffscreen.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so)
list(TRANSFORM plugins PREPEND ${qt_plugins}/ OUTPUT_VARIABLE plugin_files)

# The system's own: these talk to its kernel, its display, its sound, or are shared with what does.
set(systems ld-linux.* c m dl rt pthread resolv gcc_s stdc\\+\\+ EGL GL GLX GLdispatch OpenGL
    X11 X11-xcb xcb Xau Xdmcp bsd md ICE SM uuid fontconfig freetype expat z png16 harfbuzz graphite2
    brotlidec glib-2.0 gobject-2.0 gio-2.0 pcre2-8 dbus-1 systemd pulse gssapi_krb5)
list(JOIN systems "|" systems)
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${program} LIBRARIES ${plugin_files}
    RESOLVED_DEPENDENCIES_VAR libraries
    PRE_EXCLUDE_REGEXES "^(lib)?(${systems})(\\.so.*|-x86-64\\.so.*)$")

set(licences ${CMAKE_INSTALL_PREFIX}/licences)
file(INSTALL /usr/share/common-licenses/LGPL-3 /usr/share/common-licenses/GPL-2
    /usr/share/common-licenses/GPL-3 DESTINATION ${licences})
foreach(library ${libraries})
    file(INSTALL ${library} DESTINATION ${lib} FOLLOW_SYMLINK_CHAIN)
    # Debian says which package a file is of, and keeps its licence under that name.
    file(REAL_PATH ${library} real)
    execute_process(COMMAND dpkg-query -S ${real} OUTPUT_VARIABLE owner ERROR_QUIET)
    if(owner MATCHES "^([^:]+):")
        file(COPY_FILE /usr/share/doc/${CMAKE_MATCH_1}/copyright ${licences}/${CMAKE_MATCH_1}.txt)
    endif()
endforeach()
foreach(plugin plugin_file IN ZIP_LISTS plugins plugin_files)
    get_filename_component(folder ${plugin} DIRECTORY)
    file(INSTALL ${plugin_file} DESTINATION ${lib}/plugins/${folder})
endforeach()
