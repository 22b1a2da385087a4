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

// Whether makefiles, CMake's included, can have the path as a prerequisite. They cannot if it has one of these
// characters, for which no escape works in all of them, or is read as a member of an archive: "lib(member)".
bool isReadableByMake(std::string_view path) {
    return path.find_first_of(";:|\t\n") == path.npos && !path.ends_with(')');
}

// The prerequisites of a rule. Each also has an empty rule, without which make stops if the file does not exist.
class Prerequisites {
public:
    void add(const fs::path& path) {
        const std::string absolute = fs::absolute(path).string();
        if (isReadableByMake(absolute))
            append(absolute);
        else
            isComplete_ = false;
    }

    // `missing`: the path of a file that does not exist. If some path could not be added, the target depends on that
    // file, so that it is always made again.
    std::string take(const fs::path& missing) {
        if (!isComplete_)
            append(fs::absolute(missing).string());
        return list_ + "\n" + emptyRules_;
    }

private:
    void append(const std::string& path) {
        const std::string name = escaped(path);
        list_.append(" \\\n  ").append(name);
        emptyRules_.append(name).append(":\n");
    }

    std::string list_, emptyRules_;
    bool isComplete_ = true;
};

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
    Prerequisites prerequisites;
    for (const std::string& input : inputs) {
        prerequisites.add(input);
        std::error_code failed;
        for (fs::recursive_directory_iterator it(input, fs::directory_options::skip_permission_denied, failed), end;
             !failed && it != end; it.increment(failed))
            prerequisites.add(it->path());
    }
    return Runtime::writeFile(path, escaped(target) + ":" + prerequisites.take(target + ".always"));
}

} // namespace Tools
