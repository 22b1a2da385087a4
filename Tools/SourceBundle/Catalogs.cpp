#include "SourceBundle/Catalogs.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/Json.h"
#include "SourceBundle/LowerCase.h"
#include "SourceBundle/Parallel.h"
#include "SourceBundle/SetContents.h"
#include "SourceBundle/SourceFiles.h" // maxFolderDepth
#include "SourcePictures/PictureFile.h"
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
using AssetCatalog::Kind;

namespace {

// Whether the folder is a set of an unsupported kind. Folders with unknown extensions only group sets.
bool isUnsupportedSet(const fs::path& folder) {
    static constexpr std::array<std::string_view, 20> extensions = {
        ".appiconset",      ".arreferenceimage", ".arreferenceobject", ".arresourcegroup", ".brandassets",
        ".complicationset", ".cubetextureset",   ".gcdashboardimage",  ".gcleaderboard",   ".gcleaderboardset",
        ".iconset",         ".imagestack",       ".imagestacklayer",   ".launchimage",     ".mipmapset",
        ".solidimagestack", ".spriteatlas",      ".stickerpack",       ".stickersiconset", ".textureset"};
    return std::ranges::find(extensions, folder.extension().string()) != extensions.end();
}

struct SetKind {
    std::string_view extension;
    Kind kind;
};

std::optional<Kind> kindOf(const fs::path& set) {
    static constexpr std::array<SetKind, 4> kinds = {{{".imageset", Kind::image},
                                                      {symbolExtension, Kind::image},
                                                      {".colorset", Kind::color},
                                                      {".dataset", Kind::data}}};
    const auto* const found = std::ranges::find(kinds, set.extension().string(), &SetKind::extension);
    return found == kinds.end() ? std::nullopt : std::optional(found->kind);
}

// Whether the folder's name is a prefix of the asset names below it, according to its Contents.json.
bool providesNamespace(const fs::path& folder, Diagnostics& diagnostics) {
    const fs::path file = folder / contentsName;
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(file, failed)))
        return false;
    auto contents = readJsonObject(file, diagnostics);
    if (contents)
        return member(member(*contents, "properties"), "provides-namespace") == Json(true);
    contents.error().message += "; the folder does not provide a namespace";
    diagnostics.add(Severity::warning, std::move(contents.error()));
    return false;
}

// Finds the sets of catalogs without reading the sets.
class SetFinder {
public:
    explicit SetFinder(Diagnostics& diagnostics) : diagnostics_(diagnostics) {}

    void findIn(const fs::path& catalog) {
        catalog_ = catalog.stem();
        findInFolder(catalog, "", 0);
    }
    std::vector<SourceAsset> take() { return std::move(sets_); }

private:
    // The names of the assets begin with `prefix`. `depth`: the number of folders between the catalog and the entries.
    void findInFolder(const fs::path& folder, const std::string& prefix, int depth) {
        if (depth > maxFolderDepth)
            return diagnostics_.add(Severity::error, {.message = "is nested too deeply", .file = folder});
        std::vector<fs::directory_entry> entries = sortedEntries(folder, diagnostics_);
        // Not std::ranges::stable_partition: clang 14 cannot compile it with this standard library.
        std::stable_partition(entries.begin(), entries.end(),
                              [](const fs::directory_entry& entry) { return kindOf(entry.path()).has_value(); });
        for (const fs::directory_entry& entry : entries) {
            std::error_code failed;
            if (!entry.is_directory(failed))
                continue;
            // Links to folders could lead out of the source.
            if (entry.is_symlink(failed))
                diagnostics_.add(Severity::note,
                                 {.message = "is a link to a folder and is left out", .file = entry.path()});
            else
                examine(entry.path(), prefix, depth);
        }
    }

    void examine(const fs::path& folder, const std::string& prefix, int depth) {
        if (const std::optional<Kind> kind = kindOf(folder))
            sets_.push_back(
                {.kind = *kind, .catalog = catalog_, .name = prefix + folder.stem().string(), .path = folder});
        else if (isUnsupportedSet(folder))
            diagnostics_.add(Severity::note,
                             {.message = "is a set of an unsupported kind and is left out", .file = folder});
        else if (const fs::path lower = lowerCase(folder.filename()); kindOf(lower)) // with capitals it is not a group
            diagnostics_.add(
                Severity::warning,
                {.message = "is left out: its extension must be " + lower.extension().string(), .file = folder});
        else
            findInFolder(folder,
                         providesNamespace(folder, diagnostics_) ? prefix + folder.filename().string() + "/" : prefix,
                         depth + 1);
    }

    Diagnostics& diagnostics_;
    std::vector<SourceAsset> sets_;
    std::string catalog_;
};

} // namespace

Runtime::Result<void> checkPicture(const SetFile& file) {
    const auto bytes = Runtime::readFile(file.path, SourcePictures::maxFileBytes);
    if (!bytes)
        return bytes.error();
    auto checked = SourcePictures::check(*bytes, purposeOf(file));
    if (!checked)
        checked.error().file = file.path;
    return checked;
}

std::vector<SourceAsset> sourceAssets(std::span<const fs::path> catalogs, Diagnostics& diagnostics,
                                      const PictureCheck& check) {
    SetFinder finder(diagnostics);
    for (const fs::path& catalog : catalogs)
        finder.findIn(catalog);
    std::vector<SourceAsset> assets = finder.take();
    std::vector<Diagnostics> messages(assets.size());
    inParallel(assets.size(), [&](std::size_t i) { readSet(assets[i], check, messages[i]); });
    for (const Diagnostics& ofOne : messages)
        diagnostics.add(ofOne);
    std::erase_if(assets, [](const SourceAsset& asset) { return asset.files.empty() && asset.colors.empty(); });
    return assets;
}

} // namespace SourceBundle
