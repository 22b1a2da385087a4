// SourceBundle/StringCatalog.h
// String catalogs (TABLE.xcstrings): one table in any number of languages, in JSON.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Source.h"
#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace SourceBundle {

// A key's text in one language, with members as in SourceEntry. The views are valid only during the call that passes
// the text.
struct CatalogText {
    std::string_view language;
    std::string_view key;
    std::string_view text;
    std::optional<StringTables::PluralFormat> plural;
    std::string_view comment;
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    State state = State::translated;
    bool isStale = false;
    bool isTranslatable = true;
};

// Calls `add` for each text, in the order of the file; a key without a text in the source language has itself as its
// text there. Returns the source language. Of texts for several kinds of device, the one for `other` is taken, else the
// one for `iphone`, else the first; the others are left out with a note. Warnings: an invalid name of a language, too
// many substitutions. Errors: the file cannot be read, is larger than maxCatalogBytes, or is not a string catalog.
[[nodiscard]] Runtime::Result<std::string> readStringCatalog(const std::filesystem::path& file,
                                                             const std::function<void(CatalogText&&)>& add,
                                                             Diagnostics& diagnostics);
// The same from `bytes`, the content of `file`, which is not read.
[[nodiscard]] Runtime::Result<std::string> parseStringCatalog(std::string bytes, const std::filesystem::path& file,
                                                              const std::function<void(CatalogText&&)>& add,
                                                              Diagnostics& diagnostics);
inline constexpr std::size_t maxCatalogBytes = std::size_t{512} << 20;

} // namespace SourceBundle
