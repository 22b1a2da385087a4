#include "Check/Arguments.h"

#include "SourceBundle/PluralText.h" // selectorMark
#include "StringTables/internal/PluralPieces.h"
#include <algorithm>
#include <span>

namespace Check {

using StringTables::ArgumentCounter;
using StringTables::FormatSignature;
using StringTables::Placeholder;
using StringTables::PluralFormat;

namespace {

// The whole of a valid placeholder that is not meant as one, or an empty string: translators who write "% d" mean a
// percent sign, and "%arg" is known only in the plural forms of a string catalog.
std::string_view proseAt(const Placeholder& placeholder, std::string_view format) noexcept {
    const std::string_view rest = format.substr(placeholder.begin);
    if (rest.starts_with(SourceBundle::selectorMark))
        return rest.substr(0, SourceBundle::selectorMark.size());
    return rest.starts_with("% ") ? rest.substr(0, placeholder.end - placeholder.begin) : std::string_view();
}

void keepFirst(std::string_view lonePercent, Arguments& out) noexcept {
    if (out.lonePercent.empty())
        out.lonePercent = lonePercent;
}

// Adds the arguments that the format takes, and its first lone percent sign, to `out`.
void read(std::string_view format, Arguments& out) {
    ArgumentCounter counter;
    std::size_t at = 0;
    while (const auto placeholder = StringTables::nextPlaceholder(format, at)) {
        if (const std::size_t lone = format.find('%', at); lone < placeholder->begin)
            keepFirst(format.substr(lone, 1), out);
        const std::string_view prose = proseAt(*placeholder, format);
        if (prose.empty()) {
            out.signature.add(*placeholder, counter.take(*placeholder));
            out.signature.addUnknownVariable(StringTables::variableName(format, *placeholder));
        } else {
            keepFirst(prose, out);
        }
        at = placeholder->end;
    }
    if (const std::size_t lone = format.find('%', at); lone != format.npos)
        keepFirst(format.substr(lone, 1), out);
}

std::string_view lonePercentOf(const PluralFormat& plural) {
    Arguments all; // only its lonePercent is used: read() counts the arguments of each form from 1
    read(plural.format, all);
    for (const auto& variable : plural.variables)
        for (const auto& form : variable.forms)
            if (form)
                read(*form, all);
    return all.lonePercent;
}

// The format with another percent sign before each placeholder that is prose: "%% o" for "% o".
std::string escapedProse(std::string_view format) {
    std::string out;
    std::size_t at = 0;
    while (const auto placeholder = StringTables::nextPlaceholder(format, at)) {
        out.append(format.substr(at, placeholder->begin - at)).append(proseAt(*placeholder, format).empty() ? "" : "%");
        out.append(format.substr(placeholder->begin, placeholder->end - placeholder->begin));
        at = placeholder->end;
    }
    return out.append(format.substr(at));
}

FormatSignature signatureWithoutProse(PluralFormat plural) {
    plural.format = escapedProse(plural.format);
    for (auto& variable : plural.variables)
        for (auto& form : variable.forms)
            if (form)
                form = escapedProse(*form);
    return StringTables::signatureOf(plural);
}

} // namespace

Arguments argumentsOf(const SourceBundle::SourceEntry& entry) {
    Arguments arguments;
    if (entry.plural != nullptr) {
        const std::string_view lone = lonePercentOf(*entry.plural);
        arguments = {lone.empty() ? StringTables::signatureOf(*entry.plural) : signatureWithoutProse(*entry.plural),
                     lone};
    } else if (entry.text.find('%') != entry.text.npos)
        read(entry.text, arguments);
    return arguments;
}

std::string_view nameOf(Placeholder::Kind kind) noexcept {
    switch (kind) {
    case Placeholder::Kind::integer:
        return "integer";
    case Placeholder::Kind::number:
        return "floating-point number";
    case Placeholder::Kind::text:
    case Placeholder::Kind::percent: // takes no argument
        break;
    }
    return "text";
}

std::string Arguments::text() const {
    if (signature.arguments.empty())
        return "no arguments";
    constexpr std::size_t mostNamed = 16;
    std::string all;
    for (const auto& kind : std::span(signature.arguments).first(std::min(signature.arguments.size(), mostNamed)))
        all.append(all.empty() ? "(" : ", ").append(kind ? nameOf(*kind) : "none");
    return all + (signature.arguments.size() > mostNamed ? ", ...)" : ")");
}

} // namespace Check
