// lumora generate: writes the C++ code of a module from a source.
#include "Program/Command.h"
#include "Program/Depfile.h"

#include "Generator/Generator.h"
#include "Program/SourceArguments.h"
#include <CLI/CLI.hpp>
#include <memory>

namespace Tools {

namespace {

struct GenerateOptions {
    SourceArguments source;
    std::string output;
    bool isStrict = false;
    Depfile depfile;
    Generator::Options generator;
};

Exit runGenerate(GenerateOptions& options) {
    options.generator.names = options.source.names;
    SourceBundle::Diagnostics diagnostics;
    if (options.isStrict)
        diagnostics.beStrict();
    Generator::check(options.generator, diagnostics);
    const SourceBundle::Source source = options.source.read(diagnostics);
    const Generator::Model model = Generator::modelOf(source, options.generator, diagnostics);
    if (!diagnostics.hasErrors()) {
        auto written = Generator::writeModule(model, options.generator, options.output);
        if (written)
            written = options.depfile.write(options.source.inputs());
        if (!written)
            diagnostics.add(SourceBundle::Severity::error, std::move(written.error()));
    }
    return report(diagnostics);
}

} // namespace

void addGenerateCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<GenerateOptions>();
    CLI::App* command =
        program.add_subcommand("generate", "Write the C++ code of a module: the accessors for a source.");
    options->source.addTo(*command)->required();
    command->add_option("--module", options->generator.module, "The module's name, a C++ identifier")->required();
    command->add_option("-o,--output", options->output, "The folder to write into")->required()->check(notEmpty());
    options->source.addNamesTo(*command);
    command->add_flag("--strict", options->isStrict, "Treat warnings as errors");
    command
        ->add_option("--include", options->generator.includes,
                     "A header with functions for the tree of texts, included by NAMEStrings.h (may be repeated)")
        ->allow_extra_args(false);
    command
        ->add_option("--header", options->generator.headers,
                     "A header with hand-written parts of the module, included by NAME.h (may be repeated)")
        ->allow_extra_args(false);
    command->add_option("--shards", options->generator.shards, "The number of source files for the accessors")
        ->check(CLI::Range(std::size_t{1}, Generator::maxShards));
    options->depfile.addOptions(*command);
    command->callback([options, &exit] { exit = runGenerate(*options); });
}

} // namespace Tools
