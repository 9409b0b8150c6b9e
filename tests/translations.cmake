# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks that the translations into each language, a folder in translations, cover the texts of the source
# tree, no more and no less. Without a WORK_DIR it takes the texts into the files that are translated, and
# makes those that a new folder lacks.

# A catalogue, where it stands, the folders whose texts it has and in what files, and what its English has:
# the library's mends misspelt texts, which are part of its interface; other English only has plurals, and
# the example's screen needs none.
file(GLOB languages LIST_DIRECTORIES true RELATIVE ${SOURCE_DIR}/translations ${SOURCE_DIR}/translations/*)
list(REMOVE_ITEM languages CMakeLists.txt)
foreach(row velmolib:translations/LANGUAGE:src:cpp,h:all
        diagnosis:translations/LANGUAGE:diagnosis,broker,history,quick:cpp,h:plurals
        velmo:translations/LANGUAGE:tools:cpp,h:plurals
        controls:translations/LANGUAGE:quick/controls:qml:plurals
        kiosk:examples/kiosk/screen/translations:examples/kiosk/screen:qml:none)
    string(REGEX MATCH "(.*):(.*):(.*):(.*):(.*)" row ${row})
    set(name ${CMAKE_MATCH_1})
    set(place ${CMAKE_MATCH_2})
    string(REPLACE "," ";" sources ${CMAKE_MATCH_3})
    set(extensions ${CMAKE_MATCH_4})
    set(english ${CMAKE_MATCH_5})
    foreach(language IN LISTS languages)
        if(language STREQUAL en AND english STREQUAL none)
            continue()
        endif()
        string(REPLACE LANGUAGE ${language} folder ${place})
        set(committed ${SOURCE_DIR}/${folder}/${name}_${language}.ts)
        set(updated ${committed})
        if(WORK_DIR)
            set(updated ${WORK_DIR}/${name}_${language}.ts)
            if(NOT EXISTS ${committed})
                message(SEND_ERROR "${committed} is missing: build the target update_translations and translate it")
                continue()
            endif()
            file(COPY_FILE ${committed} ${updated})
        endif()
        set(which)
        if(language STREQUAL en AND english STREQUAL plurals)
            set(which -pluralonly)
        endif()
        execute_process(COMMAND ${LUPDATE} -silent -locations none -no-obsolete -extensions ${extensions} -source-language en
            ${which} ${sources} -ts ${updated}
            WORKING_DIRECTORY ${SOURCE_DIR} COMMAND_ERROR_IS_FATAL ANY)
        file(READ ${updated} text)
        file(READ ${committed} committed_text)
        if(WORK_DIR AND (NOT text STREQUAL committed_text OR text MATCHES "unfinished|vanished"))
            message(SEND_ERROR "${committed} is not up to date: build the target \
update_translations and translate what is new")
        endif()
    endforeach()
endforeach()
