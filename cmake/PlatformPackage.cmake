# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# platform_package(NAME TARGET t NAMESPACE n EXPORT_NAME e HEADERS dir DESCRIPTION text QT components... [LIBRARY l])
#   Installs the target and development files of a part of the platform: headers, a CMake package for
#   find_package(NAME) with the target n::e, and a pkg-config file. LIBRARY is the library's name for
#   pkg-config; omit it for header-only parts.

include(CMakePackageConfigHelpers)

function(platform_package name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TARGET;NAMESPACE;EXPORT_NAME;HEADERS;DESCRIPTION;LIBRARY" "QT")
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/package)

    set_target_properties(${arg_TARGET} PROPERTIES EXPORT_NAME ${arg_EXPORT_NAME})
    install(TARGETS ${arg_TARGET} EXPORT ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(EXPORT ${name} FILE ${name}Targets.cmake NAMESPACE ${arg_NAMESPACE}:: DESTINATION ${package_dir})
    install(DIRECTORY ${arg_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

    list(JOIN arg_QT " " QT_COMPONENTS)
    configure_package_config_file(${name}Config.cmake.in ${generated}/${name}Config.cmake
        INSTALL_DESTINATION ${package_dir} PATH_VARS CMAKE_INSTALL_INCLUDEDIR NO_CHECK_REQUIRED_COMPONENTS_MACRO)
    write_basic_package_version_file(${generated}/${name}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${generated}/${name}Config.cmake ${generated}/${name}ConfigVersion.cmake DESTINATION ${package_dir})

    string(TOLOWER ${arg_EXPORT_NAME} pc_name)
    if(arg_LIBRARY)
        set(pc_name ${arg_LIBRARY})
        set(PC_LIBS "Libs: -L\${libdir} -l${arg_LIBRARY}")
    endif()
    set(PC_NAME ${name})
    set(PC_DESCRIPTION ${arg_DESCRIPTION})
    list(TRANSFORM arg_QT PREPEND Qt5 OUTPUT_VARIABLE pc_requires)
    list(JOIN pc_requires " " PC_REQUIRES)
    # Relative to the .pc file, so that an installed tree can be moved, unless a folder was given as an
    # absolute path.
    set(PC_LIBDIR ${CMAKE_INSTALL_FULL_LIBDIR})
    set(PC_INCLUDEDIR ${CMAKE_INSTALL_FULL_INCLUDEDIR})
    set(PC_PREFIX ${CMAKE_INSTALL_PREFIX})
    if(NOT IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR} AND NOT IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
        file(RELATIVE_PATH up /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
        string(REGEX REPLACE "/$" "" up ${up})
        set(PC_PREFIX "\${pcfiledir}/${up}")
        set(PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
        set(PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${generated}/${pc_name}.pc @ONLY)
    install(FILES ${generated}/${pc_name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
