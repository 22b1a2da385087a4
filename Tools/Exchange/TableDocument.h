// Exchange/TableDocument.h
// Edits the texts of a table file in place: everything else keeps its bytes.
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
    std::vector<const Unit*> changed; // the units whose target differs from the file
    std::vector<const Unit*> all;     // all units with a target, changed or not
};

class TableDocument {
public:
    virtual ~TableDocument() = default;

    // Sets the texts of the key; adds it at the end if it is new. Call it at most once per key and language. Fails
    // without a change if the file cannot represent one of the texts.
    [[nodiscard]] virtual Runtime::Result<void> apply(const Change& change) = 0;
    // The edited file.
    [[nodiscard]] virtual Runtime::Result<std::string> bytes() const = 0;

    // Reads the file.
    [[nodiscard]] static Runtime::Result<std::unique_ptr<TableDocument>> read(const SourceBundle::TableFile& file);
    // A new, empty file of texts or plurals.
    [[nodiscard]] static std::unique_ptr<TableDocument> make(SourceBundle::TableFile::Kind kind);
    static constexpr std::size_t maxBytes = std::size_t{512} << 20;

protected:
    TableDocument() = default;
    TableDocument(TableDocument&&) = default;
    TableDocument& operator=(TableDocument&&) = delete;
};

} // namespace Exchange
