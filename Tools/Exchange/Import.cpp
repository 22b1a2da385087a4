#include "Exchange/Import.h"

#include "Exchange/Export.h"
#include "Exchange/FileSet.h"
#include "Exchange/Languages.h"
#include "Exchange/Placeholders.h"
#include "Exchange/Po.h"
#include "Exchange/Targets.h"
#include "Exchange/Xliff.h"
#include "Runtime/internal/File.h"
#include "StringTables/internal/Table.h"
#include <algorithm>
#include <unordered_map>

namespace Exchange {

using SourceBundle::Severity;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;
using SourceBundle::TableFile;

namespace {

// A key that translations are brought back for.
struct Returned {
    Key key;
    std::vector<Unit> expected;          // the key's units as the source has them
    std::vector<const Unit*> seen;       // of those, the ones that a file has
    std::vector<const Unit*> accepted{}; // of `merged`, those that are to change
    std::vector<Unit> merged{};          // the units as they are to be
    std::string file{};                  // for messages
    std::size_t line = 0;
};

Unit* find(std::vector<Unit>& units, const std::vector<std::string>& part, std::optional<PluralCategory> category) {
    const auto found = std::ranges::find_if(
        units, [&](const Unit& unit) { return unit.id.part == part && unit.id.category == category; });
    return found == units.end() ? nullptr : &*found;
}

// What a file says of a translation's state. The mark of a PO file counts where it is not what an export would give.
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

    void read(const Handout& handout) {
        const auto language = targetLanguage(source_, handout.targetLanguage);
        if (!language)
            return fault(handout, 0,
                         "is in \"" + handout.targetLanguage +
                             "\", which is not a language that the source is translated to");
        if (!handout.sourceLanguage.empty() && !isSameLanguage(handout.sourceLanguage, source_.developmentLanguage))
            return fault(handout, 0,
                         "was translated from " + handout.sourceLanguage + ", the source's language is " +
                             source_.developmentLanguage);
        for (const Unit& unit : handout.units)
            read(handout, unit, *language);
    }

    // Changes the documents in memory.
    void apply() {
        for (const std::string& language : languages_)
            for (const SourceTable& table : source_.tables)
                forEachKey(source_, table, language, [&](const Key& key) {
                    const auto found = returned_.find(nameOf(language, table.name, key.development->key));
                    if (found != returned_.end() && !found->second.accepted.empty())
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
    void fault(const Handout& handout, std::size_t line, std::string message) {
        faults_.add(Severity::error, {.message = std::move(message), .file = handout.file, .line = line});
    }

    static std::string nameOf(std::string_view language, std::string_view table, std::string_view key) {
        std::string name(language);
        return name.append("/").append(table).append("/").append(key);
    }

    // The key of a unit, or null where the source has none.
    Returned* returnedFor(const UnitId& id, const std::string& language) {
        const std::string name = nameOf(language, id.table, id.key);
        if (const auto known = returned_.find(name); known != returned_.end())
            return &known->second;
        const auto table = std::ranges::find(source_.tables, id.table, &SourceTable::name);
        if (table == source_.tables.end())
            return nullptr;
        for (const std::string_view developed :
             {std::string_view(source_.developmentLanguage), SourceBundle::baseLanguage}) {
            const auto* const texts = table->find(developed);
            const SourceEntry* const development = texts == nullptr ? nullptr : texts->find(id.key);
            if (development == nullptr)
                continue;
            const auto* const translated = table->find(language);
            Key key{.table = &*table,
                    .development = development,
                    .translated = translated == nullptr ? nullptr : translated->find(id.key),
                    .developmentLanguage = std::string(developed),
                    .language = language};
            Returned returned{.key = std::move(key), .expected = {}, .seen = {}};
            returned.expected = unitsOf(returned.key, texts_);
            returned.merged = returned.expected;
            return &returned_.emplace(name, std::move(returned)).first->second;
        }
        return nullptr;
    }

    void read(const Handout& handout, const Unit& unit, const std::string& language) {
        const std::string id = textOf(unit.id);
        Returned* const returned = returnedFor(unit.id, language);
        if (returned == nullptr || returned->expected.empty())
            return fault(handout, unit.line, "the source has no text to translate with the id " + id);
        Unit* const expected = find(returned->expected, unit.id.part, unit.id.category);
        if (expected == nullptr)
            return fault(handout, unit.line, whyUnknown(*returned, unit));
        if (std::ranges::find(returned->seen, expected) != returned->seen.end())
            return fault(handout, unit.line, id + " appears again");
        returned->seen.push_back(expected);
        if (unit.target.empty())
            return;
        const Unit* const model = find(returned->expected, unit.id.part, unit.sourceCategory);
        if (unit.source != (model == nullptr ? expected : model)->source)
            return fault(handout, unit.line, "the development text of " + id + " is another one than was translated");
        const State state = stateOf(unit, *expected, handout.hasStates);
        const bool holdsStates = returned->key.development->file->kind == TableFile::Kind::catalog;
        if (unit.target == expected->target && (!holdsStates || state == expected->state))
            return;
        if (unit.target != expected->target)
            if (const auto wrong =
                    placeholderFault(unit.target, *expected, returned->expected, *returned->key.development))
                return fault(handout, unit.line, id + " " + *wrong);
        accept(handout, *returned, unit, state);
        if (std::ranges::find(languages_, language) == languages_.end())
            languages_.push_back(language);
    }

    static std::string whyUnknown(Returned& returned, const Unit& unit) {
        const bool hasPart = std::ranges::any_of(
            returned.expected, [&unit](const Unit& each) { return each.id.part == unit.id.part && each.id.category; });
        if (unit.id.category && hasPart)
            return returned.key.language + " has no plural form \"" +
                   std::string(Intl::pluralCategoryNames[indexOf(*unit.id.category)]) + "\" for " + textOf(unit.id);
        return "the key has no text with the id " + textOf(unit.id);
    }

    void accept(const Handout& handout, Returned& returned, const Unit& unit, State state) {
        Unit& merged = *find(returned.merged, unit.id.part, unit.id.category);
        merged.target = unit.target;
        merged.state = state;
        merged.line = unit.line;
        returned.accepted.push_back(&merged);
        if (returned.file.empty()) {
            returned.file = handout.file;
            returned.line = unit.line;
        }
    }

    // What a key that is new in the language lacks, or null: every text has to be there that the others need.
    static const Unit* lacking(const Returned& returned) {
        const auto isLacking = [](const Unit& unit) {
            const bool isForDevice = !unit.id.part.empty() && unit.id.part.front() == devicePart;
            return unit.target.empty() && !isForDevice &&
                   unit.id.category.value_or(PluralCategory::other) == PluralCategory::other;
        };
        if (returned.key.translated != nullptr &&
            (returned.key.development->plural == nullptr || returned.key.translated->plural != nullptr))
            return nullptr;
        const auto found = std::ranges::find_if(returned.merged, isLacking);
        return found == returned.merged.end() ? nullptr : &*found;
    }

    void apply(const Returned& returned) {
        const Handout place{.sourceLanguage = {}, .targetLanguage = {}, .file = returned.file};
        if (const Unit* const missing = lacking(returned))
            return fault(place, returned.line,
                         textOf(missing->id) + " is missing, without which the others cannot be used");
        Change change{.development = returned.key.development,
                      .language = returned.key.language,
                      .changed = returned.accepted,
                      .all = {}};
        for (const Unit& unit : returned.merged)
            if (!unit.target.empty())
                change.all.push_back(&unit);
        auto applied = targets_.apply(returned.key, change);
        if (!applied)
            return fault(place, returned.line, textOf(change.changed.front()->id) + ": " + applied.error().text());
        count_ += change.changed.size();
    }

    const Source& source_;
    SourceBundle::Diagnostics& faults_;
    StoredTexts texts_;
    Targets targets_;
    std::unordered_map<std::string, Returned> returned_;
    std::vector<std::string> languages_; // with something to change
    std::size_t count_ = 0;
};

} // namespace

Runtime::Result<std::vector<Handout>> readHandouts(const std::string& file, SourceBundle::Diagnostics& faults) {
    auto bytes = Runtime::readFile(file, StringTables::Table::maxBytes);
    if (!bytes)
        return std::move(bytes.error());
    const std::size_t first = bytes->find_first_not_of("\xEF\xBB\xBF \t\r\n");
    const bool isWide = bytes->starts_with("\xFF\xFE") || bytes->starts_with("\xFE\xFF");
    if (isWide || (first != std::string::npos && (*bytes)[first] == '<'))
        return readXliff(*std::move(bytes), file, faults);
    auto handout = readPo(*bytes, file, faults);
    if (!handout)
        return std::move(handout.error());
    return std::vector<Handout>{*std::move(handout)};
}

Runtime::Result<Imported> importHandouts(const Source& source, std::span<const Handout> handouts,
                                         const ImportOptions& options, SourceBundle::Diagnostics& faults) {
    Importer importer(source, faults);
    for (const Handout& handout : handouts)
        importer.read(handout);
    importer.apply();
    if (faults.hasErrors() && !options.keepGoing)
        return Imported{};
    return importer.write();
}

} // namespace Exchange
