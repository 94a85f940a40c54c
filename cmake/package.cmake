# The packages that CPack makes: `system` as a .deb, `portable` as a .tar.gz.
set(CPACK_PACKAGE_VENDOR "The Ovrin Tessaro authors")
set(CPACK_PACKAGE_CONTACT "The Ovrin Tessaro authors <tessaro@ovrin.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://ovrin.example/tessaro")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_COMPONENTS_ALL system portable)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/packaging/linux/generator.cmake)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_SYSTEM_PACKAGE_NAME tessaro)
set(CPACK_DEBIAN_SYSTEM_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_SYSTEM_PACKAGE_SECTION games)
set(CPACK_DEBIAN_SYSTEM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_SYSTEM_PACKAGE_SUGGESTS "wine, wine32")
set(CPACK_DEBIAN_SYSTEM_DEBUGINFO_PACKAGE ON)
set(CPACK_COMPONENT_SYSTEM_DESCRIPTION "It lifts downloaded maps out of the game's cache, compresses and
unpacks packages, keeps players and servers, edits the game's INI files
and shows its screenshots.")

set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_PORTABLE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_ARCHIVE_PORTABLE_FILE_NAME ${CPACK_PORTABLE_NAME})
include(CPack)
