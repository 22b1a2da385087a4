#include "AssetCatalog/internal/Fit.h"

#include <algorithm>

namespace AssetCatalog {

namespace {

// The distance, 0 to 2, for a trait whose enumerators are `any`, the more common value and the other one, in this
// order.
template <class Trait> std::uint32_t threeWay(Trait offered, Trait wanted) noexcept {
    if (offered == wanted)
        return 0;
    if (wanted == Trait::any)
        return static_cast<std::uint32_t>(offered);
    return offered == Trait::any ? 1 : 2;
}

// Whether `part` is `tag` or a prefix of its subtags: "pt" and "pt-BR" for "pt-BR".
bool isTagOrItsBeginning(std::string_view part, std::string_view tag) noexcept {
    return tag.starts_with(part) && (tag.size() == part.size() || tag[part.size()] == '-');
}

// Below 1024; scale 0 is any scale. Scales are below 256, so 512 puts all smaller ones after all larger ones.
std::uint32_t scaleDistance(std::uint32_t offered, std::uint32_t wanted) noexcept {
    if (offered == wanted)
        return 0;
    if (offered == 0)
        return 1;
    return offered > wanted ? 1 + (offered - wanted) : 512 + (wanted - offered);
}

} // namespace

std::uint32_t distance(Fit offered, Fit wanted) noexcept {
    std::uint32_t sum = threeWay(offered.direction, wanted.direction);
    sum = sum * 3 + threeWay(offered.appearance, wanted.appearance);
    sum = sum * 2 + (offered.contrast != wanted.contrast ? 1 : 0);
    return sum * 1024 + scaleDistance(offered.scale, wanted.scale);
}

std::uint32_t languageDistance(std::string_view offered, std::span<const std::string> wanted) noexcept {
    // A match has the place of its language times 256, plus the number of characters that it lacks.
    // Languages whose distance would reach `forAll` are ignored.
    constexpr std::uint32_t forAll = std::uint32_t{1} << 24;
    if (offered.empty())
        return forAll;
    std::uint32_t placeTimes256 = 0;
    for (const std::string& language : wanted.first(std::min<std::size_t>(wanted.size(), forAll >> 8))) {
        if (isTagOrItsBeginning(offered, language))
            return placeTimes256 +
                   static_cast<std::uint32_t>(std::min<std::size_t>(language.size() - offered.size(), 255));
        placeTimes256 += 256;
    }
    return forAll + 1;
}

} // namespace AssetCatalog
