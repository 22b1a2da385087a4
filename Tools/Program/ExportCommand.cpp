// lumora export: writes the texts of a source for translators, as XLIFF or PO.
#include "Program/Command.h"

#include "Exchange/Export.h"
#include "Exchange/Languages.h"
#include "Exchange/Po.h"
#include "Exchange/Xliff.h"
#include "Program/SourceArguments.h"
#include "SourceBundle/MessageText.h"
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

namespace Tools {

namespace {

struct ExportOptions {
    SourceArguments source;
    std::string language;
    std::string format; // empty: determined by the file's name
    std::string output;
    bool onlyMissing = false;
};

bool isPo(const ExportOptions& options) {
    return options.format == "po" || (options.format.empty() && options.output.ends_with(".po"));
}

std::string summary(const Exchange::Translations& translations) {
    const auto isDone = [](const Exchange::Unit& unit) { return !unit.target.empty(); };
    const auto done = static_cast<std::size_t>(std::ranges::count_if(translations.units, isDone));
    return SourceBundle::counted(translations.units.size(), "text") + ", " +
           std::to_string(translations.units.size() - done) + " without a translation to " +
           translations.targetLanguage;
}

Exit runExport(const ExportOptions& options) {
    SourceBundle::Diagnostics diagnostics;
    const SourceBundle::Source source = options.source.read(diagnostics);
    if (diagnostics.hasErrors())
        return report(diagnostics);
    const auto language = Exchange::targetLanguage(source, options.language);
    if (!language)
        return fail({.message = "--language: \"" + options.language +
                                "\" is not a language that the source can be translated to"});
    const Exchange::Translations translations =
        Exchange::translationsOf(source, options.source.folderPaths(), *language, options.onlyMissing, diagnostics);
    const std::string text = isPo(options) ? Exchange::writePo(translations, diagnostics)
                                           : Exchange::writeXliff(translations, LUMORA_VERSION);
    const Exit reported = report(diagnostics);
    if (reported != Exit::done)
        return reported;
    const Exit written = write(options.output, text);
    if (written == Exit::done)
        note(summary(translations));
    return written;
}

} // namespace

void addExportCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<ExportOptions>();
    CLI::App* command = program.add_subcommand("export", "Write the texts of a source for translators.");
    options->source.addTo(*command)->required();
    command->add_option("--language", options->language, "The language to translate to, such as pt-BR")->required();
    command->add_flag("--missing", options->onlyMissing, "Only texts that still need a translation");
    command->add_option("--format", options->format, "xliff or po (default: determined by the file name, else xliff)")
        ->check(CLI::IsMember({"xliff", "po"}));
    command->add_option("-o,--output", options->output, "The file to write; - is standard output")
        ->required()
        ->check(notEmpty());
    command->callback([options, &exit] { exit = runExport(*options); });
}

} // namespace Tools
