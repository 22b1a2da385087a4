#include <Lumora/Lumora.h>
#include <Lumora/internal/Language.h>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace {

using Corvane::LocalizationCode;
using Lumora::Localization;
namespace Host = Foundation::Host;

const std::vector<std::string> rawValues = {"ar", "de", "en",    "es",    "es-419", "fr", "id", "it", "ja",     "ko",
                                            "nl", "pl", "pt-BR", "pt-PT", "ru",     "th", "tr", "vi", "zh-Hans"};

class LocalizationFunctions : public ::testing::Test {
protected:
    ~LocalizationFunctions() override { Host::reset(); }
    void setUser(const char* language, const char* locale) {
        Host::setPreferredLanguages({language});
        Host::setCurrentLocale(locale);
    }
};

TEST_F(LocalizationFunctions, KnowTheApplicationsLanguages) {
    std::vector<std::string> raw;
    for (const LocalizationCode code : LocalizationCode::allCases()) {
        raw.push_back(code.rawValue());
        EXPECT_EQ(LocalizationCode::fromRawValue(code.rawValue()), code);
        EXPECT_EQ(Foundation::Describable(code).text(), code.rawValue());
    }
    EXPECT_EQ(raw, rawValues);
    for (const char* other : {"Base", "en-GB", "pt", "RU", "", "ru "})
        EXPECT_FALSE(LocalizationCode::fromRawValue(other)) << other;
    EXPECT_EQ(Localization::allSupportedLocalizations(), rawValues);
    const std::vector<std::string>& handbook = Localization::allSupportedHandbookLocalizations();
    const std::set<std::string> expected = {"ar", "de", "en", "es", "fr", "id", "it", "ja", "ko",
                                            "nl", "pl", "pt", "ru", "th", "tr", "vi", "zh"};
    EXPECT_EQ(std::set<std::string>(handbook.begin(), handbook.end()), expected);
    EXPECT_EQ(handbook.size(), expected.size());
}

TEST_F(LocalizationFunctions, TakeTheFirstPreferenceOnly) {
    const auto pick = [](std::vector<std::string> preferred) {
        return Lumora::detail::pickLocalizationCode(preferred, LocalizationCode::allCases()).rawValue();
    };
    EXPECT_EQ(pick({}), "en");
    EXPECT_EQ(pick({"fr", "ru"}), "fr");
    EXPECT_EQ(pick({"xx", "ru"}), "en");
    EXPECT_EQ(pick({"Base", "ru"}), "en");
    EXPECT_EQ(pick({"en-GB", "ru"}), "en");
    const std::vector<LocalizationCode> few = {LocalizationCode::de};
    EXPECT_EQ(Lumora::detail::pickLocalizationCode(std::vector<std::string>{"ru"}, few), LocalizationCode::en);
}

TEST_F(LocalizationFunctions, FollowTheUsersLanguageAndLocale) {
    const struct {
        int line;
        const char *language, *locale, *code, *current;
        bool isAsian;
    } cases[] = {
        {__LINE__, "ru", "ru_KZ", "ru", "ru_KZ", false},       {__LINE__, "de", "de_AT", "de", "de_AT", false},
        {__LINE__, "de", "en_US", "de", "de", false},          {__LINE__, "es_MX", "es_MX", "es-419", "es_MX", false},
        {__LINE__, "pt_BR", "pt_PT", "pt-BR", "pt_PT", false}, {__LINE__, "zh_CN", "zh_CN", "zh-Hans", "zh_CN", true},
        {__LINE__, "ja", "ja_JP", "ja", "ja_JP", true},        {__LINE__, "ko", "en_US", "ko", "ko", true},
        {__LINE__, "uk", "uk_UA", "en", "en", false},          {__LINE__, "en_GB", "en_GB", "en", "en_GB", false},
    };
    for (const auto& one : cases) {
        setUser(one.language, one.locale);
        EXPECT_EQ(Localization::currentLanguageCode().rawValue(), one.code) << "line " << one.line;
        EXPECT_EQ(Localization::currentLocale().identifier(), one.current) << "line " << one.line;
        EXPECT_EQ(Localization::isAsianLocale(), one.isAsian) << "line " << one.line;
        EXPECT_EQ(Localization::isCurrentLocalizationRu(), std::string(one.code) == "ru") << "line " << one.line;
        EXPECT_EQ(Localization::isLegacyCurrentLocalizationRu(), std::string(one.code) == "ru") << "line " << one.line;
    }
}

TEST_F(LocalizationFunctions, ReadOneLanguagesTable) {
    setUser("de", "de_DE");
    EXPECT_EQ(Localization::localizationFileTranslation("en", "Continue"), "Continue");
    EXPECT_EQ(Localization::localizationFileTranslation("Base", "new_comment"), "%@ left a comment: %@");
    EXPECT_EQ(Localization::localizationFileTranslation("fr", "Continue"), "Continuer");
    for (const char* code : {"en-GB", "EN", "", "..", "../Lumora.bundle/Base", "xx"})
        EXPECT_EQ(Localization::localizationFileTranslation(code, "Continue"), "") << code;
    EXPECT_EQ(Localization::localizationFileTranslation("fr", ""), "");
    EXPECT_EQ(Localization::localizationFileTranslation("fr", "no such key"), "");

    EXPECT_EQ(Localization::legacyTr("Continue"), "Weiter");
    EXPECT_EQ(Localization::legacyTr("new_comment"), "%@ hat kommentiert: %@");
    EXPECT_EQ(Localization::legacyTr("no such key"), "no such key");
    EXPECT_EQ(Localization::legacyTr(""), "");
}

TEST_F(LocalizationFunctions, SpellYearsInEachLanguage) {
    const struct {
        int line;
        const char* language;
        std::int64_t age;
        const char* phrase;
    } cases[] = {
        // Phrases of the platform, from ICU.
        {__LINE__, "ru", 1, "1 год"},
        {__LINE__, "ru", 3, "3 года"},
        {__LINE__, "ru", 25, "25 лет"},
        {__LINE__, "pl", 22, "22 lata"},
        {__LINE__, "pl", 25, "25 lat"},
        {__LINE__, "fr", 0, "0\u00a0an"},
        {__LINE__, "fr", 25, "25 ans"},
        {__LINE__, "es", 1, "1 año"},
        {__LINE__, "it", 25, "25 anni"},
        {__LINE__, "nl", 25, "25 jaar"},
        {__LINE__, "id", 25, "25 tahun"},
        {__LINE__, "pt_PT", 2, "2 anos"},
        {__LINE__, "ar", 1, "سنة"},
        {__LINE__, "ar", 2, "سنتان"},
        {__LINE__, "th", 25, "25 ปี"},
        // Phrases of Lumora's tables.
        {__LINE__, "en", 25, "25 years"},
        {__LINE__, "de", 22, "22 Jahre"},
        {__LINE__, "ko", 25, "25 년"},
        {__LINE__, "en", 11, "11 years"},
        {__LINE__, "en", -1, "-1 years"},
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const auto& one : cases) {
        // Accessors keep their first text, so each phrase of the tables is read in a new process.
        const bool isFromTables = std::string("en de ko").find(one.language) != std::string::npos;
        if (isFromTables)
            EXPECT_EXIT(
                {
                    setUser(one.language, one.language);
                    std::_Exit(Localization::legacyTrAge(one.age) == one.phrase ? 0 : 1);
                },
                ::testing::ExitedWithCode(0), "")
                << "line " << one.line;
        else {
            setUser(one.language, one.language);
            EXPECT_EQ(Localization::legacyTrAge(one.age), one.phrase) << "line " << one.line;
        }
    }
    setUser("ru", "ru_RU");
    EXPECT_EQ(Localization::legacyTrYear(1234), "1\u00a0234 года");
}

TEST_F(LocalizationFunctions, WriteSignedNumbersInTheUsersLocale) {
    const struct {
        int line;
        const char* locale;
        Foundation::NSNumber number;
        bool needSign;
        const char* text;
    } cases[] = {
        {__LINE__, "en_US", 1500, true, "+1,500"},
        {__LINE__, "en_US", -3, true, "-3"},
        {__LINE__, "en_US", 0, true, "+0"},
        {__LINE__, "en_US", 0, false, "0"},
        {__LINE__, "de_DE", 1234.5678, false, "1.234,568"},
        {__LINE__, "sv_SE", -3, false, "\u22123"},
        {__LINE__, "hi_IN", 1234567, false, "12,34,567"},
        {__LINE__, "en_US", 2.5, true, "+2.5"},
        {__LINE__, "es_ES", 1234, false, "1234"},
        {__LINE__, "ar_EG", 12, false, "١٢"},
        {__LINE__, "en_US", INT64_MIN, true, "-9,223,372,036,854,775,808"},
        {__LINE__, "en_US", UINT64_MAX, true, "+18,446,744,073,709,551,615"},
        {__LINE__, "en_US", std::numeric_limits<double>::infinity(), true, "+∞"},
        {__LINE__, "en_US", std::nan(""), false, "NaN"},
    };
    for (const auto& one : cases) {
        setUser("en", one.locale);
        EXPECT_EQ(Localization::legacyTrNumber(one.number, one.needSign), one.text) << "line " << one.line;
    }
}

TEST_F(LocalizationFunctions, RoundPercentagesInSinglePrecision) {
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        int line;
        const char* language;
        double value;
        bool showPlus;
        const char* text;
    } cases[] = {
        {__LINE__, "en", 0.25, false, "25%"},
        {__LINE__, "en", 0.25, true, "+25%"},
        {__LINE__, "en", -0.1, true, "-10%"},
        {__LINE__, "en", 0.004, true, "+0%"},
        {__LINE__, "en", 0.0, true, "0%"},
        {__LINE__, "en", -0.001, true, "0%"},
        {__LINE__, "en", 0.125, false, "13%"},
        {__LINE__, "en", -0.125, false, "-13%"},
        // 0.145 is above the half in single precision but below it in double precision.
        {__LINE__, "en", 0.145, false, "15%"},
        {__LINE__, "ru", 12.34, true, "+1234%"},
        {__LINE__, "en", 1e20, false, "9999999778196308361216%"},
        {__LINE__, "en", infinity, true, "+∞%"},
        {__LINE__, "en", -infinity, true, "-∞%"},
        {__LINE__, "en", 1e300, false, "∞%"},
        {__LINE__, "en", std::nan(""), true, "NaN%"},
        {__LINE__, "tr", 0.25, true, "+%25"},
        {__LINE__, "tr", 0.125, false, "%12"}, // the locale rounds halves to even
    };
    for (const auto& one : cases) {
        setUser(one.language, one.language);
        EXPECT_EQ(Localization::legacyTrPercent(one.value, one.showPlus), one.text) << "line " << one.line;
    }
}

} // namespace
