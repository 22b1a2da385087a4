#include "Foundation/internal/PluralText.h"

#include "Foundation/String.h"
#include "Intl/internal/PluralRules.h"
#include "StringTables/internal/PluralPieces.h"
#include <algorithm>
#include <bitset>
#include <cstdint>
#include <optional>

namespace Foundation::detail {

namespace {

using Intl::PluralCategory;
using StringTables::Placeholder;
using StringTables::PluralFormat;
using StringTables::PluralPiece;
using StringTables::PluralPieces;
using StringTables::PluralVariable;

const std::optional<std::string>& formOf(const PluralVariable& variable, PluralCategory category) noexcept {
    return variable.forms[indexOf(category)];
}

// The placeholder, without its position, that prints the variable's number, argument `own`. It is taken from the form
// `other`, which every language has; if that form does not print the number, or only with a width or precision from
// another argument, the variable's value type is used.
std::string numberFormat(const PluralFormat& plural, const PluralVariable& variable, std::size_t own) {
    const std::string_view form = otherForm(variable);
    PluralPieces pieces(plural, form, variable, own);
    while (const auto piece = pieces.next()) {
        const Placeholder& found = piece->placeholder;
        if (piece->variable != nullptr || piece->arguments.value != own || piece->arguments.width != 0 ||
            piece->arguments.precision != 0)
            continue;
        const std::string_view text = form.substr(found.begin, found.end - found.begin);
        return std::string("%").append(text.substr(found.position == 0 ? 1 : text.find('$') + 1));
    }
    return "%" + variable.valueType;
}

bool isDecimal(const Placeholder& placeholder) noexcept {
    return placeholder.conversion == 'd' || placeholder.conversion == 'i' || placeholder.conversion == 'u';
}

// Whether the plural rules apply to the integer itself: the placeholder prints exactly its decimal digits, or does not
// print it in decimal.
bool isPlainInteger(const Placeholder& placeholder) noexcept {
    return placeholder.kind == Placeholder::Kind::integer &&
           (!isDecimal(placeholder) ||
            (placeholder.bits == 64 && placeholder.precision.from == Placeholder::Size::From::none));
}

// The plural operands of the number as it is printed; no value if it has no digits, like "inf" and most texts.
std::optional<Intl::PluralOperands> operandsOf(const PluralFormat& plural, const PluralVariable& variable,
                                               std::size_t own, const FormatArgument& argument) {
    std::string format = numberFormat(plural, variable, own);
    const auto placeholder = StringTables::nextPlaceholder(format, 0);
    if (argument.kind() == FormatArgument::Kind::integer && placeholder && isPlainInteger(*placeholder)) {
        const auto value = static_cast<std::uint64_t>(argument.integer());
        return Intl::PluralOperands{.i = placeholder->conversion != 'u' && argument.integer() < 0 ? -value : value};
    }
    if (placeholder && (placeholder->conversion == 'a' || placeholder->conversion == 'A'))
        format = "%g"; // plural rules apply to decimal digits
    const std::string printed = String::format(format, Locale("en_US_POSIX"), {&argument, 1});
    // A text, unlike a printed number, may begin with '.'.
    const std::size_t digits = printed.find_first_of("0123456789.");
    if (digits == printed.npos && printed.find_first_not_of(" +") != printed.npos) // "%+.0d" prints 0 as "+"
        return std::nullopt;
    return Intl::pluralOperands(std::string_view(printed).substr(std::min(digits, printed.size())));
}

// The form for a number in the language of the table.
std::string_view chosenForm(const PluralFormat& plural, const PluralVariable& variable, std::string_view language,
                            std::size_t own, const FormatArgument& argument) {
    const std::optional<Intl::PluralOperands> number = operandsOf(plural, variable, own, argument);
    if (!number)
        return otherForm(variable);
    const bool isZero = number->i == 0 && number->t == 0; // a form `zero` is for 0 in every language
    if (const auto& zero = formOf(variable, PluralCategory::zero); isZero && zero)
        return *zero;
    const auto& form = formOf(variable, pluralCategory(language, *number));
    return form ? std::string_view(*form) : otherForm(variable);
}

// Replaces the variables of a plural format. The result is a format whose placeholders all have positions.
class Flattener {
public:
    // `choose(variable, position)` returns the form to use for the argument at that position.
    template <class Choose> static std::string flatten(const PluralFormat& plural, Choose choose) {
        Flattener flattener(plural);
        flattener.append(plural.format, PluralPieces(plural), choose);
        return std::move(flattener.out_);
    }

private:
    explicit Flattener(const PluralFormat& plural) : plural_(plural) {}

    template <class Choose> void append(std::string_view text, PluralPieces pieces, Choose& choose) {
        std::size_t done = 0;
        while (out_.size() < maxPluralBytes) {
            const auto piece = pieces.next();
            appendLiteral(text.substr(done, piece ? piece->placeholder.begin - done : text.npos));
            if (!piece)
                return;
            done = piece->placeholder.end;
            if (piece->variable == nullptr)
                appendPlaceholder(text.substr(piece->placeholder.begin, done - piece->placeholder.begin), *piece);
            else if (replaced_ == maxReplacedVariables)
                return;
            else
                appendForm(*piece->variable, piece->arguments.value, choose);
        }
    }

    template <class Choose> void appendForm(const PluralVariable& variable, std::size_t position, Choose& choose) {
        const auto index = static_cast<std::size_t>(&variable - plural_.variables.data());
        if (index >= isOpen_.size() || isOpen_[index])
            return;
        ++replaced_;
        isOpen_.set(index);
        const std::string_view form = choose(variable, position);
        append(form, PluralPieces(plural_, form, variable, position), choose);
        isOpen_.reset(index);
    }

    // Writes every '%' as "%%", because with the text that now follows, it might become a placeholder.
    void appendLiteral(std::string_view text) {
        for (const char c : text)
            out_.append(c == '%' ? 2 : 1, c);
    }

    void appendPosition(std::size_t position) { out_.append(std::to_string(position)) += '$'; }

    // "%.*f" that takes arguments 2 and 3 becomes "%3$.*2$f".
    void appendPlaceholder(std::string_view text, const PluralPiece& piece) {
        if (piece.placeholder.kind == Placeholder::Kind::percent) {
            out_ += text;
            return;
        }
        out_ += '%';
        appendPosition(piece.arguments.value);
        std::size_t at = piece.placeholder.position == 0 ? 1 : text.find('$') + 1;
        // The first '*' is the width's unless only the precision is an argument.
        bool isWidth = piece.placeholder.width.from == Placeholder::Size::From::argument;
        for (; at < text.size(); ++at) {
            out_ += text[at];
            if (text[at] != '*')
                continue;
            appendPosition(isWidth ? piece.arguments.width : piece.arguments.precision);
            isWidth = false;
            const std::size_t digits = text.find_first_not_of("0123456789", at + 1);
            if (digits > at + 1 && text[digits] == '$') // an explicit position, which was just written
                at = digits;
        }
    }

    const PluralFormat& plural_;
    std::string out_;
    std::size_t replaced_ = 0; // the number of variables so far
    // The variables whose forms are being appended. They are left out of these forms, or the result would have no end.
    std::bitset<StringTables::PluralTable::maxVariables> isOpen_;
};

} // namespace

std::string chosenFormat(const PluralFormat& plural, std::string_view language,
                         std::span<const FormatArgument> arguments) {
    return Flattener::flatten(plural, [&](const PluralVariable& variable, std::size_t position) {
        const bool isGiven = position >= 1 && position <= arguments.size();
        return isGiven ? chosenForm(plural, variable, language, position, arguments[position - 1])
                       : otherForm(variable);
    });
}

std::string generalFormat(const PluralFormat& plural) {
    return Flattener::flatten(plural, [](const PluralVariable& variable, std::size_t) { return otherForm(variable); });
}

} // namespace Foundation::detail
