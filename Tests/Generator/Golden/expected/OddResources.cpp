// Generated from the resources of the module Odd; do not edit.
#include "OddResources.h"

#include "Runtime/Class.h"
#include "Runtime/OnceSlot.h"

namespace Odd {

namespace {

// The address of `code` identifies the library whose bundle is wanted.
struct BundleFinder {
    static constexpr char code = 0;
};

// Initialized data: the dynamic linker writes to that page anyway, whereas zeroed memory would cause page faults.
[[gnu::section(".data.start")]] constinit ::Runtime::OnceSlot<const ::Foundation::NSBundle*> found;

const ::Foundation::NSBundle* publishedBundle() {
    return &OddResources::bundle();
}
// Both a property and a method of the class.
constexpr ::Runtime::Method bundleMethod[] = {::Runtime::method<&publishedBundle>("bundle")};
constexpr ::Runtime::Class resources("Odd.OddResources", bundleMethod, bundleMethod);
LUMORA_PUBLISH_CLASS(resources);

} // namespace

const ::Foundation::NSBundle& OddResources::bundle() {
    return *found.get([] { return &::Foundation::NSBundle::bundleForCode(&BundleFinder::code, "Odd"); });
}

} // namespace Odd
