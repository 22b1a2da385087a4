// Exchange/CatalogDocument.h
// Reads and edits the texts of a string catalog (.xcstrings) in place.
#pragma once

#include "Exchange/Json.h"
#include "Exchange/TableDocument.h"
#include "Runtime/internal/NameMap.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

// How UnitId::part begins for a text that varies by device, and for a variable of a text in a string catalog; spelled
// as in its JSON.
inline constexpr std::string_view devicePart = "device", substitutionsPart = "substitutions";

// A text of a key in one language; `part` and `category` as in UnitId.
struct StoredText {
    std::vector<std::string> part;
    std::optional<PluralCategory> category;
    std::string text;
    State state = State::translated;
};

class CatalogDocument final : public TableDocument {
public:
    [[nodiscard]] static Runtime::Result<CatalogDocument> read(std::string bytes);
    CatalogDocument(CatalogDocument&&) = default;

    // The texts of the key in the language, in file order. In the source language, a key without a text is its own
    // text.
    [[nodiscard]] std::vector<StoredText> texts(std::string_view key, std::string_view language);

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    explicit CatalogDocument(JsonDocument json);
    // The node with all texts of the key in the language, or null.
    JsonNode* localization(std::string_view key, std::string_view language);
    // The "stringUnit" with the unit's text, created if necessary.
    JsonNode& nodeOf(const Unit& unit, JsonNode& localization);

    JsonDocument json_;
    std::string sourceLanguage_;
    Runtime::NameMap<JsonNode*> keys_; // the value of each key in "strings"
};

} // namespace Exchange
