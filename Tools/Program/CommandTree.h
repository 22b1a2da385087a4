// Program/CommandTree.h
// The program's commands and options as plain records, read from the command line parser: the man page and the shells'
// completions are written from them.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace Tools {

struct OptionInfo {
    std::vector<std::string> names;   // "-o", "--output"; for a positional argument its name alone, "SOURCE"
    std::string value;                // what the man page calls its value; empty for a flag
    std::vector<std::string> choices; // the only values it takes; empty: any
    std::string description;
    bool isRequired = false;
    bool isRepeated = false;
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

// Writers of text files, each from the same records.
std::string manPage(const ProgramInfo& program);
std::string bashCompletion(const ProgramInfo& program);
std::string zshCompletion(const ProgramInfo& program);
std::string fishCompletion(const ProgramInfo& program);

} // namespace Tools
