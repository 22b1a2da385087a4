#include "Gallery/Texts.h"

#include "Generator/Model.h"
#include "StringTables/internal/PluralTable.h"
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Gallery {

using nlohmann::ordered_json;
using SourceBundle::LanguageTexts;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;

namespace {

// The development language, then the others in alphabetical order. Base is not a language of its own: its texts count
// as the development language's.
std::vector<std::string> languagesOf(const Source& source) {
    std::set<std::string> others = source.languages();
    others.erase(source.developmentLanguage);
    others.erase(std::string(SourceBundle::baseLanguage));
    std::vector<std::string> languages = {source.developmentLanguage};
    languages.insert(languages.end(), others.begin(), others.end());
    return languages;
}

// JSON members with the accessor of each text, or the reason why it has none.
using Accessors = std::unordered_map<const SourceEntry*, ordered_json>;

// `names` is a copy, because accessorTables() marks the names that it uses.
Accessors accessorsOf(const Source& source, Generator::NamesFile names) {
    Accessors accessors;
    SourceBundle::Diagnostics ignored; // `lumora generate` reports them
    for (const Generator::AccessorTable& table : Generator::accessorTables(source, names, ignored)) {
        for (const Generator::NamedEntry& entry : table.entries) {
            const std::string groups = entry.groups.empty() ? "" : entry.groups + "::";
            accessors[entry.source] = {{"accessor", table.spelling + "::" + groups + entry.name}};
        }
        for (const Generator::LeftOutEntry& entry : table.leftOut)
            accessors[entry.source] = {{"accessor", nullptr}, {"reason", entry.reason}};
    }
    return accessors;
}

ordered_json formsOf(const StringTables::PluralVariable& variable) {
    ordered_json forms = ordered_json::object();
    for (std::size_t i = 0; i < variable.forms.size(); ++i)
        if (variable.forms[i])
            forms[std::string(Intl::pluralCategoryNames[i])] = *variable.forms[i];
    return forms;
}

ordered_json valueOf(const SourceEntry& entry) {
    if (entry.plural == nullptr)
        return entry.text;
    ordered_json variables = ordered_json::object();
    for (const StringTables::PluralVariable& variable : entry.plural->variables)
        variables[variable.name] = formsOf(variable);
    return {{"format", entry.plural->format}, {"variables", std::move(variables)}};
}

// A text that is not to be translated has the development text's value in languages without a translation.
ordered_json valuesOf(const SourceTable& table, const SourceEntry& entry, const std::vector<std::string>& languages) {
    ordered_json values = ordered_json::array({valueOf(entry)});
    for (std::size_t i = 1; i < languages.size(); ++i) {
        const LanguageTexts* texts = table.find(languages[i]);
        const SourceEntry* translation = texts == nullptr ? nullptr : texts->find(entry.key);
        if (translation == nullptr && !entry.isTranslatable)
            translation = &entry;
        values.push_back(translation == nullptr ? ordered_json() : valueOf(*translation));
    }
    return values;
}

ordered_json textOf(const SourceTable& table, const SourceEntry& entry, const std::vector<std::string>& languages) {
    ordered_json text = {{"table", table.name}, {"key", entry.key}, {"accessor", nullptr}};
    if (!entry.comment.empty())
        text["comment"] = entry.comment;
    if (!entry.isTranslatable)
        text["fixed"] = true;
    text["values"] = valuesOf(table, entry, languages);
    return text;
}

} // namespace

ordered_json textsOf(const Source& source, const Generator::NamesFile& names) {
    const std::vector<std::string> languages = languagesOf(source);
    const Accessors accessors = accessorsOf(source, names);
    ordered_json texts = ordered_json::array();
    for (const SourceTable& table : source.tables)
        for (const SourceEntry* entry : source.developmentEntries(table)) {
            ordered_json text = textOf(table, *entry, languages);
            if (const auto accessor = accessors.find(entry); accessor != accessors.end())
                text.update(accessor->second);
            texts.push_back(std::move(text));
        }
    return {{"languages", languages}, {"texts", std::move(texts)}};
}

} // namespace Gallery
