# Installation, and the packages for other builds: for CMake, with the components Platform, Module and Tools, and for
# pkg-config.
include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Lumora)
install(TARGETS lumora-platform EXPORT LumoraPlatform
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/lumora-platform COMPONENT development)
install(TARGETS lumora-intl lumora-pictures lumora-xml
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${LUMORA_PLUGIN_FOLDER} COMPONENT runtime)
lumora_install_module(Lumora EXPORT LumoraModule VERSIONED)
install(EXPORT LumoraPlatform NAMESPACE Lumora:: DESTINATION ${package} COMPONENT development)
install(EXPORT LumoraModule NAMESPACE Lumora:: DESTINATION ${package} COMPONENT development)
if(LUMORA_TOOLS)
    install(TARGETS lumora-program EXPORT LumoraTools RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
    install(TARGETS lumora-drawing
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${LUMORA_PLUGIN_FOLDER} COMPONENT tools)
    set(help ${PROJECT_BINARY_DIR}/Tools/Program/help)
    if(LUMORA_PACKAGES) # Debian's folder for zsh functions, and a man page compressed as Debian requires
        set(zshFunctions vendor-completions)
        install(CODE "execute_process(COMMAND gzip -9nkf ${help}/lumora.man COMMAND_ERROR_IS_FATAL ANY)" COMPONENT tools)
        install(FILES ${help}/lumora.man.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 RENAME lumora.1.gz COMPONENT tools)
    else()
        set(zshFunctions site-functions)
        install(FILES ${help}/lumora.man DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 RENAME lumora.1 COMPONENT tools)
    endif()
    install(FILES ${help}/lumora.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME lumora
        COMPONENT tools)
    install(FILES ${help}/lumora.zsh DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/${zshFunctions} RENAME _lumora
        COMPONENT tools)
    install(FILES ${help}/lumora.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
    install(EXPORT LumoraTools NAMESPACE Lumora:: DESTINATION ${package} COMPONENT tools)
endif()

write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/LumoraConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES cmake/LumoraConfig.cmake cmake/LumoraModuleFunctions.cmake ${CMAKE_CURRENT_BINARY_DIR}/LumoraConfigVersion.cmake
    DESTINATION ${package} COMPONENT development)

# The path from the folder of the .pc files to the prefix, so that an installed tree can be moved.
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE OUTPUT_VARIABLE libdir)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${libdir}/pkgconfig OUTPUT_VARIABLE LUMORA_PC_PREFIX)
set(LUMORA_PC_LIBDIR ${CMAKE_INSTALL_LIBDIR})
set(LUMORA_PC_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})
foreach(directory LUMORA_PC_LIBDIR LUMORA_PC_INCLUDEDIR)
    if(NOT IS_ABSOLUTE ${${directory}})
        string(PREPEND ${directory} "\${prefix}/")
    endif()
endforeach()
foreach(name lumora lumora-platform)
    configure_file(cmake/${name}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()

if(NOT LUMORA_PACKAGES) # LumoraPackages.cmake has the files of Debian packages
    foreach(component runtime development tools)
        install(FILES LICENSE THIRD-PARTY.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT ${component})
    endforeach()
endif()
