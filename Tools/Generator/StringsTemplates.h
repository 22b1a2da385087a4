// Generator/StringsTemplates.h
// The parts of generated code that are the same for every catalog; internal to the emitter of texts.
// In generated code the platform's names begin with "::", because a group may be called Foundation.
#pragma once

#include <string_view>

namespace Generator {

inline constexpr std::string_view declarationsBegin = R"(#pragma once

#include "Foundation/Describable.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <string>)";

inline constexpr std::string_view keyDefinition = R"(
inline ::Foundation::LocalizedKey keyAt(std::size_t entry) noexcept {
    const Place& place = places[entry];
    const Table& table = tables[place.table];
    const std::string_view name(characters + table.name, table.size);
    const std::string_view key(characters + place.key, places[entry + 1].key - place.key);
    return {name, key, table.hash, place.hash};
})";

// {{count}}: of plain entries.
inline constexpr std::string_view plainDefinition = R"(
constinit ::Runtime::OnceSlot<std::string> slots[{{count}}];

// Without memory or descriptors this read gives no text, and a later one tries again.
[[gnu::noinline, gnu::cold]] const std::string& made(std::size_t entry) noexcept {
    try {
        return slots[entry].get([entry] { return tr(keyAt(entry), {}); });
    } catch (...) {
        return noText();
    }
}

inline const std::string& text(std::size_t entry) noexcept {
    return slots[entry].isMade() ? slots[entry].value() : made(entry);
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

inline constexpr std::string_view catalogHeader = R"(// What the sources of the tree share; internal.
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

// The text of `key`, in the user's language, its placeholders replaced by `arguments`. The only way from the tree to
// the bundle. Throws when the system is out of memory or descriptors.
std::string tr(const ::Foundation::LocalizedKey& key, std::span<const ::Foundation::FormatArgument> arguments);

namespace detail {

// Of a text that could not be made.
const std::string& noText() noexcept;

// Where the names of tables and the keys are among the characters of a source. There are no pointers here, so nothing
// has to be relocated when the library is loaded.
struct Table {
    std::uint32_t name;
    std::uint32_t size; // of the name
    std::uint64_t hash;
};
struct Place {
    std::uint32_t table; // its number
    std::uint32_t key;   // ends where the next key begins
    std::uint64_t hash;  // of the key
};

} // namespace detail

} // namespace {{module}}::{{module}}Strings)";

inline constexpr std::string_view lookupSource = R"(#include "{{module}}Resources.h"
#include "{{module}}Strings/Internal/Catalog.h"

#include "Foundation/NSBundle.h"
#include "Runtime/OnceSlot.h"

namespace {{module}}::{{module}}Strings {

// A text without arguments is formatted as well: its doubled percent signs become single ones.
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

// The module's own resources. Published to messages under this name.
class {{module}}Resources {
public:
    // The bundle beside the library that holds this code: the same object at every call, from any thread.
    [[nodiscard]] LUMORA_EXPORT static const ::Foundation::NSBundle& bundle();
};

} // namespace {{module}})";

inline constexpr std::string_view resourcesSource = R"(#include "{{module}}Resources.h"

#include "Runtime/Class.h"
#include "Runtime/OnceSlot.h"

namespace {{module}} {

namespace {

// Lies in the library whose bundle is asked for.
struct BundleFinder {
    static constexpr char code = 0;
};

constinit ::Runtime::OnceSlot<const ::Foundation::NSBundle*> found;

const ::Foundation::NSBundle* publishedBundle() {
    return &{{module}}Resources::bundle();
}
constexpr ::Runtime::Message bundleMessage[] = {::Runtime::message<&publishedBundle>("bundle")};
constexpr ::Runtime::Class resources("{{module}}.{{module}}Resources", bundleMessage, bundleMessage);
LUMORA_PUBLISH_CLASS(resources);

} // namespace

const ::Foundation::NSBundle& {{module}}Resources::bundle() {
    return *found.get([] { return &::Foundation::NSBundle::bundleForCode(&BundleFinder::code, "{{module}}"); });
}

} // namespace {{module}})";

} // namespace Generator
