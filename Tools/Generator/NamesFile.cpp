#include "Generator/NamesFile.h"

#include "Generator/CodeText.h"
#include "Generator/Namer.h"
#include "StringTables/internal/Table.h"
#include <algorithm>

namespace Generator {

using SourceBundle::Severity;

namespace {

std::vector<std::string> splitAtDots(std::string_view path) {
    std::vector<std::string> parts(1);
    for (const char c : path) {
        if (c == '.')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

Runtime::Error with(Runtime::Error place, std::string message) {
    place.message = std::move(message);
    return place;
}

} // namespace

NamesFile NamesFile::read(const std::filesystem::path& file, SourceBundle::Diagnostics& diagnostics) {
    NamesFile names;
    const auto table = StringTables::Table::readFile(file);
    if (!table) {
        diagnostics.add(Severity::error, table.error());
        return names;
    }
    for (const Runtime::Error& note : table->notes())
        diagnostics.add(Severity::warning, note);
    const auto places = table->locations();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const StringTables::Entry& entry = table->entries()[i];
        const Runtime::Error place{.file = file, .line = places[i].line, .column = places[i].column};
        std::vector<std::string> path = splitAtDots(entry.text);
        const auto invalid = std::ranges::find_if_not(path, [&](const std::string& part) {
            return &part == &path.back() ? Namer::isCppSpelling(part) : Namer::isNamespaceSpelling(part);
        });
        if (invalid == path.end())
            names.names_.emplace(entry.key, Name{std::move(path), place});
        else
            diagnostics.add(Severity::warning,
                            with(place, "the part " + quote(*invalid) +
                                            " is not a C++ identifier that the naming rules leave unchanged"));
    }
    return names;
}

const std::vector<std::string>* NamesFile::find(std::string_view table, std::string_view key) {
    if (names_.empty())
        return nullptr;
    const auto found = names_.find(std::string(table).append("/").append(key));
    if (found == names_.end())
        return nullptr;
    found->second.isUsed = true;
    return &found->second.path;
}

void NamesFile::reportUnused(SourceBundle::Diagnostics& diagnostics) const {
    for (const auto& [key, name] : names_)
        if (!name.isUsed)
            diagnostics.add(Severity::warning,
                            with(name.place, "names " + quote(key) +
                                                 ", which is not in the development texts of a table with accessors"));
}

} // namespace Generator
