# Read by CPack before each of its packages: what goes into which.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL desktop)
    set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
else()
    set(CPACK_COMPONENTS_ALL game archive)
    set(CPACK_PACKAGING_INSTALL_PREFIX "")
endif()
