# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks that the translations cover the texts of the source tree, no more and no less. Without a
# WORK_DIR it takes the texts into the files that are translated.

# The library's English mends misspelt texts, which are part of its interface; other English only
# has plurals. The example's screen needs none.
foreach(row velmolib:src: diagnosis:diagnosis:-pluralonly velmo:tools/velmo:-pluralonly
        kiosk:examples/kiosk/screen:)
    foreach(locale en_US ru_RU)
        string(REGEX MATCH "^.." language ${locale})
        string(REGEX MATCH "(.*):(.*):(.*)" row ${row})
        set(folder translations)
        if(CMAKE_MATCH_1 STREQUAL kiosk)
            set(folder ${CMAKE_MATCH_2})
            if(language STREQUAL en)
                continue()
            endif()
        endif()
        set(sources .)
        if(CMAKE_MATCH_1 STREQUAL diagnosis)
            list(APPEND sources ../broker ../fleet ../quick) # speak with the same words
        endif()
        set(committed ${SOURCE_DIR}/${folder}/${CMAKE_MATCH_1}_${language}.ts)
        set(updated ${committed})
        if(WORK_DIR)
            set(updated ${WORK_DIR}/${CMAKE_MATCH_1}_${language}.ts)
            file(COPY_FILE ${committed} ${updated})
        endif()
        set(which)
        if(language STREQUAL en)
            set(which ${CMAKE_MATCH_3})
        endif()
        execute_process(COMMAND ${LUPDATE} -silent -locations none -no-obsolete -source-language en
            -target-language ${locale} ${which} ${sources} -ts ${updated}
            WORKING_DIRECTORY ${SOURCE_DIR}/${CMAKE_MATCH_2} COMMAND_ERROR_IS_FATAL ANY)
        file(READ ${updated} text)
        file(READ ${committed} committed_text)
        if(WORK_DIR AND (NOT text STREQUAL committed_text OR text MATCHES "unfinished|vanished"))
            message(SEND_ERROR "${committed} is not up to date: build the target \
update_translations and translate what is new")
        endif()
    endforeach()
endforeach()
