# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs a manual page, compressed.
function(velmolib_install_manual source)
    cmake_path(ABSOLUTE_PATH source)
    cmake_path(GET source FILENAME name)
    set(gzipped ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${gzipped} DEPENDS ${source}
        COMMAND gzip --best --no-name --stdout ${source} > ${gzipped})
    add_custom_target(velmolib_gzip_${name} ALL DEPENDS ${gzipped})
    install(FILES ${gzipped} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()
