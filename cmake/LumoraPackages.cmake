# Debian packages of the three install components: liblumora1, liblumora-dev and lumora. `./run package` makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "typed access to localized texts and assets") # first line of every description
set(CPACK_PACKAGE_CONTACT "Lumora maintainers <maintainers@users.noreply.c-seed-46c1529d.example>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(runtime liblumora${PROJECT_VERSION_MAJOR})
set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(debian ${PROJECT_BINARY_DIR}/debian)
# Not written by CPack, which would warn about each plug-in.
set(shlibs ${debian}/shlibs)
file(WRITE ${shlibs} "liblumora ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})
liblumora-platform ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})
")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers ${shlibs})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblumora-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} ${same_version}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME lumora)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime} ${same_version}")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The platform that modules of texts, images, colours and data are built on,
and the fitness module with its bundle.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake and pkg-config packages for programs that use the module
or make modules of their own.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "The program lumora generates typed accessors for an application's resources,
compiles, checks, shows and exchanges them.")

# Files that every Debian package has.
find_program(GZIP gzip REQUIRED)
file(WRITE ${debian}/changelog.Debian "lumora (${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * See CHANGELOG.md of the sources.

 -- ${CPACK_PACKAGE_CONTACT}  Wed, 25 Nov 2026 12:00:00 +0000
")
execute_process(COMMAND ${GZIP} -9nf changelog.Debian WORKING_DIRECTORY ${debian} COMMAND_ERROR_IS_FATAL ANY)
foreach(component runtime development tools)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(FILES cmake/debian/copyright THIRD-PARTY.md ${debian}/changelog.Debian.gz DESTINATION share/doc/${package}
        COMPONENT ${component})
    # Accepted warnings of lintian: these packages are not for Debian's archive, so their first version closes no bug.
    # CPack adds scripts that call ldconfig to every package with a library.
    file(WRITE ${debian}/${package} "${package} binary: initial-upload-closes-no-bugs\n")
    if(NOT component STREQUAL "development")
        file(APPEND ${debian}/${package} "${package} binary: maintscript-calls-ldconfig\n")
    endif()
    install(FILES ${debian}/${package} DESTINATION share/lintian/overrides COMPONENT ${component})
endforeach()
include(CPack)
