#include "SourceBundle/SetContents.h"

#include "AssetCatalog/internal/Catalog.h" // limits
#include "SourceBundle/ColorComponents.h"
#include "SourceBundle/EntryPlaces.h"
#include "SourceBundle/ImageLayout.h"
#include "SourceBundle/Json.h"
#include "SourceBundle/KnownProperties.h"
#include "SourceBundle/MessageText.h"
#include "SourceBundle/SetEntry.h"
#include "SourceBundle/SystemColors.h"
#include "StringTables/internal/BundleLayout.h"
#include <algorithm>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
using AssetCatalog::Kind;

namespace {

// The name of the list of entries.
const char* listName(const SourceAsset& asset) {
    switch (asset.kind) {
    case Kind::image:
        return asset.path.extension() == symbolExtension ? "symbols" : "images";
    case Kind::color:
        return "colors";
    case Kind::data:
        break;
    }
    return "data";
}

AssetCatalog::Rendering renderingOf(const SourceAsset& asset, const Json& properties) {
    const std::string intent = text(properties, "template-rendering-intent");
    if (intent == "template")
        return AssetCatalog::Rendering::asTemplate;
    if (intent == "original")
        return AssetCatalog::Rendering::original;
    // Symbols are templates by default.
    return asset.path.extension() == symbolExtension ? AssetCatalog::Rendering::asTemplate
                                                     : AssetCatalog::Rendering::automatic;
}

// An entry becomes at most four variants in the compiled catalog: a drawing has pictures for its scale and for 1, 2, 3.
constexpr std::size_t maxEntries = AssetCatalog::maxVariants / 4;

// Whether both are for the same traits and language.
bool hasSameTraits(const auto& one, const auto& other) {
    return one.fit == other.fit && one.language == other.language;
}

class SetReader {
public:
    SetReader(SourceAsset& asset, const PictureCheck& check, Diagnostics& diagnostics)
        : asset_(asset), check_(check), diagnostics_(diagnostics), places_(asset.path / contentsName, listName(asset)) {
    }

    void read(const Json& json) {
        properties_ = member(json, "properties");
        asset_.rendering = renderingOf(asset_, properties_);
        reportUnknownProperties(properties_, KnownProperties::ofSet, "the set");
        std::vector<SetEntry> entries = filledEntries(member(json, listName(asset_)));
        std::ranges::stable_sort(entries, isPreferred, &SetEntry::device);
        // Use the first kind of device that has a usable variant.
        auto rest = entries.begin();
        while (rest != entries.end() && isEmpty()) {
            const SetEntry::Device device = rest->device;
            for (; rest != entries.end() && rest->device == device; ++rest)
                add(*rest);
            chosen_ = device;
        }
        for (const SetEntry& entry : std::span(rest, entries.end()))
            report(Severity::note, entry,
                   "is for other devices (" + entry.device.text() + ") and is left out: the variants for " +
                       chosen_.text() + " are used");
        addSystemColorVariants();
    }

    bool isEmpty() const { return asset_.files.empty() && asset_.colors.empty(); }

private:
    std::vector<SetEntry> filledEntries(const Json& list) {
        std::vector<SetEntry> entries;
        if (!list.is_array())
            return entries;
        std::size_t number = 0;
        for (const Json& json : list) {
            ++number;
            if (!json.is_object())
                continue;
            SetEntry entry = readEntry(json, number);
            reportUnknownProperties(json, KnownProperties::ofEntry, entry.label());
            if (!entry.isFilled())
                continue;
            if (member(json, "unassigned") == Json(true))
                report(Severity::note, entry, "is not assigned to any variant and is left out",
                       Topic::unassignedVariant);
            else
                entries.push_back(std::move(entry));
        }
        return entries;
    }

    void reportUnknownProperties(const Json& object, KnownProperties known, const std::string& owner) {
        for (const std::string& name : unknownProperties(object, known))
            report(Severity::note, owner + " has the property " + quotedName(name) + ", which is ignored");
    }

    void add(const SetEntry& entry) {
        if (isBeyondLimits(entry) || isDuplicate(entry))
            return;
        if (asset_.kind == Kind::color)
            addColor(entry);
        else
            addFile(entry);
    }

    // Whether a compiled catalog could not hold the variant, which gives a warning.
    bool isBeyondLimits(const SetEntry& entry) {
        const bool hasLongText =
            std::max(entry.language.size(), typeIdentifierOf(entry).size()) > AssetCatalog::maxOtherTextBytes;
        if (!hasLongText && asset_.files.size() + asset_.colors.size() < maxEntries)
            return false;
        report(Severity::warning, entry,
               hasLongText ? "has a language or type identifier that is too long and is left out"
                           : "is left out: a set has at most " + std::to_string(maxEntries) + " variants",
               Topic::unreadableAsset);
        return true;
    }
    static std::string typeIdentifierOf(const SetEntry& entry) {
        return text(*entry.json, "universal-type-identifier");
    }

    // Whether an earlier entry is for the same traits and language, which gives a warning.
    bool isDuplicate(const SetEntry& entry) {
        const auto isSame = [&](const auto& variant) { return hasSameTraits(variant, entry); };
        if (std::ranges::none_of(asset_.files, isSame) && std::ranges::none_of(asset_.colors, isSame))
            return false;
        report(Severity::warning, entry, "is for the same traits as an earlier entry and is left out",
               Topic::duplicateVariant);
        return true;
    }

    void addFile(const SetEntry& entry) {
        const std::optional<fs::path> path = pathOf(entry);
        if (!path)
            return;
        SetFile file{.fit = entry.fit, .language = entry.language, .path = *path};
        file.typeIdentifier = typeIdentifierOf(entry);
        file.isSymbol = asset_.path.extension() == symbolExtension;
        file.preservesVector = member(properties_, "preserves-vector-representation") == Json(true);
        if (asset_.kind == Kind::image) {
            readLayout(*entry.json, file);
            if (auto usable = check_(file); !usable)
                return reportUnusable(std::move(usable.error()));
        }
        asset_.files.push_back(std::move(file));
    }

    // The entry's file; no value if it is unusable, which gives a warning.
    std::optional<fs::path> pathOf(const SetEntry& entry) {
        const std::string name = text(*entry.json, "filename");
        std::error_code failed;
        // No file outside of the set may get into a catalog.
        if (!name.empty() && !StringTables::bundleLayout::isFileName(name)) {
            report(Severity::warning, entry, "is a file outside of its set and is left out", Topic::unreadableAsset);
            return std::nullopt;
        }
        const fs::path file = asset_.path / name;
        const fs::file_status status = fs::symlink_status(file, failed);
        if (fs::is_regular_file(status))
            return file;
        if (!fs::exists(status))
            report(Severity::warning, entry, "is a file that does not exist and is left out", Topic::missingFile);
        else if (fs::is_symlink(status))
            report(Severity::warning, entry, "is a link, which is not followed, and is left out",
                   Topic::unreadableAsset);
        else
            report(Severity::warning, entry, "is not a regular file and is left out", Topic::unreadableAsset);
        return std::nullopt;
    }

    void addColor(const SetEntry& entry) {
        const Json& color = member(*entry.json, "color");
        if (const std::string reference = text(color, "reference"); !reference.empty())
            return addSystemColor(entry, reference);
        const auto value = colorValue(color);
        if (!value)
            return report(Severity::warning, entry, value.error().message + " and is left out", Topic::unreadableAsset);
        asset_.colors.push_back({entry.fit, entry.language, *value});
    }

    void addSystemColor(const SetEntry& entry, const std::string& reference) {
        const std::optional<SystemColor> color = systemColor(reference);
        if (!color)
            return report(Severity::warning, entry,
                          "is the unknown system colour " + quotedName(reference) + " and is left out",
                          Topic::unreadableAsset);
        const bool isDark = entry.fit.appearance == AssetCatalog::Appearance::dark;
        asset_.colors.push_back({entry.fit, entry.language, isDark ? color->dark : color->light});
        if (entry.fit.appearance != AssetCatalog::Appearance::any)
            return;
        AssetCatalog::Color dark{entry.fit, entry.language, color->dark};
        dark.fit.appearance = AssetCatalog::Appearance::dark;
        systemColorVariants_.push_back(dark);
    }

    // Adds the dark variants of system colours unless the set defines its own.
    void addSystemColorVariants() {
        for (const AssetCatalog::Color& variant : systemColorVariants_)
            if (std::ranges::none_of(asset_.colors, [&](const auto& color) { return hasSameTraits(color, variant); }))
                asset_.colors.push_back(variant);
    }

    // After a system error the picture may still be usable: this is an error, not a warning about a bad picture.
    void reportUnusable(Runtime::Error error) {
        if (error.cause != 0)
            diagnostics_.add(Severity::error, std::move(error), Topic::unreadableAsset, asset_.name);
        else
            diagnostics_.add(Severity::warning, leftOut(std::move(error)), Topic::unreadableAsset, asset_.name);
    }
    static Runtime::Error leftOut(Runtime::Error error) {
        error.message += "; it is left out";
        return error;
    }
    // Adds a message located at the entry, whose label `what` continues: "entry 3 (...) is not a regular file".
    void report(Severity severity, const SetEntry& entry, std::string_view what, Topic topic = Topic::other) {
        Runtime::Error error = places_.of(entry.number);
        error.message = entry.label().append(" ").append(what);
        diagnostics_.add(severity, std::move(error), topic, asset_.name);
    }
    void report(Severity severity, std::string message) {
        diagnostics_.add(severity, {.message = std::move(message), .file = places_.file()});
    }

    SourceAsset& asset_;
    const PictureCheck& check_;
    Diagnostics& diagnostics_;
    EntryPlaces places_;
    Json properties_;
    SetEntry::Device chosen_;
    std::vector<AssetCatalog::Color> systemColorVariants_; // the dark ones of system colours without a luminosity
};

// Adds `messages`, those about a set without a usable variant. The last warning also says that the set is left out; if
// there is no warning, an additional one says so, unless there is an error.
void reportEmptySet(const SourceAsset& asset, const Diagnostics& messages, Diagnostics& diagnostics) {
    const auto isWarning = [](const Diagnostic& one) { return one.severity == Severity::warning; };
    const auto isError = [](const Diagnostic& one) { return one.severity == Severity::error; };
    const auto warnings = std::ranges::count_if(messages.all(), isWarning);
    std::ptrdiff_t seen = 0;
    for (const Diagnostic& one : messages.all()) {
        Diagnostic message = one;
        if (isWarning(one) && ++seen == warnings)
            message.what.message += ", and with it the set, which has no usable variant";
        diagnostics.add(message);
    }
    if (warnings == 0 && std::ranges::none_of(messages.all(), isError))
        diagnostics.add(Severity::warning, {.message = "has no usable variant and is left out", .file = asset.path});
}

} // namespace

void readSet(SourceAsset& asset, const PictureCheck& check, Diagnostics& diagnostics) {
    if (asset.name.size() > AssetCatalog::maxNameBytes)
        return diagnostics.add(Severity::warning,
                               {.message = "is left out: its name with its folders is too long", .file = asset.path},
                               Topic::unreadableAsset);
    auto json = readJsonObject(asset.path / contentsName, diagnostics);
    if (!json && json.error().isTransient())
        return diagnostics.add(Severity::error, std::move(json.error()), Topic::unreadableAsset, asset.name);
    if (!json) {
        json.error().message += "; the set is left out";
        return diagnostics.add(Severity::warning, std::move(json.error()), Topic::unreadableAsset, asset.name);
    }
    Diagnostics messages;
    SetReader reader(asset, check, messages);
    reader.read(*json);
    if (reader.isEmpty())
        return reportEmptySet(asset, messages, diagnostics);
    for (const Diagnostic& one : messages.all())
        diagnostics.add(one);
}

SourcePictures::Purpose purposeOf(const SetFile& file) {
    return {.isSymbol = file.isSymbol, .scale = file.fit.scale, .preservesVector = file.preservesVector};
}

} // namespace SourceBundle
