// Program/Command.h
// Shared by the commands of the program: exit statuses, messages and output.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourceBundle/Diagnostics.h"
#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Validator;
} // namespace CLI

namespace Tools {

// Rejects an empty path on the command line: no message could name it.
CLI::Validator notEmpty();

// The exit status of the program.
enum class Exit : int {
    done = 0,
    faultsFound = 1, // by check or import
    failed = 2       // every other error, such as wrong use or a file that cannot be read or written
};

// Each adds its command to the program. When the command line selects it, the command runs and sets `exit`.
void addTextCommand(CLI::App& program, Exit& exit);
void addTableCommand(CLI::App& program, Exit& exit);
void addGenerateCommand(CLI::App& program, Exit& exit);
void addCompileCommand(CLI::App& program, Exit& exit);
void addCheckCommand(CLI::App& program, Exit& exit);
void addAccessorsCommand(CLI::App& program, Exit& exit);
void addAssetCommand(CLI::App& program, Exit& exit);
void addAssetsCommand(CLI::App& program, Exit& exit);
void addGalleryCommand(CLI::App& program, Exit& exit);
void addExportCommand(CLI::App& program, Exit& exit);
void addImportCommand(CLI::App& program, Exit& exit);
void addWatchCommand(CLI::App& program, Exit& exit);
void addHelpCommand(CLI::App& program, Exit& exit);

// The names of all commands, in the order of the help text.
std::vector<std::string> commandNames(const CLI::App& program);

// Whether output to the file descriptor `stream` is colored: on a terminal, unless the environment variable NO_COLOR is
// set and not empty.
bool hasColor(int stream);

// Each writes a message to standard error, on one line: "FILE:LINE:COLUMN: error: WHAT" with the known parts, or
// "lumora: error: WHAT" without a file; note() writes "note" instead of "error". Invisible characters are escaped.
// fail() returns Exit::failed.
Exit fail(const Runtime::Error& error);
void note(const Runtime::Error& what);
void note(std::string_view what);
// Writes all diagnostics to standard error: notes, warnings, errors, each message once with all its places; then a line
// with the numbers of errors and warnings. If there is only one diagnostic, its line ends with the numbers; without
// diagnostics nothing is written. Returns Exit::failed if there are errors, or else Exit::done.
Exit report(const SourceBundle::Diagnostics& diagnostics);

// A line on the terminal (standard error) that shows the current step of work that lasts for more than a second.
// Without a terminal nothing is shown.
class ProgressLine {
public:
    ProgressLine() = default;
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine() { erase(); }
    // Shows the step `what` in place of the step before. `begun` of `all` steps have begun before it.
    void operator()(std::string_view what, std::size_t begun, std::size_t all);
    void erase();

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    bool isShown_ = false;
};

// Writes to standard output. If that fails, reports an error and returns Exit::failed; so does write().
Exit print(std::string_view bytes);
// Writes to the file given by the option -o, or to standard output for "-".
Exit write(const std::string& output, std::string_view bytes);

} // namespace Tools
