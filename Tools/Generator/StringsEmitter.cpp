#include "Generator/StringsEmitter.h"

#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include "Generator/StringsTemplates.h"
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace Generator {

namespace {

// A header of more entries is split, before the entry that begins another group where one comes near; into maxHeaders at
// most.
constexpr std::size_t minEntriesPerHeader = 250;
constexpr std::size_t maxHeaders = 64;
// What every compiler takes as one string literal.
constexpr std::size_t maxLiteral = 65536;

struct Placed {
    const CatalogTable* table;
    const CatalogEntry* entry;
};

std::string nameSpaceOf(const Options& options, const CatalogTable& table, std::string_view groups = {}) {
    std::string name = options.module + "::" + options.module + "Strings::" + table.spelling;
    return groups.empty() ? name : name.append("::").append(groups);
}

std::string parameterName(std::size_t index, std::size_t count) {
    constexpr std::array<const char*, 5> ordinals = {"first", "second", "third", "fourth", "fifth"};
    if (count == 1)
        return "value";
    return index < ordinals.size() ? ordinals[index] : "argument" + std::to_string(index + 1);
}

const char* typeOf(Parameter parameter) {
    switch (parameter) {
    case Parameter::text:
        return "const ::Foundation::Describable& ";
    case Parameter::integer:
        return "std::int64_t ";
    case Parameter::number:
        return "double ";
    }
    return "";
}

std::vector<std::string> parameters(const CatalogEntry& entry) {
    std::vector<std::string> all;
    for (const Parameter parameter : entry.parameters)
        all.push_back(typeOf(parameter) + parameterName(all.size(), entry.parameters.size()));
    return all;
}

std::vector<std::string> arguments(const CatalogEntry& entry) {
    std::vector<std::string> all;
    for (const Parameter parameter : entry.parameters)
        all.push_back(parameterName(all.size(), entry.parameters.size()) +
                      (parameter == Parameter::text ? ".text()" : ""));
    return all;
}

void declare(CodeWriter& code, const CatalogEntry& entry) {
    const std::string key = "// \"" + visibleText(entry.source->key) + "\" =";
    const std::string text = " \"" + visibleText(entry.source->text) + '"';
    code.add(
        "{{key}}{{break}}{{text}}",
        {{"key", key}, {"break", key.size() + text.size() > CodeWriter::maxWidth ? "\n//    " : ""}, {"text", text}});
    if (entry.parameters.empty())
        code.add("LUMORA_EXPORT const std::string& {{name}}();", {{"name", entry.name}});
    else
        code.addList("LUMORA_EXPORT std::string " + entry.name + "(", parameters(entry), ");");
}

void define(CodeWriter& code, const CatalogEntry& entry, std::size_t number) {
    if (entry.parameters.empty()) {
        code.add("const std::string& {{name}}() { return detail::text({{number}}); }",
                 {{"name", entry.name}, {"number", std::to_string(number)}});
        return;
    }
    code.addList("std::string " + entry.name + "(", parameters(entry), ") {");
    code.addList("    return detail::formatted(" + std::to_string(number) + ", {", arguments(entry), "});");
    code.add("}");
}

// Headers.

std::string declarations(const CatalogTable& table, std::span<const CatalogEntry> entries, const Options& options) {
    CodeWriter code(options.module);
    code.add(declarationsBegin);
    code.enter(nameSpaceOf(options, table));
    const CatalogEntry* previous = nullptr;
    for (const CatalogEntry& entry : entries) {
        const std::string nameSpace = nameSpaceOf(options, table, entry.groups);
        if (previous != nullptr && previous->groups == entry.groups)
            code.addBlankLine();
        code.enter(nameSpace);
        declare(code, entry);
        previous = &entry;
    }
    return code.take();
}

std::string_view outermost(const CatalogEntry& entry) {
    const std::string_view groups = entry.groups;
    return groups.substr(0, groups.find("::"));
}

std::vector<std::span<const CatalogEntry>> parts(std::span<const CatalogEntry> entries) {
    const std::size_t most = std::max(minEntriesPerHeader, entries.size() / maxHeaders + 1);
    const std::size_t wanted = most * 4 / 5;
    std::vector<std::span<const CatalogEntry>> all;
    std::size_t begin = 0;
    for (std::size_t at = 1; at < entries.size(); ++at) {
        const bool beginsGroup = outermost(entries[at]) != outermost(entries[at - 1]);
        if (at - begin == most || (beginsGroup && at - begin >= wanted)) {
            all.push_back(entries.subspan(begin, at - begin));
            begin = at;
        }
    }
    all.push_back(entries.subspan(begin));
    return all;
}

void emitHeaders(const CatalogTable& table, const Options& options, std::vector<OutputFile>& files) {
    const std::filesystem::path folder = options.module + "Strings";
    const auto split = parts(table.entries);
    if (split.size() == 1) {
        files.push_back({folder / (table.spelling + ".h"), declarations(table, table.entries, options)});
        return;
    }
    CodeWriter whole(options.module);
    whole.add("#pragma once\n");
    for (std::size_t part = 0; part != split.size(); ++part) {
        const std::string name = table.spelling + '-' + std::to_string(part + 1) + ".h";
        whole.add("#include \"{{name}}\"", {{"name", name}});
        files.push_back({folder / name, declarations(table, split[part], options)});
    }
    files.push_back({folder / (table.spelling + ".h"), whole.take()});
}

std::string umbrella(std::span<const CatalogTable> catalog, const Options& options) {
    CodeWriter code(options.module);
    code.add("#pragma once\n");
    for (const CatalogTable& table : catalog)
        if (!table.spelling.empty())
            code.add("#include \"{{module}}Strings/{{table}}.h\"", {{"table", table.spelling}});
    for (const std::string& header : options.includes)
        code.add("#include \"{{header}}\"", {{"header", header}});
    return code.take();
}

// Sources.

// The table names and keys of one source, end to end, and where each begins. Plain entries come first: their numbers
// are those of their slots.
class Keys {
public:
    explicit Keys(std::span<const Placed> entries) {
        for (const Placed& placed : entries)
            if (std::ranges::find(tables_, placed.table, &Table::first) == tables_.end()) {
                tables_.emplace_back(placed.table, size_);
                add(std::string(placed.table->name) + '\0');
            }
        for (const bool plain : {true, false})
            for (const Placed& placed : entries)
                if (placed.entry->parameters.empty() == plain) {
                    const auto table = std::ranges::find(tables_, placed.table, &Table::first);
                    places_.push_back('{' + std::to_string(table->second) + ", " + std::to_string(size_) + '}');
                    add(placed.entry->source->key);
                }
        places_.push_back("{0, " + std::to_string(size_) + '}');
    }

    void emit(CodeWriter& code) const {
        if (size_ >= maxLiteral)
            code.add("#pragma GCC diagnostic ignored \"-Woverlength-strings\"");
        code.add("constexpr char characters[] =");
        for (const std::string& text : literals_)
            code.add("    {{text}}{{end}}", {{"text", text}, {"end", &text == &literals_.back() ? ";" : ""}});
        code.addList("constexpr Place places[] = {\n", places_, "};");
    }

private:
    using Table = std::pair<const CatalogTable*, std::size_t>;

    void add(std::string_view text) {
        literals_.push_back(literal(text));
        size_ += text.size();
    }

    std::vector<Table> tables_;
    std::vector<std::string> literals_;
    std::vector<std::string> places_;
    std::size_t size_ = 0;
};

std::string definitions(std::span<const Placed> entries, const Options& options) {
    CodeWriter code(options.module);
    const CatalogTable* included = nullptr;
    for (const Placed& placed : entries)
        if (std::exchange(included, placed.table) != placed.table)
            code.add("#include \"{{module}}Strings/{{table}}.h\"", {{"table", placed.table->spelling}});
    code.add(definitionsBegin);
    const auto plain = static_cast<std::size_t>(
        std::ranges::count_if(entries, [](const Placed& placed) { return placed.entry->parameters.empty(); }));
    if (!entries.empty()) {
        code.enter(options.module + "::" + options.module + "Strings::detail");
        code.add("namespace {\n");
        Keys(entries).emit(code);
        if (plain != 0)
            code.add(plainDefinition, {{"count", std::to_string(plain)}});
        if (plain != entries.size())
            code.add(formattedDefinition);
        code.add("\n} // namespace");
    }
    std::size_t nextPlain = 0;
    std::size_t nextFormatted = plain;
    for (const Placed& placed : entries) {
        code.enter(nameSpaceOf(options, *placed.table, placed.entry->groups));
        define(code, *placed.entry, placed.entry->parameters.empty() ? nextPlain++ : nextFormatted++);
    }
    return code.take();
}

void emitSources(std::span<const CatalogTable> catalog, const Options& options, std::vector<OutputFile>& files) {
    std::vector<Placed> all;
    for (const CatalogTable& table : catalog)
        for (const CatalogEntry& entry : table.entries)
            all.push_back({&table, &entry});
    for (std::size_t shard = 0; shard != options.shards; ++shard) {
        const std::size_t begin = all.size() * shard / options.shards;
        const std::size_t end = all.size() * (shard + 1) / options.shards;
        files.push_back({options.module + "Strings-" + std::to_string(shard + 1) + ".cpp",
                         definitions(std::span(all).subspan(begin, end - begin), options)});
    }
}

std::string filled(std::string_view pattern, const Options& options) {
    CodeWriter code(options.module);
    code.add(pattern);
    return code.take();
}

} // namespace

std::vector<OutputFile> emitStrings(std::span<const CatalogTable> catalog, const Options& options) {
    std::vector<OutputFile> files;
    for (const CatalogTable& table : catalog)
        if (!table.spelling.empty())
            emitHeaders(table, options, files);
    files.push_back({options.module + "Strings.h", umbrella(catalog, options)});
    files.push_back({options.module + "Strings/Internal/Catalog.h", filled(catalogHeader, options)});
    files.push_back({options.module + "Strings.cpp", filled(lookupSource, options)});
    emitSources(catalog, options, files);
    files.push_back({options.module + "Resources.h", filled(resourcesHeader, options)});
    files.push_back({options.module + "Resources.cpp", filled(resourcesSource, options)});
    return files;
}

} // namespace Generator
