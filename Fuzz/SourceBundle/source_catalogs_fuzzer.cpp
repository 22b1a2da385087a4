// Reads any bytes as the Contents.json of an image set, a colour set, a data set, a symbol set and a folder: each
// message names a file of the catalog, and each asset has only files of its set and valid colours.
#include "SourceBundle/Catalogs.h"

#include "../../Tests/Support/TemporaryFolder.h"
#include "../Require.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace {

namespace fs = std::filesystem;

// A source in which all Contents.json files are hard links to one file. It is made once, so that only one file is
// written for each input.
class Source {
public:
    Source() : contents_(folder_.write("contents", "")) {
        folder_.write("secret", "");
        for (const char* set : {"A.xcassets/Folder/i.imageset", "A.xcassets/Folder/c.colorset", "A.xcassets/d.dataset",
                                "A.xcassets/Folder/s.symbolset"}) {
            folder_.write(std::string(set) + "/1.png", "");
            fs::create_directory(folder_ / set / "folder");
            fs::create_symlink(folder_ / "secret", folder_ / set / "link");
            fs::create_hard_link(contents_, folder_ / set / "Contents.json");
        }
        fs::create_hard_link(contents_, folder_ / "A.xcassets/Folder/Contents.json");
    }

    const fs::path& path() const { return folder_.path(); }
    void setContents(const std::uint8_t* data, std::size_t size) const {
        std::ofstream(contents_, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }

private:
    Support::TemporaryFolder folder_;
    fs::path contents_;
};

void requireSound(const SourceBundle::SourceAsset& asset) {
    require(asset.catalog == "A" && asset.files.empty() != asset.colors.empty());
    const std::string name = asset.path.stem();
    require(asset.name == name || asset.name == "Folder/" + name);
    for (const SourceBundle::SetFile& file : asset.files) {
        for (const AssetCatalog::Insets& insets : {file.capInsets, file.alignmentInsets})
            for (const double inset : {insets.top, insets.left, insets.bottom, insets.right})
                require(std::isfinite(inset));
        // Not "secret", which is outside the set; but an entry may name Contents.json itself.
        require(file.path == asset.path / "1.png" || file.path == asset.path / "Contents.json");
        require(file.fit.scale <= 9); // "9x"
    }
    // The limits that Docs/catalogs.md states.
    for (const AssetCatalog::Color& color : asset.colors) {
        const auto& components = color.value.components;
        require(std::ranges::all_of(components, [](double component) { return std::abs(component) <= 16; }));
        require(components[3] >= 0 && components[3] <= 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Source source;
    source.setContents(data, size);
    SourceBundle::Diagnostics diagnostics;
    const fs::path catalogs[] = {source.path() / "A.xcassets"};
    const auto acceptPicture = [](const SourceBundle::SetFile&) { return Runtime::Result<void>(); };
    for (const SourceBundle::SourceAsset& asset : SourceBundle::sourceAssets(catalogs, diagnostics, acceptPicture))
        requireSound(asset);
    for (const SourceBundle::Diagnostic& one : diagnostics.all())
        require(!one.what.message.empty() && one.what.file.starts_with((source.path() / "A.xcassets/").native()));
    return 0;
}
