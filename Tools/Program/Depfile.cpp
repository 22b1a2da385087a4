#include "Program/Depfile.h"

#include "Program/Command.h"
#include "Runtime/internal/File.h"
#include <CLI/CLI.hpp>
#include <filesystem>
#include <string_view>

namespace Tools {

namespace fs = std::filesystem;

namespace {

// Escapes a path for a makefile: '$', spaces and '#', and the backslashes directly before a space, a '#' or the end.
// Other backslashes stand for themselves.
std::string escaped(std::string_view path) {
    std::string out;
    std::size_t backslashes = 0; // directly before `c`
    for (const char c : path) {
        if (c == ' ' || c == '#')
            out.append(backslashes + 1, '\\');
        else if (c == '$')
            out += '$';
        out += c;
        backslashes = c == '\\' ? backslashes + 1 : 0;
    }
    return out.append(backslashes, '\\');
}

void appendPrerequisite(std::string& rule, const fs::path& path) {
    rule += " \\\n  ";
    rule += escaped(fs::absolute(path).string());
}

} // namespace

void Depfile::addOptions(CLI::App& command) {
    auto* file = command.add_option("--depfile", path, "Write a makefile rule with the files that this command reads")
                     ->check(notEmpty());
    auto* ruleTarget =
        command.add_option("--depfile-target", target, "The target of the makefile's rule")->check(notEmpty());
    file->needs(ruleTarget);
    ruleTarget->needs(file);
}

Runtime::Result<void> Depfile::write(const std::vector<std::string>& inputs) const {
    if (path.empty())
        return {};
    std::string rule = escaped(target) + ":";
    for (const std::string& input : inputs) {
        appendPrerequisite(rule, input);
        std::error_code failed;
        for (fs::recursive_directory_iterator it(input, fs::directory_options::skip_permission_denied, failed), end;
             !failed && it != end; it.increment(failed))
            appendPrerequisite(rule, it->path());
    }
    return Runtime::writeFile(path, rule + "\n");
}

} // namespace Tools
