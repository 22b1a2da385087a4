#include "AssetCatalog/internal/Fit.h"

#include <algorithm>

namespace AssetCatalog {

namespace {

// Of a quality with three values of which 0 is "any" and 1 the more usual: 0 to 2.
template <class Quality> std::uint32_t threeWay(Quality offered, Quality wanted) noexcept {
    if (offered == wanted)
        return 0;
    if (wanted == Quality::any)
        return static_cast<std::uint32_t>(offered);
    return offered == Quality::any ? 1 : 2;
}

// Below 1024.
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

std::size_t bestFit(std::span<const Fit> offered, Fit wanted) noexcept {
    const auto best = std::ranges::min_element(offered, {}, [&](Fit fit) { return distance(fit, wanted); });
    return static_cast<std::size_t>(best - offered.begin());
}

} // namespace AssetCatalog
