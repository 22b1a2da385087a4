// lumora compile: a source bundle made into the one that ships.
#include "Program/Command.h"
#include "Program/Depfile.h"

#include "Compiler/Bundle.h"
#include <CLI/CLI.hpp>
#include <memory>

namespace Tools {

namespace {

struct CompileOptions {
    std::string source;
    std::string output;
    Depfile depfile;
};

Exit runCompile(const CompileOptions& options) {
    SourceBundle::Diagnostics diagnostics;
    const auto done = Compiler::compileBundle(options.source, options.output, diagnostics, showProgress);
    showProgress("", 0, 0);
    const Exit reported = report(diagnostics);
    if (!done)
        return fail(done.error());
    const auto noted = options.depfile.write({options.source});
    return noted ? reported : fail(noted.error());
}

} // namespace

void addCompileCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<CompileOptions>();
    CLI::App* command =
        program.add_subcommand("compile", "Make the bundle that ships: binary tables, compiled assets.");
    command->add_option("SOURCE", options->source, "The source bundle: a folder of *.lproj and *.xcassets")
        ->required()
        ->check(named());
    command->add_option("-o,--output", options->output, "The bundle to make, NAME.bundle")->required()->check(named());
    options->depfile.addOptions(*command);
    command->callback([options, &exit] { exit = runCompile(*options); });
}

} // namespace Tools
