# Install rules and the package that find_package(cellgroupcfg) and pkg-config find. Components of the installation:
# runtime (shared libraries), development, tool, docs.

include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/cellgroupcfg")

get_property(package_targets GLOBAL PROPERTY CELLGROUPCFG_PACKAGE_TARGETS)
install(
    TARGETS ${package_targets}
    EXPORT cellgroupcfgTargets
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/cellgroupcfg" "${CMAKE_INSTALL_INCLUDEDIR}"
)
install(EXPORT cellgroupcfgTargets NAMESPACE cellgroupcfg:: DESTINATION "${package_folder}" COMPONENT development)
configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/cellgroupcfgConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/cellgroupcfgConfig.cmake"
    INSTALL_DESTINATION "${package_folder}"
)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/cellgroupcfgConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(
    FILES "${PROJECT_BINARY_DIR}/cellgroupcfgConfig.cmake" "${PROJECT_BINARY_DIR}/cellgroupcfgConfigVersion.cmake"
    DESTINATION "${package_folder}"
    COMPONENT development
)

# pkg-config, for whoever has no CMake: in the order in which archives have to stand. The folder of the .pc files leads
# to the others, wherever the package is moved.
file(RELATIVE_PATH pc_prefix "/p/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/p")
foreach(default IN ITEMS du platform)
    get_target_property(asked cellgroupcfg_${default} INTERFACE_LINK_OPTIONS)
    list(TRANSFORM asked REPLACE "^LINKER:" "-Wl,")
    list(APPEND pc_defaults ${asked})
endforeach()
list(JOIN pc_defaults " " pc_defaults)
set(pc_files cellgroupcfg cellgroupcfg-defaults)
if(TARGET cellgroupcfg_full)
    list(APPEND pc_files cellgroupcfg-full)
endif()
foreach(name IN LISTS pc_files)
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${name}.pc.in" "${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc" @ONLY)
    install(
        FILES "${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
        COMPONENT development
    )
endforeach()

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT docs)

# What lies in the installation and was not built, because ./run builds a part only, is built first.
install(
    CODE
        "if(NOT EXISTS \"$<TARGET_FILE:cellgroupcfg_shared>\" OR NOT EXISTS \"$<TARGET_FILE:cellgroupcfg_rules>\")
    message(STATUS \"Building what is to be installed\")
    execute_process(COMMAND \"${CMAKE_COMMAND}\" --build \"${PROJECT_BINARY_DIR}\" COMMAND_ERROR_IS_FATAL ANY)
endif()"
    ALL_COMPONENTS
)

if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(
        uninstall
        COMMAND "${CMAKE_COMMAND}" "-DBINARY_DIR=${PROJECT_BINARY_DIR}" -P "${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake"
        COMMENT "Removing what was installed from here"
        VERBATIM
    )
endif()
