// Exchange/DecodedText.h
// A file's characters as UTF-8, and the way back to the encoding that the file has.
#pragma once

#include "Runtime/internal/Result.h"
#include "StringTables/internal/Unicode.h"
#include <optional>
#include <string>

namespace Exchange {

struct DecodedText {
    // UTF-16 is made UTF-8, other bytes stay as they are. A byte-order mark stays in UTF-8 and is taken off UTF-16.
    [[nodiscard]] static Runtime::Result<DecodedText> of(std::string bytes);
    // `edited`, which is UTF-8, in the encoding of the file.
    [[nodiscard]] std::string encoded(std::string_view edited) const;

    std::string text;
    std::optional<StringTables::internal::ByteOrder> utf16; // the order of its bytes, if it is UTF-16
    bool hasMark = false;                                   // UTF-16 with a byte-order mark
};

} // namespace Exchange
