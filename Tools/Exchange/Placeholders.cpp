#include "Exchange/Placeholders.h"

#include "Exchange/CatalogDocument.h"
#include "Exchange/PluralChange.h"
#include "SourceBundle/PluralText.h"
#include "StringTables/internal/PluralPieces.h"
#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace Exchange {

using StringTables::Placeholder;
using StringTables::PluralFormat;
using StringTables::PluralPieces;
using StringTables::PluralVariable;

namespace {

// The arguments of a text. Positions count from 1.
struct Arguments {
    std::map<std::size_t, Placeholder::Kind> kinds; // by position
    std::map<std::string, std::size_t> variables;   // by name, the position of the number; 0 in a string catalog
    std::optional<std::size_t> number;              // the position of the number that selects the plural form
};

void add(Arguments& arguments, const StringTables::FormatSignature& signature) {
    for (std::size_t i = 0; i < signature.arguments.size(); ++i)
        if (signature.arguments[i])
            arguments.kinds.emplace(i + 1, *signature.arguments[i]);
}

// The arguments of a format or form of a .stringsdict entry.
Arguments pluralArguments(PluralPieces pieces) {
    Arguments arguments;
    StringTables::FormatSignature signature;
    while (const auto piece = pieces.next())
        if (piece->variable != nullptr)
            arguments.variables.emplace(piece->variable->name, piece->arguments.value);
        else
            signature.add(piece->placeholder, piece->arguments);
    add(arguments, signature);
    return arguments;
}

// The position of a variable's number. That of a variable that occurs only in forms is unknown and counts as the first.
std::size_t argumentOf(const PluralFormat& plural, const PluralVariable& variable) {
    PluralPieces pieces(plural);
    while (const auto piece = pieces.next())
        if (piece->variable == &variable)
            return std::max<std::size_t>(piece->arguments.value, 1);
    return 1;
}

// The arguments of any other text; `plural`: its format if it is in a string catalog and has one, or null. `number`:
// what "%arg" stands for; empty in a substitution, whose variable already takes that argument.
Arguments otherArguments(std::string text, const PluralFormat* plural, std::string_view number) {
    Arguments arguments;
    std::set<std::size_t> ofVariables; // other placeholders without a position do not take these arguments
    if (plural != nullptr)
        for (const PluralVariable& variable : plural->variables)
            if (SourceBundle::replaceMarks(text, "%#@" + variable.name + "@", "")) {
                arguments.variables.emplace(variable.name, 0);
                ofVariables.insert(argumentOf(*plural, variable));
            }
    SourceBundle::replaceMarks(text, SourceBundle::selectorMark, number);
    StringTables::FormatSignature signature;
    StringTables::ArgumentCounter counter;
    std::size_t at = 0;
    while (const auto placeholder = StringTables::nextPlaceholder(text, at)) {
        at = placeholder->end;
        while (placeholder->position == 0 && ofVariables.contains(counter.taken() + 1))
            counter.next();
        signature.add(*placeholder, counter.take(*placeholder));
    }
    add(arguments, signature);
    return arguments;
}

const PluralVariable* variableNamed(const PluralFormat& plural, const std::string& name) {
    const auto found = std::ranges::find(plural.variables, name, &PluralVariable::name);
    return found == plural.variables.end() ? nullptr : &*found;
}

// Finds the arguments of one unit's development text and of its translations.
class ArgumentFinder {
public:
    ArgumentFinder(const Unit& unit, const SourceBundle::SourceEntry& development)
        : part_(unit.id.part), isPlural_(unit.id.category), plural_(development.plural) {}

    Arguments argumentsOf(const std::string& text) const {
        if (!part_.empty() && part_.front() == substitutionsPart)
            return otherArguments(text, plural_, "");
        if (plural_ == nullptr || part_.empty() || part_.front() == devicePart)
            return otherArguments(text, plural_, isPlural_ ? "%lld" : SourceBundle::selectorMark);
        if (!isPlural_) {
            PluralFormat format = *plural_;
            format.format = text;
            return pluralArguments(PluralPieces(format));
        }
        const PluralVariable* const variable = variableNamed(*plural_, part_.back());
        if (variable == nullptr) // only the translation has it
            return otherArguments(text, nullptr, SourceBundle::selectorMark);
        const std::size_t own = argumentOf(*plural_, *variable);
        Arguments arguments = pluralArguments(PluralPieces(*plural_, text, *variable, own));
        arguments.number = own;
        return arguments;
    }

    // The arguments of all forms of the development text together.
    Arguments allArguments(std::span<const Unit> all) const {
        Arguments together;
        for (const Unit& unit : all) {
            const Arguments arguments = argumentsOf(unit.source);
            together.kinds.insert(arguments.kinds.begin(), arguments.kinds.end());
            together.variables.insert(arguments.variables.begin(), arguments.variables.end());
            together.number = arguments.number;
        }
        if (isPlural_ && !together.number) // in a string catalog the first number selects the form
            for (const auto& [position, kind] : together.kinds)
                if (kind != Placeholder::Kind::text && !together.number)
                    together.number = position;
        return together;
    }

private:
    const std::vector<std::string>& part_;
    bool isPlural_;
    const PluralFormat* plural_;
};

const char* nameOf(Placeholder::Kind kind) {
    switch (kind) {
    case Placeholder::Kind::text:
        return "a text (%@)";
    case Placeholder::Kind::integer:
        return "an integer (%ld)";
    case Placeholder::Kind::number:
        return "a floating-point number (%f)";
    case Placeholder::Kind::percent: // takes no argument
        break;
    }
    return "nothing";
}

// The first mismatch of `given` with the arguments that are required (`needed`) or allowed; no value if there is none.
std::optional<std::string> fault(const Arguments& given, const Arguments& needed, const Arguments& allowed) {
    for (const auto& [position, kind] : given.kinds) {
        const auto known = allowed.kinds.find(position);
        const bool isNumber = known == allowed.kinds.end() && position == allowed.number;
        if (known == allowed.kinds.end() && !isNumber)
            return "takes an argument " + std::to_string(position) + ", which the development text does not take";
        if (known != allowed.kinds.end() && known->second != kind)
            return "takes argument " + std::to_string(position) + " as " + nameOf(kind) + ", the development text as " +
                   nameOf(known->second);
    }
    for (const auto& [position, kind] : needed.kinds)
        if (position != allowed.number && !given.kinds.contains(position))
            return "lacks argument " + std::to_string(position) + ", " + nameOf(kind);
    for (const auto& [name, position] : needed.variables)
        if (!given.variables.contains(name))
            return "lacks the variable " + name;
    for (const auto& [name, position] : given.variables) {
        const auto known = allowed.variables.find(name);
        if (known == allowed.variables.end())
            return "has the variable " + name + ", which the development text does not have";
        if (known->second != position)
            return "takes argument " + std::to_string(position) + " for the variable " + name +
                   ", the development text takes argument " + std::to_string(known->second);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> placeholderFault(const std::string& translation, const Unit& expected,
                                            std::span<const Unit> all, const SourceBundle::SourceEntry& development) {
    const ArgumentFinder finder(expected, development);
    return fault(finder.argumentsOf(translation), finder.argumentsOf(expected.source), finder.allArguments(all));
}

} // namespace Exchange
