# Modules of resources: lumora_add_module makes one from folders of resources, lumora_install_module installs it. Both
# work in this source tree and, with find_package(Lumora), in any project.
#
# lumora_add_module runs the program Lumora::lumora; in a cross build, set LUMORA_PROGRAM to one for the build machine.

# Sets the variable named by `out` to the program that custom commands run.
function(_lumora_program out)
    if(LUMORA_PROGRAM)
        set(${out} ${LUMORA_PROGRAM} PARENT_SCOPE)
    elseif(TARGET Lumora::lumora)
        set(${out} Lumora::lumora PARENT_SCOPE)
    else()
        message(FATAL_ERROR "lumora_add_module needs the program lumora: install Lumora's tools, or set LUMORA_PROGRAM")
    endif()
endfunction()

# _lumora_run(STAMP file COMMENT text ARGUMENTS argument... [BYPRODUCTS file...])
# Runs the program if a file or folder that it read last time has changed. The program does not write unchanged files,
# so STAMP is touched after every run. BYPRODUCTS has the files that it may write.
function(_lumora_run)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "STAMP;COMMENT" "ARGUMENTS;BYPRODUCTS")
    _lumora_program(program)
    add_custom_command(
        OUTPUT ${arg_STAMP}
        BYPRODUCTS ${arg_BYPRODUCTS}
        COMMAND ${program} ${arg_ARGUMENTS} --depfile ${arg_STAMP}.d --depfile-target ${arg_STAMP}
        COMMAND ${CMAKE_COMMAND} -E touch ${arg_STAMP}
        DEPENDS ${program}
        DEPFILE ${arg_STAMP}.d
        COMMENT "${arg_COMMENT}"
        VERBATIM)
endfunction()

# lumora_add_module(Name SOURCES folder... [NAMES_FILE file] [DEVELOPMENT_LANGUAGE code] [STRICT]
#                   [INCLUDE header...] [HEADERS header...] [SHARDS n])
# Makes the shared library target `Name` with the headers <Name/Name.h>, <Name/NameStrings.h> (accessors of texts) and
# <Name/NameAsset.h> (constants of pictures, colours and data) in the namespace `Name`, and Name.bundle beside the
# library file. Building a target that links it builds the bundle, too.
#   NAMES_FILE             a table of names for keys: "TABLE/KEY" = "Group.name";
#   DEVELOPMENT_LANGUAGE   the development language; without it, that of Info.plist or of a string catalog, or English;
#   STRICT                 warnings are errors;
#   INCLUDE                your headers that <Name/NameStrings.h> includes: functions added to the namespaces of the texts;
#   HEADERS                your headers that <Name/Name.h> includes: everything else that the module offers;
#   SHARDS                 the number of sources for the accessors, which compile in parallel (default: 1).
function(lumora_add_module name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "STRICT" "NAMES_FILE;DEVELOPMENT_LANGUAGE;SHARDS" "SOURCES;INCLUDE;HEADERS")
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
        message(FATAL_ERROR "usage: lumora_add_module(Name SOURCES folder... [NAMES_FILE file] "
                            "[DEVELOPMENT_LANGUAGE code] [STRICT] [INCLUDE header...] [HEADERS header...] [SHARDS n])")
    endif()
    set(sources "")
    foreach(source IN LISTS arg_SOURCES)
        cmake_path(ABSOLUTE_PATH source NORMALIZE)
        list(APPEND sources ${source})
    endforeach()
    set(options "")
    if(arg_NAMES_FILE)
        cmake_path(ABSOLUTE_PATH arg_NAMES_FILE NORMALIZE)
        list(APPEND options --names ${arg_NAMES_FILE})
    endif()
    if(arg_DEVELOPMENT_LANGUAGE)
        list(APPEND options --development-language ${arg_DEVELOPMENT_LANGUAGE})
    endif()
    if(arg_STRICT)
        list(APPEND options --strict)
    endif()
    if(NOT arg_SHARDS)
        set(arg_SHARDS 1)
    endif()

    set(generated ${CMAKE_CURRENT_BINARY_DIR}/${name}.generated)
    file(MAKE_DIRECTORY ${generated})
    set(folder ${generated}/${name})
    set(code ${folder}/${name}Resources.cpp ${folder}/${name}Asset.cpp ${folder}/${name}Strings.cpp)
    foreach(shard RANGE 1 ${arg_SHARDS})
        list(APPEND code ${folder}/${name}Strings-${shard}.cpp)
    endforeach()
    # Of the generated headers, the build system knows only these two. Each has a fingerprint of the headers that it
    # includes, so it changes when one of them does, and the files that include it are compiled again.
    set(known ${folder}/${name}Strings.h ${folder}/${name}Asset.h)
    # An option before each header.
    list(TRANSFORM arg_INCLUDE REPLACE "(.+)" "--include;\\1" OUTPUT_VARIABLE includes)
    list(TRANSFORM arg_HEADERS REPLACE "(.+)" "--header;\\1" OUTPUT_VARIABLE headers)
    _lumora_run(STAMP ${generated}/generated.stamp BYPRODUCTS ${code} ${known} COMMENT "Generating ${name}Strings and ${name}Asset"
                ARGUMENTS generate ${sources} --module ${name} -o ${folder} --shards ${arg_SHARDS} ${includes} ${headers} ${options})
    add_library(${name} SHARED ${code} ${generated}/generated.stamp)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PUBLIC Lumora::Platform)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${generated}>)
    # In unity builds the shards would clash, because they have the same local names.
    set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON UNITY_BUILD OFF
                          LUMORA_GENERATED ${generated})
    # It publishes a class to messages, which need run-time type information, even if the project is built without.
    set_source_files_properties(${folder}/${name}Resources.cpp PROPERTIES COMPILE_OPTIONS -frtti)

    _lumora_run(STAMP ${generated}/compiled.stamp COMMENT "Compiling ${name}.bundle"
                ARGUMENTS compile ${sources} -o $<TARGET_FILE_DIR:${name}>/${name}.bundle ${options})
    add_custom_target(${name}-bundle DEPENDS ${generated}/compiled.stamp)
    add_dependencies(${name} ${name}-bundle)
endfunction()

# lumora_install_module(Name [EXPORT set] [VERSIONED])
# Installs library, headers and bundle of a module. The bundle is in the library's folder; with VERSIONED it is in a
# subfolder (lumora-1 for liblumora.so.1), so that two versions can be installed together. EXPORT is that of
# install(TARGETS). Components: runtime, development.
function(lumora_install_module name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "VERSIONED" "EXPORT" "")
    set(generated "")
    if(TARGET ${name})
        get_target_property(generated ${name} LUMORA_GENERATED)
    endif()
    if(arg_UNPARSED_ARGUMENTS OR NOT generated)
        message(FATAL_ERROR "usage: lumora_install_module(Name [EXPORT set] [VERSIONED]) for a module of lumora_add_module")
    endif()
    include(GNUInstallDirs)
    set(export "")
    if(arg_EXPORT)
        set(export EXPORT ${arg_EXPORT})
    endif()
    set(headers "")
    get_target_property(sets ${name} INTERFACE_HEADER_SETS)
    if(sets)
        set(headers FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
    endif()
    set(place ${CMAKE_INSTALL_LIBDIR})
    if(arg_VERSIONED)
        set(version $<TARGET_PROPERTY:${name},SOVERSION>)
        string(APPEND place "$<$<NOT:$<STREQUAL:${version},>>:/$<TARGET_FILE_BASE_NAME:${name}>-${version}>")
    endif()
    install(TARGETS ${name} ${export}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        ${headers}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(DIRECTORY $<TARGET_FILE_DIR:${name}>/${name}.bundle DESTINATION ${place} COMPONENT runtime)
    install(DIRECTORY ${generated}/${name} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        COMPONENT development FILES_MATCHING PATTERN "*.h" PATTERN "Internal" EXCLUDE)
endfunction()
