// Foundation/LocalizedKey.h
// The name of a text: a key in a table, with the hashes that a look-up starts from.
// Text: UTF-8. Threads: plain values. Ownership: borrows both texts.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>
#include <string_view>

namespace Foundation {

struct LocalizedKey {
    // With the hashes computed. An empty table is "Localizable".
    [[nodiscard]] LUMORA_EXPORT static LocalizedKey of(std::string_view table, std::string_view key) noexcept;

    std::string_view table; // not empty
    std::string_view key;   // exact
    // `lumora generate` writes them into the code of modules. Wrong ones only cost time.
    std::uint64_t tableHash;
    std::uint64_t keyHash;
};

} // namespace Foundation
