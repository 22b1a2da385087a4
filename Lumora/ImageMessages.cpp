// Publishes the module's functions on image and colour types to callers that use messages.
#include "Lumora/LegacyImages.h"
#include "Lumora/LumoraConveniences.h"
#include "Lumora/ProgressColors.h"
#include "Runtime/Class.h"

namespace Lumora {

namespace {

// Pictures and names are both properties, published in the order of this list.
#define LEGACY_IMAGE(name, publishedName, asset) Runtime::method<&UIImage::publishedName>(#publishedName),
#define LEGACY_NAME(name, publishedName, asset) Runtime::method<&UIImage::publishedName>(#publishedName),
constexpr Runtime::Method imageProperties[] = {
#include "Lumora/internal/LegacyImages.inc"
};
#undef LEGACY_IMAGE
#undef LEGACY_NAME
constexpr Runtime::Method imageMethods[] = {Runtime::method<&UIImage::assetNamed>("assetNamed:")};
constexpr Runtime::Class image("UIImage", imageProperties, imageMethods);
LUMORA_PUBLISH_CLASS(image);

constexpr Runtime::Method colorMethods[] = {Runtime::method<&UIColor::colorForProgress>("colorForProgress:")};
constexpr Runtime::Class color("UIColor", {}, colorMethods);
LUMORA_PUBLISH_CLASS(color);

} // namespace

} // namespace Lumora
