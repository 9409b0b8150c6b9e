# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks a built libvelmolib: its SONAME, what it needs at run time, and that nothing but the
# documented classes and constants is exported.

execute_process(COMMAND ${READELF} -d ${LIBRARY}
    OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${NM} -DC --defined-only ${LIBRARY}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)

if(NOT dynamic MATCHES "SONAME[^\n]*\\[lib${NAME}\\.so\\.5\\]")
    message(SEND_ERROR "The SONAME is not lib${NAME}.so.5:\n${dynamic}")
endif()
cmake_path(GET LIBRARY FILENAME file)
if(NOT file STREQUAL "lib${NAME}.so.${VERSION}")
    message(SEND_ERROR "The file version is not ${VERSION}: ${LIBRARY}")
endif()

if(NOT dynamic MATCHES "NODELETE")
    message(SEND_ERROR "The library can be unloaded while Qt still knows its types:\n${dynamic}")
endif()

set(allowed "Qt${QT_MAJOR}(Core|SerialPort)\\.so\\.${QT_MAJOR}|stdc\\+\\+\\.so\\.6|gcc_s\\.so\\.1")
string(APPEND allowed "|c\\.so\\.6|m\\.so\\.6")
if(SANITIZED)
    string(APPEND allowed "|[at]san\\.so\\.[0-9]|ubsan\\.so\\.[0-9]")
endif()
string(REGEX MATCHALL "NEEDED[^\n]*" needed "${dynamic}")
foreach(entry IN LISTS needed)
    if(NOT entry MATCHES "\\[lib(${allowed})\\]")
        message(SEND_ERROR "Needs more than Qt Core, Qt SerialPort and the run time: ${entry}")
    endif()
endforeach()

foreach(private JsonReader JsonWriter SettingGroup RecordTable recordField wrappingSum SerialPortTexts SettingsList SettingsTable SettingRow::isFor "\\(anonymous namespace\\)")
    if(symbols MATCHES "[^\n]*${private}[^\n]*")
        message(SEND_ERROR "A private helper is exported: ${CMAKE_MATCH_0}")
    endif()
endforeach()
foreach(public Acceptors::search BasicNoteItem::BILL_TYPE "vtable for StatItem"
        "DRListRoutines::sortDevices" "operator-\\(DispenserRegistryItem" deviceStatesConst::DS_BUSY
        deviceStateDescConst::ONLINE DeviceState::parse DeviceStateWorker::staticMetaObject
        AcceptorState::ACCEPTOR_STATE_BUSY filters::ACCEPT_FILTER FilterFactory::createFilter
        FilterManager::FilterManager DRouteMap::toJson "vtable for DRouteMapItem"
        acceptorSettings::SettingsManager::SM_G_POSD2000 acceptorSettings::SettingsManager::load
        acceptorportsettingsconsts::MAP_PARITY "vtable for AcceptorDeviceSettings"
        "vtable for TcpSettings" AcceptorSettings::MAPPED_ANTIFISHING AcceptorSettings::devices
        AcceptorAttemptFilterItem::loadFromMap AcceptorSettings::settingDescriptions
        SettingDescription::accepts VelmoLib::version palx::RS232Settings::toList
        palx::AppVersionManager::addVersion quorbus::ClientState::dt
        quorbus::ClientSettings::settings)
    if(NOT symbols MATCHES "${public}")
        message(SEND_ERROR "Not exported: ${public}")
    endif()
endforeach()

# A class without symbols of its own needs the mark all the same, for its type information.
file(GLOB_RECURSE headers ${CMAKE_CURRENT_LIST_DIR}/../src/*.h)
list(FILTER headers EXCLUDE REGEX "_p\\.h$")
foreach(header IN LISTS headers)
    file(STRINGS ${header} unmarked REGEX "^(class|struct) [A-Za-z]+( |$)")
    if(unmarked)
        message(SEND_ERROR "Not marked for export in ${header}: ${unmarked}")
    endif()
endforeach()
