#include "SourceBundle/PluralText.h"

#include "StringTables/internal/PluralPieces.h"
#include <algorithm>
#include <optional>

namespace SourceBundle {

using StringTables::ArgumentCounter;
using StringTables::FormatSignature;
using StringTables::Placeholder;
using StringTables::PluralFormat;
using StringTables::PluralPieces;
using StringTables::PluralVariable;

namespace {

std::string_view otherForm(const PluralVariable& variable) {
    const auto last =
        std::find_if(variable.forms.rbegin(), variable.forms.rend(), [](const auto& form) { return form.has_value(); });
    return last == variable.forms.rend() ? std::string_view() : std::string_view(**last);
}

void appendOther(std::string& out, std::string_view text, PluralPieces pieces, const PluralFormat& plural, int depth) {
    constexpr int maxDepth = 16; // variables may name each other
    std::size_t done = 0;
    while (const auto piece = pieces.next()) {
        if (piece->variable == nullptr)
            continue;
        out += text.substr(done, piece->placeholder.begin - done);
        done = piece->placeholder.end;
        if (out.size() >= maxOtherText || depth == maxDepth)
            return;
        const std::string_view form = otherForm(*piece->variable);
        appendOther(out, form,
                    PluralPieces(plural, form, *piece->variable, std::max<std::size_t>(piece->arguments.value, 1)),
                    plural, depth + 1);
    }
    out += text.substr(done);
}

void insertPosition(std::string& text, std::size_t percent, std::size_t position) {
    text.insert(percent + 1, std::to_string(position) + "$");
}

// The text with a position at every placeholder. One with a "*" stays as it is: it has several.
std::string withPositions(std::string text) {
    ArgumentCounter counter;
    std::size_t at = 0;
    while (const auto found = StringTables::nextPlaceholder(text, at)) {
        at = found->end;
        const auto taken = counter.take(*found);
        if (found->kind == Placeholder::Kind::percent || found->position != 0)
            continue;
        if (taken.width != 0 || taken.precision != 0)
            return text;
        const std::size_t before = text.size();
        insertPosition(text, found->begin, taken.value);
        at += text.size() - before;
    }
    return text;
}

bool isNumber(const Placeholder& placeholder) {
    return placeholder.kind == Placeholder::Kind::integer || placeholder.kind == Placeholder::Kind::number;
}

struct Number {
    std::size_t argument = 1;
    std::string valueType = "lld";
};

// The first number among the placeholders of a form.
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

// The form `other` is looked at first: every language has it.
Number numberOf(const PluralForms& forms) {
    for (auto form = forms.rbegin(); form != forms.rend(); ++form)
        if (*form)
            if (auto number = firstNumber(**form))
                return *std::move(number);
    return {};
}

std::size_t argumentCount(const PluralForms& forms) {
    std::size_t count = 0;
    for (const auto& form : forms)
        if (form)
            count = std::max(count, StringTables::signatureOf(*form).arguments.size());
    return count;
}

std::string positionText(std::size_t argument) {
    return argument == 0 ? "" : std::to_string(argument) + "$";
}

std::size_t indexOf(const PluralVariable& variable, const PluralFormat& plural) {
    return static_cast<std::size_t>(&variable - plural.variables.data());
}

// `text` with the argument of each variable that it names, "%2$#@files@". `pieces` are those of `text`.
std::string withArguments(PluralPieces pieces, std::string_view text, const PluralFormat& plural,
                          const std::vector<std::size_t>& arguments) {
    std::string out;
    std::size_t done = 0;
    while (const auto piece = pieces.next()) {
        if (piece->variable == nullptr || piece->placeholder.position != 0)
            continue;
        const std::size_t name = piece->placeholder.begin + 1;
        out += text.substr(done, name - done);
        out += positionText(arguments[indexOf(*piece->variable, plural)]);
        done = name;
    }
    out += text.substr(done);
    return out;
}

void replaceArg(std::string& form, const std::string& placeholder) {
    constexpr std::string_view arg = "%arg";
    for (std::size_t at = form.find('%'); at != form.npos; at = form.find('%', at)) {
        if (std::string_view(form).substr(at).starts_with(arg)) {
            form.replace(at, arg.size(), placeholder);
            at += placeholder.size();
        } else {
            at += std::string_view(form).substr(at).starts_with("%%") ? 2U : 1U;
        }
    }
}

} // namespace

std::string otherText(const PluralFormat& plural) {
    std::string text;
    appendOther(text, plural.format, PluralPieces(plural), plural, 0);
    if (text.size() > maxOtherText)
        text.resize(maxOtherText);
    return text;
}

PluralFormat pluralOfForms(PluralForms forms) {
    const Number number = numberOf(forms);
    // Alone, it is the number of every form. Otherwise positions tell the arguments apart.
    if (argumentCount(forms) > 1)
        for (auto& form : forms)
            if (form)
                form = withPositions(*std::move(form));
    return {"%" + positionText(number.argument == 1 ? 0 : number.argument) + "#@value@",
            {{"value", number.valueType, std::move(forms)}}};
}

PluralFormat pluralOfSubstitutions(const std::string& format, std::vector<Substitution> substitutions) {
    PluralFormat plural{format, {}};
    std::vector<std::size_t> arguments; // of the variables; 0 where it is not known
    for (auto& [variable, argument] : substitutions) {
        plural.variables.push_back(std::move(variable));
        arguments.push_back(argument);
    }
    PluralPieces pieces(plural);
    while (const auto piece = pieces.next())
        if (piece->variable != nullptr && arguments[indexOf(*piece->variable, plural)] == 0)
            arguments[indexOf(*piece->variable, plural)] = piece->arguments.value;

    const PluralFormat named = plural;
    plural.format = withPositions(withArguments(PluralPieces(named), format, named, arguments));
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        PluralVariable& variable = plural.variables[i];
        for (auto& form : variable.forms)
            if (form) {
                const PluralPieces inForm(named, *form, named.variables[i], std::max<std::size_t>(arguments[i], 1));
                form = withArguments(inForm, *form, named, arguments);
                replaceArg(*form, "%" + positionText(arguments[i]) + variable.valueType);
            }
    }
    return plural;
}

} // namespace SourceBundle
