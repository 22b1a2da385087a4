#include "SourceBundle/Catalogs.h"

#include "SourceBundle/SetContents.h"
#include <array>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
using AssetCatalog::Kind;

namespace {

constexpr int maxFolderDepth = 64;

std::vector<fs::path> sortedEntries(const fs::path& folder, Diagnostics& diagnostics) {
    std::vector<fs::path> entries;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        entries.push_back(entry->path());
    if (failed)
        diagnostics.add(Severity::error, {.message = "cannot be read: " + failed.message(), .file = folder});
    std::ranges::sort(entries);
    return entries;
}

bool isFolder(const fs::path& path) {
    std::error_code failed;
    return fs::is_directory(fs::symlink_status(path, failed)); // a link would lead out
}

bool isLinkedFolder(const fs::path& path) {
    std::error_code failed;
    return fs::is_symlink(fs::symlink_status(path, failed)) && fs::is_directory(path, failed);
}

// Sets of kinds that a catalog does not hold. Any other folder is there for order, whatever its name.
bool isOtherSet(const fs::path& folder) {
    static constexpr std::array<std::string_view, 21> extensions = {
        ".appiconset",      ".arreferenceimage", ".arreferenceobject", ".arresourcegroup", ".brandassets",
        ".complicationset", ".cubetextureset",   ".gcdashboardimage",  ".gcleaderboard",   ".gcleaderboardset",
        ".iconset",         ".imagestack",       ".imagestacklayer",   ".launchimage",     ".mipmapset",
        ".solidimagestack", ".spriteatlas",      ".stickerpack",       ".stickersiconset", ".symbolset",
        ".textureset"};
    return std::ranges::find(extensions, folder.extension().string()) != extensions.end();
}

std::optional<Kind> kindOf(const fs::path& set) {
    static constexpr std::array<std::pair<std::string_view, Kind>, 3> kinds = {
        {{".imageset", Kind::image}, {".colorset", Kind::color}, {".dataset", Kind::data}}};
    for (const auto& [extension, kind] : kinds)
        if (set.extension() == extension)
            return kind;
    return std::nullopt;
}

class CatalogReader {
public:
    CatalogReader(std::vector<SourceAsset>& assets, Diagnostics& diagnostics)
        : assets_(assets), diagnostics_(diagnostics) {}

    void read(const fs::path& catalog) {
        catalog_ = catalog.stem();
        readFolder(catalog, "", 0);
    }

private:
    void readFolder(const fs::path& folder, const std::string& prefix, int depth) {
        if (depth > maxFolderDepth)
            return diagnostics_.add(Severity::error,
                                    {.message = "has too many folders in one another", .file = folder});
        std::vector<fs::path> entries = sortedEntries(folder, diagnostics_);
        std::stable_partition(entries.begin(), entries.end(),
                              [](const fs::path& entry) { return kindOf(entry).has_value(); });
        for (const fs::path& entry : entries) {
            if (isLinkedFolder(entry))
                diagnostics_.add(Severity::note, {.message = "is a link, which is left out", .file = entry});
            if (!isFolder(entry) || entry.filename().string().starts_with('.'))
                continue;
            if (const std::optional<Kind> kind = kindOf(entry))
                readAsset(entry, *kind, prefix + entry.stem().string());
            else if (isOtherSet(entry))
                diagnostics_.add(Severity::note,
                                 {.message = "is a set of another kind, which is left out", .file = entry});
            else
                readFolder(entry,
                           providesNamespace(entry, diagnostics_) ? prefix + entry.filename().string() + "/" : prefix,
                           depth + 1);
        }
    }

    void readAsset(const fs::path& set, Kind kind, std::string name) {
        SourceAsset asset{.kind = kind, .catalog = catalog_, .name = std::move(name), .path = set};
        const std::size_t before = diagnostics_.all().size();
        readSet(asset, diagnostics_);
        if (asset.files.empty() && asset.colors.empty()) {
            if (diagnostics_.all().size() == before || diagnostics_.all().back().severity != Severity::error)
                diagnostics_.add(Severity::warning, {.message = "holds no variant and is left out", .file = set});
            return;
        }
        assets_.push_back(std::move(asset));
    }

    std::vector<SourceAsset>& assets_;
    Diagnostics& diagnostics_;
    std::string catalog_;
};

} // namespace

std::vector<SourceAsset> sourceAssets(std::span<const fs::path> catalogs, Diagnostics& diagnostics) {
    std::vector<SourceAsset> assets;
    CatalogReader reader(assets, diagnostics);
    for (const fs::path& catalog : catalogs)
        reader.read(catalog);
    return assets;
}

} // namespace SourceBundle
