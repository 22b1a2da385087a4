#include "Check/Usage.h"

#include "Check/Identifiers.h"
#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include "Runtime/internal/File.h"
#include "Runtime/internal/NameMap.h"
#include "SourceBundle/SetContents.h"
#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace Check {

namespace fs = std::filesystem;
using Generator::Model;
using SourceBundle::Diagnostics;

namespace {

constexpr std::size_t maxCodeBytes = std::size_t{64} << 20;

struct Accessor {
    std::string_view name;
    std::string_view group;                           // the innermost namespace
    Finding finding;                                  // reported if it is not used
    const SourceBundle::SourceEntry* entry = nullptr; // null for an asset
    bool isUsed = false;
};

// "C" for "A::B::C".
std::string_view innermost(std::string_view groups) {
    const std::size_t colon = groups.rfind(':');
    return groups.substr(colon == groups.npos ? 0 : colon + 1);
}

class Accessors {
public:
    Accessors(const Model& model, std::string_view language) {
        for (const Generator::AccessorTable& table : model.tables)
            for (const Generator::NamedEntry& entry : table.entries)
                add(table, entry, language);
        for (const Generator::AssetConstant& constant : model.assetTree.constants)
            add(constant);
        for (std::size_t i = 0; i < all_.size(); ++i)
            byName_[all_[i].name].push_back(i);
    }

    // Marks all accessors that `qualifier::name` may refer to; the qualifier may be empty or an alias.
    void use(std::string_view name, std::string_view qualifier) {
        const auto found = byName_.find(name);
        if (found == byName_.end())
            return;
        const auto isInGroup = [&](std::size_t number) { return all_[number].group == qualifier; };
        const bool isGroupGiven = std::ranges::any_of(found->second, isInGroup);
        for (const std::size_t number : found->second)
            all_[number].isUsed |= !isGroupGiven || isInGroup(number);
    }

    void report(Report& report) const {
        for (const Accessor& accessor : all_)
            if (!accessor.isUsed &&
                (accessor.entry == nullptr || !Report::isAllowed(Rule::unusedAccessor, *accessor.entry)))
                report.add(accessor.finding);
    }

private:
    void add(const Generator::AccessorTable& table, const Generator::NamedEntry& entry, std::string_view language) {
        const SourceBundle::SourceEntry& text = *entry.source;
        const std::string groups = table.spelling + (entry.groups.empty() ? "" : "::") + entry.groups;
        all_.push_back(
            {.name = entry.name,
             .group = entry.groups.empty() ? std::string_view(table.spelling) : innermost(entry.groups),
             .finding = {.rule = Rule::unusedAccessor,
                         .file = text.file->path,
                         .line = text.line,
                         .column = text.column,
                         .language = text.file->language.empty() ? std::string(language) : text.file->language,
                         .subject = std::string(text.key),
                         .message = "the accessor " + groups + "::" + entry.name + " is not used"},
             .entry = &text});
    }
    void add(const Generator::AssetConstant& constant) {
        all_.push_back(
            {.name = constant.name,
             .group = innermost(constant.groups),
             .finding = {.rule = Rule::unusedAccessor,
                         .file = constant.asset->path / SourceBundle::contentsName,
                         .line = 1,
                         .column = 1,
                         .language = {},
                         .subject = constant.asset->name,
                         .message = "the constant " + constant.groups + "::" + constant.name + " is not used"}});
    }

    std::vector<Accessor> all_;
    Runtime::NameMap<std::vector<std::size_t>, std::string_view> byName_; // indices in all_
};

bool isCodeFile(const fs::path& file) {
    static constexpr std::array<std::string_view, 19> extensions = {
        ".c",   ".C",   ".cc",  ".cpp", ".cppm", ".cxx", ".c++", ".h",  ".H",  ".hh",
        ".hpp", ".hxx", ".h++", ".inc", ".inl",  ".ipp", ".ixx", ".mm", ".tpp"};
    return std::ranges::find(extensions, file.extension().string()) != extensions.end();
}

// Whether the entries of the folder can be read; if not, adds an error.
bool isReadable(const fs::path& folder, Diagnostics& diagnostics) {
    std::error_code failed;
    const fs::directory_iterator entries(folder, failed);
    if (failed)
        diagnostics.add(Severity::error, {.message = "cannot be read: " + failed.message(), .file = folder});
    return !failed;
}

// The C and C++ files in the folder and its subfolders, sorted, without hidden ones. Links to folders are not followed.
std::vector<fs::path> codeFilesIn(const fs::path& folder, Diagnostics& diagnostics) {
    std::vector<fs::path> files;
    if (!isReadable(folder, diagnostics))
        return files;
    std::error_code failed;
    fs::recursive_directory_iterator at(folder, failed);
    for (const fs::recursive_directory_iterator end; !failed && at != end; at.increment(failed)) {
        const fs::path& path = at->path();
        std::error_code ignored;
        if (path.filename().string().starts_with('.') ||
            (at->is_directory(ignored) && !at->is_symlink(ignored) && !isReadable(path, diagnostics)))
            at.disable_recursion_pending();
        else if (at->is_regular_file(ignored) && isCodeFile(path))
            files.push_back(path);
    }
    if (failed)
        diagnostics.add(Severity::error, {.message = "cannot be read: " + failed.message(), .file = folder});
    std::ranges::sort(files);
    return files;
}

} // namespace

void checkUsage(const Model& model, std::string_view language, std::span<const fs::path> folders, Report& report,
                Diagnostics& diagnostics) {
    Accessors accessors(model, language);
    for (const fs::path& folder : folders)
        for (const fs::path& file : codeFilesIn(folder, diagnostics)) {
            auto code = Runtime::readFile(file, maxCodeBytes);
            if (!code)
                diagnostics.add(Severity::warning, std::move(code.error()));
            else if (!code->starts_with(Generator::generatedMark))
                forEachIdentifier(
                    *code, [&](std::string_view name, std::string_view qualifier) { accessors.use(name, qualifier); });
        }
    accessors.report(report);
}

} // namespace Check
