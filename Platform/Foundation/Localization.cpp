#include "Foundation/internal/Localization.h"

#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include <cerrno>
#include <unistd.h>
#include <utility>

namespace Foundation::detail {

namespace {

namespace layout = StringTables::bundleLayout;

bool isMissing(const Runtime::Error& error) noexcept {
    return error.cause == ENOENT || error.cause == ENOTDIR;
}

// The table at `path`; an empty one when the file is missing or damaged.
StringTables::PluralTable readPlurals(const std::string& path, std::string_view bundle) {
    // Most tables have no plurals; access() finds that out faster than opening. It is called twice, because a folder on
    // the path may be replaced during the first call.
    const auto isAbsent = [&path] { return ::access(path.c_str(), F_OK) != 0 && errno == ENOENT; };
    if (isAbsent() && isAbsent())
        return {};
    auto read = StringTables::PluralTable::readFile(path, bundle);
    if (read)
        return *std::move(read);
    Runtime::throwIfTransient(read.error());
    return {};
}

template <class Table> std::optional<std::string> damageOf(const std::string& path, std::string_view bundle) {
    const auto read = Table::readFile(path, bundle);
    return read || isMissing(read.error()) ? std::nullopt : std::optional(read.error().text());
}

} // namespace

Localization::Localization(std::string_view name, std::string_view bundle, std::string_view language)
    : name_(name), bundle_(bundle), language_(language) {}

// The table with that name, which is stored if it is not known yet. A missing table is stored as an empty one, unless
// there are storesMissingBelow tables already.
LocalizedTable* Localization::knownOrLoaded(std::string_view name) {
    if (LocalizedTable* const known = tables_.find(name))
        return known;
    if (!layout::isFileName(name))
        return nullptr;
    std::string texts = pathOf(name, layout::textsSuffix);
    const std::string plurals = pathOf(name, layout::pluralsSuffix);
    const auto exists = [](const std::string& path) { return ::access(path.c_str(), F_OK) == 0; };
    if (tables_.size() >= storesMissingBelow && !exists(texts) && !exists(plurals))
        return nullptr;
    return tables_.add(tables_.unlimited, name, *this, name, std::move(texts), /*bundlePathSize=*/bundle_.size(),
                       readPlurals(plurals, bundle_));
}

std::optional<std::string> Localization::damage(std::string_view table) const {
    if (!layout::isFileName(table))
        return std::nullopt;
    if (auto damaged = damageOf<StringTables::Table>(pathOf(table, layout::textsSuffix), bundle_))
        return damaged;
    return damageOf<StringTables::PluralTable>(pathOf(table, layout::pluralsSuffix), bundle_);
}

std::string Localization::pathOf(std::string_view table, std::string_view suffix) const {
    return std::string(bundle_)
        .append("/")
        .append(layout::folderOfLanguage(name_))
        .append("/")
        .append(table)
        .append(suffix);
}

} // namespace Foundation::detail
