#include "Compiler/Bundle.h"

#include "Compiler/Assets.h"
#include "Compiler/StagedFolder.h"
#include "Compiler/Tables.h"
#include "Runtime/internal/File.h"
#include <array>
#include <string>

namespace Compiler {

namespace fs = std::filesystem;

namespace {

// Whether `other` is `folder` or below it.
bool contains(const fs::path& folder, const fs::path& other) {
    std::error_code failed;
    const fs::path relative =
        fs::weakly_canonical(other, failed).lexically_relative(fs::weakly_canonical(folder, failed));
    return !relative.empty() && *relative.begin() != "..";
}

// The content of the last compile's mark file; empty if it is missing, unreadable or too large.
std::string contentOfMark(const fs::path& bundle) {
    constexpr std::size_t maxMarkBytes = std::size_t{256} << 20;
    auto mark = Runtime::readFile(bundle / SourceBundle::compiledMark, maxMarkBytes);
    return mark ? *std::move(mark) : "";
}

} // namespace

Runtime::Result<void> compileBundle(const SourceBundle::Source& source, std::span<const fs::path> folders,
                                    const fs::path& bundle, SourceBundle::Diagnostics& diagnostics,
                                    const Progress& progress) {
    for (const fs::path& folder : folders)
        if (contains(bundle, folder))
            return Runtime::Error{.message = "is or contains the source " + folder.string(), .file = bundle};
    auto staged = StagedFolder::create(bundle);
    if (!staged)
        return std::move(staged.error());
    const std::string lastMark = contentOfMark(staged->target());
    // With errors no bundle is written, so no tables are made; pictures are still checked.
    const auto tableLines = diagnostics.hasErrors() ? Runtime::Result<std::string>(std::string())
                                                    : compileTables(source, *staged, lastMark, diagnostics, progress);
    if (!tableLines)
        return tableLines.error();
    const auto pictureLines = compileAssets(source.catalogs, *staged, lastMark, diagnostics, progress);
    if (!pictureLines)
        return pictureLines.error();
    if (diagnostics.hasErrors())
        return {};
    const std::array<std::string_view, 3> mark = {markText, *tableLines, *pictureLines};
    if (auto written = staged->write(SourceBundle::compiledMark, mark); !written)
        return written;
    return staged->putInPlace();
}

} // namespace Compiler
