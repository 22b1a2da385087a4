// Exchange/PropertyListDocument.h
// Edits a table of texts or plurals in an XML property list in place.
#pragma once

#include "Exchange/DecodedText.h"
#include "Exchange/TableDocument.h"
#include "Exchange/TextEdits.h"
#include "Exchange/Xml.h"
#include "Runtime/internal/NameMap.h"
#include "StringTables/internal/PluralTable.h"
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

class PropertyListDocument final : public TableDocument {
public:
    [[nodiscard]] static Runtime::Result<PropertyListDocument> read(const std::string& bytes);
    PropertyListDocument(PropertyListDocument&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    // A key and its value.
    struct Pair {
        const XmlNode* key;
        const XmlNode* value;
    };
    // Skips what is not a key followed by a value.
    static std::vector<Pair> pairsOf(const XmlNode& dictionary);
    // The value of the last `key`, or null.
    static const XmlNode* find(const std::vector<Pair>& pairs, std::string_view key);
    // The element with the unit's text in a plural with these pairs, or null.
    static const XmlNode* findText(const std::vector<Pair>& plural, const Unit& unit);
    // Whether the value of a variable's name is a variable that PluralTable does not skip.
    static bool isPluralVariable(const XmlNode& value);

    PropertyListDocument(DecodedText file, XmlDocument xml, const XmlNode& dictionary);
    void add(const Change& change, const std::string& value);
    Runtime::Result<void> editPlural(const XmlNode& entry, const Change& change);
    void editForm(const XmlNode& variable, const Unit& unit);
    void setText(const XmlNode& string, std::string_view text);

    // Write new elements. `line`: the line break and indentation before the key and before the value.
    std::string plural(const StringTables::PluralFormat& plural) const;
    std::string variable(const StringTables::PluralVariable& variable, const std::string& line) const;
    std::string pair(std::string_view key, std::string_view text, const std::string& line) const;
    std::string element(std::string_view name, std::string_view text) const;
    // The white space before the node in the file.
    std::string blanksBefore(const XmlNode& node) const;

    DecodedText file_;
    XmlDocument xml_;
    const XmlNode& dictionary_;               // the top-level one in xml_; it stays in place when xml_ is moved
    Runtime::NameMap<const XmlNode*> values_; // the values of dictionary_ by key
    std::string line_;                        // the line break and indentation before a key of dictionary_
    std::string indent_; // of one level: that of dictionary_'s keys, or a tab; empty without line breaks
    TextEdits edits_;
    std::string added_; // the new pairs of the top-level dictionary
};

} // namespace Exchange
