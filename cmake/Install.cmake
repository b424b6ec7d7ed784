# The CMake package and the pkg-config file. Both find the tree by their own place, so an installed tree may be moved.

include(CMakePackageConfigHelpers)

set(velcoredata_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/velcoredata")
install(EXPORT velcoredata-targets NAMESPACE velcoredata:: DESTINATION "${velcoredata_package_dir}")
configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/velcoredata-config.cmake.in"
    "${CMAKE_CURRENT_BINARY_DIR}/velcoredata-config.cmake"
    INSTALL_DESTINATION "${velcoredata_package_dir}")
write_basic_package_version_file(
    "${CMAKE_CURRENT_BINARY_DIR}/velcoredata-config-version.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/velcoredata-config.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/velcoredata-config-version.cmake"
    DESTINATION "${velcoredata_package_dir}")

set(velcoredata_pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH velcoredata_prefix_from_pkgconfig "/${velcoredata_pkgconfig_dir}" "/")
configure_file("${CMAKE_CURRENT_LIST_DIR}/velcoredata.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/velcoredata.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/velcoredata.pc" DESTINATION "${velcoredata_pkgconfig_dir}")

# For `source` in gdb.
install(FILES "${PROJECT_SOURCE_DIR}/tools/gdb/velcoredata_gdb.py" DESTINATION "${CMAKE_INSTALL_DATADIR}/velcoredata/gdb")
