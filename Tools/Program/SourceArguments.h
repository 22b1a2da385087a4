// Program/SourceArguments.h
// The command line arguments that select a source.
#pragma once

#include "SourceBundle/Source.h"
#include <filesystem>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace Tools {

struct SourceArguments {
    std::vector<std::string> folders;
    SourceBundle::SourceOptions options;
    std::string names; // the file with names for accessors, or empty

    // Adds the folders, as positional arguments SOURCE or as the option `name`, and --development-language. Returns the
    // option for the folders.
    CLI::Option* addTo(CLI::App& command, const std::string& name = "SOURCE");
    // Adds --names.
    void addNamesTo(CLI::App& command);
    // Adds --pseudo.
    void addPseudoTo(CLI::App& command);

    [[nodiscard]] std::vector<std::filesystem::path> folderPaths() const;
    // What a depfile lists: the folders and, if given, the names file.
    [[nodiscard]] std::vector<std::string> inputs() const;
    // Reads the folders as one source.
    [[nodiscard]] SourceBundle::Source read(SourceBundle::Diagnostics& diagnostics) const;
};

} // namespace Tools
