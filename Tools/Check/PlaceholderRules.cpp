// The rules placeholder-mismatch, changed-placeholder, lone-percent.
#include "Check/TextRules.h"

#include "Generator/CodeText.h"
#include "SourceBundle/PluralText.h" // selectorMark

namespace Check {

using Generator::quote;

namespace {

void checkChange(const Text& text, Report& report) {
    const DevelopmentText& own = *text.development;
    if (own.before)
        text.report(report, Rule::changedPlaceholder,
                    quote(text.entry.key) + " takes " + own.arguments.text() + "; it took " + own.before->text());
}

// Whether the translation's arguments are correct, or the development text is at fault: its placeholders contradict
// each other, it names a variable that it does not have, or it has changed and the translation fits the older one.
bool fits(const Arguments& arguments, const DevelopmentText& development) {
    const auto& signature = development.arguments.signature;
    return signature.conflict || !signature.unknownVariable.empty() || arguments.fits(development.arguments) ||
           (development.before && arguments.fits(*development.before));
}

} // namespace

void checkPlaceholders(const Text& text, Report& report) {
    const Arguments arguments = argumentsOf(text.entry);
    if (!arguments.lonePercent.empty())
        text.report(report, Rule::lonePercent,
                    quote(text.entry.key) + " has " + quote(arguments.lonePercent) +
                        (arguments.lonePercent == SourceBundle::selectorMark
                             ? ", which is a number only in the plural forms of a string catalog"
                             : "; write \"%%\" for a percent sign"));
    if (const std::string& name = arguments.signature.unknownVariable; !name.empty())
        return text.report(report, Rule::placeholderMismatch,
                           quote(text.entry.key) + " names the plural variable " + quote(name) +
                               ", which it does not have");
    if (const auto& conflict = arguments.signature.conflict)
        return text.report(report, Rule::placeholderMismatch,
                           quote(text.entry.key) + " takes argument " + std::to_string(conflict->position) +
                               " both as " + std::string(nameOf(conflict->first)) + " and as " +
                               std::string(nameOf(conflict->later)));
    if (text.isDevelopment())
        checkChange(text, report);
    else if (text.development != nullptr && !fits(arguments, *text.development))
        text.report(report, Rule::placeholderMismatch,
                    quote(text.entry.key) + " takes " + arguments.text() + "; the development text takes " +
                        text.development->arguments.text());
}

} // namespace Check
