// Program/CommandTree.h
// The program's commands and options as plain records, read from the command line parser. The man page and the shell
// completions are generated from them.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace Tools {

struct OptionInfo {
    std::vector<std::string> names;   // "-o", "--output"; for a positional argument its name, "SOURCE"
    std::string value;                // "VALUE" or "text|json"; empty for a flag or a positional argument
    std::vector<std::string> choices; // the allowed values; empty: any
    std::string description;
    bool isRequired = false;
    bool isRepeated = false; // may be given several times
};

struct CommandInfo {
    std::string name;
    std::string description;
    std::vector<OptionInfo> options;
    std::vector<OptionInfo> arguments; // positional
};

struct ProgramInfo {
    std::string description;
    std::vector<OptionInfo> options; // of the program itself
    std::vector<CommandInfo> commands;
};

ProgramInfo describe(const CLI::App& program);

// Each returns the content of a file.
std::string manPage(const ProgramInfo& program);
std::string bashCompletion(const ProgramInfo& program);
std::string zshCompletion(const ProgramInfo& program);
std::string fishCompletion(const ProgramInfo& program);

} // namespace Tools
