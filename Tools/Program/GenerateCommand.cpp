// lumora generate: the typed tree of a source bundle.
#include "Program/Command.h"
#include "Program/Depfile.h"

#include "Generator/Generator.h"
#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>

namespace Tools {

namespace {

struct GenerateOptions {
    std::string source;
    std::string output;
    Depfile depfile;
    Generator::Options generator;
};

Exit runGenerate(const GenerateOptions& options) {
    if (!std::filesystem::is_directory(options.source))
        return fail({.message = "is no folder of resources", .file = options.source});
    SourceBundle::Diagnostics diagnostics;
    const auto done = Generator::generateModule(options.source, options.generator, options.output, diagnostics);
    const Exit reported = report(diagnostics);
    if (!done)
        return fail(done.error());
    const auto noted = options.depfile.write({options.source});
    return noted ? reported : fail(noted.error());
}

} // namespace

void addGenerateCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<GenerateOptions>();
    CLI::App* command = program.add_subcommand("generate", "Write the typed tree of a source bundle as C++.");
    command->add_option("SOURCE", options->source, "The source bundle: a folder of *.lproj and *.xcassets")
        ->required()
        ->check(named());
    command->add_option("--module", options->generator.module, "The module's name, a C++ identifier")->required();
    command->add_option("-o,--output", options->output, "The folder to write into")->required()->check(named());
    command->add_option("--include", options->generator.includes,
                        "A header of hand-made members, included by the tree's");
    command->add_option("--shards", options->generator.shards, "Into how many sources the accessors are split")
        ->check(CLI::Range(std::size_t{1}, Generator::maxShards));
    options->depfile.addOptions(*command);
    command->callback([options, &exit] { exit = runGenerate(*options); });
}

} // namespace Tools
