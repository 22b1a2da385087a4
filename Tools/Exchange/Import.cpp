#include "Exchange/Import.h"

#include "Exchange/Export.h"
#include "Exchange/Languages.h"
#include "Exchange/Placeholders.h"
#include "Exchange/Po.h"
#include "Exchange/Targets.h"
#include "Exchange/Xliff.h"
#include "Runtime/internal/File.h"
#include "Runtime/internal/NameMap.h"
#include "StringTables/internal/Table.h"
#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace Exchange {

using SourceBundle::Severity;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;
using SourceBundle::TableFile;

namespace {

// A key with translations to import.
struct ImportedKey {
    Key key;
    std::vector<Unit> expected;          // the key's units in the source
    std::vector<bool> seen{};            // for each of `expected`, whether it occurred in a file
    std::vector<Unit> merged{};          // the units after the import
    std::vector<const Unit*> accepted{}; // those of `merged` that change
    // The place of the first accepted translation, for messages.
    std::string file{};
    std::size_t line = 0;
    std::map<std::vector<std::string>, std::span<const Unit>> parts{}; // those of `expected` by part

    void findParts() {
        for (auto begin = expected.begin(); begin != expected.end();) {
            const auto end =
                std::find_if_not(begin, expected.end(), [begin](const Unit& unit) { return isSamePart(*begin, unit); });
            parts.emplace(begin->id.part, std::span(begin, end));
            begin = end;
        }
    }
    // The units of the part; empty if the key does not have it.
    std::span<const Unit> unitsOf(const std::vector<std::string>& part) const {
        const auto found = parts.find(part);
        return found == parts.end() ? std::span<const Unit>() : found->second;
    }
};

const Unit* find(std::span<const Unit> units, std::optional<PluralCategory> category) {
    const auto found = std::ranges::find(units, category, [](const Unit& unit) { return unit.id.category; });
    return found == units.end() ? nullptr : &*found;
}

// The state of an imported translation. In a PO file the fuzzy flag determines it, but only if the flag or the text
// differs from what an export writes: an export also sets the flag for other reasons.
State stateOf(const Unit& unit, const Unit& expected, bool hasStates) {
    if (hasStates)
        return unit.state;
    if (unit.isFuzzy == expected.isFuzzy && unit.target == expected.target)
        return expected.state;
    return unit.isFuzzy ? State::needsReview : State::translated;
}

class Importer {
public:
    Importer(const Source& source, SourceBundle::Diagnostics& faults)
        : source_(source), faults_(faults), texts_(source, faults), targets_(source, texts_) {}

    void read(const Translations& translations) {
        const auto language = targetLanguage(source_, translations.targetLanguage);
        if (!language)
            return fault(translations.file, 0,
                         "is in \"" + translations.targetLanguage +
                             "\", which is not a language that the source can be translated to");
        if (!translations.sourceLanguage.empty() &&
            !isSameLanguage(translations.sourceLanguage, source_.developmentLanguage))
            return fault(translations.file, 0,
                         "was translated from " + translations.sourceLanguage + ", the source's language is " +
                             source_.developmentLanguage);
        for (const Unit& unit : translations.units)
            read(translations, unit, *language);
    }

    // Changes the documents in memory, in the order of the development texts.
    void apply() {
        for (const std::string& language : languages_)
            for (const SourceTable& table : source_.tables)
                forEachKey(source_, table, language, [&](const Key& key) {
                    const auto found = keys_.find(nameOf(language, table.name, key.development->key));
                    if (found != keys_.end() && !found->second.accepted.empty())
                        apply(found->second);
                });
    }

    Runtime::Result<Imported> write() {
        auto files = targets_.write();
        if (!files)
            return std::move(files.error());
        return Imported{.texts = count_, .files = *files};
    }

private:
    void fault(const std::string& file, std::size_t line, std::string message) {
        faults_.add(Severity::error, {.message = std::move(message), .file = file, .line = line});
    }

    // The name of a key in `keys_`. It is unique, because languages and the source's tables have no slash in their
    // names.
    static std::string nameOf(std::string_view language, std::string_view table, std::string_view key) {
        std::string name(language);
        return name.append("/").append(table).append("/").append(key);
    }

    // The key of the unit with this id, added to `keys_` if necessary, or null if the source does not have it.
    ImportedKey* importedKeyFor(const UnitId& id, const std::string& language) {
        const auto table = std::ranges::lower_bound(source_.tables, id.table, {}, &SourceTable::name);
        if (table == source_.tables.end() || table->name != id.table)
            return nullptr;
        const std::string name = nameOf(language, id.table, id.key);
        if (const auto known = keys_.find(name); known != keys_.end())
            return &known->second;
        for (const std::string_view developmentLanguage :
             {std::string_view(source_.developmentLanguage), SourceBundle::baseLanguage}) {
            const auto* const texts = table->find(developmentLanguage);
            const SourceEntry* const development = texts == nullptr ? nullptr : texts->find(id.key);
            if (development == nullptr)
                continue;
            const auto* const translated = table->find(language);
            Key key{.table = &*table,
                    .development = development,
                    .translated = translated == nullptr ? nullptr : translated->find(id.key),
                    .developmentLanguage = std::string(developmentLanguage),
                    .language = language};
            ImportedKey& imported = keys_[name];
            imported.key = std::move(key);
            imported.expected = unitsOf(imported.key, texts_).value_or(std::vector<Unit>());
            imported.seen.resize(imported.expected.size());
            imported.merged = imported.expected;
            imported.findParts();
            return &imported;
        }
        return nullptr;
    }

    void read(const Translations& translations, const Unit& unit, const std::string& language) {
        const std::string id = textOf(unit.id);
        ImportedKey* const imported = importedKeyFor(unit.id, language);
        if (imported == nullptr || imported->expected.empty())
            return fault(translations.file, unit.line, "the source has no translatable text with the id " + id);
        const std::span<const Unit> part = imported->unitsOf(unit.id.part);
        const Unit* const expected = find(part, unit.id.category);
        if (expected == nullptr)
            return fault(translations.file, unit.line, whyUnknown(part, unit, language));
        const auto number = static_cast<std::size_t>(expected - imported->expected.data());
        if (imported->seen[number])
            return fault(translations.file, unit.line, id + " appears again");
        imported->seen[number] = true;
        if (unit.target.empty())
            return;
        // A PO file has only two development texts of a plural, so most forms come with that of another form.
        const Unit* const withSource = find(part, unit.sourceCategory);
        if (unit.source != (withSource == nullptr ? expected : withSource)->source)
            return fault(translations.file, unit.line,
                         "the development text of " + id + " has changed since the export");
        const State state = stateOf(unit, *expected, translations.hasStates);
        const SourceEntry& stored =
            imported->key.translated == nullptr ? *imported->key.development : *imported->key.translated;
        const bool storesStates = stored.file->kind == TableFile::Kind::catalog;
        if (unit.target == expected->target && (!storesStates || state == expected->state))
            return;
        if (unit.target != expected->target)
            if (const auto wrong = placeholderFault(unit.target, *expected, part, *imported->key.development))
                return fault(translations.file, unit.line, id + " " + *wrong);
        accept(translations.file, *imported, number, unit, state);
        languages_.insert(language);
    }

    // The message for a unit that is not among those of its part.
    static std::string whyUnknown(std::span<const Unit> part, const Unit& unit, const std::string& language) {
        if (unit.id.category && !part.empty() && part.front().id.category)
            return language + " has no plural form \"" +
                   std::string(Intl::pluralCategoryNames[indexOf(*unit.id.category)]) + "\" for " + textOf(unit.id);
        return "the key has no text to translate with the id " + textOf(unit.id);
    }

    void accept(const std::string& file, ImportedKey& imported, std::size_t number, const Unit& unit, State state) {
        Unit& merged = imported.merged[number];
        merged.target = unit.target;
        merged.state = state;
        imported.accepted.push_back(&merged);
        if (imported.file.empty()) {
            imported.file = file;
            imported.line = unit.line;
        }
    }

    // A unit that lacks a translation which the key needs, or null if there is none. Only a key that is new in the
    // language, or whose plain translation becomes a plural, can lack one; texts for devices and plural forms except
    // `other` may be left out.
    static const Unit* missingUnit(const ImportedKey& imported) {
        const auto lacksTranslation = [](const Unit& unit) {
            const bool isForDevice = !unit.id.part.empty() && unit.id.part.front() == devicePart;
            return unit.target.empty() && !unit.source.empty() && !isForDevice &&
                   unit.id.category.value_or(PluralCategory::other) == PluralCategory::other;
        };
        if (imported.key.translated != nullptr &&
            (imported.key.development->plural == nullptr || imported.key.translated->plural != nullptr))
            return nullptr;
        const auto found = std::ranges::find_if(imported.merged, lacksTranslation);
        return found == imported.merged.end() ? nullptr : &*found;
    }

    void apply(const ImportedKey& imported) {
        if (const Unit* const missing = missingUnit(imported))
            return fault(imported.file, imported.line,
                         textOf(missing->id) + " is missing; it is required by the other texts of the key");
        Change change{.development = imported.key.development,
                      .language = imported.key.language,
                      .changed = imported.accepted,
                      .all = {}};
        for (const Unit& unit : imported.merged)
            if (!unit.target.empty())
                change.all.push_back(&unit);
        auto applied = targets_.apply(imported.key, change);
        if (!applied)
            return fault(imported.file, imported.line,
                         textOf(change.changed.front()->id) + ": " + applied.error().text());
        count_ += change.changed.size();
    }

    const Source& source_;
    SourceBundle::Diagnostics& faults_;
    StoredTexts texts_;
    Targets targets_;
    Runtime::NameMap<ImportedKey> keys_;
    std::set<std::string> languages_; // those with accepted translations
    std::size_t count_ = 0;           // of changed texts
};

} // namespace

Runtime::Result<std::vector<Translations>> readTranslations(const std::string& file,
                                                            SourceBundle::Diagnostics& faults) {
    auto bytes = Runtime::readFile(file, StringTables::Table::maxBytes);
    if (!bytes)
        return std::move(bytes.error());
    // The bytes of byte-order marks and blanks, and the zero bytes of UTF-16.
    constexpr std::string_view skipped("\xEF\xBB\xBF\xFE\xFF \t\r\n\0", 10);
    const std::size_t first = bytes->find_first_not_of(skipped);
    if (first != std::string::npos && (*bytes)[first] == '<')
        return readXliff(*std::move(bytes), file, faults);
    auto translations = readPo(*bytes, file, faults);
    if (!translations)
        return std::move(translations.error());
    return std::vector<Translations>{*std::move(translations)};
}

Runtime::Result<Imported> importTranslations(const Source& source, std::span<const Translations> all,
                                             const ImportOptions& options, SourceBundle::Diagnostics& faults) {
    Importer importer(source, faults);
    for (const Translations& translations : all)
        importer.read(translations);
    importer.apply();
    if (faults.hasErrors() && !options.keepGoing)
        return Imported{};
    return importer.write();
}

} // namespace Exchange
