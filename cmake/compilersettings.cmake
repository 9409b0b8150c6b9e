# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# How every target of this tree is compiled. Directory scope: a project that adds this one as a
# subdirectory keeps its own settings.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_definitions(
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_STRICT_ITERATORS
    # Log lines carry file, line and function in release builds too.
    QT_MESSAGELOGCONTEXT)

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual)
if(VELMOLIB_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()

# Log lines name their file relative to this tree, wherever the tree and the build folder are.
# Ninja names a source inside the build folder (FetchContent) relative to that folder.
add_compile_options(-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
cmake_path(IS_PREFIX CMAKE_BINARY_DIR "${PROJECT_SOURCE_DIR}" NORMALIZE sources_in_build_dir)
if(sources_in_build_dir)
    cmake_path(RELATIVE_PATH PROJECT_SOURCE_DIR BASE_DIRECTORY "${CMAKE_BINARY_DIR}"
        OUTPUT_VARIABLE source_prefix)
    add_compile_options(-fmacro-prefix-map=${source_prefix}/=)
endif()

if(VELMOLIB_SANITIZE)
    add_compile_options(-fsanitize=${VELMOLIB_SANITIZE} -fno-sanitize-recover=all
        -fno-omit-frame-pointer
        # 921600 baud is not among the values of Qt's enumeration, which has no fixed type.
        -fno-sanitize=enum)
    add_link_options(-fsanitize=${VELMOLIB_SANITIZE})
endif()
