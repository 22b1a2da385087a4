// Foundation/LocalizedKey.h
// The name of a text: a key in a table, with the hashes of both for a lookup.
// Text: UTF-8. Threads: plain values. Ownership: borrows both texts.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>
#include <string_view>

namespace Foundation {

struct LocalizedKey {
    // Computes the hashes. An empty table name means "Localizable".
    [[nodiscard]] LUMORA_EXPORT static LocalizedKey of(std::string_view table, std::string_view key) noexcept;

    std::string_view table; // not empty
    std::string_view key;   // exact
    // Generated code contains both hashes as constants. Lookups with wrong hashes only take longer.
    std::uint64_t tableHash;
    std::uint64_t keyHash;
};

} // namespace Foundation
