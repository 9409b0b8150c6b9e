# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Compiles the C++ code of README.md and docs/pages: each block alone, with the headers that it includes
# and what the comment before it says is given: <!-- given: const QVariantList& list -->
# QML code is put into files, which qml_snippets names.
file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/pages/*.md)
foreach(page ${PROJECT_SOURCE_DIR}/README.md ${pages})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${page})
    cmake_path(GET page STEM name)
    file(READ ${page} text)
    set(number 0)
    while(text MATCHES "(<!-- given: ([^\n]*) -->\n)?```cpp\n((#include [^\n]*\n)*)([^`]*)```(.*)")
        set(includes "${CMAKE_MATCH_3}")
        set(given "${CMAKE_MATCH_2}")
        set(code "${CMAKE_MATCH_5}")
        set(text "${CMAKE_MATCH_6}")
        math(EXPR number "${number} + 1")
        set(snippet ${CMAKE_CURRENT_BINARY_DIR}/snippets/${name}${number}.cpp)
        file(CONFIGURE OUTPUT ${snippet} @ONLY CONTENT
            "${includes}\n#include <QtWidgets>\n\nvoid ${name}${number}(${given});\nvoid ${name}${number}(${given})\n{\n${code}}\n")
        list(APPEND snippets ${snippet})
    endwhile()
    file(READ ${page} text)
    set(qml_number 0)
    while(text MATCHES "```qml\n([^`]*)```(.*)")
        set(code "${CMAKE_MATCH_1}")
        set(text "${CMAKE_MATCH_2}")
        math(EXPR qml_number "${qml_number} + 1")
        set(snippet ${CMAKE_CURRENT_BINARY_DIR}/snippets/${name}${qml_number}.qml)
        file(CONFIGURE OUTPUT ${snippet} @ONLY CONTENT "${code}")
        list(APPEND qml_snippets ${snippet})
    endwhile()
    if(number EQUAL 0 AND page MATCHES "README")
        message(FATAL_ERROR "There is no C++ code in ${page}")
    endif()
endforeach()

add_library(snippets OBJECT ${snippets})
set_target_properties(snippets PROPERTIES CXX_CLANG_TIDY "")
# As in a program that looks only at what matters to it.
target_compile_options(snippets PRIVATE -Wno-unused-variable)
target_link_libraries(snippets PRIVATE velmolib::velmolib Qt${VELMOLIB_QT_MAJOR}::Widgets)
if(VELMOLIB_PRECOMPILE)
    target_precompile_headers(snippets PRIVATE <QtWidgets>)
endif()
