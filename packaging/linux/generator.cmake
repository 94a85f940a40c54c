# Read by CPack for each kind of package: one component each.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL system)
else()
    set(CPACK_COMPONENTS_ALL portable)
    set(CPACK_PACKAGE_FILE_NAME ${CPACK_PORTABLE_NAME})
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX "")
endif()
