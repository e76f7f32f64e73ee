# What is installed, in six components:
#
#   runtime       shared libraries of the engine
#   interface     the shared library for programs in any language
#   development   headers, static libraries, and what find_package() and pkg-config read
#   program       mekbom, its files, its manual page and the completion of its commands in shells
#   python        the Python package, where Debian's interpreter looks for it; in none of Debian's packages
#   docs          manuals
#
# Headers keep their folders below include/mekbom, since they name each other by them.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
find_program(MEK_GZIP gzip)
mark_as_advanced(MEK_GZIP)
set(MEK_INSTALL_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/mekbom)
set(MEK_INSTALL_DOCS ${CMAKE_INSTALL_DATADIR}/doc/mekbom-doc)
set(MEK_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/MekBomEngine)

# mek_find_libraries_from(mekbom ${CMAKE_INSTALL_FULL_BINDIR}): an installed program or library finds the shared libraries
# where they lie as seen from its own folder, so that the installation can be moved; in the folders of the system the
# loader looks without being told.
function(mek_find_libraries_from target folder)
    if(NOT BUILD_SHARED_LIBS OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux"
       OR CMAKE_INSTALL_FULL_LIBDIR IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
        return()
    endif()
    file(RELATIVE_PATH path ${folder} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${path}")
endfunction()

# mek_install_pkg_config(MekUnits LINK Mek::Roots FOLDERS MekUnits/Src): MekUnits.pc, for the library of that name, which
# needs another one and has headers in these folders. Its prefix is told from where the file itself lies.
function(mek_install_pkg_config pc_name)
    cmake_parse_arguments(ARG "" "" "LINK;FOLDERS" ${ARGN})
    string(REPLACE "Mek::" "Mek" pc_requires "${ARG_LINK}")
    file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    file(RELATIVE_PATH pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
    file(RELATIVE_PATH pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR}/mekbom)
    set(pc_cflags "-I\${includedir}")
    foreach(folder IN LISTS ARG_FOLDERS)
        string(APPEND pc_cflags " -I\${includedir}/${folder}")
    endforeach()
    if(NOT BUILD_SHARED_LIBS)
        string(APPEND pc_cflags " -DMEK_STATIC_LIBRARIES")
        set(pc_libs "-lstdc++") # for hosts that are linked as C programs
    endif()
    string(REPLACE ";" " " pc_requires "${pc_requires}")
    configure_file(${PROJECT_SOURCE_DIR}/CMake/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${pc_name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${pc_name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
            COMPONENT development)
endfunction()

# mek_install_library(Units LINK Mek::Roots): the library of the calling folder with the headers that users get.
function(mek_install_library name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    if(NOT MEK_INSTALL)
        return()
    endif()
    set(target Mek${name})
    file(RELATIVE_PATH module ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${MEK_INSTALL_HEADERS}>)
    foreach(folder Src Exp)
        file(GLOB headers CONFIGURE_DEPENDS ${folder}/*.h)
        if(headers)
            list(APPEND folders ${module}/${folder})
            install(FILES ${headers} DESTINATION ${MEK_INSTALL_HEADERS}/${module}/${folder} COMPONENT development)
            target_include_directories(${target} INTERFACE
                                       $<INSTALL_INTERFACE:${MEK_INSTALL_HEADERS}/${module}/${folder}>)
        endif()
    endforeach()
    mek_find_libraries_from(${target} ${CMAKE_INSTALL_FULL_LIBDIR})
    install(TARGETS ${target} EXPORT MekBomEngineTargets
            RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
            ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    mek_install_pkg_config(${target} LINK ${ARG_LINK} FOLDERS ${folders})
endfunction()

# What find_package(MekBomEngine) reads, and the manuals.
function(mek_install_package)
    if(NOT MEK_INSTALL)
        return()
    endif()
    install(EXPORT MekBomEngineTargets NAMESPACE Mek:: DESTINATION ${MEK_INSTALL_CMAKE} COMPONENT development)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/CMake/MekBomEngineConfig.cmake.in
                                  ${PROJECT_BINARY_DIR}/MekBomEngineConfig.cmake
                                  INSTALL_DESTINATION ${MEK_INSTALL_CMAKE})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/MekBomEngineConfigVersion.cmake
                                     COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/MekBomEngineConfig.cmake ${PROJECT_BINARY_DIR}/MekBomEngineConfigVersion.cmake
            DESTINATION ${MEK_INSTALL_CMAKE} COMPONENT development)
    # They keep their folders, since they refer to each other by them.
    install(FILES README.md CHANGELOG.md DESTINATION ${MEK_INSTALL_DOCS} COMPONENT docs)
    install(DIRECTORY Docs DESTINATION ${MEK_INSTALL_DOCS} COMPONENT docs)
endfunction()
