# Settings for all parts of the project: language standard, warnings, hidden visibility, and one function for each
# kind of target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(PROJECT_IS_TOP_LEVEL)
    if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
        set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo" FORCE)
    endif()
    find_program(CCACHE ccache)
    if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
    endif()
endif()

# In the build tree, the libraries, their plug-ins and bundles are in one folder, like installed ones. Run paths are
# relative, so that builds in different folders are identical.
set(output ${PROJECT_BINARY_DIR})
get_property(multi GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(multi)
    string(APPEND output "/$<CONFIG>")
endif()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${output}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${output}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
# A parent project's settings for one configuration would take precedence. The libraries find plug-ins by file name, and
# pkg-config finds the libraries by theirs, so these have no postfix.
foreach(config IN LISTS CMAKE_CONFIGURATION_TYPES CMAKE_BUILD_TYPE)
    string(TOUPPER ${config} config)
    set(CMAKE_${config}_POSTFIX "")
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY_${config} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY_${config} ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
endforeach()
set(CMAKE_UNITY_BUILD OFF) # sources of one library have local names in common
# The version is part of the name, so two versions of the platform can be installed together.
set(LUMORA_PLUGIN_FOLDER lumora-platform-${PROJECT_VERSION_MAJOR})
set(LUMORA_ICU_VERSION 72) # the minimum version

include(CheckLinkerFlag)
check_linker_flag(CXX -Wl,-z,pack-relative-relocs LUMORA_HAS_PACKED_RELOCATIONS)
check_linker_flag(CXX -Wl,-z,noseparate-code LUMORA_HAS_NOSEPARATE_CODE)

add_library(lumora-build-rules INTERFACE)
target_compile_options(lumora-build-rules INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow
                       $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
# Not -O3: the code is a seventh smaller and at least as fast, and fewer pages are loaded at the start of a process.
target_compile_options(lumora-build-rules INTERFACE $<$<CONFIG:Release>:-O2>)
# Keeps paths of the build machine out of the binaries.
target_compile_options(lumora-build-rules INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
if(LUMORA_FUZZERS) # libraries, too, because fuzzers are guided by instrumented code
    target_compile_options(lumora-build-rules INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(lumora-build-rules INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(LUMORA_SANITIZE)
    target_compile_options(lumora-build-rules INTERFACE -fsanitize=${LUMORA_SANITIZE} -fno-omit-frame-pointer
                           -fno-sanitize-recover=all)
    target_link_options(lumora-build-rules INTERFACE -fsanitize=${LUMORA_SANITIZE})
endif()

# lumora_real_targets(out items...)
# Sets `out` to the items with every alias replaced by its target, so that each library is linked once.
function(lumora_real_targets out)
    set(real "")
    foreach(item IN LISTS ARGN)
        if(TARGET ${item})
            get_target_property(aliased ${item} ALIASED_TARGET)
            if(aliased)
                set(item ${aliased})
            endif()
        endif()
        list(APPEND real ${item})
    endforeach()
    set(${out} ${real} PARENT_SCOPE)
endfunction()

# lumora_library(Name SOURCES a.cpp b.cpp LINK Lumora::Other ... [PRIVATE_LINK ...])
# A static library of position-independent code from sources of one folder: the target lumora-Name, linked as
# Lumora::Name. Its headers are included as "FOLDER/Header.h". LINK has the libraries whose headers its users may
# include, too, PRIVATE_LINK those that only its own sources need.
function(lumora_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;PRIVATE_LINK")
    add_library(lumora-${name} STATIC ${arg_SOURCES})
    add_library(Lumora::${name} ALIAS lumora-${name})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH above)
    target_include_directories(lumora-${name} PUBLIC ${above})
    lumora_real_targets(arg_LINK ${arg_LINK})
    target_link_libraries(lumora-${name} PUBLIC ${arg_LINK} PRIVATE ${arg_PRIVATE_LINK} lumora-build-rules)
endfunction()

# lumora_place(target kind folder)
# Sets the output folder of a target in every configuration. `kind` is RUNTIME or LIBRARY.
function(lumora_place target kind folder)
    set_target_properties(${target} PROPERTIES ${kind}_OUTPUT_DIRECTORY ${folder})
    foreach(config IN LISTS CMAKE_CONFIGURATION_TYPES CMAKE_BUILD_TYPE)
        string(TOUPPER ${config} config)
        set_target_properties(${target} PROPERTIES ${kind}_OUTPUT_DIRECTORY_${config} ${folder})
    endforeach()
endfunction()

# lumora_plugin(name SOURCES ... LINK ...)
# A library that is loaded when it is first needed: NAME.so in the folder LUMORA_PLUGIN_FOLDER beside the library or program
# that loads it. It exports the symbols in the linker script NAME.map.
function(lumora_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    set(map ${CMAKE_CURRENT_SOURCE_DIR}/${name}.map)
    add_library(${name} MODULE ${arg_SOURCES})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH above)
    target_include_directories(${name} PRIVATE ${above})
    target_link_libraries(${name} PRIVATE ${arg_LINK} lumora-build-rules)
    # The templates of the standard library remain visible despite hidden visibility; the script hides them, too.
    target_link_options(${name} PRIVATE -Wl,--version-script=${map})
    set_target_properties(${name} PROPERTIES PREFIX "" LINK_DEPENDS ${map})
    lumora_place(${name} LIBRARY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${LUMORA_PLUGIN_FOLDER})
endfunction()

# lumora_place_beside_plugins(programs...)
# For programs that link parts of the platform statically. They look for plug-ins in LUMORA_PLUGIN_FOLDER beside
# themselves, as the platform does beside its library, so they are built into the libraries' folder.
function(lumora_place_beside_plugins)
    foreach(program IN LISTS ARGN)
        lumora_place(${program} RUNTIME ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
    endforeach()
endfunction()

# lumora_shared_library(target map)
# The common settings of both shared libraries: a soname, and only the symbols in the linker script `map` are visible.
function(lumora_shared_library target map)
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${map})
    target_compile_features(${target} PUBLIC cxx_std_20)
    # Never unloaded, so that texts and views remain valid. Its functions call each other directly.
    target_link_options(${target} PRIVATE -Wl,-z,nodelete -Wl,-Bsymbolic -Wl,--as-needed -Wl,--version-script=${map})
    if(LUMORA_HAS_PACKED_RELOCATIONS)
        target_link_options(${target} PRIVATE -Wl,-z,pack-relative-relocs)
    endif()
    # Code and constants share one mapping, so each process creates two mappings fewer and loads fewer pages when it
    # starts.
    if(LUMORA_HAS_NOSEPARATE_CODE)
        target_link_options(${target} PRIVATE -Wl,-z,noseparate-code)
    endif()
    if(NOT LUMORA_SANITIZE) # the sanitizer's functions are in the program, so they are undefined here
        target_link_options(${target} PRIVATE -Wl,-z,defs)
    endif()
endfunction()

# lumora_test(name SOURCES ... LINK ... [LABELS ...])
# A GoogleTest program. The test fails if the program has no test cases. The presets select tests by two labels: they run no
# `build` tests with sanitizers, and only `thread` tests with the thread sanitizer. The other labels say what a test is about:
# `unit`, `tool` (the program lumora), `fault`, `fuzz`.
function(lumora_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;LABELS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest_main lumora-build-rules)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300 FAIL_REGULAR_EXPRESSION "Running 0 tests")
endfunction()
