#include "Lumora/RegionalImages.h"

#include "Lumora/LumoraAsset/Internal/RecordFactory.h"
#include <initializer_list>

namespace Lumora::UIImage {

namespace {

// Kept because the application's module declares it. It stays empty and unused, so that LumoraResources::bundle() is
// the only way to the bundle.
class ResourceBundleClass {};

using Candidates = std::initializer_list<const char*>;

UIKit::UIImage load(const char* name) {
    return LumoraAssetModule::RecordFactory::image(name).image();
}

// The first candidate that ends with the region, or the fallback.
UIKit::UIImage regional(Candidates candidates, const char* fallback, std::string_view region) {
    for (const char* name : candidates)
        if (std::string_view(name).ends_with(region))
            return load(name);
    return load(fallback);
}

UIKit::UIImage bySex(bool isMale, Candidates male, Candidates female, std::string_view region) {
    const Candidates candidates = isMale ? male : female;
    return regional(candidates, *candidates.begin(), region);
}

// The pictures for one training target.
struct Target {
    const char *maleRu, *femaleRu, *maleAr, *others;
};
UIKit::UIImage target(const Target& names, std::string_view gender, std::string_view region) {
    if (region == "ru" && gender == "male")
        return load(names.maleRu);
    if (region == "ru" && gender == "female")
        return load(names.femaleRu);
    return load(region == "ar" && gender == "male" ? names.maleAr : names.others);
}

} // namespace

UIKit::UIImage assetSubscriptionWoman(std::string_view region) {
    return regional(
        {"subscription_woman.arab", "subscription_woman.asia", "subscription_woman.latina", "subscription_woman.usa"},
        "subscription_woman", region);
}

UIKit::UIImage assetSubscriptionMan(std::string_view region) {
    return regional({"subscription_man.arab", "subscription_man.asia", "subscription_man.usa"}, "subscription_man",
                    region);
}

UIKit::UIImage assetSex(bool isMale, std::string_view region) {
    return bySex(isMale, {"sexBoy", "sexBoy.arab"}, {"sexGirl", "sexGirl.arab"}, region);
}

UIKit::UIImage assetGym(bool isMale, std::string_view region) {
    return bySex(isMale, {"gymBoy", "gymBoy.arab"}, {"gymGirl", "gymGirl.arab"}, region);
}

UIKit::UIImage assetHome(bool isMale, std::string_view region) {
    return bySex(isMale, {"homeBoy"}, {"homeGirl", "homeGirl.arab"}, region);
}

UIKit::UIImage assetDefaultCourse(bool isMale, std::string_view region) {
    return bySex(isMale, {"defaultCourseBoy", "defaultCourseBoy.arab"}, {"defaultCourseGirl", "defaultCourseGirl.arab"},
                 region);
}

UIKit::UIImage assetEquipment(bool isMale, std::string_view region) {
    return bySex(isMale, {"boy_equipment", "boy_equipment.arab"}, {"girl_equipment", "girl_equipment.arab"}, region);
}

UIKit::UIImage assetNoEquipment(bool isMale, std::string_view region) {
    return bySex(isMale, {"boy_no_equipment", "boy_no_equipment.arab"}, {"girl_no_equipment", "girl_no_equipment.arab"},
                 region);
}

std::optional<UIKit::UIImage> assetOnboarding(std::int64_t step, std::string_view region) {
    switch (step) {
    case 1:
        return assetOnboardingStep1(region);
    case 2:
        return assetOnboardingStep2(region);
    case 3:
        return assetOnboardingStep3(region);
    case 4:
        return assetOnboardingStep4(region);
    default:
        return std::nullopt;
    }
}

UIKit::UIImage assetOnboardingStep1(std::string_view region) {
    return regional({"onboarding.1.arab", "onboarding.1.asia", "onboarding.1.europe", "onboarding.1.latina"},
                    "onboarding.1.usa", region);
}

UIKit::UIImage assetOnboardingStep2(std::string_view region) {
    return regional({"onboarding.2.arab"}, "onboarding.2", region);
}

std::optional<UIKit::UIImage> assetOnboardingStep3(std::string_view region) {
    return regional({"onboarding.3.arab", "onboarding.3.asia", "onboarding.3.europe", "onboarding.3.latina"},
                    "onboarding.3.usa", region);
}

std::optional<UIKit::UIImage> assetOnboardingStep4(std::string_view region) {
    return regional({"onboarding.4.arab", "onboarding.4.asia", "onboarding.4.europe", "onboarding.4.latina"},
                    "onboarding.4.usa", region);
}

UIKit::UIImage trainingTagetLossImage(std::string_view gender, std::string_view region) {
    return target({"male_training_target_weight_loss_ru", "female_training_target_weight_loss_ru",
                   "male_training_target_weight_loss_ar", "female_training_target_weight_loss_ar"},
                  gender, region);
}

UIKit::UIImage trainingTagetGainImage(std::string_view gender, std::string_view region) {
    return target({"male_training_target_weight_gain_ru", "female_training_target_weight_gain_ru",
                   "male_training_target_weight_gain_ar", "female_training_target_weight_gain_ar"},
                  gender, region);
}

UIKit::UIImage trainingTagetMaintainImage(std::string_view gender, std::string_view region) {
    return target({"male_training_target_maintain_ru", "female_training_target_maintain_ru",
                   "male_training_target_maintain_ar", "female_training_target_maintain_ar"},
                  gender, region);
}

} // namespace Lumora::UIImage
