#include <Lumora/Lumora.h>

#include <gtest/gtest.h>
#include <latch>
#include <thread>
#include <type_traits>

namespace {

namespace Texts = Lumora::LumoraStrings::Localizable;
namespace Host = Foundation::Host;

// Wrong calls do not compile.
template <class... Arguments>
concept CallsNewComment = requires(const Arguments&... arguments) {
    Texts::newComment(arguments...);
};
static_assert(CallsNewComment<int, const char*> && CallsNewComment<std::optional<double>, std::vector<std::string>>);
static_assert(!CallsNewComment<int> && !CallsNewComment<int, int, int>);
static_assert(std::is_same_v<decltype(Texts::ExerciseStraight::ofMaxWeight(std::int64_t{1})), std::string>);
static_assert(std::is_default_constructible_v<Lumora::Localization>); // although it has only static members

class Accessors : public ::testing::Test {
protected:
    ~Accessors() override { Host::reset(); }
};

TEST_F(Accessors, KeepPlainTextsOnly) {
    Host::setPreferredLanguages({"en"});
    Host::setCurrentLocale("en_US");
    const std::string& before = Texts::Diet::allDish();
    EXPECT_EQ(Texts::ExerciseStraight::ofMaxWeight(1500), "1,500% of max weight");
    EXPECT_EQ(Texts::ExerciseStraight::ofMaxWeight(-5), "-5% of max weight");

    Host::setPreferredLanguages({"de"});
    Host::setCurrentLocale("de_DE");
    EXPECT_EQ(&Texts::Diet::allDish(), &before);
    EXPECT_EQ(Texts::ExerciseStraight::ofMaxWeight(1500), "1.500\u00a0% des Maximalgewichts");
}

TEST_F(Accessors, DescribeUntypedArguments) {
    Host::setPreferredLanguages({"en"});
    EXPECT_EQ(Texts::msg(5, "a"), "5: a");
    EXPECT_EQ(Texts::msg(2.0, true), "2.0: true");
    EXPECT_EQ(Texts::msg(std::optional<int>(), std::vector<int>{1, 2}), "nil: [1, 2]");
    EXPECT_EQ(Texts::percents("%@ 100%"), "%@ 100%%");
}

TEST_F(Accessors, ExistForKeysThatAreNoIdentifiers) {
    Host::setPreferredLanguages({"en"});
    EXPECT_EQ(Texts::continue_(), "Continue");
    EXPECT_FALSE(Texts::ModalDialog::delete_().empty());
    EXPECT_NE(Texts::MyTrainingsScreen::invoiceNo(), "MyTrainingsScreen.Invoice №");
    EXPECT_NE(Texts::Сhatlist::photo(), "Сhatlist.Photo"); // begins with a Cyrillic letter
    EXPECT_NE(Lumora::LumoraStrings::Community::_9cfRD8Ck::normalTitle(), "9cf-RD-8Ck.normalTitle");
    EXPECT_EQ(Texts::Helpdesk::YourRequestIsSent::weWillContactYouSoon(17),
              "Thanks, we've received your request #17. We'll get back to you soon.");
}

TEST_F(Accessors, SelectPluralFormsByTheLastDigits) {
    const Texts::PluralForms forms{.one = "1", .two = "2", .many = "5"};
    const struct {
        std::int64_t count;
        const char* form;
    } cases[] = {{0, "5"},
                 {1, "1"},
                 {2, "2"},
                 {4, "2"},
                 {5, "5"},
                 {11, "5"},
                 {12, "5"},
                 {14, "5"},
                 {19, "5"},
                 {20, "5"},
                 {21, "1"},
                 {22, "2"},
                 {25, "5"},
                 {101, "1"},
                 {104, "2"},
                 {111, "5"},
                 {-1, "5"},
                 {-2, "5"},
                 {-21, "5"},
                 {-11, "5"},
                 {INT64_MIN, "5"},
                 {INT64_MAX, "5"},
                 {1'000'000'000'001, "1"}};
    for (const auto& one : cases)
        EXPECT_EQ(Texts::getSuffix(one.count, forms), one.form) << one.count;
    Host::setPreferredLanguages({"en"});
    EXPECT_EQ(Texts::locDays(3), "3 " + Texts::day2());
    EXPECT_EQ(Texts::locWeeks(0), "0 " + Texts::week5());
    EXPECT_EQ(Texts::locYears(-2'147'483'649), "-2147483649 " + Texts::year5());
}

TEST_F(Accessors, AreReadByManyThreadsWhileTheHostChanges) {
    Host::setPreferredLanguages({"ru"});
    Host::setCurrentLocale("ru_RU");
    std::latch ready(17);
    std::vector<std::jthread> readers;
    for (int i = 0; i < 16; ++i)
        readers.emplace_back([&] {
            ready.arrive_and_wait();
            const std::string* kept = &Texts::Handbook::filter();
            for (int n = 0; n < 300; ++n) {
                ASSERT_EQ(&Texts::Handbook::filter(), kept);
                const std::string days = Texts::Subscription::Option5::Specification::leftDays(1234);
                ASSERT_TRUE(days.find("1\u00a0234") != std::string::npos || days.find("1.234") != std::string::npos)
                    << days;
                const std::string language = Lumora::Localization::currentLanguage();
                ASSERT_TRUE(language == "ru" || language == "de") << language;
                ASSERT_FALSE(Lumora::Localization::legacyTrAge(n).empty());
            }
        });
    ready.arrive_and_wait();
    for (int n = 0; n < 200; ++n) {
        Host::setPreferredLanguages({n % 2 == 0 ? "de" : "ru"});
        Host::setCurrentLocale(n % 2 == 0 ? "de_DE" : "ru_RU");
    }
}

} // namespace
