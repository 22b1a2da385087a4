// Publishes the module's functions on image and colour types to callers that use messages.
#include "Lumora/LegacyImages.h"
#include "Lumora/LumoraConveniences.h"
#include "Lumora/ProgressColors.h"
#include "Runtime/Class.h"

namespace Lumora {

namespace {

std::optional<UIKit::UIImage> assetNamed(const std::string& name) {
    return UIImage::assetNamed(name);
}

// Callers see them in this order.
#define LEGACY_IMAGE(name, olderName, asset) Runtime::message<&UIImage::olderName>(#olderName),
#define LEGACY_NAME(name, olderName, asset) Runtime::message<&UIImage::olderName>(#olderName),
constexpr Runtime::Message imageProperties[] = {
#include "Lumora/internal/LegacyImages.inc"
};
#undef LEGACY_IMAGE
#undef LEGACY_NAME
constexpr Runtime::Message imageMethods[] = {Runtime::message<&assetNamed>("assetNamed:")};
constexpr Runtime::Class image("UIImage", imageProperties, imageMethods);
LUMORA_PUBLISH_CLASS(image);

constexpr Runtime::Message colorMethods[] = {Runtime::message<&UIColor::colorForProgress>("colorForProgress:")};
constexpr Runtime::Class color("UIColor", {}, colorMethods);
LUMORA_PUBLISH_CLASS(color);

} // namespace

} // namespace Lumora
