// Made from the resources of the module Odd; do not edit.
// What the sources of the tree share; internal.
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/LocalizedKey.h"
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace Odd::OddStrings {

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

} // namespace Odd::OddStrings
