// Program/Command.h
// What the commands of the program share: how they end, and how they speak to their user.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourceBundle/Diagnostics.h"
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Validator;
} // namespace CLI

namespace Tools {

// Of a path on the command line: refuses the empty one, which no message could name.
CLI::Validator named();

// How the program ends.
enum class Exit : int { done = 0, faultsFound = 1, wrongUse = 2 };

// Each adds its command to the program. When the command line names it, it runs and sets `exit`.
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

// The names of all commands, in the order in which help shows them.
std::vector<std::string> commandNames(const CLI::App& program);

// Whether what is written to the file descriptor `stream` has colors: on a terminal, unless the environment variable
// NO_COLOR is set and not empty.
bool hasColor(int stream);

// Messages go to standard error, a line each: "FILE:LINE:COLUMN: error: WHAT" with the parts that are known, or
// "lumora: error: WHAT" where there is no file; in colour on a terminal. What cannot be seen is escaped.
Exit fail(const Runtime::Error& error);
void note(const Runtime::Error& what);
void note(std::string_view what);
// Every diagnostic, the errors last, equal messages together, and a line that counts them; a lone one carries its count
// itself. Exit::wrongUse if an error is among them.
Exit report(const SourceBundle::Diagnostics& diagnostics);
// A line that is written over by the next, on a terminal only and from a second after the first call; `done` equal to
// `all` removes it.
void showProgress(std::string_view what, std::size_t done, std::size_t all);
// To standard output, whole; an error when it cannot be written.
Exit print(std::string_view bytes);
// To the file that the option -o names, or to standard output for "-".
Exit write(const std::string& output, std::string_view bytes);

} // namespace Tools
