// Made from the resources of the module Odd; do not edit.
// What the sources of the tree share; internal.
#pragma once

#include "Foundation/FormatArgument.h"
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace Odd::OddStrings {

// The text of `key` in the table `table`, in the user's language, its placeholders replaced by `arguments`. The only
// way from the tree to the bundle. Throws when the system is out of memory or descriptors.
std::string tr(std::string_view table, std::string_view key, std::span<const ::Foundation::FormatArgument> arguments);

namespace detail {

// Of a text that could not be made.
const std::string& noText() noexcept;

// Where an entry's table name and key begin among the characters of its source. There are no pointers here, so nothing
// has to be relocated when the library is loaded.
struct Place {
    std::uint32_t table; // the name ends at a NUL
    std::uint32_t key;   // ends where the next key begins
};

inline std::string textAt(const char* characters, const Place* place,
                          std::initializer_list<::Foundation::FormatArgument> arguments) {
    const std::string_view key(characters + place[0].key, place[1].key - place[0].key);
    return tr(characters + place[0].table, key, arguments);
}

} // namespace detail

} // namespace Odd::OddStrings
