#include "Program/SourceArguments.h"

#include "Program/Command.h"
#include "StringTables/internal/Unicode.h"
#include <CLI/CLI.hpp>

namespace Tools {

CLI::Option* SourceArguments::addTo(CLI::App& command, const std::string& name) {
    command
        .add_option("--development-language", options.developmentLanguage,
                    "The language of the development texts (default: that of Info.plist or a string catalog, or en)")
        ->check([](const std::string& code) { return StringTables::internal::isUtf8(code) ? "" : "is not UTF-8"; });
    return command
        .add_option(name, folders,
                    "Folders of resources, searched at any depth for *.lproj, *.xcstrings and *.xcassets")
        ->check(notEmpty());
}

void SourceArguments::addNamesTo(CLI::App& command) {
    command.add_option("--names", names, "A table that maps TABLE/KEY to the dotted path of an accessor")
        ->check(notEmpty());
}

void SourceArguments::addPseudoTo(CLI::App& command) {
    command.add_flag("--pseudo", options.addsPseudoLanguages,
                     "Add the pseudo-languages en-XA (accented, longer) and ar-XB (right to left)");
}

std::vector<std::filesystem::path> SourceArguments::folderPaths() const {
    return {folders.begin(), folders.end()};
}

std::vector<std::string> SourceArguments::inputs() const {
    std::vector<std::string> all = folders;
    if (!names.empty())
        all.push_back(names);
    return all;
}

SourceBundle::Source SourceArguments::read(SourceBundle::Diagnostics& diagnostics) const {
    return SourceBundle::Source::read(folderPaths(), options, diagnostics);
}

} // namespace Tools
