// The program `lumora`: a thin face of the libraries.
#include "Program/Command.h"

#include "Program/Suggestion.h"
#include <CLI/CLI.hpp>
#include <exception>
#include <sstream>

namespace {

Tools::Exit failWith(const CLI::Error& wrong, const std::string& more = "") {
    return Tools::fail({.message = wrong.what() + more + " (see lumora --help)"});
}

// For a word that is not one of the commands.
std::string suggestedCommand(const CLI::App& program) {
    const std::vector<std::string> unknown = program.remaining();
    if (unknown.empty() || !program.get_subcommands().empty())
        return "";
    std::vector<std::string> commands;
    for (const CLI::App* command : program.get_subcommands(nullptr))
        commands.push_back(command->get_name());
    return Tools::suggestion(unknown.front(), commands);
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what may be thrown outside of the block is that memory is out
int main(int argc, char** argv) {
    CLI::App program("Localized texts and assets: reads, makes and compiles what a module ships.", "lumora");
    program.set_version_flag("--version", LUMORA_VERSION);
    Tools::Exit exit = Tools::Exit::done;
    Tools::addTextCommand(program, exit);
    Tools::addTableCommand(program, exit);
    Tools::addGenerateCommand(program, exit);
    Tools::addCompileCommand(program, exit);
    Tools::addCheckCommand(program, exit);
    Tools::addAccessorsCommand(program, exit);
    Tools::addAssetsCommand(program, exit);
    Tools::addAssetCommand(program, exit);
    Tools::addGalleryCommand(program, exit);
    Tools::addExportCommand(program, exit);
    Tools::addImportCommand(program, exit);
    try {
        program.parse(argc, argv);
        // Asked here, after a wrong word has been named.
        if (program.get_subcommands().empty())
            throw CLI::RequiredError("A command");
    } catch (const CLI::Success& asked) { // --help, --version
        // The parser comes to them before it complains of a command that it does not know.
        const std::vector<std::string> unknown = program.remaining();
        std::ostringstream text;
        program.exit(asked, text, text);
        exit =
            unknown.empty() ? Tools::print(text.str()) : failWith(CLI::ExtrasError(unknown), suggestedCommand(program));
    } catch (const CLI::Error& wrong) {
        exit = failWith(wrong, suggestedCommand(program));
    } catch (const std::exception& failed) {
        exit = Tools::fail({.message = failed.what()});
    }
    return static_cast<int>(exit);
}
