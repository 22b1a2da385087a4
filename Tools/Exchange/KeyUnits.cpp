#include "Exchange/KeyUnits.h"

#include "Exchange/Languages.h"
#include "Exchange/PluralChange.h"
#include "Exchange/Po.h"
#include "StringTables/internal/PluralTable.h"
#include <algorithm>
#include <map>
#include <utility>

namespace Exchange {

using SourceBundle::SourceEntry;
using SourceBundle::TableFile;
using StringTables::PluralFormat;

namespace {

std::vector<StoredText> textsOf(const PluralFormat& plural) {
    std::vector<StoredText> texts = {{{std::string(formatPart)}, std::nullopt, plural.format}};
    for (const StringTables::PluralVariable& variable : plural.variables)
        for (std::size_t i = 0; i < variable.forms.size(); ++i)
            if (variable.forms[i])
                texts.push_back(
                    {{std::string(variablesPart), variable.name}, static_cast<PluralCategory>(i), *variable.forms[i]});
    return texts;
}

using Part = std::vector<std::string>;

// The texts of one part of a key in the development language and in the translation: one text each, or plural forms.
struct PartTexts {
    Part part;
    bool isPlural = false;
    std::vector<const StoredText*> development{}, translated{};
};

const StoredText* find(const std::vector<const StoredText*>& texts, std::optional<PluralCategory> category) {
    const auto found = std::ranges::find(texts, category, &StoredText::category);
    return found == texts.end() ? nullptr : *found;
}

// The development text for a category, or else that for `other`, or else the last one; null if there are none.
const StoredText* developmentText(const std::vector<const StoredText*>& texts, std::optional<PluralCategory> category) {
    if (const StoredText* const same = find(texts, category))
        return same;
    if (const StoredText* const other = find(texts, PluralCategory::other))
        return other;
    return texts.empty() ? nullptr : texts.back();
}

class UnitMaker {
public:
    UnitMaker(const Key& key, const std::vector<StoredText>& development, const std::vector<StoredText>& translated)
        : key_(key) {
        for (const StoredText& text : development)
            partFor(text).development.push_back(&text);
        for (const StoredText& text : translated) {
            partFor(text).translated.push_back(&text);
            if (text.part.empty() && !text.category)
                plain_ = &text;
        }
    }

    std::vector<Unit> make() {
        for (const PartTexts& part : parts_) {
            if (isTrivialFormat(part))
                continue;
            if (!part.isPlural)
                add(part, std::nullopt);
            else
                for (std::size_t i = 0; i < Intl::pluralCategoryCount; ++i)
                    if (const auto category = static_cast<PluralCategory>(i); isWanted(part, category))
                        add(part, category);
        }
        return std::move(units_);
    }

private:
    // The part of the text, added if necessary.
    PartTexts& partFor(const StoredText& text) {
        const auto [number, isNew] = numbers_.try_emplace(text.part, parts_.size());
        if (isNew)
            parts_.push_back({.part = text.part});
        PartTexts& part = parts_[number->second];
        part.isPlural |= text.category.has_value();
        return part;
    }

    bool isWanted(const PartTexts& part, PluralCategory category) const {
        const auto needed = categoriesOf(key_.language);
        return std::ranges::find(needed, category) != needed.end() || find(part.translated, category) != nullptr ||
               (category == PluralCategory::zero && find(part.development, category) != nullptr);
    }

    // Whether the part is a format that needs no translation: a single variable, and the same in the translation.
    bool isTrivialFormat(const PartTexts& part) const {
        if (part.part != Part{std::string(formatPart)} || key_.development->plural == nullptr)
            return false;
        const auto isVariable = [this](const StoredText* text) {
            return std::ranges::any_of(key_.development->plural->variables, [text](const auto& variable) {
                return text->text == "%#@" + variable.name + "@";
            });
        };
        return std::ranges::all_of(part.development, isVariable) &&
               (part.translated.empty() ||
                (!part.development.empty() && part.translated.front()->text == part.development.front()->text));
    }

    // If the development text does not have the part, the text of another part is shown to translators.
    const StoredText* sourceOf(const PartTexts& part, std::optional<PluralCategory> category) const {
        if (const StoredText* const own = developmentText(part.development, category))
            return own;
        for (const PartTexts& other : parts_)
            if (const StoredText* const text = developmentText(other.development, category))
                return text;
        return nullptr;
    }

    // If the development text has plural forms, a plain translation counts as the form `other`; if it has texts for
    // devices, as the text for the device `other`.
    const StoredText* targetOf(const PartTexts& part, std::optional<PluralCategory> category) const {
        if (const StoredText* const own = find(part.translated, category))
            return own;
        const bool isOtherForm = !category || category == PluralCategory::other;
        const bool isOtherDevice = part.part == Part{std::string(devicePart), "other"} && part.translated.empty();
        return isOtherForm && (part.part.empty() || isOtherDevice) ? plain_ : nullptr;
    }

    void add(const PartTexts& part, std::optional<PluralCategory> category) {
        const StoredText* const source = sourceOf(part, category);
        const StoredText* const target = targetOf(part, category);
        Unit unit{.id = {key_.table->name, std::string(key_.development->key), part.part, category},
                  .source = source == nullptr ? std::string() : source->text,
                  .sourceCategory = category};
        if (target != nullptr) {
            unit.target = target->text;
            unit.state = target->state;
        }
        if (category || !unit.source.empty() || !unit.target.empty()) // a plural keeps its empty forms
            units_.push_back(std::move(unit));
    }

    const Key& key_;
    const StoredText* plain_ = nullptr; // the translation without a part and a category, or null
    std::vector<PartTexts> parts_;
    std::map<Part, std::size_t> numbers_; // of parts_
    std::vector<Unit> units_;
};

// Whether unitsOf() has a value for the key, whose development texts are `development`.
bool canBeExchanged(const Key& key, const std::vector<StoredText>& development) {
    using Kind = TableFile::Kind;
    if (key.translated == nullptr)
        return true;
    const Kind from = key.development->file->kind, to = key.translated->file->kind;
    if (to == Kind::catalog)
        return from != Kind::plurals;
    if (to == Kind::plurals)
        return from == Kind::plurals;
    return from != Kind::catalog ||
           (development.size() == 1 && development.front().part.empty() && !development.front().category);
}

} // namespace

StoredTexts::StoredTexts(const SourceBundle::Source& source, SourceBundle::Diagnostics& diagnostics) {
    for (const SourceBundle::SourceTable& table : source.tables)
        for (const SourceBundle::LanguageTexts& texts : table.languages)
            for (const TableFile* file : texts.files) {
                if (file->kind != TableFile::Kind::catalog || catalogs_.contains(file->path))
                    continue;
                auto document = TableDocument::read(*file);
                if (document) // the kind is catalog, so it is a CatalogDocument
                    catalogs_[file->path].reset(static_cast<CatalogDocument*>(document->release()));
                else
                    diagnostics.add(SourceBundle::Severity::error, std::move(document.error()));
            }
}

CatalogDocument* StoredTexts::catalog(const std::filesystem::path& path) {
    const auto found = catalogs_.find(path);
    return found == catalogs_.end() ? nullptr : found->second.get();
}

std::vector<StoredText> StoredTexts::of(const SourceEntry& entry, std::string_view language) {
    if (CatalogDocument* const document = catalog(entry.file->path))
        return document->texts(entry.key, language);
    if (entry.plural != nullptr)
        return textsOf(*entry.plural);
    return {{{}, std::nullopt, std::string(entry.text), State::translated}};
}

std::optional<std::vector<Unit>> unitsOf(const Key& key, StoredTexts& texts) {
    if (!key.development->isTranslatable)
        return std::vector<Unit>();
    const std::vector<StoredText> development = texts.of(*key.development, key.developmentLanguage);
    if (!canBeExchanged(key, development))
        return std::nullopt;
    std::vector<StoredText> translated;
    // A plain translation of a plural in a .stringsdict file is not shown, because an import replaces it by a plural.
    const bool isReplaced = key.translated != nullptr && key.development->file->kind == TableFile::Kind::plurals &&
                            key.translated->file->kind == TableFile::Kind::texts;
    if (key.translated != nullptr && !isReplaced)
        translated = texts.of(*key.translated, key.language);
    std::vector<Unit> units = UnitMaker(key, development, translated).make();
    for (Unit& unit : units)
        unit.comment = key.development->comment;
    markFuzzy(units, key.language);
    return units;
}

bool isMissing(const Unit& unit, std::string_view language) {
    const bool isNeeded = !unit.id.category || needsCategory(language, *unit.id.category);
    return unit.target.empty() ? isNeeded && !unit.source.empty() : unit.state == State::isNew;
}

} // namespace Exchange
