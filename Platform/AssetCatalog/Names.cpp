// The names of enumerators in source catalogs and messages.
#include "AssetCatalog/internal/Model.h"

namespace AssetCatalog {

std::string_view nameOf(Kind kind) noexcept {
    switch (kind) {
    case Kind::image:
        return "image";
    case Kind::color:
        return "color";
    case Kind::data:
        break;
    }
    return "data";
}

std::string_view nameOf(ColorSpace space) noexcept {
    switch (space) {
    case ColorSpace::srgb:
        return "srgb";
    case ColorSpace::extendedSrgb:
        return "extended-srgb";
    case ColorSpace::displayP3:
        return "display-p3";
    case ColorSpace::gray:
        break;
    }
    return "gray-gamma-22";
}

} // namespace AssetCatalog
