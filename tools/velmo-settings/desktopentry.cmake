# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Writes OUTPUT: the desktop entry ENTRY with its name and comment in every language of CATALOGUES. Both are texts
# of the program.
file(READ ${ENTRY} entry)
foreach(key Name Comment)
    string(REGEX MATCH "\n${key}=([^\n]*)" line "${entry}")
    set(source "${CMAKE_MATCH_1}")
    set(lines "${line}")
    foreach(catalogue IN LISTS CATALOGUES)
        file(READ ${catalogue} texts)
        string(REGEX MATCH "<source>${source}</source>[^<]*<translation>([^<]+)</translation>" text "${texts}")
        if(text)
            set(translation "${CMAKE_MATCH_1}")
            string(REGEX REPLACE ".*/([^/]+)/[^/]+$" "\\1" language "${catalogue}")
            string(APPEND lines "\n${key}[${language}]=${translation}")
        endif()
    endforeach()
    string(REPLACE "${line}" "${lines}" entry "${entry}")
endforeach()
file(WRITE ${OUTPUT} "${entry}")
