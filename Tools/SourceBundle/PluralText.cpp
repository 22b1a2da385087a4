#include "SourceBundle/PluralText.h"

#include "StringTables/internal/PluralPieces.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <optional>

namespace SourceBundle {

using StringTables::ArgumentCounter;
using StringTables::Placeholder;
using StringTables::PluralFormat;
using StringTables::PluralPieces;
using StringTables::PluralVariable;

namespace {

class OtherText {
public:
    explicit OtherText(const PluralFormat& plural) : plural_(plural) {
        append(plural.format, PluralPieces(plural), 0);
        out_.resize(StringTables::internal::cutToSize(out_, maxOtherText).size());
    }
    std::string take() { return std::move(out_); }

private:
    void append(std::string_view text, PluralPieces pieces, int depth) {
        std::size_t done = 0;
        while (const auto piece = pieces.next()) {
            if (piece->variable == nullptr)
                continue;
            out_ += text.substr(done, piece->placeholder.begin - done);
            done = piece->placeholder.end;
            if (out_.size() >= maxOtherText || depth == maxDepth || variables_ == maxVariables)
                return;
            ++variables_;
            const std::string_view form = otherForm(*piece->variable);
            append(form, PluralPieces(plural_, form, *piece->variable, piece->arguments.value), depth + 1);
        }
        out_ += text.substr(done);
    }

    // No real text comes near these limits; variables may refer to each other without end.
    static constexpr int maxDepth = 16;
    static constexpr std::size_t maxVariables = 256;

    const PluralFormat& plural_;
    std::string out_;
    std::size_t variables_ = 0; // replaced so far
};

// "2$"; empty for 0.
std::string positionText(std::size_t argument) {
    return argument == 0 ? "" : std::to_string(argument) + "$";
}

// The text with a position added to each placeholder without one. If such a placeholder has a "*", it takes several
// arguments, and the text is not changed.
std::string withPositions(const std::string& text) {
    std::string out;
    ArgumentCounter counter;
    std::size_t at = 0, done = 0;
    while (const auto found = StringTables::nextPlaceholder(text, at)) {
        at = found->end;
        const auto taken = counter.take(*found);
        if (found->kind == Placeholder::Kind::percent || found->position != 0)
            continue;
        if (taken.width != 0 || taken.precision != 0)
            return text;
        const std::size_t afterPercent = found->begin + 1;
        out.append(text, done, afterPercent - done).append(positionText(taken.value));
        done = afterPercent;
    }
    return out.append(text, done);
}

bool isNumber(const Placeholder& placeholder) {
    return placeholder.kind == Placeholder::Kind::integer || placeholder.kind == Placeholder::Kind::number;
}

// The number that selects the form.
struct Number {
    std::size_t argument = 1;
    std::string valueType = "lld"; // as in PluralVariable
};

// The first placeholder of a form that prints a number.
std::optional<Number> firstNumber(std::string_view form) {
    ArgumentCounter counter;
    std::size_t at = 0;
    while (const auto found = StringTables::nextPlaceholder(form, at)) {
        at = found->end;
        const std::size_t argument = counter.take(*found).value;
        if (!isNumber(*found))
            continue;
        std::string_view type = form.substr(found->begin + 1, found->end - found->begin - 1);
        if (found->position != 0)
            type.remove_prefix(type.find('$') + 1);
        return Number{argument, std::string(type)};
    }
    return std::nullopt;
}

// The last form, `other`, is searched first, because every language has it.
Number numberOf(const PluralForms& forms) {
    for (std::size_t i = forms.size(); i-- > 0;)
        if (forms[i])
            if (auto number = firstNumber(*forms[i]))
                return *std::move(number);
    return {};
}

// The number of arguments of the form with the most.
std::size_t argumentCount(const PluralForms& forms) {
    std::size_t count = 0;
    for (const auto& form : forms)
        if (form)
            count = std::max(count, StringTables::signatureOf(*form).arguments.size());
    return count;
}

std::size_t indexOf(const PluralVariable& variable, const PluralFormat& plural) {
    return static_cast<std::size_t>(&variable - plural.variables.data());
}

// The text with positions at the placeholders that have none. `pieces` are those of `text`. `positionOf` returns the
// position for a piece, or 0 for none.
std::string withPositions(PluralPieces pieces, std::string_view text, const auto& positionOf) {
    std::string out;
    std::size_t done = 0;
    while (const auto piece = pieces.next()) {
        if (piece->placeholder.position != 0)
            continue;
        const std::size_t afterPercent = piece->placeholder.begin + 1;
        out.append(text.substr(done, afterPercent - done)).append(positionText(positionOf(*piece)));
        done = afterPercent;
    }
    return out.append(text.substr(done));
}

// Whether a placeholder of the format that is not a variable has a position or takes several arguments ("*").
bool hasFixedArguments(const PluralFormat& plural) {
    for (PluralPieces pieces(plural); const auto piece = pieces.next();)
        if (piece->variable == nullptr &&
            (piece->placeholder.position != 0 || piece->arguments.width != 0 || piece->arguments.precision != 0))
            return true;
    return false;
}

// The format with the positions of the arguments: at a variable that of its argument, at any other placeholder that of
// the next argument that no variable takes, unless the format hasFixedArguments().
std::string formatWithPositions(const PluralFormat& plural, const std::vector<std::size_t>& arguments) {
    const bool isFixed = hasFixedArguments(plural);
    std::size_t last = 0;
    return withPositions(PluralPieces(plural), plural.format, [&](const auto& piece) -> std::size_t {
        if (piece.variable != nullptr)
            return arguments[indexOf(*piece.variable, plural)];
        if (isFixed || piece.placeholder.kind == Placeholder::Kind::percent)
            return 0;
        do
            ++last;
        while (std::ranges::find(arguments, last) != arguments.end());
        return last;
    });
}

} // namespace

bool replaceMarks(std::string& text, std::string_view mark, std::string_view replacement) {
    std::string out;
    bool found = false;
    for (std::string_view rest = text; !rest.empty();) {
        const bool isMark = rest.starts_with(mark);
        const std::string_view piece = rest.substr(0, isMark ? mark.size() : rest.starts_with("%%") ? 2 : 1);
        out += isMark ? replacement : piece;
        found |= isMark;
        rest.remove_prefix(piece.size());
    }
    text = std::move(out);
    return found;
}

std::string otherText(const PluralFormat& plural) {
    return OtherText(plural).take();
}

PluralFormat pluralOfForms(PluralForms forms) {
    for (auto& form : forms)
        if (form)
            replaceMarks(*form, selectorMark, "%lld");
    const Number number = numberOf(forms);
    // A single argument is the number in every form. With several, positions distinguish them.
    if (argumentCount(forms) > 1)
        for (auto& form : forms)
            if (form)
                form = withPositions(*form);
    const std::size_t position = number.argument == 1 ? 0 : number.argument; // "%#@value@" takes the first argument
    return {"%" + positionText(position) + "#@value@", {{"value", number.valueType, std::move(forms)}}};
}

PluralFormat pluralOfSubstitutions(const std::string& format, std::vector<Substitution> substitutions) {
    PluralFormat plural{format, {}};
    std::vector<std::size_t> arguments; // of the variables; 0 if neither given nor found in the format
    for (Substitution& one : substitutions) {
        plural.variables.push_back(std::move(one.variable));
        arguments.push_back(one.argument);
    }
    PluralPieces pieces(plural);
    while (const auto piece = pieces.next())
        if (piece->variable != nullptr && arguments[indexOf(*piece->variable, plural)] == 0)
            arguments[indexOf(*piece->variable, plural)] = piece->arguments.value;

    const PluralFormat original = plural;
    plural.format = formatWithPositions(original, arguments);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        PluralVariable& variable = plural.variables[i];
        for (auto& form : variable.forms)
            if (form) {
                const std::size_t own = std::max<std::size_t>(arguments[i], 1); // an unknown one counts as the first
                const PluralPieces inForm(original, *form, original.variables[i], own);
                form = withPositions(inForm, *form, [&](const auto& piece) {
                    return piece.variable == nullptr ? 0 : arguments[indexOf(*piece.variable, original)];
                });
                replaceMarks(*form, selectorMark, "%" + positionText(arguments[i]) + variable.valueType);
            }
    }
    return plural;
}

} // namespace SourceBundle
