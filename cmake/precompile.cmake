# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Reads Qt's headers once for all targets of this tree, which saves a third of the time of a build. The
# build for packages and scripts/lint.sh go without: they show that every file includes what it needs.

file(WRITE "${CMAKE_BINARY_DIR}/precompiled.cpp" "")
add_library(velmolib_precompiled OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
target_link_libraries(velmolib_precompiled PRIVATE Qt${VELMOLIB_QT_MAJOR}::Core)
target_precompile_headers(velmolib_precompiled PRIVATE <QtCore>)

foreach(folder platform json src diagnosis broker history tools/terminal tools/velmo tools/velmo-fleet tools/velmo-settings
        quick examples/kiosk examples/gallery tests fuzz)
    if(IS_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${folder}")
        get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            get_target_property(headers ${target} PRECOMPILE_HEADERS)
            if(headers OR NOT type MATCHES "LIBRARY|EXECUTABLE" OR type STREQUAL INTERFACE_LIBRARY)
                continue()
            endif()
            # Qt's headers for tests are others where there are windows.
            if(NOT folder STREQUAL tests)
                set(precompiled velmolib_precompiled)
            elseif(NOT target MATCHES "^tst_(kiosk|quick|settingswindow)$")
                set(precompiled velmolib_precompiled_tests)
            elseif(target STREQUAL tst_settingswindow AND TARGET snippets)
                set(precompiled snippets)
            else()
                continue()
            endif()
            target_precompile_headers(${target} REUSE_FROM ${precompiled})
        endforeach()
    endif()
endforeach()
