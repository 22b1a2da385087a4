#include <Lumora/Lumora.h>

#include <gtest/gtest.h>

namespace {

using Lumora::Localization;

class Messages : public ::testing::Test {
protected:
    Messages() {
        Foundation::Host::setPreferredLanguages({"ru"});
        Foundation::Host::setCurrentLocale("ru_RU");
    }
    ~Messages() override { Foundation::Host::reset(); }

    const Runtime::Class* cls = Runtime::classNamed("Lumora.Localization");
};

TEST_F(Messages, ArePublishedInOrder) {
    ASSERT_NE(cls, nullptr);
    EXPECT_EQ(cls->classProperties(),
              (std::vector<std::string>{"currentLocale", "isAsianLocale", "currentLanguage", "isCurrentLocalizationRu",
                                        "allSupportedLocalizations", "allSupportedHandbookLocalizations"}));
    EXPECT_EQ(cls->classMethods(),
              (std::vector<std::string>{"legacyTr:", "legacyTrNumber:needSign:", "legacyTrPercent:showPlus:",
                                        "legacyTrYearWithValue:", "legacyTrAge:"}));
}

TEST_F(Messages, MatchTheMembers) {
    EXPECT_EQ(Runtime::send<std::string>(cls, "legacyTr:", "Continue"), Localization::legacyTr("Continue"));
    EXPECT_EQ(Runtime::send<std::string>(cls, "legacyTrAge:", 25), "25 лет");
    EXPECT_EQ(Runtime::send<std::string>(cls, "legacyTrYearWithValue:", 1), "1 год");
    EXPECT_EQ(Runtime::send<std::string>(cls, "legacyTrPercent:showPlus:", 0.5, true), "+50%");
    EXPECT_EQ(Runtime::send<std::string>(cls, "legacyTrNumber:needSign:", Foundation::NSNumber(7), true), "+7");
    EXPECT_EQ(Runtime::send<Foundation::Locale>(cls, "currentLocale").identifier(), "ru_RU");
    EXPECT_TRUE(Runtime::send<bool>(cls, "isCurrentLocalizationRu"));
    EXPECT_EQ(Runtime::send<std::vector<std::string>>(cls, "allSupportedLocalizations"),
              Localization::allSupportedLocalizations());
    EXPECT_DEATH(Runtime::send<std::string>(cls, "localizationFileTranslation:key:", "ru", "Continue"),
                 "does not respond to");
}

// Returns the text of a string and releases the string.
std::string taken(NSString* text) {
    std::string utf8 = NSStringUTF8(text);
    NSRelease(text);
    return utf8;
}

TEST_F(Messages, ImplementTheCFunctions) {
    NSNumber* seven = NSNumberCreateInteger(7);
    EXPECT_EQ(taken(LocNumber(seven)), "7");
    EXPECT_EQ(taken(LocNumberWithPositivePrefix(seven, true)), "+7");
    EXPECT_EQ(taken(LocNumberWithPositivePrefix(seven, false)), "7");
    NSRelease(seven);
    EXPECT_EQ(taken(LocAge(25)), "25 лет");
    EXPECT_EQ(taken(LocPercent(0.5)), "50%");
    EXPECT_EQ(taken(LocPercentSigned(0.5, true)), "+50%");
    EXPECT_EQ(taken(LocPercentSigned(0.5, false)), "50%");

    // Null arguments are allowed.
    EXPECT_EQ(taken(Loc(nullptr)), "");
    EXPECT_EQ(taken(LocNumber(nullptr)), "");
    EXPECT_EQ(taken(LocNumberWithPositivePrefix(nullptr, true)), "");
    EXPECT_EQ(taken(NSStringCreate(nullptr)), "");
    EXPECT_STREQ(NSStringUTF8(nullptr), "");
    NSRelease(nullptr);
}

} // namespace
