# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# contact_add_translations(TARGET PROGRAM CODES...)
#   Embeds translations/PROGRAM_CODE.ts of this folder in TARGET as :/translations/PROGRAM_CODE.qm. With a static library,
#   call Q_INIT_RESOURCE(TARGET_translations) before ProgramLanguage is made.
#   The target update-translations writes the texts of the sources into the .ts files, with those of platform/language,
#   which every program shows.

find_package(Qt5 REQUIRED COMPONENTS LinguistTools)

# Also what the test of the translations runs; see tests/language.
set(CONTACT_LUPDATE_OPTIONS "-silent -no-obsolete -locations none -source-language en")

function(contact_add_translations target program)
    set(sources)
    set(built)
    set(entries)
    foreach(code ${ARGN})
        set(name ${program}_${code})
        set(source ${CMAKE_CURRENT_SOURCE_DIR}/translations/${name}.ts)
        list(APPEND sources ${source})
        set(file ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
        add_custom_command(OUTPUT ${file}
            COMMAND Qt5::lrelease -silent ${source} -qm ${file}
            DEPENDS ${source}
            VERBATIM)
        list(APPEND built ${file})
        string(APPEND entries "        <file>${name}.qm</file>\n")
    endforeach()
    set(collection ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations.qrc)
    file(GENERATE OUTPUT ${collection} CONTENT
        "<RCC>\n    <qresource prefix=\"/translations\">\n${entries}    </qresource>\n</RCC>\n")
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/qrc_${target}_translations.cpp)
    # Version 1 has no times of files, which differ from build to build.
    add_custom_command(OUTPUT ${resource}
        COMMAND Qt5::rcc --format-version 1 --name ${target}_translations --output ${resource} ${collection}
        DEPENDS ${collection} ${built}
        VERBATIM)
    set_source_files_properties(${resource} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${resource})

    if(NOT TARGET update-translations)
        add_custom_target(update-translations)
    endif()
    separate_arguments(options UNIX_COMMAND ${CONTACT_LUPDATE_OPTIONS})
    add_custom_target(update-translations-${program}
        COMMAND Qt5::lupdate ${options} ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/platform/language -ts ${sources}
        VERBATIM)
    add_dependencies(update-translations update-translations-${program})
endfunction()
