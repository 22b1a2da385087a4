// lumora compile: compiles a source into the bundle that ships.
#include "Program/Command.h"
#include "Program/Depfile.h"

#include "Compiler/Bundle.h"
#include "Program/SourceArguments.h"
#include <CLI/CLI.hpp>
#include <functional>
#include <memory>

namespace Tools {

namespace {

struct CompileOptions {
    SourceArguments source;
    std::string output;
    bool isStrict = false;
    Depfile depfile;
};

Exit runCompile(const CompileOptions& options) {
    ProgressLine progress;
    SourceBundle::Diagnostics diagnostics;
    if (options.isStrict)
        diagnostics.beStrict();
    const SourceBundle::Source source = options.source.read(diagnostics);
    auto compiled =
        Compiler::compileBundle(source, options.source.folderPaths(), options.output, diagnostics, std::ref(progress));
    progress.erase();
    if (compiled && !diagnostics.hasErrors())
        compiled = options.depfile.write(options.source.inputs());
    if (!compiled)
        diagnostics.add(SourceBundle::Severity::error, std::move(compiled.error()));
    return report(diagnostics);
}

} // namespace

void addCompileCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<CompileOptions>();
    CLI::App* command =
        program.add_subcommand("compile", "Compile the bundle that ships: binary tables, compiled assets.");
    options->source.addTo(*command)->required();
    command->add_option("-o,--output", options->output, "The bundle to write, NAME.bundle")
        ->required()
        ->check(notEmpty());
    options->source.addPseudoTo(*command);
    // Accepted, so that callers can pass the same options as to generate, but not read: only the depfile lists it.
    options->source.addNamesTo(*command);
    command->add_flag("--strict", options->isStrict, "Treat warnings as errors");
    options->depfile.addOptions(*command);
    command->callback([options, &exit] { exit = runCompile(*options); });
}

} // namespace Tools
