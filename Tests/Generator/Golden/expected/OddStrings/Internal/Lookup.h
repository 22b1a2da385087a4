// Generated from the resources of the module Odd; do not edit.
// Shared by the sources of the tree; internal.
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

} // namespace Odd::OddStrings
