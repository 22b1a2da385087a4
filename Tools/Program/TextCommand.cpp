// lumora text: prints the formatted text of a key.
#include "Program/Command.h"

#include "Foundation/Host.h"
#include "Foundation/Locale.h"
#include "Foundation/NSBundle.h"
#include "Foundation/String.h"
#include "Program/OwnBundle.h"
#include "Program/Suggestion.h"
#include "StringTables/internal/Placeholder.h"
#include "StringTables/internal/PluralPieces.h"
#include "StringTables/internal/Table.h"
#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

namespace Tools {

namespace {

struct TextOptions {
    std::string bundle;
    std::string language;
    std::string locale;
    std::string table = "Localizable";
    std::string key;
    std::vector<std::string> arguments;
};

using StringTables::FormatSignature;

// `text` as an argument for a placeholder of this kind: a number if the kind asks for one and `text` is one in range,
// but not an integer that would be printed differently ("007", "+1"); otherwise a text.
Foundation::FormatArgument argument(const std::string& text, FormatSignature::Kind kind) {
    const char* const end = text.data() + text.size();
    std::int64_t integer = 0;
    double number = 0;
    if (kind == FormatSignature::Kind::integer && std::from_chars(text.data(), end, integer).ptr == end &&
        std::to_string(integer) == text)
        return integer;
    if (kind == FormatSignature::Kind::number)
        if (const auto [read, failed] = std::from_chars(text.data(), end, number); failed == std::errc() && read == end)
            return number;
    return std::string_view(text);
}

std::vector<Foundation::FormatArgument> arguments(const std::vector<std::string>& given,
                                                  const FormatSignature& signature) {
    std::vector<Foundation::FormatArgument> made;
    for (std::size_t i = 0; i < given.size(); ++i) {
        const auto kind = i < signature.arguments.size() ? signature.arguments[i] : std::nullopt;
        made.push_back(argument(given[i], kind.value_or(FormatSignature::Kind::text)));
    }
    return made;
}

FormatSignature signatureOf(const Foundation::LocalizedFormat& format) {
    return format.plural() != nullptr ? StringTables::signatureOf(*format.plural())
                                      : StringTables::signatureOf(format.text());
}

// The number of given arguments that no placeholder takes.
std::size_t countUnused(const FormatSignature& signature, std::size_t given) {
    const std::size_t known = std::min(given, signature.arguments.size());
    const auto used = std::ranges::count_if(signature.arguments.begin(),
                                            signature.arguments.begin() + static_cast<std::ptrdiff_t>(known),
                                            [](const auto& kind) { return kind.has_value(); });
    return given - static_cast<std::size_t>(used);
}

std::string keySuggestion(const Foundation::NSBundle& bundle, const TextOptions& options) {
    std::vector<std::string> keys;
    for (const std::string_view language :
         {std::string_view("Base"), std::string_view(bundle.developmentLocalization())})
        if (const auto path = bundle.pathForResource(options.table, "strings", "", language))
            if (const auto table = StringTables::Table::readFile(*path))
                for (const StringTables::Entry& entry : table->entries())
                    keys.emplace_back(entry.key);
    return suggestion(options.key, keys);
}

Exit runText(const TextOptions& options) {
    if (std::error_code failed; !options.bundle.empty() && !std::filesystem::is_directory(options.bundle, failed))
        return fail({.message = "is not a bundle", .file = options.bundle});
    if (!options.language.empty()) {
        Foundation::Host::setPreferredLanguages({options.language});
        Foundation::Host::setCurrentLocale(options.language);
    }
    if (!options.locale.empty())
        Foundation::Host::setCurrentLocale(options.locale);

    const Foundation::NSBundle& bundle =
        Foundation::NSBundle::bundleWithPath(options.bundle.empty() ? ownBundle() : options.bundle);
    const auto found = bundle.findLocalized(options.key, options.table);
    if (!found) {
        if (const auto damage = bundle.tableDamage(options.table))
            return fail({.message = *damage});
        note("no table \"" + options.table + "\" of the bundle has this key" + keySuggestion(bundle, options));
    }
    const Foundation::LocalizedFormat format = found.value_or(Foundation::LocalizedFormat(options.key));
    const FormatSignature signature = signatureOf(format);
    // Options after the key are arguments, too; this note helps users who expected otherwise.
    if (const std::size_t unused = countUnused(signature, options.arguments.size()); unused != 0)
        note(std::to_string(unused) + " of " + std::to_string(options.arguments.size()) + " arguments unused");
    return print(
        Foundation::String::format(format, Foundation::Locale::current(), arguments(options.arguments, signature)) +
        "\n");
}

} // namespace

void addTextCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<TextOptions>();
    CLI::App* command = program.add_subcommand("text", "Print the formatted text of a key.");
    command->add_option("--bundle", options->bundle, "The bundle to read (default: Lumora's own)")->check(notEmpty());
    command->add_option("--language", options->language, "The user's language, such as ru or es-MX");
    command->add_option("--locale", options->locale, "The user's locale, such as de_AT (default: the language)");
    command->add_option("--table", options->table, "The table")->capture_default_str();
    command->add_option("KEY", options->key, "The key, exactly as in the table")->required();
    command->add_option("ARG", options->arguments, "An argument for the text's placeholders");
    command->positionals_at_end();
    command->callback([options, &exit] {
        // The parser also passes on the "--" that ends the options.
        if (!options->arguments.empty() && options->arguments.front() == "--")
            options->arguments.erase(options->arguments.begin());
        exit = runText(*options);
    });
}

} // namespace Tools
