#include "Foundation/internal/LocalizedTable.h"

#include "Foundation/internal/PluralText.h"
#include <utility>

namespace Foundation::detail {

LocalizedTable::LocalizedTable(const Localization& owner, std::string_view name, std::string textsPath,
                               std::size_t bundlePathSize, StringTables::PluralTable plurals)
    : owner_(owner), name_(name), texts_(std::move(textsPath), bundlePathSize), plurals_(std::move(plurals)) {
    for (const StringTables::PluralEntry& entry : plurals_.entries())
        pluralTexts_.push_back(generalFormat(entry.plural));
}

std::optional<LocalizedFormat> LocalizedTable::findPlural(std::string_view key,
                                                          std::string_view language) const noexcept {
    const StringTables::PluralEntry* const entry = plurals_.find(key);
    if (entry == nullptr)
        return std::nullopt;
    const auto index = static_cast<std::size_t>(entry - plurals_.entries().data());
    return LocalizedFormat(pluralTexts_[index], entry->plural, language);
}

} // namespace Foundation::detail
