// lumora import: writes translated files back into the tables.
#include "Program/Command.h"

#include "Exchange/Import.h"
#include "Program/SourceArguments.h"
#include "SourceBundle/MessageText.h"
#include <CLI/CLI.hpp>
#include <iterator>
#include <memory>

namespace Tools {

namespace {

using SourceBundle::Severity;

struct ImportOptions {
    std::vector<std::string> files;
    SourceArguments source;
    Exchange::ImportOptions import;
};

// Adds the error and reports all: an error that stops the import gives Exit::failed, whatever faults were found before.
Exit failWith(SourceBundle::Diagnostics& diagnostics, Runtime::Error error) {
    diagnostics.add(Severity::error, std::move(error));
    return report(diagnostics);
}

Exit runImport(const ImportOptions& options) {
    SourceBundle::Diagnostics diagnostics;
    const SourceBundle::Source source = options.source.read(diagnostics);
    if (diagnostics.hasErrors())
        return report(diagnostics);
    std::vector<Exchange::Translations> all;
    for (const std::string& file : options.files) {
        auto read = Exchange::readTranslations(file, diagnostics);
        if (!read)
            return failWith(diagnostics, std::move(read.error()));
        std::move(read->begin(), read->end(), std::back_inserter(all));
    }
    auto imported = Exchange::importTranslations(source, all, options.import, diagnostics);
    if (!imported)
        return failWith(diagnostics, std::move(imported.error()));
    const bool hasFaults = diagnostics.hasErrors();
    report(diagnostics);
    if (hasFaults && !options.import.keepGoing)
        note("nothing was changed; --keep-going imports the valid texts");
    else
        note(SourceBundle::counted(imported->texts, "text") + " changed in " +
             SourceBundle::counted(imported->files, "file"));
    return hasFaults ? Exit::faultsFound : Exit::done;
}

} // namespace

void addImportCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<ImportOptions>();
    CLI::App* command =
        program.add_subcommand("import", "Write translated files (XLIFF, PO) back into the tables of a source.");
    command->add_option("FILE", options->files, "A file written by lumora export and edited by translators")
        ->required()
        ->check(notEmpty());
    options->source.addTo(*command, "--into")->required()->allow_extra_args(false); // so that a FILE may follow it
    command->add_flag("--keep-going", options->import.keepGoing,
                      "Import the valid texts even if others are invalid; the exit status is then 1");
    command->callback([options, &exit] { exit = runImport(*options); });
}

} // namespace Tools
