# Read by CPack before each of its packages: what goes into which.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL desktop)
    set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
    # The system's folders are the top of this one.
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
else()
    set(CPACK_COMPONENTS_ALL game archive)
    set(CPACK_PACKAGING_INSTALL_PREFIX "")
endif()
