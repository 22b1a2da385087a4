// The program `lumora`: a thin layer on top of the libraries.
#include "Program/Command.h"

#include "Program/Suggestion.h"
#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <malloc.h> // mallopt
#include <new>
#include <sstream>

namespace {

// Suggests a command or an option for the first unknown word on the command line.
std::string suggestionFor(const CLI::App& program) {
    const std::vector<std::string> unknown = program.remaining(/*recurse=*/true);
    if (unknown.empty())
        return "";
    const std::string& word = unknown.front();
    const std::vector<CLI::App*> given = program.get_subcommands(); // without a filter: those on the command line
    if (!word.starts_with('-'))
        return given.empty() ? Tools::suggestion(word, Tools::commandNames(program)) : "";
    std::vector<std::string> known;
    for (const CLI::Option* option : (given.empty() ? program : *given.back()).get_options())
        for (const std::string& name : option->get_lnames())
            known.push_back("--" + name);
    return Tools::suggestion(word.substr(0, word.find('=')), known);
}

Tools::Exit failWith(const CLI::Error& wrong, const CLI::App& program) {
    return Tools::fail({.message = std::string(wrong.what()) + suggestionFor(program) + " (see lumora --help)"});
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): only std::bad_alloc can be thrown outside of the try block
int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows beyond a limit is a failed write, not the end of the process
    ::mallopt(M_TOP_PAD, 4 << 20); // grow the heap in few, large steps: fewer system calls
    CLI::App program("Generates, compiles, checks and shows localized texts and assets.", "lumora");
    program.require_subcommand(0, 1); // words after the first command are always its arguments
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
    Tools::addWatchCommand(program, exit);
    Tools::addHelpCommand(program, exit);
    program.get_formatter()->label("SUBCOMMAND", "COMMAND");
    for (CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; }))
        command->group("Commands");
    try {
        program.parse(argc, argv);
        // Not with require_subcommand(1), which would report an unknown word as a missing command.
        if (program.get_subcommands().empty())
            throw CLI::RequiredError("A command");
    } catch (const CLI::Success& success) { // --help, --version
        // The parser handles these options before it reports an unknown command.
        const std::vector<std::string> unknown = program.remaining();
        std::ostringstream text;
        program.exit(success, text, text);
        exit = unknown.empty() ? Tools::print(text.str()) : failWith(CLI::ExtrasError(unknown), program);
    } catch (const CLI::Error& wrong) {
        exit = failWith(wrong, program);
    } catch (const std::bad_alloc&) {
        exit = Tools::fail({.message = "out of memory"});
    } catch (const std::exception& failed) {
        exit = Tools::fail({.message = failed.what()});
    }
    return static_cast<int>(exit);
}
