#include "SourceBundle/ImageLayout.h"

#include <algorithm>

namespace SourceBundle {

using AssetCatalog::Insets;

namespace {

Insets insetsOf(const Json& insets, std::uint8_t scale) {
    const double pixelsPerPoint = std::max<std::uint8_t>(scale, 1); // scale 0 is for every scale
    const auto points = [&](const char* edge) { return number(insets, edge) / pixelsPerPoint; };
    return {points("top"), points("left"), points("bottom"), points("right")};
}

} // namespace

void readLayout(const Json& entry, SetFile& file) {
    file.alignmentInsets = insetsOf(member(entry, "alignment-insets"), file.fit.scale);
    const Json& resizing = member(entry, "resizing");
    Insets caps = insetsOf(member(resizing, "cap-insets"), file.fit.scale);
    const std::string mode = text(resizing, "mode");
    if (mode.starts_with("3-part-horizontal"))
        caps = {.left = caps.left, .right = caps.right};
    else if (mode.starts_with("3-part-vertical"))
        caps = {.top = caps.top, .bottom = caps.bottom};
    file.capInsets = caps;
    if (text(member(resizing, "center"), "mode") == "tile")
        file.resizing = AssetCatalog::Resizing::tile;
}

} // namespace SourceBundle
