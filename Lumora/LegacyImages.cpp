#include "Lumora/LegacyImages.h"

#include "Lumora/LumoraAsset/Internal/RecordFactory.h"
#include "Runtime/OnceSlot.h"

namespace Lumora::UIImage {

#define LEGACY_IMAGE(name, publishedName, asset)                                                                       \
    const UIKit::UIImage& name() {                                                                                     \
        static constinit Runtime::OnceSlot<UIKit::UIImage> slot;                                                       \
        return slot.get([] { return LumoraAssetModule::RecordFactory::image(asset).image(); });                        \
    }                                                                                                                  \
    const UIKit::UIImage& publishedName() {                                                                            \
        return name();                                                                                                 \
    }
#define LEGACY_NAME(name, publishedName, asset)                                                                        \
    std::string name() {                                                                                               \
        return asset;                                                                                                  \
    }                                                                                                                  \
    std::string publishedName() {                                                                                      \
        return name();                                                                                                 \
    }
#include "Lumora/internal/LegacyImages.inc"
#undef LEGACY_IMAGE
#undef LEGACY_NAME

} // namespace Lumora::UIImage
