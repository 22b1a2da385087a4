#include "Program/SourceArguments.h"

#include "Program/Command.h"
#include <CLI/CLI.hpp>

namespace Tools {

CLI::Option* SourceArguments::addTo(CLI::App& command, const std::string& name) {
    command.add_option("--development-language", options.developmentLanguage,
                       "The language that the texts are first written in (default: Info.plist's, or en)");
    return command
        .add_option(name, folders,
                    "Folders of resources, searched at any depth for *.lproj, *.xcstrings and *.xcassets")
        ->check(named());
}

void SourceArguments::addNamesTo(CLI::App& command) {
    command.add_option("--names", names, "A table from TABLE/KEY to the dotted path of the key's accessor")
        ->check(named());
}

void SourceArguments::addPseudoTo(CLI::App& command) {
    command.add_flag(
        "--pseudo", options.addsPseudoLanguages,
        "Add the languages en-XA (accented, longer) and ar-XB (right to left), made of the development texts");
}

std::vector<std::filesystem::path> SourceArguments::paths() const {
    return {folders.begin(), folders.end()};
}

std::vector<std::string> SourceArguments::inputs() const {
    std::vector<std::string> all = folders;
    if (!names.empty())
        all.push_back(names);
    return all;
}

SourceBundle::Source SourceArguments::read(SourceBundle::Diagnostics& diagnostics) const {
    return SourceBundle::Source::read(paths(), options, diagnostics);
}

} // namespace Tools
