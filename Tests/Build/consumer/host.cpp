// Opens the library at the relative path that is its argument, changes the current directory so that the path is no
// longer right, then reads a text and an age.
#include <cstdio>
#include <dlfcn.h>
#include <unistd.h>

struct NSString;

int main(int, char** argv) {
    void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        std::printf("%s\n", dlerror());
        return 1;
    }
    if (chdir("/") != 0)
        return 1;
    const auto create = reinterpret_cast<NSString* (*)(const char*)>(dlsym(library, "NSStringCreate"));
    const auto utf8 = reinterpret_cast<const char* (*)(const NSString*)>(dlsym(library, "NSStringUTF8"));
    const auto loc = reinterpret_cast<NSString* (*)(const NSString*)>(dlsym(library, "Loc"));
    const auto age = reinterpret_cast<NSString* (*)(long)>(dlsym(library, "LocAge"));
    std::printf("%s\n%s\n", utf8(loc(create("Continue"))), utf8(age(25)));
}
