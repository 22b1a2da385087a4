#include "Foundation/String.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

using Arguments = std::vector<Foundation::FormatArgument>;
using namespace std::string_view_literals;

constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

std::string format(std::string_view text, const Arguments& arguments, const char* locale = "en_US") {
    return Foundation::String::format(text, Foundation::Locale(locale), arguments);
}
constexpr std::int64_t integer(std::int64_t value) {
    return value;
}

struct Case {
    int line;
    std::string_view format;
    Arguments arguments;
    std::string_view expected;
};
void expectTexts(const std::vector<Case>& cases) {
    for (const Case& one : cases)
        EXPECT_EQ(format(one.format, one.arguments), one.expected) << "line " << one.line;
}

TEST(String, FillsPlaceholdersInTheirOrderOrByPosition) {
    expectTexts({
        {__LINE__, "", {}, ""},
        {__LINE__, "plain", {"unused"sv}, "plain"},
        {__LINE__, "100%%", {}, "100%"},
        {__LINE__, "%@ and %@", {"a"sv, "b"sv}, "a and b"},
        {__LINE__, "%2$@ %1$@", {"a"sv, "b"sv}, "b a"},
        {__LINE__, "%2$@ %@ %@", {"a"sv, "b"sv}, "b a b"},
        {__LINE__, "%@%d%%", {"ж"sv, integer(-5)}, "ж-5%"},
        {__LINE__, "%@\xff%@", {"\xfe"sv, "\0"sv}, "\xfe\xff\0"sv},
        // What is not a placeholder stays.
        {__LINE__, "50%", {"a"sv}, "50%"},
        {__LINE__, "% ", {}, "% "},
        {__LINE__, "%k %@", {"a"sv}, "%k a"},
        // Arguments of the other kind, and none.
        {__LINE__, "%d", {"a"sv}, "a"},
        {__LINE__, "%.1d|%x", {"abc"sv, "abc"sv}, "abc|abc"},
        {__LINE__, "%@", {integer(1234567)}, "1234567"},
        {__LINE__, "%@%5d%3$@|", {}, "|"},
        {__LINE__, "%@ %@", {"a"sv}, "a "},
    });
}

TEST(String, WritesWholeNumbersByTheirConversion) {
    expectTexts({
        {__LINE__, "%d %i %u", {integer(1234), integer(-1234), integer(7)}, "1,234 -1,234 7"},
        {__LINE__, "%D %ld %lld %qd", {integer(1), integer(2), integer(3), integer(4)}, "1 2 3 4"},
        {__LINE__, "%d", {smallest}, "-9,223,372,036,854,775,808"},
        {__LINE__, "%u", {integer(-1)}, "18,446,744,073,709,551,615"},
        {__LINE__, "%hhd %hd", {integer(200), integer(40'000)}, "-56 -25,536"},
        {__LINE__, "%hhu %hu", {integer(-1), integer(-1)}, "255 65,535"},
        {__LINE__, "%x %X %o", {integer(255), integer(48'879), integer(8)}, "ff BEEF 10"},
        {__LINE__, "%#x %#X %#o %#x", {integer(255), integer(255), integer(8), integer(0)}, "0xff 0XFF 010 0"},
        {__LINE__, "%x %hhx", {integer(-1), integer(-1)}, "ffffffffffffffff ff"},
        {__LINE__, "%c%c%c%C", {integer('a'), integer(0xE9), integer(0x4E2D), integer(0x1F34F)}, "aé中🍏"},
        {__LINE__, "%c%c%c", {integer(-1), integer(0xD800), integer(0x110000)}, "\uFFFD\uFFFD\uFFFD"},
    });
}

TEST(String, HeedsFlagsWidthAndPrecision) {
    expectTexts({
        {__LINE__, "%+d %+d % d %+u", {integer(5), integer(-5), integer(5), integer(5)}, "+5 -5  5 5"},
        {__LINE__, "[%6d] [%-6d]", {integer(-42), integer(42)}, "[   -42] [42    ]"},
        {__LINE__, "[%06d] [%-06d]", {integer(-42), integer(42)}, "[-00042] [42    ]"},
        {__LINE__, "[%08d] [%03d]", {integer(1234), integer(1234)}, "[0001,234] [1,234]"},
        {__LINE__, "[%.6d] [%08.3d]", {integer(1234), integer(-5)}, "[001,234] [    -005]"},
        {__LINE__, "[%#06x] [%.4X] [%6o]", {integer(255), integer(171), integer(8)}, "[0x00ff] [00AB] [    10]"},
        {__LINE__, "[%4@] [%-4@] [%.1@]", {"жж"sv, "жж"sv, "жж"sv}, "[  жж] [жж  ] [ж]"},
        {__LINE__, "[%.0@] [%.9@] [%3.1@]", {"a"sv, "ab"sv, "ab"sv}, "[] [ab] [  a]"},
        {__LINE__, "[%3c]", {integer(0x4E2D)}, "[  中]"},
        // Sizes that are arguments; a text is none, a negative width aligns to the left, a negative precision is none.
        {__LINE__, "[%*d]", {integer(4), integer(7)}, "[   7]"},
        {__LINE__, "[%*d]", {integer(-4), integer(7)}, "[7   ]"},
        {__LINE__, "[%.*@]", {integer(2), "abc"sv}, "[ab]"},
        {__LINE__, "[%.*@]", {integer(-2), "abc"sv}, "[abc]"},
        {__LINE__, "[%*d]", {"a"sv, integer(7)}, "[7]"},
        {__LINE__, "[%*d]", {integer(4)}, "[]"},
    });
    for (const std::int64_t size : {std::int64_t{1} << 40, std::numeric_limits<std::int64_t>::max(), smallest})
        EXPECT_EQ(format("%*d", {size, integer(1)}).size(), Foundation::String::largestSize);
    EXPECT_EQ(format("%.99999x", {integer(1)}).size(), Foundation::String::largestSize);
}

TEST(String, WritesNumbersAsTheLocaleDoes) {
    const Arguments number = {integer(-1234567)};
    EXPECT_EQ(format("%d", number, "de_DE"), "-1.234.567");
    EXPECT_EQ(format("%d", number, "ru"), "-1\u00A0234\u00A0567");
    EXPECT_EQ(format("%d", number, "hi_IN"), "-12,34,567");
    EXPECT_EQ(format("%d", number, "nb"), "\u22121\u00A0234\u00A0567");
    EXPECT_EQ(format("%d", number, "ar_EG"), "\u061C-١٬٢٣٤٬٥٦٧");
    EXPECT_EQ(format("%d", number, "ar_EG@numbers=latn"), "\u200E-1,234,567");
    EXPECT_EQ(format("%+d", {integer(5)}, "ar_EG"), "\u061C+٥");
    EXPECT_EQ(format("[%4d] [%04d]", {integer(5), integer(-5)}, "ar_EG"), "[   ٥] [\u061C-٠٥]");
    EXPECT_EQ(format("%d %d", {integer(1234), integer(12345)}, "es"), "1234 12.345");
    // Texts and plain conversions have no locale.
    EXPECT_EQ(format("%@ %x", {integer(1234567), integer(1234567)}, "ar_EG"), "1234567 12d687");
}

TEST(String, DescribesAnyValue) {
    EXPECT_EQ(Foundation::String::describing(5), "5");
    EXPECT_EQ(Foundation::String::describing(std::vector<std::string>{"a", "b"}), "[\"a\", \"b\"]");
}

} // namespace
