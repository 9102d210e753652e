# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Compiler and linker settings for every target.

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    # A debug build would write "debug": true into the plugin's metadata.
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

find_program(CONTACT_CCACHE ccache)
mark_as_advanced(CONTACT_CCACHE)
if(CONTACT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CONTACT_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
                    -Wcast-align -Wconversion -Wold-style-cast -Wformat=2 -Wundef)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wsuggest-override)
elseif(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # Qt's qCDebug(category) and its like pass no variadic argument.
    add_compile_options(-Wno-gnu-zero-variadic-macro-arguments)
endif()
if(CONTACT_WERROR)
    add_compile_options(-Werror)
endif()

# Log records name their source relative to the tree, even if ccache passes shortened paths to the compiler.
file(RELATIVE_PATH source_from_build ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
string(REGEX REPLACE "/$" "" source_from_build "${source_from_build}") # a path of dots alone ends in a slash
if(source_from_build) # empty in a build inside the source folder itself, where shortened names are already right
    add_compile_options(-fmacro-prefix-map=${source_from_build}/=)
endif()

add_compile_definitions(
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS
    # Release builds drop the source location of log records by default; the host shows it.
    QT_MESSAGELOGCONTEXT)

# Keeps Q_ASSERT and the standard library's checks in optimised builds. Never use it for an installed plugin.
option(CONTACT_ASSERTIONS "Keep assertions in every build type" OFF)
if(CONTACT_ASSERTIONS)
    add_compile_definitions(QT_FORCE_ASSERTS _GLIBCXX_ASSERTIONS)
endif()

add_link_options(-Wl,--no-undefined -Wl,--as-needed)

# Sanitizers: CONTACT_SANITIZE=address;undefined or thread. With Clang, instrumented libraries leave the
# runtime's symbols undefined; the program that loads them provides these.
set(CONTACT_SANITIZE "" CACHE STRING "Sanitizers to build with, separated by semicolons")
if(CONTACT_SANITIZE)
    list(JOIN CONTACT_SANITIZE "," sanitizers)
    add_compile_options(-fsanitize=${sanitizers} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${sanitizers})
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        add_link_options(-Wl,--undefined-version -Wl,-z,undefs)
    endif()
endif()
