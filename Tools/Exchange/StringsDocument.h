// Exchange/StringsDocument.h
// A table of quoted texts, edited in place; internal.
#pragma once

#include "Exchange/DecodedText.h"
#include "Exchange/TableDocument.h"
#include "Exchange/TextEdits.h"
#include "StringTables/internal/Table.h"
#include <unordered_map>

namespace Exchange {

class StringsDocument final : public TableDocument {
public:
    [[nodiscard]] static Runtime::Result<StringsDocument> read(DecodedText file);
    StringsDocument(StringsDocument&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    StringsDocument() = default;
    // Where the table ends: behind its last entry, before what closes it.
    struct End {
        std::size_t at = 0;          // where new entries go
        bool lacksSemicolon = false; // the last entry's
        std::size_t entryEnd = 0;    // behind its last character
    };
    End findEnd() const;
    std::string withAddedEntries() const;

    DecodedText file_;
    std::unordered_map<std::string, std::size_t> keys_; // where they are
    TextEdits edits_;
    std::string added_;
};

} // namespace Exchange
