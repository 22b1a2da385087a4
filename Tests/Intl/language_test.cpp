#include "Intl/internal/Intl.h"

#include <gtest/gtest.h>

namespace {

using Languages = std::vector<std::string>;

std::string match(std::string_view desired, const Languages& supported) {
    const auto index = Intl::matchLanguage(desired, supported);
    return index ? supported.at(*index) : "none";
}

TEST(Language, ChoosesTheNearestVariant) {
    const Languages supported = {"ar", "de",    "en",    "es", "es-419", "fr", "id", "it", "ja", "ko",     "nl",
                                 "pl", "pt-BR", "pt-PT", "ru", "th",     "tr", "vi", "nb", "he", "zh-Hans"};
    const struct {
        int line;
        const char* desired;
        const char* expected;
    } cases[] = {
        {__LINE__, "ru", "ru"},
        {__LINE__, "de_AT", "de"},
        {__LINE__, "en_GB", "en"},
        {__LINE__, "es", "es"},
        {__LINE__, "es_ES", "es"},
        {__LINE__, "es_MX", "es-419"},
        {__LINE__, "es-US", "es-419"},
        {__LINE__, "pt", "pt-BR"},
        {__LINE__, "pt_AO", "pt-PT"},
        {__LINE__, "zh_CN", "zh-Hans"},
        {__LINE__, "zh-Hans-SG", "zh-Hans"},
        // POSIX spellings, and outdated or alternative language codes.
        {__LINE__, "de_DE.UTF-8@euro", "de"},
        {__LINE__, "pt_PT@currency=EUR", "pt-PT"},
        {__LINE__, "iw", "he"},
        {__LINE__, "in_ID", "id"},
        {__LINE__, "no", "nb"},
        {__LINE__, "cmn", "zh-Hans"},
        // Not everybody who reads one script reads the other.
        {__LINE__, "zh_TW", "none"},
        // Related languages that the user did not list are not chosen.
        {__LINE__, "uk", "none"},
        {__LINE__, "ca", "none"},
        {__LINE__, "nn", "none"},
        {__LINE__, "yue", "none"},
        // Not a language.
        {__LINE__, "", "none"},
        {__LINE__, "C", "none"},
        {__LINE__, "und", "none"},
        {__LINE__, "!!", "none"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(match(one.desired, supported), one.expected) << "line " << one.line;
    EXPECT_EQ(match(std::string(10'000, 'x'), supported), "none");
    EXPECT_EQ(match("he", {"en", "iw"}), "iw");
    EXPECT_EQ(match("fil", {"tl"}), "tl");
    EXPECT_EQ(match("sr-Latn-RS", {"sr", "sr-Latn"}), "sr-Latn");
    EXPECT_EQ(match("ru", {}), "none");
}

} // namespace
