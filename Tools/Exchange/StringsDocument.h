// Exchange/StringsDocument.h
// Edits a table in text form in place.
#pragma once

#include "Exchange/DecodedText.h"
#include "Exchange/TableDocument.h"
#include "Exchange/TextEdits.h"
#include "Runtime/internal/NameMap.h"
#include "StringTables/internal/Table.h"

namespace Exchange {

class StringsDocument final : public TableDocument {
public:
    [[nodiscard]] static Runtime::Result<StringsDocument> read(DecodedText file);
    StringsDocument(StringsDocument&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    StringsDocument() = default;
    // The end of the table: after its last entry, before the closing brace if it has one.
    struct End {
        std::size_t at = 0;          // offset of new entries
        bool lacksSemicolon = false; // the last entry has none
        std::size_t entryEnd = 0;    // offset after the last entry, without blanks and comments
    };
    End findEnd() const;
    std::string withAddedEntries() const;

    DecodedText file_;
    Runtime::NameMap<std::size_t> keys_; // the keys with their offsets
    TextEdits edits_;
    std::string added_; // the new entries
};

} // namespace Exchange
