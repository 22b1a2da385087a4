#include "Foundation/NSDictionary.h"

#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/Table.h"

namespace Foundation {

struct NSDictionary::Contents {
    StringTables::Table table;
};

std::optional<NSDictionary> NSDictionary::dictionaryWithContentsOfFile(const std::string& path) {
    auto table = StringTables::Table::readFile(path);
    if (table)
        return NSDictionary(std::make_shared<const Contents>(Contents{std::move(*table)}));
    Runtime::throwIfTransient(table.error());
    return std::nullopt;
}

std::optional<std::string_view> NSDictionary::stringForKey(std::string_view key) const noexcept {
    return contents_->table.find(key);
}

} // namespace Foundation
