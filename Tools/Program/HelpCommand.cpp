// lumora help: describes the program and its commands as text, man page or shell completion.
#include "Program/Command.h"
#include "Program/CommandTree.h"
#include "Program/Suggestion.h"

#include <CLI/CLI.hpp>
#include <map>
#include <memory>

namespace Tools {

namespace {

struct HelpOptions {
    std::string command;
    std::string format = "text";
};

using Writer = std::string (*)(const ProgramInfo&);

const std::map<std::string, Writer> writers = {
    {"man", manPage}, {"bash", bashCompletion}, {"zsh", zshCompletion}, {"fish", fishCompletion}};

Exit runHelp(const CLI::App& program, const HelpOptions& options) {
    if (options.format != "text")
        return print(writers.at(options.format)(describe(program)));
    if (options.command.empty())
        return print(program.get_formatter()->make_help(&program, program.get_name(), CLI::AppFormatMode::Normal));
    for (const CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; }))
        if (command->get_name() == options.command)
            return print(command->help(program.get_name()));
    return fail({.message = "unknown command " + options.command + suggestion(options.command, commandNames(program))});
}

} // namespace

std::vector<std::string> commandNames(const CLI::App& program) {
    std::vector<std::string> names;
    for (const CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    return names;
}

void addHelpCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<HelpOptions>();
    CLI::App* command = program.add_subcommand("help", "Show the arguments and options of the program or one command.");
    command->add_option("COMMAND", options->command, "The command; without one, the program");
    command
        ->add_option("--format", options->format,
                     "text (default), man for the man page, or bash, zsh or fish for the shell's completions")
        ->check(CLI::IsMember({"text", "man", "bash", "zsh", "fish"}));
    command->callback([options, &program, &exit] { exit = runHelp(program, *options); });
}

} // namespace Tools
