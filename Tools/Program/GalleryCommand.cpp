// lumora gallery: writes a web page that shows all resources.
#include "Program/Command.h"

#include "Compiler/Bundle.h"
#include "Gallery/Gallery.h"
#include "Program/OwnBundle.h"
#include "Program/SourceArguments.h"
#include "Runtime/internal/SystemError.h"
#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <system_error>
#include <utility>

namespace Tools {

namespace {

namespace fs = std::filesystem;

struct GalleryOptions {
    SourceArguments source;
    std::string bundle;
    std::string module;
    std::string output;
};

// A temporary folder that is removed with this object.
class TemporaryFolder {
public:
    static Runtime::Result<TemporaryFolder> create() {
        std::error_code failed;
        std::string path = fs::temp_directory_path(failed) / "lumora-gallery-XXXXXX";
        if (failed || ::mkdtemp(path.data()) == nullptr)
            return Runtime::systemError(path, "cannot create a temporary folder", failed ? failed.value() : errno);
        return TemporaryFolder(std::move(path));
    }
    TemporaryFolder(TemporaryFolder&& other) noexcept : path_(std::exchange(other.path_, {})) {}
    TemporaryFolder& operator=(TemporaryFolder&&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        if (!path_.empty())
            fs::remove_all(path_, ignored);
    }

    const fs::path& path() const noexcept { return path_; }

private:
    explicit TemporaryFolder(fs::path path) : path_(std::move(path)) {}

    fs::path path_;
};

// The name of the folder; the path may end in a slash.
fs::path nameOf(const fs::path& folder) {
    const fs::path whole = fs::absolute(folder).lexically_normal();
    return whole.has_filename() ? whole.filename() : whole.parent_path().filename();
}

Exit writePage(const GalleryOptions& options, const SourceBundle::Source& source, const fs::path& bundle,
               const Gallery::Options& shown) {
    const auto page = Gallery::pageOf(source, bundle, shown);
    return page ? write(options.output, *page) : fail(page.error());
}

// Compiles the source and shows the resulting bundle.
Exit showSource(const GalleryOptions& options) {
    const auto folder = TemporaryFolder::create();
    if (!folder)
        return fail(folder.error());
    const fs::path bundle = folder->path() / "Gallery.bundle";
    ProgressLine progress;
    SourceBundle::Diagnostics diagnostics;
    const SourceBundle::Source source = options.source.read(diagnostics);
    Generator::NamesFile names;
    if (!options.source.names.empty())
        names = Generator::NamesFile::read(options.source.names, diagnostics);
    auto compiled =
        Compiler::compileBundle(source, options.source.folderPaths(), bundle, diagnostics, std::ref(progress));
    progress.erase();
    if (!compiled)
        diagnostics.add(SourceBundle::Severity::error, std::move(compiled.error()));
    if (const Exit reported = report(diagnostics); reported != Exit::done)
        return reported;
    const std::string title =
        options.module.empty() ? nameOf(options.source.folderPaths().front()).string() : options.module;
    return writePage(options, source, bundle, {.title = title, .module = options.module, .names = std::move(names)});
}

// Shows the compiled bundle. If a table is damaged, the page is written without it, and the result is Exit::failed.
Exit showBundle(const GalleryOptions& options) {
    const fs::path bundle = options.bundle.empty() ? ownBundle() : options.bundle;
    const std::string name = options.module.empty() ? nameOf(bundle).stem().string() : options.module;
    if (std::error_code failed; !fs::is_directory(bundle, failed))
        return fail({.message = "is not a bundle", .file = bundle});
    SourceBundle::Diagnostics diagnostics;
    const SourceBundle::Source source = SourceBundle::Source::readBundle(bundle, diagnostics);
    const Exit reported = report(diagnostics);
    const Exit written = writePage(options, source, bundle, {.title = name, .module = name});
    return written == Exit::done ? reported : written;
}

} // namespace

void addGalleryCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<GalleryOptions>();
    CLI::App* command = program.add_subcommand("gallery", "Write a web page that shows every text and asset.");
    CLI::Option* source = options->source.addTo(*command);
    options->source.addNamesTo(*command);
    options->source.addPseudoTo(*command);
    for (const char* option : {"--development-language", "--names", "--pseudo"})
        command->get_option(option)->needs(source);
    command->add_option("--bundle", options->bundle, "A compiled bundle (default: Lumora's own)")
        ->check(notEmpty())
        ->excludes(source);
    command->add_option(
        "--module", options->module,
        "The module's name, the first part of accessors (default: the bundle's name; none for a source)");
    command->add_option("-o,--output", options->output, "The page to write, FILE.html; - is standard output")
        ->required()
        ->check(notEmpty());
    command->callback(
        [options, &exit] { exit = options->source.folders.empty() ? showBundle(*options) : showSource(*options); });
}

} // namespace Tools
