#include "Program/Command.h"

#include "Generator/CodeText.h"
#include "Runtime/internal/File.h"
#include "Runtime/internal/NameMap.h"
#include "Runtime/internal/SystemError.h"
#include "SourceBundle/MessageText.h"
#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Tools {

namespace {

using SourceBundle::Severity;

// Whether messages and the progress line are shown on a terminal.
bool isTerminal() {
    static const bool is = ::isatty(STDERR_FILENO) == 1;
    return is;
}

constexpr const char* eraseLine = "\r\033[K"; // goes to the start of the terminal's line and erases it

// Writes a line to standard error, in place of the progress line.
void writeLine(std::string_view text) {
    std::string line = isTerminal() ? eraseLine : "";
    line.append(text).append("\n");
    std::fwrite(line.data(), 1, line.size(), stderr);
}

std::size_t terminalColumns() {
    constexpr std::size_t usual = 80;
    winsize size{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

// The text, escaped and cut to at most `columns` columns. The limit of visibleText() is in characters, which
// may take several columns, so this tries ever smaller ones.
std::string fitted(std::string_view text, std::size_t columns) {
    std::string shown = Generator::visibleText(text, columns);
    for (std::size_t limit = columns; limit > 0 && Generator::columnsOf(shown) > columns; --limit)
        shown = Generator::visibleText(text, limit - 1);
    return shown;
}

// "FILE:LINE:COLUMN", or the program's name if the place is unknown.
std::string placeOf(const Runtime::Error& what) {
    const std::string place = what.place();
    return place.empty() ? "lumora" : Generator::visibleText(place, std::string::npos);
}

void writeMessage(Severity severity, const Runtime::Error& what, std::string_view suffix = {}) {
    const std::string label = std::string(nameOf(severity)) + ":";
    std::string line = placeOf(what) + ": ";
    line += hasColor(STDERR_FILENO) ? SourceBundle::colored(label, severity) : label;
    line.append(" ").append(Generator::visibleText(what.message, std::string::npos)).append(suffix);
    writeLine(line);
}

// The diagnostics with the same message.
using Group = std::vector<const Runtime::Error*>;

std::vector<Group> grouped(const SourceBundle::Diagnostics& diagnostics, Severity severity) {
    std::vector<Group> groups;
    Runtime::NameMap<std::size_t, std::string_view> indexes; // in `groups`, by message
    for (const SourceBundle::Diagnostic& diagnostic : diagnostics.all()) {
        if (diagnostic.severity != severity)
            continue;
        const auto [found, isNew] = indexes.try_emplace(diagnostic.what.message, groups.size());
        if (isNew)
            groups.emplace_back();
        groups[found->second].push_back(&diagnostic.what);
    }
    return groups;
}

void writeMessage(Severity severity, const Group& group) {
    writeMessage(severity, *group.front());
    std::string others;
    for (const Runtime::Error* what : std::span(group).subspan(1))
        others.append(others.empty() ? "    also " : ", ").append(placeOf(*what));
    if (!others.empty())
        writeLine(others);
}

} // namespace

CLI::Validator notEmpty() {
    return {[](const std::string& path) { return path.empty() ? "the name is empty" : ""; }, /*validator_desc=*/""};
}

bool hasColor(int stream) {
    const char* const refused = std::getenv("NO_COLOR");
    return ::isatty(stream) == 1 && (refused == nullptr || *refused == '\0');
}

Exit fail(const Runtime::Error& error) {
    writeMessage(Severity::error, error);
    return Exit::failed;
}

void note(const Runtime::Error& what) {
    writeMessage(Severity::note, what);
}

void note(std::string_view what) {
    note(Runtime::Error{.message = std::string(what)});
}

Exit report(const SourceBundle::Diagnostics& diagnostics) {
    const auto& all = diagnostics.all();
    const std::string count = SourceBundle::counted(diagnostics.count(Severity::error), "error") + ", " +
                              SourceBundle::counted(diagnostics.count(Severity::warning), "warning");
    if (all.size() == 1) {
        writeMessage(all.front().severity, all.front().what, " (" + count + ")");
    } else if (!all.empty()) {
        for (const Severity severity : {Severity::note, Severity::warning, Severity::error})
            for (const Group& group : grouped(diagnostics, severity))
                writeMessage(severity, group);
        writeLine("lumora: " + count);
    }
    return diagnostics.hasErrors() ? Exit::failed : Exit::done;
}

void ProgressLine::operator()(std::string_view what, std::size_t begun, std::size_t all) {
    if (!isTerminal() || std::chrono::steady_clock::now() - start_ < std::chrono::seconds(1))
        return;
    // A line that fills the terminal could continue on the next one, which is not erased.
    const std::string step = "[" + std::to_string(begun + 1) + "/" + std::to_string(all) + "] " + std::string(what);
    const std::string line = eraseLine + fitted(step, terminalColumns() - 1);
    std::fputs(line.c_str(), stderr);
    isShown_ = true;
}

void ProgressLine::erase() {
    if (isShown_)
        std::fputs(eraseLine, stderr);
    isShown_ = false;
}

Exit print(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0)
        return Exit::done;
    return fail(Runtime::systemError("standard output", "cannot be written"));
}

Exit write(const std::string& output, std::string_view bytes) {
    if (output == "-")
        return print(bytes);
    const auto done = Runtime::writeFile(output, bytes);
    return done ? Exit::done : fail(done.error());
}

} // namespace Tools
