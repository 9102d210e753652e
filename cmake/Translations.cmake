# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# contact_add_translations(TARGET PROGRAM CODES...)
#   Embeds translations/PROGRAM_CODE.ts of the current source folder in TARGET as
#   :/translations/PROGRAM_CODE.qm, for each CODE. If TARGET is a static library, call
#   Q_INIT_RESOURCE(TARGET_translations) before creating ProgramLanguage. The target update-translations
#   updates the .ts files from the sources in the folder and in platform/language, whose texts every program
#   shows.

find_package(Qt5 REQUIRED COMPONENTS LinguistTools)

# The test of the translations uses them, too; see tests/language.
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
    # Format version 1 stores no file times, which would differ between builds.
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
