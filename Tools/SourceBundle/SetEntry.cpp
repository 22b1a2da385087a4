#include "SourceBundle/SetEntry.h"

#include "SourceBundle/LowerCase.h"
#include "SourceBundle/MessageText.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

namespace SourceBundle {

using AssetCatalog::Fit;

namespace {

std::size_t rankOf(std::string_view idiom) {
    static constexpr std::array<std::string_view, 9> idioms = {"universal", "iphone", "ipad",  "mac", "vision",
                                                               "reality",   "tv",     "watch", "car"};
    return static_cast<std::size_t>(std::ranges::find(idioms, idiom) - idioms.begin());
}

// This and the next two functions read a property into `fit`. They return false if its value is not supported.
bool readAppearance(const Json& appearance, Fit& fit) {
    const std::string kind = text(appearance, "appearance");
    const std::string value = text(appearance, "value");
    if (kind == "luminosity" && value == "dark")
        fit.appearance = AssetCatalog::Appearance::dark;
    else if (kind == "luminosity" && value == "light")
        fit.appearance = AssetCatalog::Appearance::light;
    else if (kind == "contrast" && value == "high")
        fit.contrast = AssetCatalog::Contrast::high;
    else
        return false;
    return true;
}

bool readDirection(std::string_view direction, Fit& fit) {
    if (direction == "left-to-right")
        fit.direction = AssetCatalog::Direction::leftToRight;
    else if (direction == "right-to-left")
        fit.direction = AssetCatalog::Direction::rightToLeft;
    else
        return direction.empty();
    return true;
}

// "1x" to "9x".
bool readScale(std::string_view scale, Fit& fit) {
    if (scale.empty())
        return true;
    if (scale.size() != 2 || scale[0] < '1' || scale[0] > '9' || scale[1] != 'x')
        return false;
    fit.scale = static_cast<std::uint8_t>(scale[0] - '0');
    return true;
}

// The conditions that Lumora never meets: all but the default values "any" and "sRGB". An entry with conditions is used
// only if no other is usable.
std::vector<std::string> conditionsOf(const Json& entry) {
    static constexpr std::array names = {"subtype", "screen-width",         "width-class",  "height-class",
                                         "memory",  "graphics-feature-set", "display-gamut"};
    std::vector<std::string> conditions;
    for (const char* name : names)
        if (const std::string value = text(entry, name); !value.empty() && value != "sRGB" && value != "any")
            conditions.push_back(std::string(name) + " " + quotedName(value));
    return conditions;
}

// The width that a condition requires: 145 for "<=145", 162 for ">161". A missing or too large number counts as 0.
std::int64_t screenWidth(std::string_view condition) {
    const std::size_t digits = std::min(condition.find_first_of("0123456789"), condition.size());
    int width = 0;
    std::from_chars(condition.data() + digits, condition.data() + condition.size(), width);
    return std::int64_t{width} + (condition.starts_with('>') ? 1 : 0);
}

} // namespace

std::string SetEntry::Device::text() const {
    std::string all = "idiom " + quotedName(idiom);
    for (const std::string& condition : conditions)
        all.append(", ").append(condition);
    return all;
}

bool SetEntry::isFilled() const {
    return !SourceBundle::text(*json, "filename").empty() || json->contains("color");
}

std::string SetEntry::label() const {
    const std::string file = SourceBundle::text(*json, "filename");
    return "entry " + std::to_string(number) + (file.empty() ? "" : " (" + quotedName(file) + ")");
}

bool isPreferred(const SetEntry::Device& one, const SetEntry::Device& other) {
    if (one.conditions.empty() != other.conditions.empty())
        return one.conditions.empty();
    if (one.rank != other.rank)
        return one.rank < other.rank;
    if (one.conditions.size() != other.conditions.size())
        return one.conditions.size() < other.conditions.size();
    return one.screenWidth > other.screenWidth; // among watch sizes the widest is closest to other screens
}

SetEntry readEntry(const Json& json, std::size_t number) {
    SetEntry entry{.json = &json, .number = number};
    entry.language = withHyphens(text(json, "locale"));
    entry.device.conditions = conditionsOf(json);
    entry.device.screenWidth = screenWidth(text(json, "screen-width"));
    if (std::string idiom = text(json, "idiom"); !idiom.empty())
        entry.device.idiom = std::move(idiom);
    entry.device.rank = rankOf(entry.device.idiom);
    const auto addCondition = [&](const char* name, const std::string& value) {
        entry.device.conditions.push_back(std::string(name) + " " + quotedName(value));
    };
    if (const Json& appearances = member(json, "appearances"); appearances.is_array())
        for (const Json& appearance : appearances)
            if (!readAppearance(appearance, entry.fit))
                addCondition("appearance", text(appearance, "value"));
    if (const std::string direction = text(json, "language-direction"); !readDirection(direction, entry.fit))
        addCondition("language-direction", direction);
    if (const std::string scale = text(json, "scale"); !readScale(scale, entry.fit))
        addCondition("scale", scale);
    std::ranges::sort(entry.device.conditions);
    return entry;
}

} // namespace SourceBundle
