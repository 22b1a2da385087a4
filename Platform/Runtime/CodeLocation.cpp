#include "Runtime/internal/CodeLocation.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <link.h>
#include <memory>
#include <new> // std::bad_alloc

namespace Runtime {

namespace {

// The path by which an object was loaded, made absolute with the directory that was current at that time.
std::string pathOf(link_map* object) {
    std::string name = object->l_name;
    if (name.starts_with('/'))
        return name;
    std::array<char, std::size_t{2} * PATH_MAX> origin{};
    if (::dlinfo(object, RTLD_DI_ORIGIN, origin.data()) != 0)
        return name;
    return std::string(origin.data()) + "/" + name.substr(name.rfind('/') + 1);
}

CodeLocation locationOf(const std::string& path, bool isMainProgram) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (real == nullptr && errno == ENOMEM)
        throw std::bad_alloc();
    if (real == nullptr)
        return {};
    const std::string file = real.get();
    const std::size_t slash = file.rfind('/');
    return {.directory = file.substr(0, slash), .name = file.substr(slash + 1), .isMainProgram = isMainProgram};
}

} // namespace

CodeLocation codeLocation(const void* code) {
    // dladdr would also search the symbol table, which touches all of the library's names.
    dl_find_object found{};
    if (::_dl_find_object(const_cast<void*>(code), &found) != 0)
        return {};
    link_map* const object = found.dlfo_link_map;
    // The main program has an empty name in the link map.
    return object->l_name[0] == '\0' ? mainProgramLocation() : locationOf(pathOf(object), false);
}

CodeLocation mainProgramLocation() {
    return locationOf("/proc/self/exe", true);
}

} // namespace Runtime
