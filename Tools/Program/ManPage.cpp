// The man page lumora.1, in the language of troff's macro package man.
#include "Program/CommandTree.h"

#include <CLI/CLI.hpp>
#include <string_view>

namespace Tools {

namespace {

// Escapes a line of text, so that troff does not interpret it.
std::string escaped(std::string_view text) {
    std::string out = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char c : text) {
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else
            out += c;
    }
    return out;
}

std::string bold(std::string_view text) {
    return "\\fB" + escaped(text) + "\\fR";
}

std::string italic(std::string_view text) {
    return "\\fI" + escaped(text) + "\\fR";
}

std::string signature(const OptionInfo& option) {
    std::string out;
    for (const std::string& name : option.names)
        out.append(out.empty() ? "" : ", ").append(bold(name));
    return option.value.empty() ? out : out + " " + italic(option.value);
}

std::string usage(const OptionInfo& argument) {
    const std::string name = italic(argument.names.front()) + (argument.isRepeated ? "..." : "");
    return argument.isRequired ? name : "[" + name + "]";
}

// `term` is troff code, `description` any text.
std::string entry(const std::string& term, std::string_view description) {
    return ".TP\n" + term + "\n" + escaped(description) + "\n";
}

std::string section(const CommandInfo& command) {
    std::string out = ".SS " + bold("lumora " + command.name);
    for (const OptionInfo& argument : command.arguments)
        out += " " + usage(argument);
    out += "\n" + escaped(command.description) + "\n";
    for (const OptionInfo& argument : command.arguments)
        out += entry(italic(argument.names.front()), argument.description);
    for (const OptionInfo& option : command.options)
        out += entry(signature(option), option.description + (option.isRequired ? " (required)" : ""));
    return out;
}

} // namespace

std::string manPage(const ProgramInfo& program) {
    std::string out = ".TH LUMORA 1 \"\" \"lumora " LUMORA_VERSION "\" \"User Commands\"\n"
                      ".SH NAME\nlumora \\- tools for localized texts and assets\n"
                      ".SH SYNOPSIS\n.B lumora\n.I COMMAND\n[\\fIOPTION\\fR]... [\\fIARGUMENT\\fR]...\n"
                      ".SH DESCRIPTION\n" +
                      escaped(program.description) + "\n.SH OPTIONS\n";
    for (const OptionInfo& option : program.options)
        out += entry(signature(option), option.description);
    out += ".SH COMMANDS\n";
    for (const CommandInfo& command : program.commands)
        out += section(command);
    out += ".SH EXIT STATUS\n" + entry(bold("0"), "Done.") + entry(bold("1"), "A check or an import found faults.") +
           entry(bold("2"), "Any other error, such as wrong use or a file that cannot be read or written.");
    out += ".SH ENVIRONMENT\n" +
           entry(bold("LANGUAGE") + ", " + bold("LC_ALL") + ", " + bold("LC_MESSAGES") + ", " + bold("LANG"),
                 "The user's languages and locale, unless options set them.") +
           entry(bold("NO_COLOR"), "If set and not empty, messages on a terminal have no color.");
    return out;
}

} // namespace Tools
