# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs a file compressed the way Debian wants manual pages and changelogs.
function(velmolib_install_gzipped source destination component)
    cmake_path(ABSOLUTE_PATH source)
    cmake_path(GET source FILENAME name)
    set(gzipped ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    if(NOT TARGET velmolib_gzip_${name})
        add_custom_command(OUTPUT ${gzipped} DEPENDS ${source}
            COMMAND gzip --best --no-name --stdout ${source} > ${gzipped})
        add_custom_target(velmolib_gzip_${name} ALL DEPENDS ${gzipped})
    endif()
    install(FILES ${gzipped} DESTINATION ${destination} COMPONENT ${component})
endfunction()
