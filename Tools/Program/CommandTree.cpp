#include "Program/CommandTree.h"

#include <CLI/CLI.hpp>

namespace Tools {

namespace {

// The parser gives an option with fixed choices the type name "TEXT:{text,json}".
std::vector<std::string> choicesOf(const std::string& type) {
    const std::size_t open = type.find('{');
    const std::size_t close = type.find('}');
    if (open == std::string::npos || close == std::string::npos)
        return {};
    return CLI::detail::split(type.substr(open + 1, close - open - 1), ',');
}

OptionInfo describe(const CLI::Option& option) {
    OptionInfo info;
    if (option.get_positional()) {
        info.names.push_back(option.get_name(/*positional=*/true));
    } else {
        for (const std::string& name : option.get_snames())
            info.names.push_back("-" + name);
        for (const std::string& name : option.get_lnames())
            info.names.push_back("--" + name);
    }
    const bool isFlag = option.get_items_expected_max() == 0;
    info.choices = choicesOf(option.get_type_name());
    if (!isFlag && !option.get_positional())
        info.value = info.choices.empty() ? "VALUE" : CLI::detail::join(info.choices, "|");
    info.description = option.get_description();
    info.isRequired = option.get_required();
    info.isRepeated = option.get_items_expected_max() > 1;
    return info;
}

} // namespace

ProgramInfo describe(const CLI::App& program) {
    ProgramInfo info{.description = program.get_description(), .options = {}, .commands = {}};
    for (const CLI::Option* option : program.get_options())
        info.options.push_back(describe(*option));
    for (const CLI::App* command : program.get_subcommands({})) { // all, not only the one on the command line
        CommandInfo made{
            .name = command->get_name(), .description = command->get_description(), .options = {}, .arguments = {}};
        for (const CLI::Option* option : command->get_options())
            (option->get_positional() ? made.arguments : made.options).push_back(describe(*option));
        info.commands.push_back(std::move(made));
    }
    return info;
}

} // namespace Tools
