#include "Generator/StringsEmitter.h"

#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include "Generator/StringsTemplates.h"
#include "Runtime/internal/Hash.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <unordered_map>
#include <utility>

namespace Generator {

namespace {

// A table is split into headers of about this many entries: each ends before the next outermost group, or at the latest
// after a quarter more. Larger tables have more entries per header, so that there are at most maxHeaders.
constexpr std::size_t minEntriesPerHeader = 200;
constexpr std::size_t maxHeaders = 64;
// The longest comment for translators, in bytes; longer ones are cut.
constexpr std::size_t maxComment = 1000;
// The size of a string literal, in bytes, from which compilers warn that it is too long.
constexpr std::size_t maxLiteral = 65536;

// An entry with its table.
struct TableEntry {
    const AccessorTable* table;
    const NamedEntry* entry;
};

std::string nameSpaceOf(const Options& options, const AccessorTable& table, std::string_view groups = {}) {
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

// "double first".
std::vector<std::string> parameters(const NamedEntry& entry) {
    std::vector<std::string> all;
    for (const Parameter parameter : entry.parameters)
        all.push_back(typeOf(parameter) + parameterName(all.size(), entry.parameters.size()));
    return all;
}

// "first", and "first.text()" for a text.
std::vector<std::string> arguments(const NamedEntry& entry) {
    std::vector<std::string> all;
    for (const Parameter parameter : entry.parameters)
        all.push_back(parameterName(all.size(), entry.parameters.size()) +
                      (parameter == Parameter::text ? ".text()" : ""));
    return all;
}

// "TYPE NAME(", with a line feed after the type if the line would be too long together with `rest`.
std::string declarator(const std::string& type, const std::string& name, std::string_view rest) {
    const bool fits = columnsOf(type) + 1 + columnsOf(name) + 1 + columnsOf(rest) <= CodeWriter::maxWidth;
    return type + (fits ? ' ' : '\n') + name + '(';
}

// Adds each line of a comment for translators as a comment, without leading and trailing white space.
void addLines(CodeWriter& code, std::string_view comment) {
    constexpr std::string_view space = " \t\r";
    comment = StringTables::internal::cutToSize(comment, maxComment);
    while (!comment.empty()) {
        std::string_view line = comment.substr(0, comment.find('\n'));
        comment.remove_prefix(std::min(line.size() + 1, comment.size()));
        line.remove_prefix(std::min(line.find_first_not_of(space), line.size()));
        line = line.substr(0, line.find_last_not_of(space) + 1); // npos + 1 is 0
        if (!line.empty())
            code.addComment(visibleText(line, maxComment));
    }
}

// The accessor's declaration, after a comment with the comment for translators, the key and the text.
void declare(CodeWriter& code, const NamedEntry& entry) {
    addLines(code, entry.source->comment);
    code.addComment(quote(entry.source->key) + " = " + quote(entry.source->text));
    const std::vector<std::string> all = parameters(entry);
    if (all.empty())
        code.add(declarator("LUMORA_EXPORT const std::string&", entry.name, ");") + ");");
    else
        code.addList(declarator("LUMORA_EXPORT std::string", entry.name, all.front() + ","), all, ");");
}

// `number`: the entry's index in `places`, and in `slots` if it is plain.
void define(CodeWriter& code, const NamedEntry& entry, std::size_t number) {
    if (entry.parameters.empty()) {
        code.add("const std::string& {{name}}() { return detail::text(detail::slots[{{number}}]); }",
                 {{"name", entry.name}, {"number", std::to_string(number)}});
        return;
    }
    code.addList("std::string " + entry.name + "(", parameters(entry), ") {");
    code.addList("    return detail::formatted(" + std::to_string(number) + ", {", arguments(entry), "});");
    code.add("}");
}

// Headers.

std::string declarations(const AccessorTable& table, std::span<const NamedEntry> entries, const Options& options) {
    CodeWriter code(options.module);
    code.add(declarationsBegin);
    const NamedEntry* previous = nullptr;
    for (const NamedEntry& entry : entries) {
        if (previous != nullptr && previous->groups == entry.groups)
            code.add("");
        code.enter(nameSpaceOf(options, table, entry.groups));
        declare(code, entry);
        previous = &entry;
    }
    if (entries.empty()) // the namespace exists even without entries
        code.add("\nnamespace {{name}} {} // namespace {{name}}", {{"name", nameSpaceOf(options, table)}});
    return code.take();
}

std::string_view outermost(const NamedEntry& entry) {
    const std::string_view groups = entry.groups;
    return groups.substr(0, groups.find("::"));
}

// The entries of each header.
std::vector<std::span<const NamedEntry>> parts(std::span<const NamedEntry> entries) {
    const std::size_t wanted = std::max(minEntriesPerHeader, entries.size() / maxHeaders + 1);
    const std::size_t most = wanted * 5 / 4;
    std::vector<std::span<const NamedEntry>> all;
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

void emitHeaders(const AccessorTable& table, const Options& options, std::vector<OutputFile>& files) {
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

std::string umbrella(std::span<const AccessorTable> tables, const Options& options) {
    CodeWriter code(options.module);
    code.add("#pragma once\n");
    std::vector<std::string> includes = options.includes;
    for (const AccessorTable& table : tables)
        if (!table.spelling.empty())
            includes.push_back(options.module + "Strings/" + table.spelling + ".h");
    code.addIncludes(std::move(includes));
    return code.take();
}

// Sources.

// The concatenated table names and keys of one source file, with their offsets. Plain entries, which have no
// parameters, come first, so that their numbers are also those of their slots.
class Keys {
public:
    explicit Keys(std::span<const TableEntry> entries) {
        for (const TableEntry& one : entries)
            if (tables_.try_emplace(one.table, tables_.size()).second) {
                const std::string_view name = one.table->name;
                tableRows_.push_back(row({size_, name.size()}, name));
                add(name);
            }
        for (const bool isPlain : {true, false})
            for (const TableEntry& one : entries)
                if (one.entry->parameters.empty() == isPlain) {
                    const std::string_view key = one.entry->source->key;
                    places_.push_back(row({tables_.at(one.table), size_}, key));
                    add(key);
                }
        places_.push_back("{0, " + std::to_string(size_) + ", 0}"); // where the last key ends
    }

    void emit(CodeWriter& code) const {
        if (size_ >= maxLiteral)
            code.add("#pragma GCC diagnostic ignored \"-Woverlength-strings\"");
        code.add("constexpr char characters[] =");
        for (const std::string& text : literals_)
            code.add("    {{text}}{{end}}", {{"text", text}, {"end", &text == &literals_.back() ? ";" : ""}});
        code.addList("constexpr Table tables[] = {\n    ", tableRows_, "};");
        code.addList("constexpr Place places[] = {\n    ", places_, "};");
        code.add(keyDefinition);
    }

private:
    // Two numbers and the hash of a name.
    static std::string row(std::array<std::size_t, 2> numbers, std::string_view name) {
        std::array<char, 2 * sizeof(std::uint64_t)> hash;
        char* const end = std::to_chars(hash.begin(), hash.end(), Runtime::keyHash(name), 16).ptr;
        return '{' + std::to_string(numbers[0]) + ", " + std::to_string(numbers[1]) + ", 0x" +
               std::string(hash.data(), end) + '}';
    }

    void add(std::string_view text) {
        literals_.push_back(literal(text));
        size_ += text.size();
    }

    std::unordered_map<const AccessorTable*, std::size_t> tables_; // their numbers
    std::vector<std::string> literals_;
    std::vector<std::string> tableRows_;
    std::vector<std::string> places_;
    std::size_t size_ = 0;
};

std::vector<std::string> includesOf(std::span<const TableEntry> entries, const Options& options) {
    const std::string folder = options.module + "Strings/";
    std::vector<std::string> includes = {"Runtime/OnceSlot.h", folder + "Internal/Lookup.h"};
    const AccessorTable* included = nullptr;
    for (const TableEntry& one : entries)
        if (one.table != included) {
            included = one.table;
            includes.push_back(folder + included->spelling + ".h");
        }
    return includes;
}

std::string definitions(std::span<const TableEntry> entries, const Options& options) {
    CodeWriter code(options.module);
    code.addIncludes(includesOf(entries, options));
    code.add("\n// The keys, and the accessors that look them up.\n// clang-format off");
    const auto plainCount = static_cast<std::size_t>(
        std::ranges::count_if(entries, [](const TableEntry& one) { return one.entry->parameters.empty(); }));
    if (!entries.empty()) {
        code.enter(options.module + "::" + options.module + "Strings::detail");
        code.add("namespace {\n");
        Keys(entries).emit(code);
        if (plainCount != 0)
            code.add(plainDefinition, {{"count", std::to_string(plainCount)}});
        if (plainCount != entries.size())
            code.add(formattedDefinition);
        code.add(fewerOptimizations);
        if (plainCount != 0)
            code.add(textDefinition);
        code.add("\n} // namespace");
    }
    std::size_t nextPlain = 0;
    std::size_t nextFormatted = plainCount;
    for (const TableEntry& one : entries) {
        code.enter(nameSpaceOf(options, *one.table, one.entry->groups));
        define(code, *one.entry, one.entry->parameters.empty() ? nextPlain++ : nextFormatted++);
    }
    return code.take();
}

void emitSources(std::span<const AccessorTable> tables, const Options& options, std::vector<OutputFile>& files) {
    std::vector<TableEntry> all;
    for (const AccessorTable& table : tables)
        for (const NamedEntry& entry : table.entries)
            all.push_back({&table, &entry});
    for (std::size_t shard = 0; shard != options.shards; ++shard) {
        const std::size_t begin = all.size() * shard / options.shards;
        const std::size_t end = all.size() * (shard + 1) / options.shards;
        files.push_back({options.module + "Strings-" + std::to_string(shard + 1) + ".cpp",
                         definitions(std::span(all).subspan(begin, end - begin), options)});
    }
}

} // namespace

std::vector<OutputFile> emitStrings(std::span<const AccessorTable> tables, const Options& options) {
    std::vector<OutputFile> files;
    for (const AccessorTable& table : tables)
        if (!table.spelling.empty())
            emitHeaders(table, options, files);
    files.push_back({options.module + "Strings.h", umbrella(tables, options)});
    files.push_back({options.module + "Strings/Internal/Lookup.h", filled(lookupHeader, options.module)});
    files.push_back({options.module + "Strings.cpp", filled(lookupSource, options.module)});
    emitSources(tables, options, files);
    files.push_back({options.module + "Resources.h", filled(resourcesHeader, options.module)});
    files.push_back({options.module + "Resources.cpp", filled(resourcesSource, options.module)});
    return files;
}

} // namespace Generator
