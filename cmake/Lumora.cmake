# How every part of the project is built: one language level, one set of warnings, hidden visibility, and one function per
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
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo" FORCE)
endif()

# The library, its companions and its bundle lie together in the build tree as they do when installed.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(LumoraBuildRules INTERFACE)
target_compile_options(LumoraBuildRules INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow
                       $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
# Not -O3: a seventh less code, all of it as fast or faster, and fewer pages to load at a process's start.
target_compile_options(LumoraBuildRules INTERFACE $<$<CONFIG:Release>:-O2>)
if(LUMORA_FUZZERS) # libraries too: what is not instrumented guides no fuzzer
    target_compile_options(LumoraBuildRules INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(LumoraBuildRules INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(LUMORA_SANITIZE)
    target_compile_options(LumoraBuildRules INTERFACE -fsanitize=${LUMORA_SANITIZE} -fno-omit-frame-pointer
                           -fno-sanitize-recover=all)
    target_link_options(LumoraBuildRules INTERFACE -fsanitize=${LUMORA_SANITIZE})
endif()

# lumora_library(Name SOURCES a.cpp b.cpp LINK Other ...)
# One folder, one static library of position-independent code, reachable as Lumora::Name. Its headers are included as
# "Name/Header.h". LINK names what its folder may include.
function(lumora_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;PRIVATE_LINK")
    add_library(${name} STATIC ${arg_SOURCES})
    add_library(Lumora::${name} ALIAS ${name})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH above)
    target_include_directories(${name} PUBLIC ${above})
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE ${arg_PRIVATE_LINK} LumoraBuildRules)
endfunction()

# lumora_companion(Target FILE lumora-name SOURCES ... LINK ...)
# A library that liblumora.so opens itself when its service is first asked for; lies in the folder lumora/ beside it.
function(lumora_companion name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "FILE" "SOURCES;LINK")
    add_library(${name} MODULE ${arg_SOURCES})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH above)
    target_include_directories(${name} PRIVATE ${above})
    target_link_libraries(${name} PRIVATE ${arg_LINK} LumoraBuildRules)
    set_target_properties(${name} PROPERTIES PREFIX "" OUTPUT_NAME ${arg_FILE}
                          LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/lumora)
    install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/lumora)
endfunction()

# lumora_test(name SOURCES ... LINK ... [LABELS ...])
# A GoogleTest program whose cases are registered one by one; a program without a case fails.
function(lumora_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;LABELS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest_main LumoraBuildRules)
    target_compile_definitions(${name} PRIVATE LUMORA_TEST_DATA="${PROJECT_SOURCE_DIR}/Tests/Data")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300)
endfunction()
