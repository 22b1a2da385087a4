#include "Check/AssetRules.h"

#include "AssetCatalog/internal/Model.h"
#include "Generator/CodeText.h"
#include "SourceBundle/EntryPlaces.h"
#include "SourceBundle/LowerCase.h"
#include "SourceBundle/SetContents.h"
#include "SourceBundle/SetEntry.h"
#include <algorithm>
#include <bitset>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Check {

namespace fs = std::filesystem;
using AssetCatalog::Appearance;
using AssetCatalog::Kind;
using Generator::quote;
using SourceBundle::Json;
using SourceBundle::SetEntry;
using SourceBundle::SourceAsset;

namespace {

constexpr std::size_t maxScale = 3;       // of a screen
using Scales = std::bitset<maxScale + 1>; // bit 2 for 2x; bit 0 is not used

// The folder of an asset, read again.
struct Set {
    const SourceAsset* asset;
    Json contents;
    std::vector<SetEntry> entries; // those that are assigned to a variant; they point into `contents`
    SourceBundle::EntryPlaces places;
};

bool isUnassigned(const Json& entry) {
    return SourceBundle::member(entry, "unassigned") == Json(true);
}

// Whether the picture is a vector drawing, judged by its file's name.
bool isVector(const SetEntry& entry) {
    const fs::path file = SourceBundle::lowerCase(SourceBundle::text(*entry.json, "filename"));
    return file.extension() == ".pdf" || file.extension() == ".svg";
}

bool isDark(const SetEntry& entry) {
    return entry.fit.appearance == Appearance::dark;
}

// The entries of a set that differ only in their scale.
struct Variant {
    std::string idiom;
    bool isDark = false;
    bool isForEveryScale = false; // a vector, or a bitmap without a scale or for more than 3x
    Scales filled;                // the scales that have a bitmap
    const SetEntry* first = nullptr;
};

std::vector<Variant> variantsOf(const Set& set) {
    std::map<std::string, Variant> byIdentity;
    for (const SetEntry& entry : set.entries) {
        std::string identity = entry.device.text() + '\n' + entry.language;
        for (const int part : {static_cast<int>(entry.fit.appearance), static_cast<int>(entry.fit.contrast),
                               static_cast<int>(entry.fit.direction)})
            identity += '\n' + std::to_string(part);
        Variant& variant = byIdentity[identity];
        if (variant.first == nullptr)
            variant = {.idiom = entry.device.idiom,
                       .isDark = isDark(entry),
                       .isForEveryScale = false,
                       .filled = {},
                       .first = &entry};
        if (!entry.isFilled())
            continue;
        if (entry.fit.scale == 0 || entry.fit.scale > maxScale || isVector(entry))
            variant.isForEveryScale = true;
        else
            variant.filled.set(entry.fit.scale);
    }
    std::vector<Variant> variants;
    variants.reserve(byIdentity.size());
    for (auto& [identity, variant] : byIdentity)
        variants.push_back(std::move(variant));
    return variants;
}

// The screen scales of a kind of device, except 1x: few catalogs have 1x bitmaps, because larger ones can be scaled
// down.
Scales scalesOf(std::string_view idiom) {
    if (idiom == "universal" || idiom == "iphone" || idiom == "car")
        return 0b1100; // 2x, 3x
    return 0b0100;     // 2x
}

std::string textOf(const Scales& scales) {
    std::string text;
    for (std::size_t scale = 1; scale <= maxScale; ++scale)
        if (scales[scale])
            text.append(text.empty() ? "" : ", ").append(std::to_string(scale)).append("x");
    return text;
}

class AssetCheck {
public:
    AssetCheck(std::span<const SourceAsset> assets, Report& report) : report_(report) {
        for (const SourceAsset& asset : assets)
            if (asset.kind != Kind::data && asset.path.extension() != SourceBundle::symbolExtension)
                readSet(asset);
    }

    void run() {
        const bool needs1x = is1xUsual();
        const std::set<std::string_view> darkCatalogs = catalogsWithDarkColors();
        for (Set& set : sets_) {
            const bool isInDarkCatalog = darkCatalogs.contains(set.asset->catalog);
            if (set.asset->kind == Kind::image)
                checkScales(set, needs1x);
            checkDark(set, set.asset->kind == Kind::color && isInDarkCatalog);
        }
    }

private:
    void readSet(const SourceAsset& asset) {
        SourceBundle::Diagnostics ignored; // they were reported when the source was read
        auto json = SourceBundle::readJsonObject(asset.path / SourceBundle::contentsName, ignored);
        if (!json)
            return; // deleted or damaged since it was read
        Set& set = sets_.emplace_back(
            Set{&asset, *std::move(json), {}, {asset.path / SourceBundle::contentsName, listNameOf(asset)}});
        std::size_t number = 0;
        for (const Json& entry : SourceBundle::member(set.contents, listNameOf(asset)))
            if (++number; entry.is_object() && !isUnassigned(entry))
                set.entries.push_back(SourceBundle::readEntry(entry, number));
    }

    static const char* listNameOf(const SourceAsset& asset) { return asset.kind == Kind::color ? "colors" : "images"; }

    // Whether most variants with bitmaps for several scales have one for 1x.
    bool is1xUsual() const {
        std::size_t all = 0, with1x = 0;
        for (const Set& set : sets_)
            for (const Variant& variant : variantsOf(set))
                if (variant.filled.count() > 1) {
                    ++all;
                    with1x += variant.filled[1];
                }
        return with1x * 2 > all;
    }

    std::set<std::string_view> catalogsWithDarkColors() const {
        std::set<std::string_view> catalogs;
        for (const Set& set : sets_)
            if (set.asset->kind == Kind::color && std::ranges::any_of(set.entries, isFilledDark))
                catalogs.insert(set.asset->catalog);
        return catalogs;
    }

    static bool isFilledDark(const SetEntry& entry) { return isDark(entry) && entry.isFilled(); }

    void checkScales(Set& set, bool needs1x) {
        for (const Variant& variant : variantsOf(set)) {
            if (variant.isForEveryScale || variant.filled.none())
                continue;
            Scales needed = scalesOf(variant.idiom);
            needed[1] = needs1x;
            if (const Scales missing = needed & ~variant.filled; missing.any())
                report(set, *variant.first, Rule::assetMissingScale,
                       " has no bitmap for " + textOf(missing) + (variant.isDark ? " in dark mode" : ""));
        }
    }

    // Reports a set whose entries for dark mode are all empty, or, if `isExpected`, a colour that has no such entry.
    void checkDark(Set& set, bool isExpected) {
        if (std::ranges::any_of(set.entries, isFilledDark))
            return;
        const auto dark = std::ranges::find_if(set.entries, isDark);
        const bool isSystemColor = std::ranges::any_of(set.entries, [](const SetEntry& entry) {
            return !SourceBundle::text(SourceBundle::member(*entry.json, "color"), "reference").empty();
        });
        if (dark != set.entries.end())
            report(set, *dark, Rule::assetMissingDark, " has an empty entry for dark mode");
        else if (isExpected && !isSystemColor && !set.entries.empty())
            report(set, set.entries.front(), Rule::assetMissingDark,
                   " has no colour for dark mode, but others in its catalog have");
    }

    void report(Set& set, const SetEntry& entry, Rule rule, const std::string& what) {
        const Runtime::Error place = set.places.of(entry.number);
        report_.add({.rule = rule,
                     .file = place.file,
                     .line = static_cast<std::uint32_t>(place.line),
                     .column = static_cast<std::uint32_t>(place.column),
                     .language = {},
                     .subject = set.asset->name,
                     .message = "the asset " + quote(set.asset->name) + what});
    }

    Report& report_;
    std::deque<Set> sets_; // a deque, because entries point into the sets
};

} // namespace

void checkAssets(std::span<const SourceAsset> assets, Report& report) {
    AssetCheck(assets, report).run();
}

} // namespace Check
