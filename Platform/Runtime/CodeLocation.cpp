#include "Runtime/internal/CodeLocation.h"

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/RealPath.h"
#include <array>
#include <climits>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <unistd.h>

namespace Runtime {

namespace {

// A separate function, because an absolute name does not need its stack memory.
[[gnu::noinline]] std::string absolutePathOf(link_map* object, const std::string& name) {
    std::array<char, std::size_t{2} * PATH_MAX> origin{}; // for the current directory and a relative path
    if (::dlinfo(object, RTLD_DI_ORIGIN, origin.data()) != 0)
        return name;
    return std::string(origin.data()) + "/" + name.substr(name.rfind('/') + 1);
}

// The path by which an object was loaded, made absolute with the directory that was current at that time.
std::string pathOf(link_map* object) {
    std::string name = object->l_name;
    return name.starts_with('/') ? name : absolutePathOf(object, name);
}

// The path of the file with its links resolved, as the system knows it for an open file. It takes three system calls;
// realPath() takes one for each folder. Empty if the system has no such path: without free descriptors or /proc, or for
// a removed file or a very long path.
std::string openedPath(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_PATH | O_CLOEXEC));
    if (file.number() < 0)
        return {};
    const std::string link = "/proc/self/fd/" + std::to_string(file.number());
    std::array<char, 1024> name;
    const ssize_t size = ::readlink(link.c_str(), name.data(), name.size());
    const std::string_view read(name.data(), size < 0 ? 0 : static_cast<std::size_t>(size));
    const bool isPath = read.starts_with('/') && read.size() < name.size() && !read.ends_with(" (deleted)");
    return std::string(isPath ? read : std::string_view());
}

CodeLocation locationOf(const std::string& path) {
    std::string file = openedPath(path);
    if (file.empty())
        file = realPath(path);
    if (file.empty())
        return {};
    const std::size_t slash = file.rfind('/');
    return {.directory = file.substr(0, slash), .name = file.substr(slash + 1)};
}

} // namespace

CodeLocation codeLocation(const void* code) {
    // dladdr would also search the symbol table, which touches all of the library's names.
    dl_find_object found{};
    if (::_dl_find_object(const_cast<void*>(code), &found) != 0)
        return {};
    link_map* const object = found.dlfo_link_map;
    // The main program has an empty name in the link map.
    return object->l_name[0] == '\0' ? mainProgramLocation() : locationOf(pathOf(object));
}

CodeLocation mainProgramLocation() {
    CodeLocation program = locationOf("/proc/self/exe");
    program.isMainProgram = !program.name.empty();
    return program;
}

} // namespace Runtime
