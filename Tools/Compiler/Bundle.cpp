#include "Compiler/Bundle.h"

#include "Compiler/Assets.h"
#include "Compiler/StagedFolder.h"
#include "Compiler/Tables.h"

namespace Compiler {

namespace fs = std::filesystem;

namespace {

bool contains(const fs::path& folder, const fs::path& other) {
    std::error_code failed;
    const fs::path relative =
        fs::weakly_canonical(other, failed).lexically_relative(fs::weakly_canonical(folder, failed));
    return !relative.empty() && *relative.begin() != "..";
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
    if (auto written = compileTables(source, *staged, progress); !written)
        return written;
    if (auto written = compileAssets(source.catalogs, *staged, diagnostics, progress); !written)
        return written;
    if (diagnostics.hasErrors())
        return {};
    return staged->putInPlace();
}

} // namespace Compiler
