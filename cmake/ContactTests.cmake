# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# contact_add_test(NAME SOURCES... LIBRARIES... [NO_TEST] [OWN_LANGUAGE] [SCRIPTED_ABILITY] [SERIAL])
#   Adds a QtTest program. The desk's window and the contacts application speak Chinese in it, unless
#   OWN_LANGUAGE is given. With NO_TEST it is only built; add its runs with contact_add_test_run().
# contact_add_test_run(NAME TARGET t [AT "2026-03-07 10:20:00"] [TZ zone] [ENVIRONMENT var=value...] [COMMAND cmd...]
#                      [ARGUMENTS ...] [LABELS ...] [TIMEOUT seconds] [SERIAL] [BUS] [EMPTY_BUS] [SCRIPTED_ABILITY])
#   Adds a run of the program, or of COMMAND. AT starts the clock at that local time. BUS provides a private
#   session bus, which can start only the contacts application, with a private home and XDG folders; EMPTY_BUS
#   is the same without the application. SERIAL keeps apart runs that would see each other in the process
#   table or distort what they measure. SCRIPTED_ABILITY replaces the ability library with one that the test controls
#   (tests/support/scriptedability.h).

find_package(Qt5 REQUIRED COMPONENTS Test)
find_program(CONTACT_FAKETIME faketime REQUIRED)

# Only the bundled platform needs a session bus.
if(CONTACT_PLATFORM STREQUAL bundled)
    find_program(CONTACT_DBUS_RUN_SESSION dbus-run-session REQUIRED)
    set(CONTACT_TEST_BUS_DIR ${CMAKE_SOURCE_DIR}/tests/support/bus)
    set(services ${CMAKE_BINARY_DIR}/no-bus-services)
    file(MAKE_DIRECTORY ${services})
    configure_file(${CMAKE_SOURCE_DIR}/platform/contacts/session-bus.conf.in ${CMAKE_BINARY_DIR}/empty-bus.conf @ONLY)
endif()

set(CONTACT_TEST_ENVIRONMENT
    QT_QPA_PLATFORM=offscreen LANG=C.UTF-8 LC_ALL=C.UTF-8 LANGUAGE=
    QT_SCALE_FACTOR=1
    # faketime's preloaded library comes before the sanitizer's runtime.
    ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=1:new_delete_type_mismatch=1
    UBSAN_OPTIONS=print_stacktrace=1
    LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0
    # Qt, libdbus and glib are not instrumented, so the sanitizer's findings in calls from there mean nothing.
    # tests/support/tsan/qtsynchronisation.cpp tells it about Qt's locks, events and threads.
    TSAN_OPTIONS=ignore_noninstrumented_modules=1)

function(contact_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "NO_TEST;OWN_LANGUAGE;SCRIPTED_ABILITY;SERIAL" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE Qt5::Test ${arg_LIBRARIES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
    target_compile_definitions(${name} PRIVATE CONTACT_SOURCE_DIR="${CMAKE_SOURCE_DIR}" CONTACT_BINARY_DIR="${CMAKE_BINARY_DIR}")
    if(NOT arg_OWN_LANGUAGE AND arg_LIBRARIES MATCHES "devhost_(window|service)")
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:chinese-desk>)
    elseif(NOT arg_OWN_LANGUAGE AND arg_LIBRARIES MATCHES "contacts_|reminders_test")
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:chinese-contacts>)
    endif()
    if(NOT arg_NO_TEST)
        set(options)
        foreach(option SCRIPTED_ABILITY SERIAL)
            if(arg_${option})
                list(APPEND options ${option})
            endif()
        endforeach()
        contact_add_test_run(${name} TARGET ${name} ${options})
    endif()
endfunction()

function(contact_add_test_run name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "SERIAL;BUS;EMPTY_BUS;SCRIPTED_ABILITY" "TARGET;AT;TZ;TIMEOUT" "ENVIRONMENT;ARGUMENTS;LABELS;COMMAND")
    if(NOT arg_TZ)
        set(arg_TZ Asia/Shanghai)
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    set(command)
    if(arg_AT)
        # Fakes only the calendar; timers keep the real clock. Wraps the bus, too, so that services share the
        # clock.
        list(APPEND command ${CONTACT_FAKETIME} --exclude-monotonic -f "@${arg_AT}")
    endif()
    if(arg_BUS)
        list(APPEND command ${CONTACT_TEST_BUS_DIR}/with-private-bus.sh ${CMAKE_BINARY_DIR}/private-bus.conf)
        if(arg_TARGET)
            add_dependencies(${arg_TARGET} meetlynx)
        endif()
    elseif(arg_EMPTY_BUS)
        list(APPEND command ${CONTACT_TEST_BUS_DIR}/with-private-bus.sh ${CMAKE_BINARY_DIR}/empty-bus.conf)
    endif()
    if(arg_COMMAND)
        list(APPEND command ${arg_COMMAND})
    else()
        list(APPEND command $<TARGET_FILE:${arg_TARGET}>)
    endif()
    if(arg_SCRIPTED_ABILITY)
        # Takes precedence over the run path, which names the real library's folder.
        list(APPEND arg_ENVIRONMENT LD_LIBRARY_PATH=$<TARGET_FILE_DIR:scripted-ability>)
        if(arg_TARGET)
            add_dependencies(${arg_TARGET} scripted-ability)
        endif()
    endif()
    add_test(NAME ${name} COMMAND ${command} ${arg_ARGUMENTS})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "TZ=${arg_TZ};${CONTACT_TEST_ENVIRONMENT};${arg_ENVIRONMENT}"
        TIMEOUT ${arg_TIMEOUT} LABELS "${arg_LABELS}")
    if(arg_SERIAL)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
    endif()
endfunction()
