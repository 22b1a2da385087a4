// Lumora/LegacyImages.h
// The pictures that older screens know by fixed names, each under two: legacyAddDiet() and addDiet().
// Threads: any; a picture is looked up at the first read under either name, once, and later reads give the same object.
// Ownership: the pictures live until the process ends. One that is missing stops the process.
#pragma once

#include "Runtime/Export.h"
#include "UIKit/UIImage.h"
#include <string>

namespace Lumora::UIImage {

#define LEGACY_IMAGE(name, olderName, asset)                                                                           \
    [[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& name();                                                          \
    [[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& olderName();
// Names of pictures; nothing is looked up.
#define LEGACY_NAME(name, olderName, asset)                                                                            \
    [[nodiscard]] LUMORA_EXPORT std::string name();                                                                    \
    [[nodiscard]] LUMORA_EXPORT std::string olderName();
#include "Lumora/LegacyImages.inc"
#undef LEGACY_IMAGE
#undef LEGACY_NAME

} // namespace Lumora::UIImage
