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

# Makes the manual page of a program, which says what --help says, and installs it. A build without
# help2man has none.
function(velmolib_add_manual program name)
    find_program(HELP2MAN help2man)
    if(NOT HELP2MAN)
        return()
    endif()
    add_custom_command(OUTPUT ${program}.1
        COMMAND ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=$<TARGET_FILE_DIR:velmolib> LANGUAGE=en
            ${HELP2MAN} --no-info --name ${name} --output ${program}.1 $<TARGET_FILE:${program}>
        DEPENDS ${program} VERBATIM)
    add_custom_target(${program}_manual ALL DEPENDS ${program}.1)
    if(VELMOLIB_INSTALL)
        velmolib_install_manual(${CMAKE_CURRENT_BINARY_DIR}/${program}.1)
    endif()
endfunction()
