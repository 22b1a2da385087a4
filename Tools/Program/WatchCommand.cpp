// lumora watch: compiles a source again whenever it changes.
#include "Program/Command.h"

#include "Compiler/Bundle.h"
#include "Program/FolderWatch.h"
#include "Program/SourceArguments.h"
#include <CLI/CLI.hpp>
#include <array>
#include <chrono>
#include <csignal>
#include <ctime>
#include <memory>
#include <poll.h>
#include <set>
#include <sys/signalfd.h>
#include <utility>

namespace Tools {

namespace {

namespace fs = std::filesystem;
using Paths = std::set<fs::path>;

struct WatchOptions {
    SourceArguments source;
    std::string output;
};

// Blocks the signals that ask the program to end, and returns a descriptor that becomes readable when one arrives.
Runtime::Descriptor stopSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGHUP); // the terminal is closed
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    return Runtime::Descriptor(::signalfd(-1, &signals, SFD_CLOEXEC));
}

std::string timeOfDay() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, sizeof "00:00:00"> text{};
    std::strftime(text.data(), text.size(), "%H:%M:%S", &local);
    return text.data();
}

// ": T.strings changed" or ": 3 changes"; empty for the first compile.
std::string summary(const Paths& changed) {
    if (changed.empty())
        return "";
    if (changed.size() == 1)
        return ": " + changed.begin()->filename().string() + " changed";
    return ": " + std::to_string(changed.size()) + " changes";
}

bool isReadable(const Runtime::Descriptor& descriptor) {
    pollfd one{descriptor.number(), POLLIN, 0};
    return ::poll(&one, 1, 0) == 1;
}

// Thrown to end a compile when a stop signal has arrived.
struct Interrupted {};

class Watcher {
public:
    explicit Watcher(const WatchOptions& options) : options_(options) {}

    Exit run() {
        try {
            return watch();
        } catch (const Interrupted&) {
            return Exit::done;
        }
    }

private:
    Exit watch() {
        for (const std::string& folder : options_.source.folders)
            if (std::error_code failed; !fs::is_directory(folder, failed))
                return fail({.message = "is not a folder of resources", .file = folder});
        auto watch = FolderWatch::create(options_.source.folderPaths(), options_.output);
        if (!watch)
            return fail(watch.error());
        for (Paths changed;;) {
            if (const Exit compiled = compile(changed); compiled != Exit::done)
                return compiled;
            auto next = watch->wait(stop_.number());
            if (!next)
                return fail(next.error());
            if (!*next)
                return Exit::done;
            changed = **std::move(next);
        }
    }

    // A source with errors leaves the bundle unchanged; the next change may fix them.
    Exit compile(const Paths& changed) {
        const auto begin = std::chrono::steady_clock::now();
        ProgressLine progress;
        SourceBundle::Diagnostics diagnostics;
        const SourceBundle::Source source = options_.source.read(diagnostics);
        auto done = Compiler::compileBundle(source, options_.source.folderPaths(), options_.output, diagnostics,
                                            [&](std::string_view what, std::size_t begun, std::size_t all) {
                                                if (isReadable(stop_))
                                                    throw Interrupted();
                                                progress(what, begun, all);
                                            });
        progress.erase();
        if (!done)
            diagnostics.add(SourceBundle::Severity::error, std::move(done.error()));
        const auto elapsed =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
        reportNew(diagnostics);
        std::string line = timeOfDay() + " " + options_.output;
        line += diagnostics.hasErrors() ? " is unchanged" : " compiled in " + std::to_string(elapsed.count()) + " ms";
        return print(line + summary(changed) + "\n");
    }

    // Reports warnings and errors; nothing if there are only the same warnings as last time.
    void reportNew(const SourceBundle::Diagnostics& diagnostics) {
        SourceBundle::Diagnostics serious;
        std::string text;
        for (const SourceBundle::Diagnostic& one : diagnostics.all()) {
            if (one.severity == SourceBundle::Severity::note)
                continue;
            serious.add(one.severity, one.what);
            text += one.what.text() + "\n";
        }
        if (text != std::exchange(lastReport_, text) || serious.hasErrors())
            report(serious);
    }

    const WatchOptions& options_;
    const Runtime::Descriptor stop_ = stopSignals();
    std::string lastReport_;
};

} // namespace

void addWatchCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<WatchOptions>();
    CLI::App* command = program.add_subcommand("watch", "Compile a bundle, and again whenever its source changes.");
    options->source.addTo(*command)->required();
    command->add_option("-o,--output", options->output, "The bundle to write, NAME.bundle")
        ->required()
        ->check(notEmpty());
    options->source.addPseudoTo(*command);
    command->callback([options, &exit] { exit = Watcher(*options).run(); });
}

} // namespace Tools
