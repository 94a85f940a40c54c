# What is installed, as two components: `system` for all users of a machine, where its conventions
# want things; `portable`, a folder that brings Qt along and can be carried about.
include(GNUInstallDirs)
set(linux ${CMAKE_CURRENT_SOURCE_DIR}/packaging/linux)
set(icons ${CMAKE_CURRENT_SOURCE_DIR}/resources/icons)
configure_file(${linux}/tessaro.metainfo.xml.in tessaro.metainfo.xml @ONLY)

install(TARGETS tessaro RUNTIME COMPONENT system)
install(FILES ${linux}/tessaro.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT system)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tessaro.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT system)
install(FILES ${linux}/tessaro.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT system)
install(FILES LICENSE RENAME copyright DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES ${icons}/tessaro-${size}.png RENAME tessaro.png COMPONENT system
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${icons}/tessaro.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT system)

# Copied as it was built, with the way to its libraries, which the one of the system has not.
# It is the libraries' way as well, since they know none of their own.
set_target_properties(tessaro PROPERTIES BUILD_RPATH "$ORIGIN/lib")
target_link_options(tessaro PRIVATE -Wl,--disable-new-dtags)
install(PROGRAMS $<TARGET_FILE:tessaro> DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES LICENSE CHANGELOG.md ${linux}/portable/README.txt ${linux}/portable/qt.conf
    DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
get_target_property(qt_core Qt6::Core LOCATION)
get_filename_component(qt_libraries ${qt_core} DIRECTORY)
install(CODE "
    set(strip \"${CMAKE_STRIP}\")
    set(qt_plugins \"${qt_libraries}/qt6/plugins\")
    include(\"${linux}/portable/libraries.cmake\")"
    COMPONENT portable EXCLUDE_FROM_ALL)
