# The typed trees of a source bundle, made during the build.

# lumora_generate(target SOURCE dir MODULE name [INCLUDE header...] [SHARDS n])
# Makes the trees of texts and assets of the source bundle `dir` and adds them to `target`, the texts in n sources (1 if
# not given). The trees' headers are reached as <name/nameStrings.h>, by whoever links the target too. INCLUDE names headers
# of hand-made members.
function(lumora_generate target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "SOURCE;MODULE;SHARDS" "INCLUDE")
    if(NOT arg_SHARDS)
        set(arg_SHARDS 1)
    endif()
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/Generated)
    set(folder ${generated}/${arg_MODULE})
    set(stamp ${folder}/${arg_MODULE}.stamp)

    set(sources ${folder}/${arg_MODULE}Resources.cpp ${folder}/${arg_MODULE}Strings.cpp)
    foreach(shard RANGE 1 ${arg_SHARDS})
        list(APPEND sources ${folder}/${arg_MODULE}Strings-${shard}.cpp)
    endforeach()
    file(GLOB catalogs CONFIGURE_DEPENDS LIST_DIRECTORIES true ${arg_SOURCE}/*.xcassets)
    file(GLOB_RECURSE contents CONFIGURE_DEPENDS ${arg_SOURCE}/*.xcassets/Contents.json)
    if(catalogs)
        list(APPEND sources ${folder}/${arg_MODULE}Asset.cpp)
    endif()
    set(includes "")
    foreach(header IN LISTS arg_INCLUDE)
        list(APPEND includes --include ${header})
    endforeach()
    # The tables of every language: only Info.plist says which is the development language.
    file(GLOB tables CONFIGURE_DEPENDS ${arg_SOURCE}/*.lproj/*.strings ${arg_SOURCE}/Info.plist)

    # Which headers there are, only the tables decide. A build learns of those that an earlier one made; a new one is
    # included by one of them, which changes with it.
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${folder}/*.h)

    # The stamp is what is always new: files that have their content already keep their time, so that nothing that
    # includes them is compiled again.
    add_custom_command(
        OUTPUT ${stamp}
        BYPRODUCTS ${sources} ${headers}
        COMMAND lumora-generate ${arg_SOURCE} --module ${arg_MODULE} -o ${folder} --shards ${arg_SHARDS} ${includes}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS lumora-generate ${tables} ${contents}
        COMMENT "Generating ${arg_MODULE}Strings and ${arg_MODULE}Asset"
        VERBATIM)
    target_sources(${target} PRIVATE ${sources} ${stamp})
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${generated}>)
endfunction()
