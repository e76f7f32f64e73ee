# The packages for Debian, each a component of the installation:
#
#   libmekbomengine1      runtime          libmekbom1    interface
#   libmekbomengine-dev   development      mekbom        program
#   mekbom-doc            docs
#
# They are made by make_packages.sh. Two builds of the same sources make the same bytes: times are that of the entry in
# Debian/changelog, and permissions do not depend on the user who builds.

if(NOT BUILD_SHARED_LIBS OR NOT MEK_GZIP)
    message(FATAL_ERROR "Packages for Debian are made of shared libraries, and by gzip")
endif()

file(STRINGS Debian/changelog entry LIMIT_COUNT 1)
if(NOT entry MATCHES "\\(${PROJECT_VERSION}\\)")
    message(FATAL_ERROR "Packaging/Debian/changelog has no entry of version ${PROJECT_VERSION}")
endif()

set(library libmekbomengine${PROJECT_VERSION_MAJOR})
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development docs)
if(MEK_BUILD_HOST)
    list(APPEND CPACK_COMPONENTS_ALL program interface)
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has a summary of its own
set(CPACK_PACKAGE_CONTACT "MekBomEngine maintainers <maintainers@mekbomengine.invalid>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE mekbomengine)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
     ${PROJECT_BINARY_DIR}/MekRoots ${PROJECT_BINARY_DIR}/MekUnits ${PROJECT_BINARY_DIR}/KTRepositoryProxy
     ${PROJECT_BINARY_DIR}/ExpressionEvaluator ${PROJECT_BINARY_DIR}/MekBomEngine)

# mek_add_debian_package(mekbom program utils "program" "This package ..."): what one package says of itself, and the files that every
# package has.
function(mek_add_debian_package package component section summary description)
    string(TOUPPER ${component} COMPONENT)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${COMPONENT}_DESCRIPTION "bills of materials from steel models - ${summary}
MekBomEngine turns modelled steel objects (beams, plates, bolts) into bills of
materials: sorted, grouped, summed, computed by formulas and shown in the
user's units, as a template prescribes.
.
${description}" PARENT_SCOPE)
    install(FILES Debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
            DESTINATION share/doc/${package} COMPONENT ${component})
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/Debian/${package}.lintian-overrides)
        install(FILES Debian/${package}.lintian-overrides DESTINATION share/lintian/overrides RENAME ${package}
                COMPONENT ${component})
    endif()
endfunction()

execute_process(COMMAND ${MEK_GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/Debian/changelog
                OUTPUT_FILE ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
mek_add_debian_package(${library} runtime libs "libraries"
    "This package has the shared libraries.")
mek_add_debian_package(libmekbomengine-dev development libdevel "development"
    "This package has what programs are built with: headers, and the files that\nCMake and pkg-config read.")
mek_add_debian_package(mekbom-doc docs doc "manuals"
    "This package has the manuals.")
set(CPACK_DEBIAN_DOCS_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCS_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library} (= ${PROJECT_VERSION})")
if(MEK_BUILD_HOST)
    mek_add_debian_package(mekbom program utils "program"
        "This package has the program mekbom, which makes such lists of parts lists\nin CSV, workbooks and JSON.")
    set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${library} (>= ${PROJECT_VERSION})")
    set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS mekbom-doc)
    mek_add_debian_package(libmekbom${PROJECT_VERSION_MAJOR} interface libs "C interface"
        "This package has the shared library that makes such lists for programs in any\nlanguage.")
    set(CPACK_DEBIAN_INTERFACE_PACKAGE_DEPENDS "${library} (>= ${PROJECT_VERSION})")
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", libmekbom${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
endif()

# The loader learns of new libraries at the end of an installation.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/Debian/triggers)
set(CPACK_DEBIAN_INTERFACE_PACKAGE_CONTROL_EXTRA ${CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA})
include(CPack)
