// Lumora/RegionalImages.h
// Pictures that come in variants for a market region and for the user's sex.
// A region is "arab", "asia", "europe", "latina" or "usa". Each function has a list of pictures and returns the first
// whose name ends with the region, so an empty region gives the first one; a region without a picture gives the default
// picture, which has no region in its name or, for most onboarding steps, "usa". The functions for training targets are
// different: their regions are "ru" and "ar" and their genders "male" and "female", compared exactly.
// Text: UTF-8. Threads: any. Errors: a missing picture stops the process; when memory or descriptors run out,
// std::bad_alloc or std::system_error is thrown.
#pragma once

#include "Runtime/Export.h"
#include "UIKit/UIImage.h"
#include <cstdint>
#include <optional>
#include <string_view>

namespace Lumora::UIImage {

[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetSubscriptionWoman(std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetSubscriptionMan(std::string_view region);

[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetSex(bool isMale, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetGym(bool isMale, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetHome(bool isMale, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetDefaultCourse(bool isMale, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetEquipment(bool isMale, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetNoEquipment(bool isMale, std::string_view region);

// No value for a step other than 1 to 4.
[[nodiscard]] LUMORA_EXPORT std::optional<UIKit::UIImage> assetOnboarding(std::int64_t step, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetOnboardingStep1(std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage assetOnboardingStep2(std::string_view region);
// Always have a value; the type is optional for existing callers.
[[nodiscard]] LUMORA_EXPORT std::optional<UIKit::UIImage> assetOnboardingStep3(std::string_view region);
[[nodiscard]] LUMORA_EXPORT std::optional<UIKit::UIImage> assetOnboardingStep4(std::string_view region);

// There are pictures of Russian men and women and of Arab men; all others get the picture of an Arab woman. "Taget" is
// a misspelled "target"; existing callers use these names.
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage trainingTagetLossImage(std::string_view gender, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage trainingTagetGainImage(std::string_view gender, std::string_view region);
[[nodiscard]] LUMORA_EXPORT UIKit::UIImage trainingTagetMaintainImage(std::string_view gender, std::string_view region);

} // namespace Lumora::UIImage
