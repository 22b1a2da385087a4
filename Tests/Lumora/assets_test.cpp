#include <Lumora/Lumora.h>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <thread>

namespace {

using namespace Lumora;
using UIKit::RGBA;
using UIKit::UITraitCollection;

// Users cannot create records.
template <class Record>
concept Constructible = requires {
    Record("send");
}
|| std::is_default_constructible_v<Record>;
static_assert(!Constructible<LumoraImages> && !Constructible<LumoraColors> && !Constructible<LumoraData>);
static_assert(!std::is_copy_constructible_v<LumoraColors>);

TEST(Assets, AreReadByTheirRecords) {
    const UIKit::UIImage image = LumoraAsset::Images::calendarArrowIcon.image();
    EXPECT_EQ(LumoraAsset::Images::calendarArrowIcon.name(), "calendar_arrow_icon");
    EXPECT_GT(image.size().width, 0);
    ASSERT_TRUE(image.rgba());
    EXPECT_EQ(image.rgba()->pixels.size(), std::size_t{4} * image.rgba()->width * image.rgba()->height);
    EXPECT_EQ(LumoraAsset::Images::star.name(), "star_");
    EXPECT_EQ(LumoraAsset::Images::starBig.name(), "star_big_");

    const auto data = LumoraAsset::Onboarding::countryRegions.data();
    EXPECT_EQ(data.typeIdentifier(), "public.json");
    const std::string_view json(reinterpret_cast<const char*>(data.data().data()), data.data().size());
    EXPECT_NE(json.find("\"EG\""), std::string_view::npos);

    const LumoraColors& green = LumoraAsset::Colors::progressGreen;
    EXPECT_EQ(&green.color(), &green.color());
    EXPECT_EQ(*UIColor::withAsset(green), green.color());
    EXPECT_EQ(green.swiftUIColor(), Color::withAsset(green));
    EXPECT_EQ(Image::withAsset(LumoraAsset::Images::cup, SwiftUI::Text("Cup")).label(), SwiftUI::Text("Cup"));
    EXPECT_TRUE(Image::decorative(LumoraAsset::Images::cup).isDecorative());
    EXPECT_EQ(NSDataAsset::withAsset(LumoraAsset::Onboarding::countryRegions)->data().data(), data.data().data());
}

TEST(Assets, FollowTheCurrentTraits) {
    const UIKit::UIColor& color = LumoraAsset::Colors::labelColor.color();
    UITraitCollection::setCurrent({.userInterfaceStyle = UIKit::UserInterfaceStyle::light, .displayScale = 1});
    const auto light = color.rgba();
    const UIKit::UIImage image = LumoraAsset::Images::banana.image();
    const auto width = image.pixelWidth();
    UITraitCollection::setCurrent({.userInterfaceStyle = UIKit::UserInterfaceStyle::dark, .displayScale = 3});
    EXPECT_NE(color.rgba(), light);
    EXPECT_EQ(image.pixelWidth(), 3 * width);
    EXPECT_EQ(image.size().width, width);
    UITraitCollection::setCurrent({});
}

// Subclasses with their own lookup functions, with and without traits.
struct PaintedColor : UIKit::UIColor {
    static std::optional<UIKit::UIColor> colorNamed(std::string_view, const Foundation::NSBundle&) {
        return UIKit::UIColor(1, 2, 3, 1);
    }
};
struct PaintedImage : UIKit::UIImage {
    static std::string imageNamedWithConfiguration(std::string_view name, const Foundation::NSBundle&,
                                                   const UITraitCollection*) {
        return "painted " + std::string(name);
    }
};
struct OlderImage : UIKit::UIImage {
    static int imageNamed(std::string_view, const Foundation::NSBundle&) { return 5; }
};
// Classes without lookup functions. Made is constructed from the platform's result; Unmade cannot be, so the platform's
// result is returned.
template <class Base> struct Made : Base {
    explicit Made(const Base& base) : Base(base) {}
};
struct Unmade {};
TEST(Assets, UseTheLookupsOfSubclasses) {
    EXPECT_EQ(UIImage::withAssetName<OlderImage>("x"), 5);
    const std::optional<Made<UIKit::UIImage>> image = UIImage::withAssetName<Made<UIKit::UIImage>>("send");
    const std::optional<Made<UIKit::UIColor>> color =
        UIColor::withAsset<Made<UIKit::UIColor>>(LumoraAsset::Colors::progressGreen);
    const std::optional<Made<UIKit::NSDataAsset>> data =
        NSDataAsset::withAsset<Made<UIKit::NSDataAsset>>(LumoraAsset::Onboarding::countryRegions);
    EXPECT_EQ(image.value(), UIImage::assetNamed("send"));
    EXPECT_EQ(color.value(), LumoraAsset::Colors::progressGreen.color());
    EXPECT_EQ(data.value().name(), LumoraAsset::Onboarding::countryRegions.name());
    EXPECT_FALSE(UIImage::withAssetName<Made<UIKit::UIImage>>("no such picture"));
    const std::optional<UIKit::UIImage> unmade = UIImage::withAssetName<Unmade>("send");
    EXPECT_EQ(unmade, UIImage::assetNamed("send"));
    EXPECT_EQ(*UIColor::withAsset<PaintedColor>(LumoraAsset::Colors::progressGreen), UIKit::UIColor(1, 2, 3, 1));
    EXPECT_EQ(UIImage::withAssetName<PaintedImage>("x"), "painted x");
    EXPECT_FALSE(UIImage::assetNamed("no such picture"));
    EXPECT_TRUE(UIImage::assetNamed("send"));
}

TEST(ProgressColors, RunFromRedThroughYellowToTheBase) {
    const double nan = std::nan("");
    const double infinity = std::numeric_limits<double>::infinity();
    const UIKit::UIColor base(0.2, 0.75, 0.4, 0.5);
    const struct {
        int line;
        double progress;
        RGBA expected;
    } cases[] = {
        {__LINE__, 0, {2, 0, 0, 1}},         {__LINE__, 0.25, {1.5, 0.5, 0.1, 1}},
        {__LINE__, 0.5, {1, 0.75, 0.2, 1}},  {__LINE__, 0.75, {0.5, 0.75, 0.30000000000000004, 1}},
        {__LINE__, 1, {0.2, 0.75, 0.4, 1}},  {__LINE__, -3, {2, 0, 0, 1}},
        {__LINE__, 7, {0.2, 0.75, 0.4, 1}},  {__LINE__, infinity, {0.2, 0.75, 0.4, 1}},
        {__LINE__, -infinity, {2, 0, 0, 1}},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(UIColor::watchProgress(one.progress, base).rgba(), one.expected) << "line " << one.line;
        EXPECT_EQ(UIColor::color(base, one.progress).rgba(), one.expected) << "line " << one.line;
    }
    const auto none = UIColor::watchProgress(nan, base).rgba();
    EXPECT_TRUE(std::isnan(none->red) && std::isnan(none->green) && std::isnan(none->blue) && none->alpha == 1);

    const UIKit::UIColor pattern = UIKit::UIColor::patternColor(LumoraAsset::Images::cup.image());
    EXPECT_EQ(UIColor::watchProgress(0.5, pattern), pattern);
    const UIKit::UIColor& green = LumoraAsset::Colors::progressGreen.color();
    EXPECT_EQ(UIColor::colorForProgress(0.3), UIColor::watchProgress(0.3, green));
    EXPECT_EQ(Color::colorForProgress(0.3), SwiftUI::Color(UIColor::colorForProgress(0.3)));
    EXPECT_EQ(Runtime::send<UIKit::UIColor>(Runtime::classNamed("UIColor"), "colorForProgress:", 0.3),
              UIColor::colorForProgress(0.3));
}

TEST(RegionalImages, AreSelectedByTheEndOfTheirNames) {
    using namespace UIImage;
    const auto name = [](const auto& image) { return std::string(image.name()); };
    const struct {
        int line;
        std::string actual, expected;
    } cases[] = {
        {__LINE__, name(assetSubscriptionWoman("latina")), "subscription_woman.latina"},
        {__LINE__, name(assetSubscriptionWoman("europe")), "subscription_woman"},
        {__LINE__, name(assetSubscriptionWoman("")), "subscription_woman.arab"},
        {__LINE__, name(assetSubscriptionMan("latina")), "subscription_man"},
        {__LINE__, name(assetSubscriptionMan("a")), "subscription_man.asia"},
        {__LINE__, name(assetSex(false, "arab")), "sexGirl.arab"},
        {__LINE__, name(assetSex(false, "asia")), "sexGirl"},
        {__LINE__, name(assetSex(true, "")), "sexBoy"},
        {__LINE__, name(assetSex(true, "Arab")), "sexBoy"},
        {__LINE__, name(assetGym(true, ".arab")), "gymBoy.arab"},
        {__LINE__, name(assetGym(true, "Boy")), "gymBoy"},
        {__LINE__, name(assetHome(true, "arab")), "homeBoy"},
        {__LINE__, name(assetHome(false, "arab")), "homeGirl.arab"},
        {__LINE__, name(assetDefaultCourse(false, "b")), "defaultCourseGirl.arab"},
        {__LINE__, name(assetEquipment(true, "arab")), "boy_equipment.arab"},
        {__LINE__, name(assetNoEquipment(false, "usa")), "girl_no_equipment"},
        {__LINE__, name(assetOnboardingStep1("")), "onboarding.1.arab"},
        {__LINE__, name(assetOnboardingStep1("usa")), "onboarding.1.usa"},
        {__LINE__, name(assetOnboardingStep2("usa")), "onboarding.2"},
        {__LINE__, name(*assetOnboardingStep3("europe")), "onboarding.3.europe"},
        {__LINE__, name(*assetOnboarding(4, "asia")), "onboarding.4.asia"},
        {__LINE__, name(trainingTagetLossImage("male", "ru")), "male_training_target_weight_loss_ru"},
        {__LINE__, name(trainingTagetGainImage("female", "ru")), "female_training_target_weight_gain_ru"},
        {__LINE__, name(trainingTagetMaintainImage("male", "ar")), "male_training_target_maintain_ar"},
        {__LINE__, name(trainingTagetLossImage("female", "ar")), "female_training_target_weight_loss_ar"},
        {__LINE__, name(trainingTagetLossImage("male", "us")), "female_training_target_weight_loss_ar"},
        {__LINE__, name(trainingTagetGainImage("Male", "ru")), "female_training_target_weight_gain_ar"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(one.actual, one.expected) << "line " << one.line;
    for (const std::int64_t step : {INT64_MIN, std::int64_t{0}, std::int64_t{5}})
        EXPECT_FALSE(assetOnboarding(step, "usa"));
}

TEST(LegacyImages, AreOneObjectUnderBothNames) {
    using namespace UIImage;
    EXPECT_EQ(&legacyAddDiet(), &addDiet());
    // These two names are exchanged in the application.
    EXPECT_EQ(&legacyIconOnce(), &iconMonth());
    EXPECT_EQ(legacyIconOnce().name(), "icon_month");
    EXPECT_EQ(legacyIconMonth().name(), "icon_once");
    EXPECT_EQ(ratingStar().name(), "star_");
    EXPECT_EQ(legacyRightArrowName(), "arrow_right");
    EXPECT_EQ(coachIconName(), "course_icon_coach");

    const Runtime::Class* cls = Runtime::classNamed("UIImage");
    ASSERT_NE(cls, nullptr);
    EXPECT_EQ(cls->classProperties().size(), 47U);
    EXPECT_EQ(cls->classProperties().front(), "addDiet");
    EXPECT_EQ(cls->classProperties().back(), "calendarNext");
    EXPECT_EQ(cls->classMethods(), std::vector<std::string>{"assetNamed:"});
    EXPECT_EQ(Runtime::send<UIKit::UIImage>(cls, "feedArrow").name(), "floatingButtonToBottom");
    EXPECT_EQ(Runtime::send<std::string>(cls, "rightArrowName"), "arrow_right");
    EXPECT_FALSE(Runtime::send<std::optional<UIKit::UIImage>>(cls, "assetNamed:", "none"));
    // All pictures exist; the properties that end in "Name" are texts.
    for (const std::string& name : cls->classProperties()) {
        const bool exists = name.ends_with("Name") || Runtime::send<UIKit::UIImage>(cls, name).rgba();
        EXPECT_TRUE(exists) << name;
    }
}

} // namespace
