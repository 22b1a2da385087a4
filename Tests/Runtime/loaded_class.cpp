// A library that publishes a class; class_test.cpp loads it again and again.
#include "Runtime/Class.h"
#include <array>

namespace {

bool isOpen() {
    return true;
}

// So many pointers take a while to relocate, which lets a search meet the library while it is being loaded.
constexpr auto methods = [] {
    std::array<Runtime::Method, 2000> all{};
    all.fill(Runtime::method<&isOpen>("isOpen"));
    return all;
}();
constexpr Runtime::Class window("Test.Window", {}, methods);
LUMORA_PUBLISH_CLASS(window);

} // namespace
