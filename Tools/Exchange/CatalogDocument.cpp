#include "Exchange/CatalogDocument.h"

#include <array>
#include <utility>

namespace Exchange {

namespace {

constexpr std::string_view stringUnit = "stringUnit", variations = "variations", plural = "plural";

constexpr std::array<std::pair<std::string_view, State>, 3> states = {
    {{"translated", State::translated}, {"new", State::isNew}, {"needs_review", State::needsReview}}};

State stateOf(JsonNode& unit) {
    const JsonNode* const found = unit.find("state");
    const auto name = found == nullptr ? std::nullopt : found->string();
    for (const auto& [known, state] : states)
        if (name == known)
            return state;
    return State::translated;
}

std::string_view nameOf(State state) {
    for (const auto& [name, known] : states)
        if (known == state)
            return name;
    return {};
}

// Collects the texts of a localization: the plain text and those for devices, plural categories and substitutions.
// Ignores variations of a plural category, devices within a device, and substitutions of anything but the localization.
class Collector {
public:
    explicit Collector(JsonNode& localization) { collect(localization); }
    std::vector<StoredText> texts;

private:
    void collect(JsonNode& node) {
        if (JsonNode* const unit = node.find(stringUnit))
            if (const JsonNode* const value = unit->find("value"))
                if (auto text = value->string())
                    texts.push_back({part_, category_, *std::move(text), stateOf(*unit)});
        if (JsonNode* const variation = node.find(variations); variation != nullptr && !category_)
            for (const std::string& kind : variation->names())
                collectVariations(kind, *variation->find(kind));
        if (JsonNode* const substitutions = node.find(substitutionsPart); substitutions != nullptr && part_.empty())
            collectParts(substitutionsPart, *substitutions);
    }

    void collectVariations(std::string_view kind, JsonNode& node) {
        const bool isForDevice = !part_.empty() && part_[part_.size() - 2] == devicePart;
        if (kind == plural)
            for (const std::string& name : node.names()) {
                category_ = Intl::pluralCategoryNamed(name);
                if (category_)
                    collect(*node.find(name));
                category_.reset();
            }
        else if (kind == devicePart && !isForDevice)
            collectParts(devicePart, node);
    }

    void collectParts(std::string_view kind, JsonNode& node) {
        for (const std::string& name : node.names()) {
            part_.insert(part_.end(), {std::string(kind), name});
            collect(*node.find(name));
            part_.resize(part_.size() - 2);
        }
    }

    std::vector<std::string> part_; // of the node: kind and name at each level, as in UnitId
    std::optional<PluralCategory> category_;
};

// Adds variations to the node if it has none, and removes its plain text, because a node cannot have both.
JsonNode& makeVariations(JsonNode& node) {
    node.remove(stringUnit);
    return node.member(variations);
}

bool isPlain(JsonNode& localization) {
    return localization.find(stringUnit) != nullptr && localization.find(variations) == nullptr;
}

} // namespace

CatalogDocument::CatalogDocument(JsonDocument json) : json_(std::move(json)) {
    if (const JsonNode* const language = json_.root().find("sourceLanguage"))
        sourceLanguage_ = language->string().value_or("");
    if (JsonNode* const strings = json_.root().find("strings"))
        for (JsonMember& member : strings->members())
            keys_[member.name] = &member.value;
}

Runtime::Result<CatalogDocument> CatalogDocument::read(std::string bytes) {
    auto json = JsonDocument::read(std::move(bytes));
    if (!json)
        return std::move(json.error());
    return CatalogDocument(*std::move(json));
}

JsonNode* CatalogDocument::localization(std::string_view key, std::string_view language) {
    const auto known = keys_.find(std::string(key));
    JsonNode* const all = known == keys_.end() ? nullptr : known->second->find("localizations");
    return all == nullptr ? nullptr : all->find(language);
}

std::vector<StoredText> CatalogDocument::texts(std::string_view key, std::string_view language) {
    JsonNode* const found = localization(key, language);
    std::vector<StoredText> texts = found == nullptr ? std::vector<StoredText>() : Collector(*found).texts;
    if (texts.empty() && language == sourceLanguage_ && keys_.contains(std::string(key)))
        texts.push_back({{}, std::nullopt, std::string(key), State::translated});
    return texts;
}

JsonNode& CatalogDocument::nodeOf(const Unit& unit, JsonNode& localization) {
    JsonNode* node = &localization;
    for (std::size_t i = 0; i + 1 < unit.id.part.size(); i += 2) {
        const std::string& name = unit.id.part[i + 1];
        if (unit.id.part[i] == devicePart) {
            node = &makeVariations(*node).member(devicePart).member(name);
            continue;
        }
        JsonNode& substitution = node->member(substitutionsPart).member(name);
        if (substitution.names().empty()) { // new: copy everything but the texts from the source language
            JsonNode* const source = this->localization(unit.id.key, sourceLanguage_);
            JsonNode* const substitutions = source == nullptr ? nullptr : source->find(substitutionsPart);
            if (JsonNode* const model = substitutions == nullptr ? nullptr : substitutions->find(name))
                substitution.copyMembers(*model, variations);
        }
        node = &substitution;
    }
    if (unit.id.category)
        node = &makeVariations(*node).member(plural).member(Intl::pluralCategoryNames[indexOf(*unit.id.category)]);
    return node->member(stringUnit);
}

Runtime::Result<void> CatalogDocument::apply(const Change& change) {
    const std::string& key = change.changed.front()->id.key;
    const auto known = keys_.find(key);
    if (known == keys_.end())
        return Runtime::Error{.message = "the string catalog has no key " + key};
    for (const Unit* unit : change.changed)
        if (const auto& part = unit->id.part; !part.empty() && part[0] != devicePart && part[0] != substitutionsPart)
            return Runtime::Error{.message = "a string catalog cannot contain the forms of a .stringsdict file"};
    JsonNode& localization = known->second->member("localizations").member(change.language);
    // If a plain text is replaced by forms, all forms must be written.
    for (const Unit* unit : isPlain(localization) ? change.all : change.changed) {
        JsonNode& stored = nodeOf(*unit, localization);
        if (stored.find("value") == nullptr || stateOf(stored) != unit->state)
            stored.member("state").set(nameOf(unit->state));
        stored.member("value").set(unit->target);
    }
    return {};
}

Runtime::Result<std::string> CatalogDocument::bytes() const {
    return json_.text();
}

} // namespace Exchange
