#include "SourceBundle/DevelopmentLanguage.h"

#include "SourceBundle/LowerCase.h"
#include "SourceBundle/SourceFiles.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/Table.h"
#include <algorithm>
#include <string_view>

namespace SourceBundle {

using StringTables::Table;

namespace {

constexpr std::string_view regionKey = StringTables::bundleLayout::developmentRegionKey;

bool isBuildSetting(std::string_view value) {
    return value.starts_with("$(") || value.starts_with("${");
}

Runtime::Error unresolvedSetting(const std::filesystem::path& file, const Table& table, std::string_view value) {
    const auto entry = std::ranges::find(table.entries(), regionKey, &StringTables::Entry::key);
    const StringTables::Location place = table.locations()[static_cast<std::size_t>(entry - table.entries().begin())];
    return {.message = "the development language is the build setting " + std::string(value) +
                       ", whose value is unknown (use --development-language instead)",
            .file = file,
            .line = place.line,
            .column = place.column};
}

} // namespace

std::string languageAmong(const std::set<std::string>& languages, const std::string& wanted) {
    if (languages.contains(wanted))
        return wanted;
    for (std::string name = comparableCode(wanted); !name.empty();) {
        const auto found = std::ranges::find(languages, name, comparableCode);
        if (found != languages.end())
            return *found;
        const std::size_t subtag = name.rfind('-');
        name.resize(subtag == name.npos ? 0 : subtag);
    }
    return wanted;
}

std::optional<std::string> developmentLanguage(std::span<const std::filesystem::path> infos, Diagnostics& diagnostics) {
    for (const std::filesystem::path& file : infos) {
        const auto table = Table::readFile(file); // ignore its notes: most values of Info.plist are not strings
        if (!table) {
            diagnostics.add(Severity::error, table.error());
            continue;
        }
        const auto region = table->find(regionKey);
        if (!region || region->empty())
            continue;
        if (!isBuildSetting(*region))
            return languageNamed(std::string(*region));
        diagnostics.add(Severity::warning, unresolvedSetting(file, *table, *region));
    }
    return std::nullopt;
}

} // namespace SourceBundle
