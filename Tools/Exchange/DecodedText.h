// Exchange/DecodedText.h
// Converts a file to UTF-8 and back to its own encoding.
#pragma once

#include "Runtime/internal/Result.h"
#include "StringTables/internal/Unicode.h"
#include <optional>
#include <string>

namespace Exchange {

struct DecodedText {
    // Converts UTF-16 to UTF-8; files in other encodings are unchanged. The byte-order mark is kept in UTF-8 and
    // removed from UTF-16. Errors: damaged UTF-16.
    [[nodiscard]] static Runtime::Result<DecodedText> of(std::string bytes);
    // Converts `edited`, an edited `text`, to the encoding of the file.
    [[nodiscard]] std::string encoded(std::string_view edited) const;

    std::string text;                                       // UTF-8, except for XML that declares another encoding
    std::optional<StringTables::internal::ByteOrder> utf16; // its byte order, if it is UTF-16
    bool hasMark = false;                                   // UTF-16 with a byte-order mark
};

} // namespace Exchange
