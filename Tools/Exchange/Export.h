// Exchange/Export.h
// The texts of a source for translators.
// Text: UTF-8. Threads: pure functions of the source and its files.
#pragma once

#include "Exchange/KeyUnits.h"
#include <filesystem>
#include <functional>
#include <span>

namespace Exchange {

// The texts of `source`, read from `folders`, with their translations in `language`, in the order of tables and of
// development texts. `onlyMissing`: those that have none, or a new one; of a plural all forms, if one is missing. What
// has no place in such a file is a warning.
[[nodiscard]] Handout handoutOf(const SourceBundle::Source& source, std::span<const std::filesystem::path> folders,
                                const std::string& language, bool onlyMissing, SourceBundle::Diagnostics& diagnostics);

// Calls `visit` for each key of the table that has a development text.
void forEachKey(const SourceBundle::Source& source, const SourceBundle::SourceTable& table, const std::string& language,
                const std::function<void(const Key&)>& visit);

} // namespace Exchange
