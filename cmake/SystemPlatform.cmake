# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Finds the installed desktop's platform, under the target names of the bundled one. Set CMAKE_PREFIX_PATH if
# it is in an unusual place.

# contact_find_platform(PACKAGE p TARGET t HEADER h [LIBRARY l] [LINKS targets...]): provides the imported
# target t from the CMake package p installed beside the header h. Without such a package, creates t from the
# include folder of h, the library l (omit it for header-only parts) and LINKS.
function(contact_find_platform)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "PACKAGE;TARGET;HEADER;LIBRARY" "LINKS")
    string(MAKE_C_IDENTIFIER "CONTACT_${arg_TARGET}" variable)
    find_path(${variable}_INCLUDE_DIR ${arg_HEADER})
    if(NOT ${variable}_INCLUDE_DIR)
        message(FATAL_ERROR "The installed platform lacks the header <${arg_HEADER}>. "
            "Set CMAKE_PREFIX_PATH to where it is installed, or build with -DCONTACT_PLATFORM=bundled.")
    endif()
    find_package(${arg_PACKAGE} CONFIG QUIET NO_DEFAULT_PATH PATHS ${${variable}_INCLUDE_DIR}/..)
    if(TARGET ${arg_TARGET})
        message(STATUS "${arg_TARGET} of ${${arg_PACKAGE}_CONFIG}")
        return()
    endif()
    if(NOT arg_LIBRARY)
        add_library(${arg_TARGET} INTERFACE IMPORTED GLOBAL)
    else()
        find_library(${variable}_LIBRARY ${arg_LIBRARY})
        if(NOT ${variable}_LIBRARY)
            message(FATAL_ERROR "The installed platform lacks lib${arg_LIBRARY}.so. "
                "Set CMAKE_PREFIX_PATH to where it is installed, or build with -DCONTACT_PLATFORM=bundled.")
        endif()
        add_library(${arg_TARGET} SHARED IMPORTED GLOBAL)
        set_target_properties(${arg_TARGET} PROPERTIES IMPORTED_LOCATION ${${variable}_LIBRARY})
    endif()
    set_target_properties(${arg_TARGET} PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES ${${variable}_INCLUDE_DIR} INTERFACE_LINK_LIBRARIES "${arg_LINKS}")
endfunction()

contact_find_platform(PACKAGE Speakmate TARGET Speakmate::speakmate HEADER speakmate/iserviceplugin.h LINKS Qt5::Core)
contact_find_platform(PACKAGE Lumo TARGET Lumo::lumo HEADER lumo/llabel.h LIBRARY lumo LINKS Qt5::Widgets)
contact_find_platform(PACKAGE KelvaneSystemAbility TARGET Kelvane::system-ability
    HEADER kelvane/kelvaneabilitymanager.h LIBRARY kelvane-system-ability LINKS Qt5::Core)
set(SPEAKMATE_MOC_HEADERS ${CONTACT_Speakmate__speakmate_INCLUDE_DIR}/speakmate/iservice.h)
