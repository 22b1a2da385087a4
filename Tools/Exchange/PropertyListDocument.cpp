#include "Exchange/PropertyListDocument.h"

#include "Exchange/PluralChange.h"
#include "StringTables/internal/PluralKeys.h"
#include "StringTables/internal/Scan.h"
#include "StringTables/internal/XmlText.h"
#include <algorithm>
#include <utility>

namespace Exchange {

namespace pluralKeys = StringTables::pluralKeys;
using StringTables::PluralFormat;
using StringTables::PluralVariable;
using StringTables::internal::canBeXml;
using StringTables::internal::isAscii;
using StringTables::internal::xmlText;

namespace {

constexpr std::string_view blanks = " \t\r\n";

// The white space `white` from its last line break on, or all of it if it has none.
std::string lastLine(std::string white) {
    std::size_t at = white.rfind('\n');
    if (at == white.npos)
        return white;
    if (at > 0 && white[at - 1] == '\r')
        --at;
    return white.substr(at);
}

// The key of a form.
std::string_view categoryName(const Unit& form) {
    return Intl::pluralCategoryNames[indexOf(*form.id.category)];
}

Runtime::Error otherKindOfValue(const Change& change) {
    return {.message = "the table has a value of another kind for " + change.changed.front()->id.key};
}

} // namespace

PropertyListDocument::PropertyListDocument(DecodedText file, XmlDocument xml, const XmlNode& dictionary)
    : file_(std::move(file)), xml_(std::move(xml)), dictionary_(dictionary) {
    const std::vector<Pair> pairs = pairsOf(dictionary_);
    for (const Pair& pair : pairs)
        values_[pair.key->allText()] = pair.value;
    line_ = pairs.empty() ? "\n    " : lastLine(blanksBefore(*pairs.back().key));
    const std::size_t lineBreak = line_.rfind('\n');
    if (lineBreak != line_.npos)
        indent_ = line_.size() == lineBreak + 1 ? "\t" : line_.substr(lineBreak + 1);
}

Runtime::Result<PropertyListDocument> PropertyListDocument::read(const std::string& bytes) {
    auto file = DecodedText::of(bytes);
    if (!file)
        return std::move(file.error());
    auto xml = XmlDocument::read(bytes);
    if (!xml)
        return std::move(xml.error());
    const XmlNode* const dictionary = xml->root().child("dict");
    if (xml->root().name != "plist" || dictionary == nullptr)
        return Runtime::Error{.message = "not a property list with a dictionary"};
    return PropertyListDocument(*std::move(file), *std::move(xml), *dictionary);
}

std::vector<PropertyListDocument::Pair> PropertyListDocument::pairsOf(const XmlNode& dictionary) {
    std::vector<Pair> pairs;
    const XmlNode* key = nullptr;
    for (const XmlNode& child : dictionary.children) {
        if (!child.isElement())
            continue;
        if (key != nullptr)
            pairs.push_back({key, &child});
        key = key == nullptr && child.name == "key" ? &child : nullptr;
    }
    return pairs;
}

const XmlNode* PropertyListDocument::find(const std::vector<Pair>& pairs, std::string_view key) {
    const auto found =
        std::find_if(pairs.rbegin(), pairs.rend(), [key](const Pair& pair) { return pair.key->allText() == key; });
    return found == pairs.rend() ? nullptr : found->value;
}

const XmlNode* PropertyListDocument::findText(const std::vector<Pair>& plural, const Unit& unit) {
    if (!unit.id.category)
        return find(plural, pluralKeys::format);
    const XmlNode* const variable = find(plural, unit.id.part.back());
    return variable == nullptr ? nullptr : find(pairsOf(*variable), categoryName(unit));
}

bool PropertyListDocument::isPluralVariable(const XmlNode& value) {
    const std::vector<Pair> pairs = pairsOf(value);
    const XmlNode* const rule = find(pairs, pluralKeys::ruleType);
    return !pairs.empty() && (rule == nullptr || rule->allText() == pluralKeys::pluralRule);
}

std::string PropertyListDocument::blanksBefore(const XmlNode& node) const {
    const std::string_view before = std::string_view(file_.text).substr(0, node.begin);
    const std::size_t last = before.find_last_not_of(blanks);
    return std::string(before.substr(last == before.npos ? 0 : last + 1));
}

std::string PropertyListDocument::element(std::string_view name, std::string_view text) const {
    std::string out;
    out.append("<").append(name).append(">").append(xmlText(text, xml_.hasOtherEncoding()));
    return out.append("</").append(name).append(">");
}

std::string PropertyListDocument::pair(std::string_view key, std::string_view text, const std::string& line) const {
    return line + element("key", key) + line + element("string", text);
}

void PropertyListDocument::setText(const XmlNode& string, std::string_view text) {
    if (string.contentBegin == string.end) // <string/>
        edits_.replace(string.begin, string.end, element("string", text));
    else
        edits_.replace(string.contentBegin, string.contentEnd, xmlText(text, xml_.hasOtherEncoding()));
}

Runtime::Result<void> PropertyListDocument::apply(const Change& change) {
    for (const Unit* unit : change.all)
        if (!canBeXml(unit->target) || !canBeXml(unit->id.key))
            return Runtime::Error{.message = "the table is XML, which cannot represent one of the characters"};
    const Unit& first = *change.changed.front();
    const auto known = values_.find(first.id.key);
    const bool isPlural = !first.id.part.empty();
    if (known == values_.end()) {
        add(change, isPlural ? plural(newPlural(change)) : element("string", first.target));
        return {};
    }
    if (isPlural)
        return editPlural(*known->second, change);
    if (known->second->name != "string")
        return otherKindOfValue(change);
    setText(*known->second, first.target);
    return {};
}

void PropertyListDocument::add(const Change& change, const std::string& value) {
    const std::string comment = StringTables::internal::withoutMark(change.development->comment, "--");
    // XML does not read escapes in comments. Nevertheless, a comment with a character that the encoding may lack is
    // written with escapes, so that it is ASCII.
    if (!comment.empty() && canBeXml(comment))
        added_.append(line_)
            .append("<!-- ")
            .append(xml_.hasOtherEncoding() && !isAscii(comment) ? xmlText(comment, true) : comment)
            .append(" -->");
    added_.append(line_).append(element("key", change.changed.front()->id.key)).append(line_).append(value);
}

std::string PropertyListDocument::plural(const PluralFormat& plural) const {
    const std::string line = line_ + indent_;
    std::string out = "<dict>" + pair(pluralKeys::format, plural.format, line);
    for (const PluralVariable& each : plural.variables)
        out += line + element("key", each.name) + line + variable(each, line);
    return out + line_ + "</dict>";
}

std::string PropertyListDocument::variable(const PluralVariable& variable, const std::string& line) const {
    const std::string inner = line + indent_;
    std::string out = "<dict>" + pair(pluralKeys::ruleType, pluralKeys::pluralRule, inner) +
                      pair(pluralKeys::valueType, variable.valueType, inner);
    for (std::size_t i = 0; i < variable.forms.size(); ++i)
        if (variable.forms[i])
            out += pair(Intl::pluralCategoryNames[i], *variable.forms[i], inner);
    return out + line + "</dict>";
}

Runtime::Result<void> PropertyListDocument::editPlural(const XmlNode& entry, const Change& change) {
    const std::vector<Pair> pairs = pairsOf(entry);
    if (pairs.empty())
        return otherKindOfValue(change);
    for (const Unit* unit : change.changed) {
        const XmlNode* const variable = unit->id.category ? find(pairs, unit->id.part.back()) : nullptr;
        const XmlNode* const text = findText(pairs, *unit);
        if ((variable != nullptr && !isPluralVariable(*variable)) || (text != nullptr && text->name != "string"))
            return otherKindOfValue(change);
    }
    // Texts for widths or devices are read, but cannot be edited.
    if (find(pairs, pluralKeys::widthRule) != nullptr || find(pairs, pluralKeys::deviceRule) != nullptr)
        return otherKindOfValue(change);
    PluralFormat added; // the format and the variables that the entry lacks
    for (const Unit* unit : change.changed) {
        const XmlNode* const found = find(pairs, unit->id.category ? unit->id.part.back() : pluralKeys::format);
        if (found == nullptr)
            applyTo(added, std::span(&unit, 1), *change.development);
        else if (unit->id.category)
            editForm(*found, *unit);
        else
            setText(*found, unit->target);
    }
    const std::string line = lastLine(blanksBefore(*pairs.back().key));
    if (!added.format.empty())
        edits_.insert(pairs.back().value->end, pair(pluralKeys::format, added.format, line));
    for (const PluralVariable& each : added.variables)
        edits_.insert(pairs.back().value->end, line + element("key", each.name) + line + variable(each, line));
    return {};
}

// A new form is added before those of later categories.
void PropertyListDocument::editForm(const XmlNode& variable, const Unit& unit) {
    const std::vector<Pair> pairs = pairsOf(variable);
    const std::string_view name = categoryName(unit);
    if (const XmlNode* const form = find(pairs, name))
        return setText(*form, unit.target);
    const auto later = std::ranges::find_if(pairs, [&unit](const Pair& each) {
        const auto category = Intl::pluralCategoryNamed(each.key->allText());
        return category && *category > *unit.id.category;
    });
    const Pair& model = later == pairs.end() ? pairs.back() : *later;
    const std::string before = lastLine(blanksBefore(*model.key));
    const std::string added =
        element("key", name) + lastLine(blanksBefore(*model.value)) + element("string", unit.target);
    if (later == pairs.end())
        edits_.insert(model.value->end, before + added);
    else
        edits_.insert(model.key->begin, added + before);
}

Runtime::Result<std::string> PropertyListDocument::bytes() const {
    TextEdits edits = edits_;
    const auto last = std::find_if(dictionary_.children.rbegin(), dictionary_.children.rend(),
                                   [](const XmlNode& child) { return child.isElement(); });
    if (last != dictionary_.children.rend())
        edits.insert(last->end, added_);
    else if (dictionary_.contentBegin == dictionary_.end) // <dict/>
        edits.replace(dictionary_.begin, dictionary_.end, "<dict>" + added_ + "\n</dict>");
    else
        edits.insert(dictionary_.contentBegin, added_);
    return file_.encoded(edits.applied(file_.text));
}

} // namespace Exchange
