// A program that opens and closes the library repeatedly instead of linking it. Closing does not unload it, because its
// data may be in use.
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

struct NSString;

struct Usage {
    std::ptrdiff_t descriptors = 0;
    long residentPages = 0;
};
Usage usage() {
    Usage now;
    now.descriptors = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    long all = 0;
    std::ifstream("/proc/self/statm") >> all >> now.residentPages;
    return now;
}

// Opens the library, reads one text and closes the library. Returns null, or what went wrong.
const char* readOnce() {
    void* library = ::dlopen(LUMORA_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        return ::dlerror();
    const auto create = reinterpret_cast<NSString* (*)(const char*)>(::dlsym(library, "NSStringCreate"));
    const auto utf8 = reinterpret_cast<const char* (*)(const NSString*)>(::dlsym(library, "NSStringUTF8"));
    const auto loc = reinterpret_cast<NSString* (*)(const NSString*)>(::dlsym(library, "Loc"));
    const auto release = reinterpret_cast<void (*)(const void*)>(::dlsym(library, "NSRelease"));
    NSString* key = create("Continue");
    NSString* text = loc(key);
    const bool isRight = std::strcmp(utf8(text), "Continue") == 0;
    release(text);
    release(key);
    ::dlclose(library);
    return isRight ? nullptr : "another text";
}

TEST(Reload, GrowsNeitherMemoryNorDescriptors) {
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(readOnce(), nullptr);
    const Usage before = usage();
    for (int i = 0; i < 2000; ++i)
        ASSERT_EQ(readOnce(), nullptr);
    const Usage after = usage();
    EXPECT_EQ(after.descriptors, before.descriptors);
    // A leak of 4 KiB a round would exceed this. Freed memory that a sanitizer retains stays below it.
    EXPECT_LT((after.residentPages - before.residentPages) * ::sysconf(_SC_PAGESIZE), 8'000'000);
    EXPECT_NE(::dlopen(LUMORA_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "the library was unloaded";
}

} // namespace
