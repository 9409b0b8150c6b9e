# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# What others need to build with the installed library: a CMake package and a pkg-config file.

include(CMakePackageConfigHelpers)

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${velmolib_name})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/velmolib-config.cmake.in
    ${velmolib_name}-config.cmake INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(${velmolib_name}-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${velmolib_name}-config.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/${velmolib_name}-config-version.cmake
    DESTINATION ${config_dir} COMPONENT development)
install(EXPORT velmolib NAMESPACE velmolib:: FILE ${velmolib_name}-targets.cmake
    DESTINATION ${config_dir} COMPONENT development)

# The file finds its prefix from where it is itself.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix /${pkgconfig_dir} /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/velmolib.pc.in ${velmolib_name}.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${velmolib_name}.pc
    DESTINATION ${pkgconfig_dir} COMPONENT development)
