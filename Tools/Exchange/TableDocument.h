// Exchange/TableDocument.h
// A file of a table whose texts are replaced in place: everything else keeps its bytes.
// Text: UTF-8. Threads: one at a time.
#pragma once

#include "Exchange/Unit.h"
#include <memory>
#include <span>

namespace Exchange {

// What becomes of one key in one language.
struct Change {
    const SourceBundle::SourceEntry* development = nullptr; // the key's development text
    std::string_view language;
    std::vector<const Unit*> changed; // the units whose target is not what the file has
    std::vector<const Unit*> all;     // these and the ones that stay, those without a target left out
};

class TableDocument {
public:
    virtual ~TableDocument() = default;

    // Gives the key its texts; adds it at the end if it is new. At most once for a key and language. An error if the
    // file has no way to hold one of them; the key is then as it was.
    [[nodiscard]] virtual Runtime::Result<void> apply(const Change& change) = 0;
    // The file as it is now.
    [[nodiscard]] virtual Runtime::Result<std::string> bytes() const = 0;

    // Reads the file.
    [[nodiscard]] static Runtime::Result<std::unique_ptr<TableDocument>> read(const SourceBundle::TableFile& file);
    // A new file of texts or plurals, without any.
    [[nodiscard]] static std::unique_ptr<TableDocument> make(SourceBundle::TableFile::Kind kind);
    static constexpr std::size_t maxBytes = std::size_t{512} << 20;

protected:
    TableDocument() = default;
    TableDocument(TableDocument&&) = default;
    TableDocument& operator=(TableDocument&&) = delete;
};

} // namespace Exchange
