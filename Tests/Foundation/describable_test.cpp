#include "Foundation/Describable.h"

#include "Foundation/Locale.h"
#include "Foundation/NSNumber.h"
#include <array>
#include <bitset>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <list>
#include <optional>
#include <utility> // std::in_place
#include <vector>

namespace Shop {

struct Price {
    int cents;
};
std::string describe(const Price& price) {
    return std::to_string(price.cents) + " ct";
}

// A type that converts to text and has a description: the description is used.
struct Label {
    operator std::string_view() const { return "as a text"; }
};
std::string describe(const Label& /*label*/) {
    return "as described";
}

enum class Size { small, large };
std::string describe(Size size) {
    return size == Size::small ? "small" : "large";
}

} // namespace Shop

namespace {

using Foundation::Describable;

std::string text(const Describable& value) {
    return std::string(value.text());
}

TEST(Describable, TextsAndTruthValuesAreThemselves) {
    const std::string string = "Ünï\xff";
    char letters[] = "letters";
    const char* null = nullptr;
    EXPECT_EQ(text("a \"b\""), "a \"b\"");
    EXPECT_EQ(text(string), string);
    EXPECT_EQ(text(std::string_view("view")), "view");
    EXPECT_EQ(text(letters), "letters");
    EXPECT_EQ(text(""), "");
    EXPECT_EQ(text(null), "nil");
    EXPECT_EQ(text(nullptr), "nil");
    const volatile bool volatileBool = true;
    volatile char volatileLetter = 'v';
    volatile int volatileNumbers[] = {1, 2};
    const std::vector<bool> bits = {true, false};
    std::vector<bool> changing = bits;
    std::bitset<1> set(1);
    EXPECT_EQ(text(volatileBool) + text(volatileLetter) + text(volatileNumbers), "truev[1, 2]");
    EXPECT_EQ(text(bits[0]) + text(changing[1]) + text(set[0]), "truefalsetrue");
    EXPECT_EQ(text(true), "true");
    EXPECT_EQ(text(false), "false");
    EXPECT_EQ(text('x'), "x");
    EXPECT_EQ(text(u'ж'), "ж");
    EXPECT_EQ(text(U'🍏'), "🍏");
    EXPECT_EQ(text(u'\xD800'), "\uFFFD");
}

TEST(Describable, WholeNumbersAreDecimal) {
    EXPECT_EQ(text(5), "5");
    EXPECT_EQ(text(static_cast<signed char>(-7)), "-7");
    EXPECT_EQ(text(static_cast<std::uint8_t>(200)), "200");
    EXPECT_EQ(text(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(text(std::numeric_limits<unsigned long long>::max()), "18446744073709551615");
}

TEST(Describable, FloatingNumbersHaveTheFewestExactDigits) {
    const struct {
        int line;
        double value;
        const char* expected;
    } cases[] = {
        {__LINE__, 2.0, "2.0"},
        {__LINE__, 0.1, "0.1"},
        {__LINE__, -0.0, "-0.0"},
        {__LINE__, 0.1 + 0.2, "0.30000000000000004"},
        {__LINE__, -12.25, "-12.25"},
        {__LINE__, 0.0001, "0.0001"},
        {__LINE__, 0.00012345678901234567, "0.00012345678901234567"},
        {__LINE__, 1e-05, "1e-05"},
        {__LINE__, 9007199254740992.0, "9007199254740992.0"},
        {__LINE__, 9007199254740994.0, "9.007199254740994e+15"},
        {__LINE__, 1e16, "1e+16"},
        {__LINE__, 5e-324, "5e-324"},
        {__LINE__, -1.7976931348623157e+308, "-1.7976931348623157e+308"},
        {__LINE__, HUGE_VAL, "inf"},
        {__LINE__, -HUGE_VAL, "-inf"},
        {__LINE__, -std::nan(""), "nan"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(text(one.value), one.expected) << "line " << one.line;
    EXPECT_EQ(text(0.1F), "0.1");
    EXPECT_EQ(text(0.0001F), "0.0001");
    EXPECT_EQ(text(16777216.0F), "16777216.0");
    EXPECT_EQ(text(20000000.0F), "2e+07");
    EXPECT_EQ(text(0.1L), "0.1");
    EXPECT_EQ(text(-std::numeric_limits<long double>::max()), "-1.189731495357231765e+4932");
}

TEST(Describable, OptionalsAndSequencesDescribeTheirElements) {
    EXPECT_EQ(text(std::optional<int>()), "nil");
    EXPECT_EQ(text(std::nullopt), "nil");
    EXPECT_EQ(text(std::optional(5)), "Optional(5)");
    EXPECT_EQ(text(std::optional<std::string>("a")), "Optional(\"a\")");
    EXPECT_EQ(text(std::optional<std::optional<int>>(std::in_place)), "Optional(nil)");
    EXPECT_EQ(text(std::vector{1, 2}), "[1, 2]");
    EXPECT_EQ(text({1, 2}), "[1, 2]");
    EXPECT_EQ(text(std::vector<double>()), "[]");
    EXPECT_EQ(text(std::list{2.0F, 0.5F}), "[2.0, 0.5]");
    EXPECT_EQ(text(std::vector{true, false}), "[true, false]");
    EXPECT_EQ(text(std::array{"a", static_cast<const char*>(nullptr)}), "[\"a\", nil]");
    EXPECT_EQ(text(std::vector{std::vector<std::optional<int>>{1, std::nullopt}, {}}), "[[Optional(1), nil], []]");
    const int numbers[] = {3, 4};
    EXPECT_EQ(text(numbers), "[3, 4]");
    EXPECT_EQ(text(std::vector<std::string>{"\"\\\n\r\t", std::string(1, '\0'), "\x1f\x7f", "ж"}),
              R"(["\"\\\n\r\t", "\0", "\u{1F}\u{7F}", "ж"])");
}

TEST(Describable, TypesMayDescribeThemselves) {
    EXPECT_EQ(text(Shop::Price{250}), "250 ct");
    EXPECT_EQ(text(std::vector{Shop::Price{1}, Shop::Price{2}}), "[1 ct, 2 ct]");
    EXPECT_EQ(text(Shop::Label()), "as described");
    EXPECT_EQ(text(Shop::Size::small) + text(std::vector{Shop::Size::large}), "small[large]");
    EXPECT_EQ(text(Foundation::Locale("de_AT")), "de_AT");
    EXPECT_EQ(text(std::vector<Foundation::NSNumber>{5, -7, 2.0, 0.1F, UINT64_MAX, true}),
              "[5, -7, 2.0, 0.10000000149011612, 18446744073709551615, 1]");
}

// As sequences, types that contain themselves would recurse without end, and wide strings would be lists of letters.
static_assert(!Foundation::detail::Sequence<std::filesystem::path> && !Foundation::detail::Sequence<std::u16string>);

TEST(Describable, BorrowsTexts) {
    const std::string string = "a text that is too long to be held in place";
    EXPECT_EQ(Describable(string).text().data(), string.data());
}

} // namespace
