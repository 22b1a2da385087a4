// Exchange/StringsDocument.h
// Edits a table in text form in place; internal.
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
    // The end of the table: after its last entry, before a closing brace.
    struct End {
        std::size_t at = 0;          // position of new entries
        bool lacksSemicolon = false; // of the last entry
        std::size_t entryEnd = 0;    // after its last character
    };
    End findEnd() const;
    std::string withAddedEntries() const;

    DecodedText file_;
    Runtime::NameMap<std::size_t> keys_; // their offsets
    TextEdits edits_;
    std::string added_;
};

} // namespace Exchange
