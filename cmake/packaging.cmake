# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# What others need to build with the installed library, and the Debian packages.

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

if(VELMOLIB_QT_MAJOR EQUAL 5)
    set(library_package libvelmolib5)
    set(qt_packages "qtbase5-dev (>= 5.15), libqt5serialport5-dev (>= 5.15)")
else()
    set(library_package libvelmolib-qt6-5)
    set(qt_packages "qt6-base-dev (>= 6.4), qt6-serialport-dev (>= 6.4)")
endif()

# The copyright and the changelog that every Debian package has.
set(policy_host www.debian.org)
configure_file(${PROJECT_SOURCE_DIR}/packaging/copyright.in copyright @ONLY)
set(pairs library:${library_package} development:lib${velmolib_name}-dev)
if(VELMOLIB_BUILD_TOOLS)
    list(APPEND pairs tool:velmo)
endif()
if(VELMOLIB_BUILD_FLEET)
    list(APPEND pairs fleet:velmo-fleet)
endif()
if(VELMOLIB_BUILD_SETTINGS_WINDOW)
    list(APPEND pairs settings:velmo-settings)
endif()
set(quick_package qml-module-velmolib)
set(controls_need "qml-module-qtquick2, qml-module-qtquick-layouts, qml-module-qtquick-shapes, \
qml-module-qtquick-templates2, qml-module-qtquick-window2, fonts-dejavu-core | fonts-noto-core")
if(VELMOLIB_QT_MAJOR EQUAL 6)
    if(VELMOLIB_BUILD_SETTINGS_WINDOW)
    list(APPEND pairs settings:velmo-settings)
endif()
set(quick_package qml6-module-velmolib)
    set(controls_need "qml6-module-qtquick, qml6-module-qtquick-layouts, qml6-module-qtquick-shapes, \
qml6-module-qtquick-templates, qml6-module-qtquick-window, fonts-dejavu-core | fonts-noto-core")
endif()
if(VELMOLIB_BUILD_QUICK)
    list(APPEND pairs quick:${quick_package} controls:${quick_package}-controls)
endif()
foreach(pair IN LISTS pairs)
    string(REGEX MATCH "(.*):(.*)" pair ${pair})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CMAKE_MATCH_2} COMPONENT ${CMAKE_MATCH_1})
    velmolib_install_gzipped(${PROJECT_SOURCE_DIR}/packaging/changelog
        ${CMAKE_INSTALL_DATADIR}/doc/${CMAKE_MATCH_2} ${CMAKE_MATCH_1})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "velmolib maintainers <maintainers@velmolib.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "common model of a kiosk's cash devices (Qt ${VELMOLIB_QT_MAJOR})
 Device catalogue, states, settings and note filters, shared by the
 service that drives the devices, its configuration tools and its
 payment and service screens.")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME lib${velmolib_name}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}), \
${qt_packages}")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "common model of a kiosk's cash devices - development files (Qt ${VELMOLIB_QT_MAJOR})
 Headers, CMake package and pkg-config file for programs that link
 lib${velmolib_name}.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME velmo)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOL_DESCRIPTION "questions about the cash devices of a kiosk, answered
 Replays sessions, explains refused notes and service states, shows,
 changes and checks the service's settings.")

set(CPACK_DEBIAN_QUICK_PACKAGE_NAME ${quick_package})
set(CPACK_DEBIAN_QUICK_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_QUICK_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_QUICK_DESCRIPTION "QML module for screens of a kiosk's cash devices (Qt ${VELMOLIB_QT_MAJOR})
 What the acceptor service publishes, as properties and models for
 payment and service screens, the device catalogue and the settings
 for configuration screens.")

set(CPACK_DEBIAN_CONTROLS_PACKAGE_NAME ${quick_package}-controls)
set(CPACK_DEBIAN_CONTROLS_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_CONTROLS_PACKAGE_DEPENDS "${quick_package} (>= ${PROJECT_VERSION}), ${controls_need}")
set(CPACK_DEBIAN_CONTROLS_DESCRIPTION "controls for screens of a kiosk's cash devices (Qt ${VELMOLIB_QT_MAJOR})
 What to do, what is paid and what became of a note for the customer;
 devices, cassettes, faults, settings and a PIN for the staff.")

# Both programs load libmosquitto when they need it, which the packaging does not see.
set(mosquitto_package libmosquitto1)
# So does Qt with the databases of a history.
set(sqlite_package libqt5sql5-sqlite)
set(postgresql_package libqt5sql5-psql)
set(CPACK_DEBIAN_TOOL_PACKAGE_SUGGESTS "${mosquitto_package}, ${sqlite_package}, ${postgresql_package}")
set(CPACK_DEBIAN_FLEET_PACKAGE_NAME velmo-fleet)
set(CPACK_DEBIAN_FLEET_PACKAGE_SECTION net)
set(CPACK_DEBIAN_FLEET_PACKAGE_DEPENDS
    "${library_package} (= ${PROJECT_VERSION}), velmo (= ${PROJECT_VERSION}), \
${mosquitto_package} (>= 2.0), ${sqlite_package}")
set(CPACK_DEBIAN_FLEET_PACKAGE_SUGGESTS "${postgresql_package}, mosquitto, postgresql, prometheus")
if(DH_INSTALLSYSTEMD)
    set(maintainer_dir ${PROJECT_BINARY_DIR}/tools/velmo-fleet/debian/velmo-fleet/DEBIAN)
    set(CPACK_DEBIAN_FLEET_PACKAGE_CONTROL_EXTRA
        ${maintainer_dir}/postinst ${maintainer_dir}/postrm ${maintainer_dir}/prerm)
endif()
set(CPACK_DEBIAN_FLEET_DESCRIPTION "summaries of what a fleet of kiosks publishes at an MQTT broker
 Subscribes to the service states of kiosks and publishes for each kiosk
 whether it takes money, what is wrong with it and whether it is silent.
 Keeps a history of it in SQLite or PostgreSQL, and shows all in a page
 and as metrics for Prometheus.")

set(CPACK_DEBIAN_SETTINGS_PACKAGE_NAME velmo-settings)
set(CPACK_DEBIAN_SETTINGS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_SETTINGS_PACKAGE_DEPENDS
    "${library_package} (= ${PROJECT_VERSION}), velmo (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_SETTINGS_PACKAGE_RECOMMENDS qttranslations5-l10n) # the words of Qt's own dialogs
set(CPACK_DEBIAN_SETTINGS_DESCRIPTION "window for the settings of a kiosk's cash devices
 Shows a settings list as forms, says beside each field what is wrong with
 it, adds, removes and reorders devices, and shows the lines that change
 before it writes them.")

include(CPack)
