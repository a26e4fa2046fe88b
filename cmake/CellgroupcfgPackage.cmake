# Install rules and the package that find_package(cellgroupcfg) finds.

include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/cellgroupcfg")

get_property(package_targets GLOBAL PROPERTY CELLGROUPCFG_PACKAGE_TARGETS)
install(
    TARGETS ${package_targets}
    EXPORT cellgroupcfgTargets
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/cellgroupcfg"
)
install(EXPORT cellgroupcfgTargets NAMESPACE cellgroupcfg:: DESTINATION "${package_folder}")

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/cellgroupcfgConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/cellgroupcfgConfig.cmake"
    INSTALL_DESTINATION "${package_folder}"
)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/cellgroupcfgConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(
    FILES "${PROJECT_BINARY_DIR}/cellgroupcfgConfig.cmake" "${PROJECT_BINARY_DIR}/cellgroupcfgConfigVersion.cmake"
    DESTINATION "${package_folder}"
)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
