#include "Foundation/String.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <random>
#include <vector>

namespace {

using Arguments = std::vector<Foundation::FormatArgument>;
using namespace std::string_view_literals;

constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

std::string format(std::string_view text, const Arguments& arguments, const char* locale = "en_US") {
    return Foundation::String::format(text, Foundation::Locale(locale), arguments);
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
        {__LINE__, "@plain", {"unused"sv}, "@plain"},
        {__LINE__, "@ %@", {"a"sv, "unused"sv}, "@ a"},
        {__LINE__, "100%%", {}, "100%"},
        {__LINE__, "%@ and %@", {"a", "b"}, "a and b"},
        {__LINE__, "%2$@ %1$@", {"a"sv, "b"sv}, "b a"},
        {__LINE__, "%2$@ %@ %@", {"a"sv, "b"sv}, "b a b"},
        {__LINE__, "%@%d%%", {"ж"sv, -5}, "ж-5%"},
        {__LINE__, "%@\xff%@", {"\xfe"sv, "\0"sv}, "\xfe\xff\0"sv},
        {__LINE__, "%s %S %-3ls|%.1s", {"a"sv, "b"sv, "c"sv, "ж!"sv}, "a b c  |ж"},
        // Everything that is not a placeholder is unchanged.
        {__LINE__, "50%", {"a"sv}, "50%"},
        {__LINE__, "% ", {}, "% "},
        {__LINE__, "%k %@", {"a"sv}, "%k a"},
        // Arguments of another kind, and missing ones.
        {__LINE__, "%d", {"a"sv}, "a"},
        {__LINE__, "%.1d|%x", {"abc"sv, "abc"sv}, "abc|abc"},
        {__LINE__, "%f|%-3e|", {"a"sv, "b"sv}, "a|b  |"},
        {__LINE__, "%@ %@ %s", {1234567, 2.0, 0.1f}, "1234567 2.0 0.10000000149011612"},
        {__LINE__, "%.2f %g", {-1234, 7}, "-1,234.00 7"},
        {__LINE__, "%d %x %lld %d", {2.9, -1.5, 1e300, std::nan("")}, "2 ffffffffffffffff 9,223,372,036,854,775,807 0"},
        {__LINE__, "%c", {1e300}, "\uFFFD"},
        {__LINE__, "%@%5d%3$@|", {}, "|"},
        {__LINE__, "%@ %@", {"a"sv}, "a "},
    });
}

TEST(String, WritesWholeNumbersByTheirConversion) {
    expectTexts({
        {__LINE__, "%d %i %u", {1234, -1234, 7}, "1,234 -1,234 7"},
        {__LINE__, "%D %ld %lld %qd", {1, 2, 3, 4}, "1 2 3 4"},
        {__LINE__, "%d", {smallest}, "-9,223,372,036,854,775,808"},
        {__LINE__, "%u", {-1}, "18,446,744,073,709,551,615"},
        {__LINE__, "%hhd %hd", {200, 40'000}, "-56 -25,536"},
        {__LINE__, "%hhu %hu", {-1, -1}, "255 65,535"},
        {__LINE__, "%x %X %o", {255, 48'879, 8}, "ff BEEF 10"},
        {__LINE__, "%#x %#X %#o %#x", {255, 255, 8, 0}, "0xff 0XFF 010 0"},
        {__LINE__, "%x %hhx", {-1, -1}, "ffffffffffffffff ff"},
        {__LINE__, "%c%c%c%C", {'a', 0xE9, 0x4E2D, 0x1F34F}, "aé中🍏"},
        {__LINE__, "%c%c%c", {-1, 0xD800, 0x110000}, "\uFFFD\uFFFD\uFFFD"},
    });
}

TEST(String, HeedsFlagsWidthAndPrecision) {
    expectTexts({
        {__LINE__, "%+d %+d % d %+u", {5, -5, 5, 5}, "+5 -5  5 5"},
        {__LINE__, "[%6d] [%-6d]", {-42, 42}, "[   -42] [42    ]"},
        {__LINE__, "[%06d] [%-06d]", {-42, 42}, "[-00042] [42    ]"},
        {__LINE__, "[%08d] [%03d]", {1234, 1234}, "[0001,234] [1,234]"},
        {__LINE__, "[%.6d] [%08.3d]", {1234, -5}, "[001,234] [    -005]"},
        {__LINE__, "[%#06x] [%.4X] [%6o]", {255, 171, 8}, "[0x00ff] [00AB] [    10]"},
        {__LINE__, "[%4@] [%-4@] [%.1@]", {"жж"sv, "жж"sv, "жж"sv}, "[  жж] [жж  ] [ж]"},
        {__LINE__, "[%.0@] [%.9@] [%3.1@]", {"a"sv, "ab"sv, "ab"sv}, "[] [ab] [  a]"},
        {__LINE__, "[%3c]", {0x4E2D}, "[  中]"},
        // Sizes as arguments: a text is ignored, a negative width aligns to the left, a negative precision is ignored.
        {__LINE__, "[%*d]", {4, 7}, "[   7]"},
        {__LINE__, "[%*d]", {-4, 7}, "[7   ]"},
        {__LINE__, "[%.*@]", {2, "abc"sv}, "[ab]"},
        {__LINE__, "[%.*@]", {-2, "abc"sv}, "[abc]"},
        {__LINE__, "[%*d]", {"a"sv, 7}, "[7]"},
        {__LINE__, "[%*d]", {4}, "[]"},
    });
    for (const std::int64_t size : {std::int64_t{1} << 40, std::numeric_limits<std::int64_t>::max(), smallest})
        EXPECT_EQ(format("%*d", {size, 1}).size(), Foundation::String::largestSize);
    EXPECT_EQ(format("%.99999x", {1}).size(), Foundation::String::largestSize);
}

TEST(String, WritesNumbersAsTheLocaleDoes) {
    const Arguments number = {-1234567};
    EXPECT_EQ(format("%d", number, "de_DE"), "-1.234.567");
    EXPECT_EQ(format("%d", number, "ru"), "-1\u00A0234\u00A0567");
    EXPECT_EQ(format("%d", number, "hi_IN"), "-12,34,567");
    EXPECT_EQ(format("%d", number, "nb"), "\u22121\u00A0234\u00A0567");
    EXPECT_EQ(format("%d", number, "ar_EG"), "\u061C-١٬٢٣٤٬٥٦٧");
    EXPECT_EQ(format("%d", number, "ar_EG@numbers=latn"), "\u200E-1,234,567");
    EXPECT_EQ(format("%+d", {5}, "ar_EG"), "\u061C+٥");
    EXPECT_EQ(format("[%4d] [%04d]", {5, -5}, "ar_EG"), "[   ٥] [\u061C-٠٥]");
    EXPECT_EQ(format("%d %d", {1234, 12345}, "es"), "1234 12.345");
    const Arguments fraction = {-1234567.25};
    EXPECT_EQ(format("%.2f", fraction, "de_DE"), "-1.234.567,25");
    EXPECT_EQ(format("%.1f", fraction, "hi_IN"), "-12,34,567.2");
    EXPECT_EQ(format("%+.1e", {12345.0}, "nb"), "+1,2e+04");
    EXPECT_EQ(format("%g %g %g", {1234.5, 1e-7, 123456.0}, "de_DE"), "1.234,5 1e-07 123.456");
    EXPECT_EQ(format("%.1f", {-1234.5}, "ar_EG"), "\u061C-١٬٢٣٤٫٥");
    EXPECT_EQ(format("[%08.1f] [%8.1f]", {-1.5, 2.5}, "ar_EG"), "[\u061C-٠٠٠١٫٥] [     ٢٫٥]");
    EXPECT_EQ(format("%a %f %F", {0.75, std::numeric_limits<double>::infinity(), std::nan("")}, "de_DE"),
              "0x1.8p-1 inf NAN");
    // Texts and plain conversions do not depend on the locale.
    EXPECT_EQ(format("%@ %x", {1234567, 1234567}, "ar_EG"), "1234567 12d687");
}

TEST(String, BoundsItsResult) {
    using Foundation::String::largestGrowth;
    const std::string letter = "ж", longText(largestGrowth / 16, 'x');
    std::string format = letter;
    for (int i = 0; i < 100'000; ++i)
        format += "%1$@";
    EXPECT_EQ(::format(format, {std::string_view(longText)}).size(), format.size() + largestGrowth);
    const std::string cut = ::format("%1$@%1$@!", {std::string_view(std::string(largestGrowth + 8, 'x'))});
    EXPECT_EQ(cut, std::string(largestGrowth + 9, 'x')); // the format has 9 bytes
    // A character of two bytes does not fit into the last byte.
    std::string wide = "x";
    while (wide.size() <= largestGrowth + 5)
        wide += letter;
    EXPECT_EQ(::format("%1$@", {std::string_view(wide)}).size(), largestGrowth + 3);
    // A format is never cut.
    const std::string large(largestGrowth * 2, 'y');
    EXPECT_EQ(::format(large, {}), large);
}

// Compares the output for random placeholders and arguments with that of the C library. Excluded are two bugs of glibc
// in placeholders with positions: it reads integers for "q" and "L" as 32 bits, and for the flag '0' with a negative
// width it adds zeros on the right.
class RandomFormats {
public:
    void run(int count) {
        for (int i = 0; i < count; ++i)
            compareOne();
    }

private:
    static constexpr bool isFloating(char conversion) {
        return std::string_view("fFeEgGaA").find(conversion) != std::string_view::npos;
    }

    template <class T> T pick(std::initializer_list<T> values) { return values.begin()[below(values.size())]; }
    std::size_t below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_); }
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    void compareOne() {
        const char conversion = "dddiuxXofFeEgGaAcs"[below(18)];
        width_ = below(3) == 0 ? std::optional(between(-30, 30)) : std::nullopt;
        precision_ = below(3) == 0 && conversion != 'c' ? std::optional(between(-3, 40)) : std::nullopt;
        isPositional_ = below(4) == 0;
        std::string format = "[%";
        arguments_.clear();
        const std::string width = size(width_), precision = precision_ ? size(precision_) : "";
        const std::string position = isPositional_ ? std::to_string(arguments_.size() + 1) + "$" : "";
        format += position;
        const bool isNegativeAtPosition = isPositional_ && width_ && *width_ < 0;
        for (std::size_t flags = below(4); flags > 0; --flags)
            format += conversion == 'c' || conversion == 's' ? '-' : "-+ #'0"[below(isNegativeAtPosition ? 5 : 6)];
        format += width;
        if (width.empty() && below(2) == 0)
            format += std::to_string(1 + below(30));
        if (!precision.empty())
            format += "." + precision;
        else if (conversion != 'c' && below(3) == 0)
            format += "." + pick<std::string>({"", "0", "1", "7", "30"});
        value(format, conversion);
    }

    // For a width or a precision that is given as an argument: adds the argument and returns its "*". Such arguments
    // come before the value.
    std::string size(const std::optional<int>& argument) {
        if (!argument)
            return "";
        arguments_.emplace_back(*argument);
        return isPositional_ ? "*" + std::to_string(arguments_.size()) + "$" : "*";
    }

    // Adds a modifier, the conversion and a value, and compares.
    void value(const std::string& format, char conversion) {
        const auto end = std::string(1, conversion) + "]%%";
        if (conversion == 's')
            return compare(format + end, pick<const char*>({"", "a", "seven letters"}));
        if (conversion == 'c')
            return compare(format + end, between(1, 127));
        if (isFloating(conversion)) {
            const double value = floating();
            if (below(4) == 0 && conversion != 'a' && conversion != 'A')
                return compare(format + "L" + end, static_cast<long double>(value));
            return compare(format + pick<const char*>({"", "l"}) + end, value);
        }
        const std::int64_t whole = static_cast<std::int64_t>(random_()) >> below(64);
        const bool isSigned = conversion == 'd' || conversion == 'i';
        if (below(2) == 0) {
            const int small = static_cast<int>(whole);
            const std::string modifier = pick<const char*>({"", "h", "hh"});
            // Without a modifier the C library prints 32 bits, we print 64: they differ for negative numbers.
            return compare(format + modifier + end, modifier.empty() && !isSigned ? small & 0x7FFFFFFF : small);
        }
        const char* modifier = pick<const char*>({"l", "ll", "z", "t", "j", "q", "L"});
        if (isPositional_ && (*modifier == 'q' || *modifier == 'L'))
            modifier = "l";
        compare(format + modifier + end, static_cast<long long>(whole));
    }

    double floating() {
        const std::uint64_t bits = random_();
        double value = 0;
        switch (below(4)) {
        case 0:
            std::memcpy(&value, &bits, sizeof value); // any value, including infinities, NaN and subnormal ones
            return value;
        case 1:
            return pick({0.0,
                         -0.0,
                         0.5,
                         1.5,
                         2.5,
                         9.5,
                         0.1,
                         99999.5,
                         999999.5,
                         1e15,
                         1e16,
                         1e22,
                         1e23,
                         -1e300,
                         std::numeric_limits<double>::infinity(),
                         -std::numeric_limits<double>::infinity(),
                         std::nan(""),
                         -std::nan(""),
                         std::numeric_limits<double>::denorm_min(),
                         std::numeric_limits<double>::max()});
        default:
            return static_cast<double>(static_cast<std::int64_t>(bits) >> below(64)) /
                   static_cast<double>(1 + below(1000));
        }
    }

    template <class T> void compare(const std::string& format, T value) {
        if constexpr (std::is_same_v<T, const char*>)
            arguments_.emplace_back(std::string_view(value));
        else
            arguments_.emplace_back(value);
        std::array<char, 8192> buffer;
        const auto print = [&](auto... sizes) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
            return std::snprintf(buffer.data(), buffer.size(), format.c_str(), sizes..., value);
#pragma GCC diagnostic pop
        };
        const int size = width_ && precision_ ? print(*width_, *precision_)
                         : width_             ? print(*width_)
                         : precision_         ? print(*precision_)
                                              : print();
        const std::string_view expected(buffer.data(), static_cast<std::size_t>(size));
        ASSERT_EQ(Foundation::String::format(format, posix_, arguments_), expected) << format;
    }

    std::mt19937_64 random_{20'240'501};
    const Foundation::Locale posix_{"en_US_POSIX"};
    std::optional<int> width_, precision_; // given as arguments
    bool isPositional_ = false;
    Arguments arguments_;
};

TEST(String, PrintsNumbersAsTheCLibrary) {
    RandomFormats().run(400'000);
}

TEST(String, DescribesAnyValue) {
    EXPECT_EQ(Foundation::String::describing(5), "5");
    EXPECT_EQ(Foundation::String::describing(std::vector<std::string>{"a", "b"}), "[\"a\", \"b\"]");
}

} // namespace
