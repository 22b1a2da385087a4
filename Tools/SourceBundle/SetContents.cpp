#include "SourceBundle/SetContents.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/ColorComponents.h"
#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

namespace SourceBundle {

namespace fs = std::filesystem;
using AssetCatalog::Fit;
using AssetCatalog::Kind;
using Json = nlohmann::json;

namespace {

constexpr std::size_t maxContentsBytes = std::size_t{16} << 20;

// The place of a byte as line and column, counted from 1.
Runtime::Error errorAt(const fs::path& file, std::string_view text, std::size_t byte, std::string message) {
    const std::string_view before = text.substr(0, std::min(byte, text.size()));
    const auto lines = static_cast<std::size_t>(std::ranges::count(before, '\n'));
    const std::size_t lineBegin = before.rfind('\n') + 1; // npos + 1 is the text's own begin
    return {.message = std::move(message), .file = file, .line = lines + 1, .column = before.size() - lineBegin + 1};
}

// The object that a Contents.json holds. No value after a diagnostic, or when the file is not there and need not be.
std::optional<Json> contents(const fs::path& folder, bool isNeeded, Diagnostics& diagnostics) {
    const fs::path file = folder / "Contents.json";
    if (std::error_code failed; !isNeeded && !fs::exists(file, failed))
        return std::nullopt;
    auto text = Runtime::readFile(file, maxContentsBytes);
    if (!text) {
        // A set without it is an accident of one asset; one that is there and cannot be read is nobody's intention.
        std::error_code failed;
        diagnostics.add(fs::exists(file, failed) ? Severity::error : Severity::warning, std::move(text.error()));
        return std::nullopt;
    }
    try {
        Json json = Json::parse(*text);
        if (json.is_object())
            return json;
        diagnostics.add(Severity::error, errorAt(file, *text, 0, "is no JSON object"));
    } catch (const Json::out_of_range&) {
        diagnostics.add(Severity::error, errorAt(file, *text, 0, "holds a number that is too large"));
    } catch (const Json::parse_error& wrong) {
        const std::size_t at = wrong.byte == 0 ? 0 : wrong.byte - 1;
        diagnostics.add(Severity::error, errorAt(file, *text, at, "is no JSON: something else was expected here"));
    }
    return std::nullopt;
}

// Members of objects that may be missing or of another type.
std::string text(const Json& object, const char* name) {
    const auto found = object.find(name);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}
const Json& member(const Json& object, const char* name) {
    static const Json none;
    const auto found = object.is_object() ? object.find(name) : object.end();
    return object.is_object() && found != object.end() ? *found : none;
}

// What an entry of a set is for, if a catalog knows such a variant.
std::optional<Fit> fitOf(const Json& entry) {
    Fit fit;
    for (const Json& appearance : member(entry, "appearances")) {
        const std::string kind = appearance.is_object() ? text(appearance, "appearance") : std::string();
        const std::string value = appearance.is_object() ? text(appearance, "value") : std::string();
        if (kind == "luminosity" && value == "dark")
            fit.appearance = AssetCatalog::Appearance::dark;
        else if (kind == "luminosity" && value == "light")
            fit.appearance = AssetCatalog::Appearance::light;
        else if (kind == "contrast" && value == "high")
            fit.contrast = AssetCatalog::Contrast::high;
        else
            return std::nullopt;
    }
    const std::string direction = text(entry, "language-direction");
    if (direction == "left-to-right")
        fit.direction = AssetCatalog::Direction::leftToRight;
    else if (direction == "right-to-left")
        fit.direction = AssetCatalog::Direction::rightToLeft;
    const std::string scale = text(entry, "scale");
    if (scale.size() == 2 && scale[0] >= '1' && scale[0] <= '9' && scale[1] == 'x')
        fit.scale = static_cast<std::uint8_t>(scale[0] - '0');
    return fit;
}

// Whether an entry is for a device, screen or memory of its own, which no reader here asks for.
bool isSpecial(const Json& entry) {
    static constexpr std::array names = {"subtype", "screen-width", "width-class",          "height-class",
                                         "memory",  "locale",       "graphics-feature-set", "display-gamut"};
    return std::ranges::any_of(names, [&](const char* name) {
        const std::string value = text(entry, name);
        return !value.empty() && value != "sRGB" && value != "any";
    });
}

// The kinds of device in the order in which their pictures are taken: those of a phone before those of other devices.
std::size_t rankOf(const Json& entry) {
    static constexpr std::array<std::string_view, 4> idioms = {"universal", "iphone", "ipad", "mac"};
    const std::string idiom = text(entry, "idiom");
    return static_cast<std::size_t>(std::ranges::find(idioms, idiom.empty() ? "universal" : idiom) - idioms.begin());
}

class SetReader {
public:
    SetReader(SourceAsset& asset, Diagnostics& diagnostics) : asset_(asset), diagnostics_(diagnostics) {}

    void read(const Json& json) {
        asset_.isTemplate = text(member(json, "properties"), "template-rendering-intent") == "template";
        const char* list = asset_.kind == Kind::image ? "images" : asset_.kind == Kind::color ? "colors" : "data";
        std::vector<const Json*> entries;
        for (const Json& entry : member(json, list))
            if (entry.is_object() &&
                (!text(entry, "filename").empty() || entry.contains("color"))) // else an empty place
                entries.push_back(&entry);
        // The kinds of device in their order, until one gives a variant that can be used.
        std::ranges::stable_sort(entries, {}, [](const Json* entry) { return rankOf(*entry); });
        for (const Json* entry : entries) {
            const std::optional<Fit> fit = fitOf(*entry);
            const bool isDecided = rank_ && *rank_ != rankOf(*entry);
            if (!fit || isSpecial(*entry) || isDecided)
                diagnostics_.add(Severity::note, {.message = "has a variant for special devices, which is left out",
                                                  .file = asset_.path / "Contents.json"});
            else if (asset_.kind == Kind::color ? addColor(*fit, member(*entry, "color")) : addFile(*fit, *entry))
                rank_ = rankOf(*entry);
        }
    }

private:
    // Whether there is a variant more.
    bool addFile(Fit fit, const Json& entry) {
        const std::string name = text(entry, "filename");
        const fs::path file = asset_.path / name;
        std::error_code failed;
        // A name is one component, and what it names lies in the set: nothing else of the machine gets into a catalog.
        if (name == "." || name == ".." || name.find('/') != std::string::npos)
            return refuse("names a file outside of its set: \"" + name + "\"", asset_.path / "Contents.json");
        if (name.find('\0') != std::string::npos) // to the system it would end there, and name another file
            return refuse("names a file with a zero in its name", asset_.path / "Contents.json");
        if (fs::is_symlink(fs::symlink_status(file, failed)))
            return refuse("is a link; a set holds its files itself", file);
        if (!fs::is_regular_file(file, failed))
            return leaveOut("is missing", file);
        asset_.files.push_back({.fit = fit, .path = file, .typeIdentifier = text(entry, "universal-type-identifier")});
        return true;
    }

    bool addColor(Fit fit, const Json& color) {
        const fs::path file = asset_.path / "Contents.json";
        if (color.is_object() && !text(color, "reference").empty())
            return leaveOut("refers to a colour of the system, which is not supported: " + text(color, "reference"),
                            file);
        const Json& components = member(color, "components");
        const std::string spaceName = color.is_object() ? text(color, "color-space") : std::string();
        const std::optional<AssetCatalog::ColorSpace> space = colorSpaceNamed(spaceName);
        if (!space)
            return leaveOut("has a colour space that is not supported: " + spaceName, file);
        auto value = colorFrom(*space, [&](const char* name) -> std::optional<std::string> {
            const Json& component = member(components, name);
            if (component.is_string())
                return component.get<std::string>();
            if (!component.is_number())
                return std::nullopt;
            const auto number = component.get<double>(); // written with a point: 1 is the whole, not one of 255
            return (number >= 0 && number <= 1 ? Json(number) : component).dump();
        });
        if (!value)
            return refuse(value.error().message, file);
        value->fit = fit;
        asset_.colors.push_back(*value);
        return true;
    }

    // Both say what is wrong with a variant, which there is none of then.
    bool refuse(std::string message, const fs::path& file) { return say(Severity::error, std::move(message), file); }
    bool leaveOut(std::string message, const fs::path& file) {
        return say(Severity::warning, std::move(message), file);
    }
    bool say(Severity severity, std::string message, const fs::path& file) {
        diagnostics_.add(severity, {.message = std::move(message), .file = file});
        return false;
    }

    SourceAsset& asset_;
    Diagnostics& diagnostics_;
    std::optional<std::size_t> rank_; // of the kind of device whose variants are taken
};

} // namespace

void readSet(SourceAsset& asset, Diagnostics& diagnostics) {
    if (const std::optional<Json> json = contents(asset.path, true, diagnostics))
        SetReader(asset, diagnostics).read(*json);
}

bool providesNamespace(const fs::path& folder, Diagnostics& diagnostics) {
    const std::optional<Json> json = contents(folder, false, diagnostics);
    return json && member(member(*json, "properties"), "provides-namespace") == Json(true);
}

} // namespace SourceBundle
