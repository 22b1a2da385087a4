#include "Program/Command.h"

#include "Runtime/internal/File.h"
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>

namespace Tools {

namespace {

using SourceBundle::Severity;

bool isTerminal() {
    static const bool answer = ::isatty(STDERR_FILENO) == 1;
    return answer;
}

// One line is one line, whatever a file's name or a text holds.
std::string withoutControls(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return line;
}

void say(Severity severity, std::string_view what) {
    static constexpr const char* words[] = {"note: ", "warning: ", ""};
    static constexpr const char* colors[] = {"\033[36m", "\033[33m", "\033[31m"};
    const auto index = static_cast<std::size_t>(severity);
    std::string line = isTerminal() ? std::string("\r\033[K") + colors[index] + "lumora:\033[0m " : "lumora: ";
    line.append(words[index]);
    line += withoutControls(what);
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace

CLI::Validator named() {
    return {[](const std::string& path) { return path.empty() ? "the name is empty" : ""; }, ""};
}

Exit fail(const Runtime::Error& error) {
    say(Severity::error, error.text());
    return Exit::wrongUse;
}

void note(std::string_view what) {
    say(Severity::note, what);
}

Exit report(const SourceBundle::Diagnostics& diagnostics) {
    for (const SourceBundle::Diagnostic& diagnostic : diagnostics.all())
        say(diagnostic.severity, diagnostic.what.text());
    return diagnostics.hasErrors() ? Exit::wrongUse : Exit::done;
}

void showProgress(std::string_view what, std::size_t done, std::size_t all) {
    if (!isTerminal())
        return;
    if (done == all)
        std::fputs("\r\033[K", stderr);
    else
        std::fprintf(stderr, "\r\033[K[%zu/%zu] %.*s", done + 1, all, static_cast<int>(what.size()), what.data());
}

Exit print(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0)
        return Exit::done;
    return fail({.message = std::string("cannot be written: ") + std::strerror(errno), .file = "standard output"});
}

Exit write(const std::string& output, std::string_view bytes) {
    if (output == "-")
        return print(bytes);
    const auto done = Runtime::writeFile(output, bytes);
    return done ? Exit::done : fail(done.error());
}

} // namespace Tools
