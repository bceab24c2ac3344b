# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# The logic as a package: find_package(Clipvane) gives another program Clipvane::core.
include(CMakePackageConfigHelpers)

set(core_targets clipvane_base clipvane_model clipvane_timecode clipvane_import clipvane_commands
    clipvane_core)
set(core_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Clipvane)

install(TARGETS ${core_targets} EXPORT ClipvaneTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT core)
foreach(floor base model timecode import commands)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${floor}/public/
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT core)
endforeach()
install(EXPORT ClipvaneTargets NAMESPACE Clipvane:: DESTINATION ${core_package_dir}
        COMPONENT core)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ClipvaneConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/ClipvaneConfig.cmake
                              INSTALL_DESTINATION ${core_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ClipvaneConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ClipvaneConfig.cmake
              ${PROJECT_BINARY_DIR}/ClipvaneConfigVersion.cmake
        DESTINATION ${core_package_dir} COMPONENT core)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/clipvane
        COMPONENT core)
