// Exchange/Export.h
// Collects the texts of a source for translators.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/KeyUnits.h"
#include <filesystem>
#include <functional>
#include <span>

namespace Exchange {

// The texts of `source`, which was read from `folders`, with their translations in `language`, in the order of tables
// and development texts. `onlyMissing`: only texts without a translation or with one in state `new`; if one form of a
// plural is missing, all its forms are included. A key for which unitsOf() has no value gives a warning, an unreadable
// string catalog gives an error.
[[nodiscard]] Translations translationsOf(const SourceBundle::Source& source,
                                          std::span<const std::filesystem::path> folders, const std::string& language,
                                          bool onlyMissing, SourceBundle::Diagnostics& diagnostics);

// Calls `visit` for each key of the table that has a development text, in the order of those texts. The translations
// are those in `language`.
void forEachKey(const SourceBundle::Source& source, const SourceBundle::SourceTable& table, const std::string& language,
                const std::function<void(const Key&)>& visit);

} // namespace Exchange
