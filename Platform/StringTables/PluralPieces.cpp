#include "StringTables/internal/PluralPieces.h"

#include <algorithm>
#include <bitset>
#include <set>
#include <string>
#include <utility>

namespace StringTables {

namespace {

bool isText(std::string_view valueType) noexcept {
    return valueType == "@";
}

} // namespace

std::optional<PluralPiece> PluralPieces::next() noexcept {
    const auto placeholder = nextPlaceholder(text_, at_);
    if (!placeholder)
        return std::nullopt;
    PluralPiece piece{.placeholder = *placeholder, .variable = variableAt(text_, *placeholder), .arguments = {}};
    if (piece.variable != nullptr) {
        piece.placeholder.end += piece.variable->name.size() + 1;
        if (variable_ != nullptr && placeholder->position == 0) // a variable in a form: see the class
            counter_ = ArgumentCounter(argumentOf(*piece.variable) - 1);
    } else if (skipsOwn(*placeholder, counter_.taken())) {
        counter_.next();
    }
    piece.arguments = counter_.take(*placeholder);
    at_ = piece.placeholder.end;
    return piece;
}

const PluralVariable* PluralPieces::variableAt(std::string_view text, const Placeholder& placeholder) const noexcept {
    const std::string_view name = variableName(text, placeholder);
    const auto found = std::ranges::find(plural_.variables, name, &PluralVariable::name);
    return found == plural_.variables.end() || name.empty() ? nullptr : &*found;
}

std::size_t PluralPieces::indexOf(const PluralVariable& variable) const noexcept {
    return static_cast<std::size_t>(&variable - plural_.variables.data());
}

// The argument of `named`, the variable that comes next in this form, if its placeholder has no position.
std::size_t PluralPieces::argumentOf(const PluralVariable& named) noexcept {
    if (!mostBefore_)
        countMostBefore();
    const std::size_t index = indexOf(named);
    const std::size_t most = index < mostBefore_->size() ? (*mostBefore_)[index] : 0;
    return std::max(most, counter_.taken()) + 1;
}

void PluralPieces::countMostBefore() noexcept {
    auto& most = mostBefore_.emplace();
    for (const auto& form : variable_->forms) {
        std::bitset<PluralTable::maxVariables> isNamed; // by an earlier placeholder of this form
        ArgumentCounter counter(own_ - 1);
        std::size_t at = 0;
        while (const auto placeholder = form ? nextPlaceholder(*form, at) : std::nullopt) {
            const PluralVariable* const named = variableAt(*form, *placeholder);
            if (const std::size_t index = named == nullptr ? isNamed.size() : indexOf(*named);
                index < isNamed.size() && !isNamed[index]) {
                isNamed.set(index);
                most[index] = std::max(most[index], static_cast<std::uint32_t>(counter.taken()));
            } else if (named == nullptr && skipsOwn(*placeholder, counter.taken())) {
                counter.next();
            }
            counter.take(*placeholder);
            at = placeholder->end + (named == nullptr ? 0 : named->name.size() + 1);
        }
    }
}

// Whether the next argument after the `taken` ones is the variable's own number, and this placeholder of a form leaves
// it out.
bool PluralPieces::skipsOwn(const Placeholder& placeholder, std::size_t taken) const noexcept {
    return variable_ != nullptr && taken + 1 == own_ && placeholder.position == 0 &&
           placeholder.kind == Placeholder::Kind::text && !isText(variable_->valueType);
}

namespace {

// A value type that cannot be read counts as an integer.
Placeholder::Kind kindOf(const PluralVariable& variable) {
    const auto read = nextPlaceholder("%" + variable.valueType, 0);
    return read && read->begin == 0 ? read->kind : Placeholder::Kind::integer;
}

class SignatureReader {
public:
    explicit SignatureReader(const PluralFormat& plural) : plural_(plural) {
        add(plural.format, PluralPieces(plural), 0);
    }
    FormatSignature signature;

private:
    // One text: the format (`own` is 0), or a form that the argument `own` selects. A placeholder for this argument
    // needs no position, even if the others have one.
    void add(std::string_view text, PluralPieces pieces, std::size_t own) {
        ArgumentStyle style;
        while (const auto piece = pieces.next()) {
            if (piece->placeholder.position != 0 || piece->arguments.value != own)
                style.add(piece->placeholder);
            if (piece->variable != nullptr) {
                add(*piece->variable, piece->arguments.value);
                continue;
            }
            signature.add(piece->placeholder, piece->arguments);
            signature.addUnknownVariable(variableName(text, piece->placeholder));
        }
        signature.mixesPositions |= style.isMixed();
    }

    // Adds the forms of a variable, once for each argument that selects them.
    void add(const PluralVariable& variable, std::size_t argument) {
        signature.add(argument, kindOf(variable));
        if (argument > lastSelecting || seen_.size() == mostVisits || !seen_.emplace(&variable, argument).second)
            return;
        for (const auto& form : variable.forms)
            if (form)
                add(*form, PluralPieces(plural_, *form, variable, argument), argument);
    }

    // Limits, because variables whose forms contain each other could increase the argument without end.
    static constexpr std::size_t lastSelecting = 64; // the last argument whose forms are read
    static constexpr std::size_t mostVisits = 256;   // different pairs of a variable and an argument

    const PluralFormat& plural_;
    std::set<std::pair<const PluralVariable*, std::size_t>> seen_;
};

} // namespace

FormatSignature signatureOf(const PluralFormat& plural) {
    FormatSignature signature = SignatureReader(plural).signature;
    signature.hasLonePercent = hasLonePercent(plural.format);
    for (const PluralVariable& variable : plural.variables)
        for (const auto& form : variable.forms)
            signature.hasLonePercent |= form && hasLonePercent(*form);
    return signature;
}

} // namespace StringTables
