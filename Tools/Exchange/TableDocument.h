// Exchange/TableDocument.h
// Edits the texts of a table file in place: everything else keeps its bytes. Only a binary table is written as a whole.
// Text: UTF-8. Threads: one at a time.
#pragma once

#include "Exchange/Unit.h"
#include <memory>
#include <span>

namespace Exchange {

// The change of one key in one language.
struct Change {
    const SourceBundle::SourceEntry* development = nullptr; // the key's development text
    std::string_view language;
    std::vector<const Unit*> changed; // the units whose target or state differs from the file; not empty
    std::vector<const Unit*> all;     // all units with a target, changed or not
};

class TableDocument {
public:
    virtual ~TableDocument() = default;

    // Sets the texts of the key. A new key is added at the end; a string catalog must have the key. Call it at most
    // once per key and language. Fails without a change if the file cannot represent one of the texts, or has a value
    // of another kind for the key.
    [[nodiscard]] virtual Runtime::Result<void> apply(const Change& change) = 0;
    // The edited file. Errors: a binary table would be larger than Table::maxBytes.
    [[nodiscard]] virtual Runtime::Result<std::string> bytes() const = 0;

    // Reads the file. Fails if it cannot be read or edited.
    [[nodiscard]] static Runtime::Result<std::unique_ptr<TableDocument>> read(const SourceBundle::TableFile& file);
    // A new, empty file of texts in text form or plurals in XML; `kind` is not catalog.
    [[nodiscard]] static std::unique_ptr<TableDocument> make(SourceBundle::TableFile::Kind kind);

protected:
    TableDocument() = default;
    TableDocument(TableDocument&&) = default;
};

} // namespace Exchange
