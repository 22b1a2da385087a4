// Generator/StringsTemplates.h
// The constant parts of generated code for texts; internal to the emitter.
// In generated code the platform's names begin with "::", because a group may be named Foundation.
#pragma once

#include <string_view>

namespace Generator {

inline constexpr std::string_view declarationsBegin = R"(#pragma once

#include "Foundation/Describable.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <string>)";

// Reads the arrays `characters`, `tables` and `places`, which StringsEmitter.cpp adds before it.
inline constexpr std::string_view keyDefinition = R"(
inline ::Foundation::LocalizedKey keyAt(std::size_t entry) noexcept {
    const Place& place = places[entry];
    const Table& table = tables[place.table];
    const std::string_view name(characters + table.name, table.size);
    const std::string_view key(characters + place.key, places[entry + 1].key - place.key);
    return {name, key, table.hash, place.hash};
})";

// {{count}}: the number of plain entries.
inline constexpr std::string_view plainDefinition = R"(
using Slot = ::Runtime::OnceSlot<std::string>;
constinit Slot slots[{{count}}];

// When memory or descriptors run out, the text is empty, and a later call tries again.
[[gnu::noinline, gnu::cold]] const std::string& made(const Slot& slot) noexcept {
    try {
        const auto entry = static_cast<std::size_t>(&slot - slots);
        return slots[entry].get([entry] { return tr(keyAt(entry), {}); });
    } catch (...) {
        return noText();
    }
})";

inline constexpr std::string_view formattedDefinition = R"(
[[gnu::noinline]] std::string formatted(std::size_t entry,
                                        std::initializer_list<::Foundation::FormatArgument> arguments) noexcept {
    try {
        return tr(keyAt(entry), arguments);
    } catch (...) { // no memory or descriptors
        return {};
    }
})";

// Placed before the accessors and the function that is inlined into them: GCC does not inline a function into one with
// fewer optimizations.
inline constexpr std::string_view fewerOptimizations = R"(
// The optimizations that are switched off take almost half of GCC's time and do not change a plain accessor. The
// alignment keeps an accessor in one cache line.
#if defined(__OPTIMIZE__) && !defined(__clang__)
#pragma GCC optimize("O1", "optimize-sibling-calls", "align-functions=32", "no-tree-pta", "no-tree-sra", "no-tree-dce", \
                     "no-tree-dse", "no-tree-dominator-opts", "no-tree-fre", "no-tree-ccp", "no-tree-bit-ccp", "no-if-conversion", \
                     "no-if-conversion2", "no-shrink-wrap", "no-ssa-phiopt", "no-dse", "no-dce", "no-forward-propagate", \
                     "no-split-wide-types", "no-compare-elim", "no-combine-stack-adjustments", "no-cprop-registers")
#endif)";

inline constexpr std::string_view textDefinition = R"(
inline const std::string& text(const Slot& slot) noexcept {
    return slot.isMade() ? slot.value() : made(slot);
})";

inline constexpr std::string_view lookupHeader = R"(// Shared by the sources of the tree; internal.
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/LocalizedKey.h"
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace {{module}}::{{module}}Strings {

// The text of `key` in the user's language, formatted with `arguments`. All accessors get their texts from here. Throws
// when memory or descriptors run out.
std::string tr(const ::Foundation::LocalizedKey& key, std::span<const ::Foundation::FormatArgument> arguments);

namespace detail {

// The empty text, for errors.
const std::string& noText() noexcept;

// The offsets of table names and keys in the characters of their source file. Offsets instead of pointers need no
// relocation when the library is loaded.
struct Table {
    std::uint32_t name;
    std::uint32_t size; // of the name
    std::uint64_t hash;
};
struct Place {
    std::uint32_t table; // its index
    std::uint32_t key;   // ends where the next key begins
    std::uint64_t hash;  // of the key
};

} // namespace detail

} // namespace {{module}}::{{module}}Strings)";

inline constexpr std::string_view lookupSource = R"(#include "{{module}}Resources.h"
#include "{{module}}Strings/Internal/Lookup.h"

#include "Foundation/NSBundle.h"
#include "Runtime/OnceSlot.h"

namespace {{module}}::{{module}}Strings {

// Texts without arguments are formatted, too, so that "%%" becomes "%".
std::string tr(const ::Foundation::LocalizedKey& key, std::span<const ::Foundation::FormatArgument> arguments) {
    return ::{{module}}::{{module}}Resources::bundle().formattedText(key, arguments);
}

const std::string& detail::noText() noexcept {
    static constinit ::Runtime::OnceSlot<std::string> empty;
    return empty.get([] { return std::string(); });
}

} // namespace {{module}}::{{module}}Strings)";

inline constexpr std::string_view resourcesHeader = R"(#pragma once

#include "Foundation/NSBundle.h"
#include "Runtime/Export.h"

namespace {{module}} {

// The module's resources. Messages (Runtime/Class.h) find the class as "{{module}}.{{module}}Resources".
class {{module}}Resources {
public:
    // The module's bundle: the same object at every call, from any thread.
    [[nodiscard]] LUMORA_EXPORT static const ::Foundation::NSBundle& bundle();
};

} // namespace {{module}})";

inline constexpr std::string_view resourcesSource = R"(#include "{{module}}Resources.h"

#include "Runtime/Class.h"
#include "Runtime/OnceSlot.h"

namespace {{module}} {

namespace {

// The address of `code` identifies the library whose bundle is wanted.
struct BundleFinder {
    static constexpr char code = 0;
};

// Initialized data: the dynamic linker writes to that page anyway, whereas zeroed memory would cause page faults.
[[gnu::section(".data.start")]] constinit ::Runtime::OnceSlot<const ::Foundation::NSBundle*> found;

const ::Foundation::NSBundle* publishedBundle() {
    return &{{module}}Resources::bundle();
}
// Both a property and a method of the class.
constexpr ::Runtime::Method bundleMethod[] = {::Runtime::method<&publishedBundle>("bundle")};
constexpr ::Runtime::Class resources("{{module}}.{{module}}Resources", bundleMethod, bundleMethod);
LUMORA_PUBLISH_CLASS(resources);

} // namespace

const ::Foundation::NSBundle& {{module}}Resources::bundle() {
    return *found.get([] { return &::Foundation::NSBundle::bundleForCode(&BundleFinder::code, "{{module}}"); });
}

} // namespace {{module}})";

} // namespace Generator
