// Completions for bash, zsh and fish. Values without fixed choices are completed as file names.
#include "Program/CommandTree.h"

#include <CLI/CLI.hpp>

namespace Tools {

namespace {

// Quotes any text as one word for bash and zsh.
std::string quoted(const std::string& text) {
    return "'" + CLI::detail::find_and_replace(text, "'", "'\\''") + "'";
}

std::string quotedForFish(const std::string& text) {
    const std::string escaped = CLI::detail::find_and_replace(text, "\\", "\\\\");
    return "'" + CLI::detail::find_and_replace(escaped, "'", "\\'") + "'";
}

std::vector<std::string> commandNames(const ProgramInfo& program) {
    std::vector<std::string> names;
    for (const CommandInfo& command : program.commands)
        names.push_back(command.name);
    return names;
}

std::vector<std::string> optionNames(const std::vector<OptionInfo>& options) {
    std::vector<std::string> names;
    for (const OptionInfo& option : options)
        names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

// The cases of a bash case statement for the options of `command` with fixed choices: "check:--format) words=...".
std::string bashChoices(const CommandInfo& command) {
    std::string out;
    for (const OptionInfo& option : command.options)
        if (!option.choices.empty())
            for (const std::string& name : option.names)
                out += "    " + command.name + ":" + name +
                       ") words=" + quoted(CLI::detail::join(option.choices, " ")) + " ;;\n";
    return out;
}

// Escapes brackets and colons, which delimit the parts of a zsh option specification, and backslashes.
std::string zshEscaped(std::string text) {
    for (const char* const special : {"\\", "[", "]", ":"})
        text = CLI::detail::find_and_replace(text, special, std::string("\\") + special);
    return text;
}

// "--format[DESCRIPTION]:value:(text json)", for the function _arguments; "*" before it allows it to be repeated.
std::string zshOption(const OptionInfo& option, const std::string& name) {
    std::string out = option.isRepeated ? "*" : "";
    out += name + "[" + zshEscaped(option.description) + "]";
    if (option.value.empty())
        return out;
    const std::string choices = CLI::detail::join(option.choices, " ");
    return out + ":" + (choices.empty() ? "value:_files" : "value:(" + choices + ")");
}

std::string fishOption(const CommandInfo& command, const OptionInfo& option) {
    std::string out = "complete -c lumora -n '__fish_seen_subcommand_from " + command.name + "'";
    for (const std::string& name : option.names)
        out += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    if (!option.choices.empty()) // -x: the value is one of these; -r -F: a file name
        out += " -x -a " + quotedForFish(CLI::detail::join(option.choices, " "));
    else if (!option.value.empty())
        out += " -r -F";
    return out + " -d " + quotedForFish(option.description) + "\n";
}

} // namespace

std::string bashCompletion(const ProgramInfo& program) {
    const std::string names = CLI::detail::join(commandNames(program), " ");
    std::string choices;
    std::string options;
    for (const CommandInfo& command : program.commands) {
        choices += bashChoices(command);
        options +=
            "    " + command.name + ") words=" + quoted(CLI::detail::join(optionNames(command.options), " ")) + " ;;\n";
    }
    return "# bash completion for lumora\n"
           "_lumora() {\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} words=\n"
           "    COMPREPLY=()\n"
           "    if ((COMP_CWORD == 1)) || [[ $COMP_CWORD == 2 && $previous == help ]]; then\n"
           "        COMPREPLY=($(compgen -W " +
           quoted(names + " --help --version") +
           " -- \"$current\"))\n"
           "        return\n"
           "    fi\n"
           "    case ${COMP_WORDS[1]}:$previous in\n" +
           choices +
           "    esac\n"
           "    if [[ -z $words && $current == -* ]]; then\n"
           "    case ${COMP_WORDS[1]} in\n" +
           options +
           "    esac\n"
           "    fi\n"
           "    # Without words bash completes file names.\n"
           "    [[ -z $words ]] || COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
           "}\n"
           "complete -o default -F _lumora lumora\n";
}

std::string zshCompletion(const ProgramInfo& program) {
    std::string commands;
    std::string cases;
    for (const CommandInfo& command : program.commands) {
        commands += "        " + quoted(zshEscaped(command.name) + ":" + command.description) + "\n";
        cases += "    " + command.name + ")\n        _arguments";
        for (const OptionInfo& option : command.options)
            for (const std::string& name : option.names)
                cases += " \\\n            " + quoted(zshOption(option, name));
        cases += " \\\n            " +
                 quoted(command.name == "help" ? "1:command:(" + CLI::detail::join(commandNames(program), " ") + ")"
                                               : "*:argument:_files") +
                 "\n        ;;\n";
    }
    return "#compdef lumora\n"
           "_lumora() {\n"
           "    local -a commands=(\n" +
           commands +
           "    )\n"
           "    if ((CURRENT == 2)); then\n"
           "        _describe command commands\n"
           "        return\n"
           "    fi\n"
           "    local command=$words[2]\n"
           "    shift words\n"
           "    ((CURRENT--))\n"
           "    case $command in\n" +
           cases +
           "    esac\n"
           "}\n"
           "_lumora \"$@\"\n";
}

std::string fishCompletion(const ProgramInfo& program) {
    std::string out = "# fish completion for lumora\n";
    for (const CommandInfo& command : program.commands)
        out += "complete -c lumora -f -n __fish_use_subcommand -a " + command.name + " -d " +
               quotedForFish(command.description) + "\n";
    out += "complete -c lumora -f -n '__fish_seen_subcommand_from help' -a " +
           quotedForFish(CLI::detail::join(commandNames(program), " ")) + "\n";
    for (const CommandInfo& command : program.commands)
        for (const OptionInfo& option : command.options)
            out += fishOption(command, option);
    return out;
}

} // namespace Tools
