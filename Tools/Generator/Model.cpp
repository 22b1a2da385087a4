#include "Generator/Model.h"

#include "Generator/CodeText.h"
#include "Generator/NameClaims.h"
#include "Generator/Namer.h"
#include "Runtime/internal/NameMap.h"
#include <algorithm>
#include <map>
#include <utility>

namespace Generator {

using SourceBundle::Diagnostics;
using SourceBundle::Severity;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;
using SourceBundle::Topic;

namespace {

// Derives accessor paths from keys.
class PathMaker {
public:
    // The groups and the name of the key's accessor; empty if the key gives no name. Parts without a usable name are
    // dropped.
    std::vector<std::string> pathOf(std::string_view key) {
        std::vector<std::string_view> parts = Namer::components(key);
        std::string name;
        while (name.empty() && !parts.empty()) {
            name = Namer::spelling(Namer::entryName(parts.back()));
            parts.pop_back();
        }
        std::vector<std::string> path;
        for (const std::string_view part : parts)
            if (const std::string& group = groupName(part); !group.empty())
                path.push_back(group);
        if (!name.empty())
            path.push_back(std::move(name));
        return path;
    }

private:
    // Cached, because most keys share their groups.
    const std::string& groupName(std::string_view part) {
        const auto [known, isNew] = groups_.try_emplace(part);
        if (isNew)
            known->second = Namer::spelling(Namer::groupName(part));
        return known->second;
    }

    Runtime::NameMap<std::string, std::string_view> groups_;
};

// Why the path is not usable, or an empty string.
std::string faultOf(const std::vector<std::string>& path) {
    if (path.empty())
        return "it has no letter or digit for a name";
    if (path.size() > maxPathParts)
        return "it has more than " + std::to_string(maxPathParts) + " parts";
    if (qualified(path).size() > maxPathLength)
        return "its name is longer than " + std::to_string(maxPathLength) + " bytes";
    return "";
}

class TableBuilder {
public:
    TableBuilder(const Source& source, const SourceTable& table, NamesFile& given) {
        const std::vector<const SourceEntry*> entries = source.developmentEntries(table);
        candidates_.reserve(entries.size());
        names_.reserve(entries.size());
        for (const SourceEntry* entry : entries) {
            Candidate& candidate = candidates_.emplace_back();
            candidate.entry = entry;
            if (const auto* path = given.find(table.name, entry->key)) {
                candidate.path = *path;
                candidate.isNamed = true;
            }
        }
    }

    void build(AccessorTable& out, Diagnostics& diagnostics) {
        for (Candidate& candidate : candidates_)
            readText(candidate, diagnostics);
        for (const bool isNamed : {true, false}) // names from the file take precedence
            for (Candidate& candidate : candidates_)
                if (candidate.isNamed == isNamed && candidate.fault.empty())
                    findName(candidate);
        for (Candidate& candidate : candidates_)
            add(candidate, out, diagnostics);
    }

private:
    struct Candidate {
        const SourceEntry* entry = nullptr;
        std::vector<std::string> path{};
        bool isNamed = false; // by the names file
        std::vector<Parameter> parameters{};
        std::string fault{};
        bool isClash = false; // whether the fault is a name that another key has
    };

    static void readText(Candidate& candidate, Diagnostics& diagnostics) {
        Parameters parameters = parametersOf(*candidate.entry);
        candidate.parameters = std::move(parameters.all);
        if (!parameters.fault.empty())
            candidate.fault = "its text " + parameters.fault;
        const auto warn = [&](const std::string& what) {
            diagnostics.add(Severity::warning,
                            candidate.entry->error("the text of key " + quote(candidate.entry->key) + what),
                            Topic::placeholder, candidate.entry->key);
        };
        if (parameters.hasLonePercent)
            warn(" has a % that begins no placeholder and is printed literally (write %% for a percent sign)");
        if (!parameters.unknownVariable.empty())
            warn(" names the plural variable " + quote(parameters.unknownVariable) + ", which it does not have");
    }

    void findName(Candidate& candidate) {
        if (!candidate.isNamed)
            candidate.path = paths_.pathOf(candidate.entry->key);
        candidate.fault = faultOf(candidate.path);
        if (!candidate.fault.empty())
            return;
        const auto number = static_cast<std::size_t>(&candidate - candidates_.data());
        if (const auto conflict = names_.claim(candidate.path, number)) {
            candidate.isClash = true;
            candidate.fault =
                "the name " + conflict->name + " belongs to " + describe(conflict->owner, *candidate.entry);
        }
    }

    // Describes the owner in a message about `entry`.
    std::string describe(const NameClaims::Owner& owner, const SourceEntry& entry) const {
        const SourceEntry& other = *candidates_[owner.member].entry;
        std::string place = other.file == entry.file ? "" : other.file->path.string();
        if (other.line != 0)
            place.append(place.empty() ? "line " : ", line ").append(std::to_string(other.line));
        return (owner.isGroup ? "a group of key " : "key ") + quote(other.key) +
               (place.empty() ? "" : " (" + place + ")");
    }

    static void add(Candidate& candidate, AccessorTable& out, Diagnostics& diagnostics) {
        const SourceEntry& entry = *candidate.entry;
        if (!candidate.fault.empty()) {
            diagnostics.add(Severity::warning,
                            entry.error("key " + quote(entry.key) + " has no accessor: " + candidate.fault),
                            candidate.isClash ? Topic::nameClash : Topic::noAccessor, entry.key);
            out.leftOut.push_back({&entry, std::move(candidate.fault)});
            return;
        }
        std::string name = std::move(candidate.path.back());
        candidate.path.pop_back();
        out.entries.push_back({&entry, qualified(candidate.path), std::move(name), std::move(candidate.parameters)});
    }

    std::vector<Candidate> candidates_;
    PathMaker paths_;
    NameClaims names_;
};

const std::filesystem::path& fileOf(const SourceTable& table) {
    // Pseudo-languages have no files.
    const auto texts = std::ranges::find_if_not(table.languages, [](const auto& each) { return each.files.empty(); });
    return texts->files.front()->path;
}

// A table without a namespace; none of its keys gets an accessor.
AccessorTable leftOut(const Source& source, const SourceTable& table, const std::string& reason) {
    AccessorTable out{table.name, {}, {}, {}};
    for (const SourceEntry* entry : source.developmentEntries(table))
        out.leftOut.push_back({entry, "its table has no namespace: " + reason});
    return out;
}

} // namespace

std::vector<AccessorTable> accessorTables(const Source& source, NamesFile& names, Diagnostics& diagnostics) {
    std::vector<AccessorTable> tables;
    std::map<std::string, const SourceTable*> owners; // by namespace
    for (const SourceTable& table : source.tables) {
        if (!source.hasDevelopmentLanguage(table))
            continue;
        std::string spelling = Namer::tableSpelling(table.name);
        const auto [owner, isNew] = owners.emplace(spelling, &table);
        if (!spelling.empty() && isNew) {
            AccessorTable& out = tables.emplace_back(AccessorTable{table.name, std::move(spelling), {}, {}});
            TableBuilder(source, table, names).build(out, diagnostics);
            continue;
        }
        const std::string reason = spelling.empty()
                                       ? "its name has no letter or digit"
                                       : "the name " + spelling + " belongs to " + fileOf(*owner->second).string();
        diagnostics.add(Severity::warning, {.message = "the table has no accessors: " + reason, .file = fileOf(table)},
                        spelling.empty() ? Topic::noAccessor : Topic::nameClash);
        tables.push_back(leftOut(source, table, reason));
    }
    names.reportUnused(diagnostics);
    return tables;
}

} // namespace Generator
