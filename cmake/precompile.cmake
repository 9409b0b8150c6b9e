# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Reads Qt's headers once for all targets of this tree, which saves a third of the time of a build. The
# build for packages and scripts/lint.sh go without: they show that every file includes what it needs.

file(WRITE "${CMAKE_BINARY_DIR}/precompiled.cpp" "")
add_library(velmolib_precompiled OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
target_link_libraries(velmolib_precompiled PRIVATE Qt${VELMOLIB_QT_MAJOR}::Core
    Qt${VELMOLIB_QT_MAJOR}::SerialPort)
target_precompile_headers(velmolib_precompiled PRIVATE <QtCore> <QSerialPort>)

foreach(folder platform src diagnosis broker history tools/terminal tools/velmo tools/velmo-fleet quick tests fuzz)
    if(IS_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${folder}")
        get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            # Snippets of the documentation say themselves what they include.
            if(type MATCHES "LIBRARY|EXECUTABLE" AND NOT type STREQUAL INTERFACE_LIBRARY
                    AND NOT target STREQUAL snippets)
                target_precompile_headers(${target} REUSE_FROM velmolib_precompiled)
            endif()
        endforeach()
    endif()
endforeach()
