#include "Generator/Model.h"

#include "Generator/CodeText.h"
#include "Generator/Namer.h"
#include "StringTables/internal/Placeholder.h"
#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace Generator {

using SourceBundle::Diagnostics;
using SourceBundle::Severity;
using SourceBundle::SourceTable;
using StringTables::Entry;
using StringTables::Placeholder;

namespace {

std::string quoted(std::string_view text) {
    return '"' + visibleText(text) + '"';
}

// The parameters of one text, and what is wrong with its placeholders.
class ParameterReader {
public:
    explicit ParameterReader(std::string_view text) {
        std::size_t from = 0;
        while (const auto placeholder = StringTables::nextPlaceholder(text, from)) {
            notePassedOver(text.substr(from, placeholder->begin - from));
            add(*placeholder);
            from = placeholder->end;
        }
        notePassedOver(text.substr(from));
    }

    // In the order of positions or of appearance; only without a fault.
    std::vector<Parameter> parameters() const {
        std::vector<Parameter> all = plain_;
        for (const auto& [position, parameter] : positional_)
            all.push_back(parameter);
        return all;
    }
    std::optional<std::string> fault() const {
        if (!positional_.empty() && !plain_.empty())
            return "mixes placeholders with and without a position";
        if (disagreeing_ != 0)
            return "takes argument " + std::to_string(disagreeing_) + " both as text and as a whole number";
        std::size_t expected = 1;
        for (const auto& [position, parameter] : positional_)
            if (position != expected++)
                return "has no placeholder for argument " + std::to_string(expected - 1) + " but one for argument " +
                       std::to_string(position);
        return std::nullopt;
    }
    bool hasLonePercent() const noexcept { return hasLonePercent_; }

private:
    void notePassedOver(std::string_view text) { hasLonePercent_ |= text.find('%') != std::string_view::npos; }

    void add(const Placeholder& placeholder) {
        if (placeholder.kind == Placeholder::Kind::percent)
            return;
        // A "*" takes an argument of its own, before the one that is printed.
        for (const Placeholder::Size& size : {placeholder.width, placeholder.precision})
            if (size.from == Placeholder::Size::From::argument)
                plain_.push_back(Parameter::integer);
        const auto parameter =
            placeholder.kind == Placeholder::Kind::integer ? Parameter::integer : Parameter::described;
        if (placeholder.position == 0)
            plain_.push_back(parameter);
        else if (positional_.emplace(placeholder.position, parameter).first->second != parameter && disagreeing_ == 0)
            disagreeing_ = placeholder.position;
    }

    std::vector<Parameter> plain_;
    std::map<std::uint16_t, Parameter> positional_;
    std::uint16_t disagreeing_ = 0;
    bool hasLonePercent_ = false;
};

// An entry and where it stands.
struct PlacedEntry : Entry {
    const SourceTable* table;
    StringTables::Location place;
};

// Reads one table, which may be that of several folders; knows whom each name of it belongs to.
class TableReader {
public:
    // Of a key in several of `tables` the first one's text counts.
    TableReader(std::span<const SourceTable> tables, Diagnostics& diagnostics) : diagnostics_(diagnostics) {
        for (const SourceTable& table : tables) {
            const std::vector<StringTables::Location> places = table.table.locations();
            const std::span<const SourceTable> before(tables.data(), &table);
            for (std::size_t i = 0; i < places.size(); ++i)
                if (const Entry& entry = table.table.entries()[i]; std::ranges::none_of(
                        before, [&](const SourceTable& other) { return other.table.find(entry.key).has_value(); }))
                    entries_.push_back({entry, &table, places[i]});
        }
    }

    std::vector<CatalogEntry> entries() {
        std::vector<CatalogEntry> entries;
        for (const PlacedEntry& source : entries_) {
            CatalogEntry entry{.groups = {}, .name = {}, .key = source.key, .text = source.text, .parameters = {}};
            // Both are read whatever the other finds, so that one run shows every fault.
            const bool isNamed = findName(source, entry);
            if (findParameters(source, entry) && isNamed)
                entries.push_back(std::move(entry));
        }
        return entries;
    }

private:
    struct Owner {
        const PlacedEntry* entry;
        bool isGroup;
    };

    void report(Severity severity, const PlacedEntry& entry, std::string message) {
        diagnostics_.add(severity, {std::move(message), entry.table->path, entry.place.line, entry.place.column});
    }

    // The key, and where it stands for a reader of a message about `at`.
    static std::string keyAndLine(const PlacedEntry& entry, const PlacedEntry& at) {
        std::string where = entry.table == at.table ? "" : entry.table->path.string();
        if (entry.place.line != 0)
            where.append(where.empty() ? "line " : ", line ").append(std::to_string(entry.place.line));
        return "key " + quoted(entry.key) + (where.empty() ? "" : " (" + where + ")");
    }

    // False if the name is somebody else's already.
    bool claim(const std::string& qualified, const Owner& owner) {
        const auto [found, isNew] = owners_.emplace(qualified, owner);
        if (isNew || (owner.isGroup && found->second.isGroup))
            return true;
        const auto as = [](const Owner& each) { return each.isGroup ? "a group of " : "the entry of "; };
        report(Severity::error, *owner.entry,
               as(owner) + keyAndLine(*owner.entry, *owner.entry) + " and " + as(found->second) +
                   keyAndLine(*found->second.entry, *owner.entry) + " have one name: " + qualified);
        return false;
    }

    bool findName(const PlacedEntry& source, CatalogEntry& entry) {
        const std::vector<std::string_view> components = Namer::components(source.key);
        std::string qualified;
        for (const std::string_view& component : components) {
            const bool isGroup = &component != &components.back();
            const std::string name =
                Namer::spelling(isGroup ? Namer::groupName(component) : Namer::entryName(component));
            if (name.empty()) {
                report(Severity::error, source,
                       "key " + quoted(source.key) + " gives no name: " + quoted(component) +
                           " holds no letter or digit");
                return false;
            }
            entry.groups = std::exchange(qualified, qualified.empty() ? name : qualified + "::" + name);
            entry.name = name;
            if (!claim(qualified, {&source, isGroup}))
                return false;
        }
        if (components.empty())
            report(Severity::error, source, "key " + quoted(source.key) + " gives no name");
        return !components.empty();
    }

    bool findParameters(const PlacedEntry& source, CatalogEntry& entry) {
        const ParameterReader reader(source.text);
        if (reader.hasLonePercent())
            report(Severity::warning, source,
                   "the text of key " + quoted(source.key) +
                       " has a % that begins no placeholder; it is printed as it stands (write %% if that is meant)");
        const std::optional<std::string> fault = reader.fault();
        if (fault)
            report(Severity::error, source, "the text of key " + quoted(source.key) + ' ' + *fault);
        else
            entry.parameters = reader.parameters();
        return !fault;
    }

    std::vector<PlacedEntry> entries_;
    Diagnostics& diagnostics_;
    std::map<std::string, Owner, std::less<>> owners_;
};

} // namespace

std::vector<CatalogTable> catalogOf(std::span<const SourceTable> tables, Diagnostics& diagnostics) {
    std::vector<CatalogTable> catalog;
    std::map<std::string, const SourceTable*> named;
    for (std::size_t begin = 0, end = 0; begin < tables.size(); begin = end) {
        const SourceTable& table = tables[begin];
        while (end < tables.size() && tables[end].name == table.name)
            ++end;
        std::string spelling = Namer::tableSpelling(table.name);
        if (spelling.empty()) {
            diagnostics.add(Severity::error,
                            {.message = "the file's name gives no name to its table", .file = table.path});
            continue;
        }
        if (const auto [found, isNew] = named.emplace(spelling, &table); !isNew) {
            diagnostics.add(
                Severity::error,
                {.message = "has one name with " + found->second->path.string() + ": " + spelling, .file = table.path});
            continue;
        }
        catalog.push_back(
            {table.name, std::move(spelling), TableReader(tables.subspan(begin, end - begin), diagnostics).entries()});
    }
    return catalog;
}

} // namespace Generator
