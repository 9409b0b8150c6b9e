# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks that the translations cover the texts of the source tree, no more and no less.

foreach(language en ru)
    set(committed ${SOURCE_DIR}/translations/velmolib_${language}.ts)
    set(updated ${WORK_DIR}/velmolib_${language}.ts)
    file(COPY_FILE ${committed} ${updated})
    execute_process(COMMAND ${LUPDATE} -silent -locations none -no-obsolete -source-language en
        . -ts ${updated}
        WORKING_DIRECTORY ${SOURCE_DIR}/src COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${updated} text)
    file(READ ${committed} committed_text)
    if(NOT text STREQUAL committed_text OR text MATCHES "unfinished")
        message(SEND_ERROR "${committed} is not up to date: run lupdate and translate what is new")
    endif()
endforeach()
