// Program/SourceArguments.h
// The arguments with which every command that takes a source is told which one.
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
    std::string names; // the names file, or empty

    // SOURCE..., or the option of that name, which is returned, and --development-language.
    CLI::Option* addTo(CLI::App& command, const std::string& name = "SOURCE");
    // --names.
    void addNamesTo(CLI::App& command);
    // --pseudo.
    void addPseudoTo(CLI::App& command);

    [[nodiscard]] std::vector<std::filesystem::path> paths() const;
    // What the result depends on: the folders and the names file.
    [[nodiscard]] std::vector<std::string> inputs() const;
    // Reads the folders as one source.
    [[nodiscard]] SourceBundle::Source read(SourceBundle::Diagnostics& diagnostics) const;
};

} // namespace Tools
