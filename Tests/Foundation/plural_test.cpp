// Plural texts of a bundle: which form is chosen, by which argument, and how the number is printed.
#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#include "Foundation/String.h"
#include "Foundation/internal/PluralText.h"

#include "../Support/TemporaryFolder.h"
#include <gtest/gtest.h>
#include <limits>

namespace {

using Foundation::FormatArgument;
using Foundation::NSBundle;
namespace Host = Foundation::Host;
using namespace std::string_view_literals;

// Elements of a plural table, in XML.
std::string text(const std::string& key, const std::string& value) {
    return "<key>" + key + "</key><string>" + value + "</string>";
}
std::string dict(const std::string& key, const std::string& entries) {
    return "<key>" + key + "</key><dict>" + entries + "</dict>";
}
std::string variable(const std::string& name, const std::string& type, const std::string& forms) {
    return dict(name, text("NSStringFormatSpecTypeKey", "NSStringPluralRuleType") +
                          text("NSStringFormatValueTypeKey", type) + forms);
}
std::string plural(const std::string& key, const std::string& format, const std::string& variables) {
    return dict(key, text("NSStringLocalizedFormatKey", format) + variables);
}
std::string forms(const std::string& one, const std::string& other) {
    return text("one", one) + text("other", other);
}

class Plurals : public ::testing::Test {
protected:
    ~Plurals() override { Host::reset(); }

    void write(const std::string& language, const std::string& entries) {
        folder_.write(language + ".lproj/Localizable.stringsdict", "<plist><dict>" + entries + "</dict></plist>");
    }
    std::string formatted(std::string_view key, std::initializer_list<FormatArgument> arguments) {
        const NSBundle& bundle = NSBundle::bundleWithPath(folder_.path());
        return Foundation::String::format(bundle.localizedFormat(key, "Localizable"), Foundation::Locale::current(),
                                          {arguments.begin(), arguments.size()});
    }

    Support::TemporaryFolder folder_;
};

TEST_F(Plurals, ChooseFormsByTheRightArgument) {
    const std::string days = variable("days", "ld", forms("%ld day", "%ld days"));
    const std::string dirs = variable("dirs", "d", forms("one folder", "%d folders"));
    constexpr std::size_t longForm = 1 << 16;
    std::string manyForms;
    for (const char name : std::string("abcdefgh")) {
        const std::string next = "%1$#@" + std::string(1, static_cast<char>(name + 1)) + "@";
        manyForms += variable({name}, "d", forms("one", next + next + std::string(longForm, 'x')));
    }
    write("Base", plural("plain", "%#@days@ left", days) + plural("two", "%#@days@ in %#@dirs@", days + dirs) +
                      plural("positions", "%2$#@dirs@, %1$#@days@", days + dirs) + plural("skips", "%2$#@days@", days) +
                      plural("mixed", "%@: %#@days@ of %@", days) + plural("without", "%#@dirs@ of %@", dirs) +
                      plural("nested", "%#@files@",
                             variable("files", "d",
                                      text("zero", "No file in %#@dirs@ by %@") +
                                          forms("One file in %#@dirs@ by %@", "%d files in %#@dirs@ by %@")) +
                                 dirs) +
                      plural("owner", "%#@n@",
                             variable("n", "d", text("zero", "none of %@") + forms("a %d of %@", "%d of %@"))) +
                      plural("percent", "%#@n@d %%", variable("n", "d", forms("%d%", "%d%%"))) +
                      plural("unknown", "%#@other@ %#@days@", days) +
                      plural("itself", "%#@n@", variable("n", "d", forms("one", "%d %#@n@ times"))) +
                      plural("many", "%#@a@", manyForms) +
                      plural("missing", "%#@n@", variable("n", "d", text("few", "%d of few"))));
    Host::setPreferredLanguages({"en"});
    Host::setCurrentLocale("en_US");
    const struct {
        int line;
        const char* key;
        std::vector<FormatArgument> arguments;
        const char* expected;
    } cases[] = {
        {__LINE__, "plain", {1}, "1 day left"},
        {__LINE__, "plain", {12345}, "12,345 days left"},
        {__LINE__, "plain", {-1}, "-1 day left"},
        {__LINE__, "plain", {"1"sv}, "1 day left"},
        {__LINE__, "plain", {}, " days left"},
        {__LINE__, "two", {1, 2}, "1 day in 2 folders"},
        {__LINE__, "two", {2, 1}, "2 days in one folder"},
        {__LINE__, "positions", {1, 5}, "5 folders, 1 day"},
        {__LINE__, "skips", {1, 5}, "5 days"},
        {__LINE__, "skips", {5, 1}, "1 day"},
        {__LINE__, "mixed", {"a"sv, 1, "b"sv}, "a: 1 day of b"},
        {__LINE__, "without", {1, "b"sv}, "one folder of b"},
        {__LINE__, "nested", {2, 1, "me"sv}, "2 files in one folder by me"},
        {__LINE__, "nested", {1, 2, "me"sv}, "One file in 2 folders by me"},
        {__LINE__, "nested", {0, 2, "me"sv}, "No file in 2 folders by me"},
        {__LINE__, "owner", {0, "me"sv}, "none of me"},
        {__LINE__, "owner", {1, "me"sv}, "a 1 of me"},
        {__LINE__, "percent", {1}, "1%d %"},
        {__LINE__, "percent", {2}, "2%d %"},
        // Without a variable of this name, "%#@" is the placeholder %@ with a flag.
        {__LINE__, "unknown", {"a"sv, 1}, "aother@ 1 day"},
        {__LINE__, "missing", {1}, "1 of few"},
        {__LINE__, "itself", {5}, "5  times"},
    };
    for (const auto& [line, key, arguments, expected] : cases)
        EXPECT_EQ(Foundation::String::format(NSBundle::bundleWithPath(folder_.path()).localizedFormat(key, ""),
                                             Foundation::Locale::current(), arguments),
                  expected)
            << "line " << line;
    // Each form has the next variable twice, eight levels deep, so the text exceeds the limit and is cut.
    EXPECT_LE(formatted("many", {5}).size(), Foundation::detail::maxPluralBytes + longForm);
}

TEST_F(Plurals, FollowTheLanguageOfTheirTable) {
    const std::string all =
        text("one", "%ld one") + text("few", "%ld few") + text("many", "%ld many") + text("other", "%ld other");
    write("Base", plural("n", "%#@n@", variable("n", "ld", all)) + plural("base", "%#@n@", variable("n", "ld", all)) +
                      plural("zero", "%#@n@", variable("n", "ld", text("zero", "none") + all)));
    write("ru", plural("n", "%#@n@", variable("n", "ld", all)) +
                    plural("zero", "%#@n@", variable("n", "ld", text("zero", "none") + all)));
    write("ar", plural("n", "%#@n@", variable("n", "ld", all)));
    Host::setPreferredLanguages({"ru"});
    Host::setCurrentLocale("de_DE"); // affects how numbers are printed, not the plural form
    EXPECT_EQ(formatted("n", {21}), "21 one");
    EXPECT_EQ(formatted("n", {3}), "3 few");
    EXPECT_EQ(formatted("n", {1011}), "1.011 many");
    EXPECT_EQ(formatted("zero", {0}), "none");
    EXPECT_EQ(formatted("base", {21}), "21 other"); // found in the English table
    Host::setPreferredLanguages({"ar"});
    EXPECT_EQ(formatted("n", {2}), "2 other"); // the form is missing
    EXPECT_EQ(formatted("n", {11}), "11 many");
    EXPECT_EQ(formatted("zero", {0}), "none");
}

TEST_F(Plurals, UseFloatingNumbersAsPrinted) {
    write("Base",
          plural("f", "%#@n@", variable("n", "f", forms("%.1f mile", "%.1f miles"))) +
              plural("rounded", "%#@n@", variable("n", "f", forms("%.0f mile", "%.0f miles"))) +
              plural("free", "%#@n@", variable("n", "g", forms("a mile", "several miles"))) +
              plural("e", "%#@n@", variable("n", "e", forms("%.0e mile", "%.0e miles"))) +
              plural("a", "%#@n@", variable("n", "a", forms("%a mile", "%a miles"))) +
              plural("x", "%#@n@", variable("n", "x", forms("%x mile", "%x miles"))) +
              plural("second", "%2$#@n@", variable("n", "f", forms("%1$d: %2$.1f mile", "%1$d: %2$.1f miles"))) +
              plural("lu", "%#@n@", variable("n", "lu", forms("%lu byte", "%lu bytes"))) +
              plural("sign", "%#@n@", variable("n", "d", text("zero", "none") + forms("one", "%+.0d files"))) +
              plural("none", "%#@n@", variable("n", "f", text("zero", "none") + forms("one", "%.0f miles"))));
    write("fr", plural("f", "%#@n@", variable("n", "f", forms("%.1f mille", "%.1f milles"))));
    Host::setPreferredLanguages({"en"});
    Host::setCurrentLocale("en_US");
    EXPECT_EQ(formatted("f", {1.0}), "1.0 miles");
    EXPECT_EQ(formatted("rounded", {1.0}), "1 mile");
    EXPECT_EQ(formatted("rounded", {0.9}), "1 mile");
    EXPECT_EQ(formatted("free", {1.0}), "a mile");
    EXPECT_EQ(formatted("free", {1.5}), "several miles");
    EXPECT_EQ(formatted("e", {1e6}), "1e+06 miles");
    EXPECT_EQ(formatted("a", {1.0}), "0x1p+0 mile");
    EXPECT_EQ(formatted("x", {255}), "ff miles"); // 255 selects the form
    EXPECT_EQ(formatted("second", {7, 1.4}), "7: 1.4 miles");
    EXPECT_EQ(formatted("lu", {std::uint64_t{1}}), "1 byte");
    EXPECT_EQ(formatted("none", {0.0}), "none");
    EXPECT_EQ(formatted("sign", {0}), "none");
    EXPECT_EQ(formatted("none", {std::numeric_limits<double>::infinity()}), "inf miles");
    EXPECT_EQ(formatted("none", {"many"sv}), "many miles");
    EXPECT_EQ(formatted("lu", {~std::uint64_t{0}}), "18,446,744,073,709,551,615 bytes");
    Host::setPreferredLanguages({"fr"});
    Host::setCurrentLocale("fr_FR");
    EXPECT_EQ(formatted("f", {1.5}), "1,5 mille");
    EXPECT_EQ(formatted("f", {2.0}), "2,0 milles");
}

TEST_F(Plurals, WinOverTextsOfTheirLanguage) {
    folder_.write("Base.lproj/Localizable.strings", "n = text; only = \"%ld\"; fallback = text;");
    folder_.write("de.lproj/Localizable.strings", "fallback = deutsch;");
    write("Base", plural("n", "%#@n@ left", variable("n", "ld", forms("%ld day", "%ld days"))) +
                      plural("fallback", "%#@n@", variable("n", "ld", forms("a", "b"))));
    Host::setPreferredLanguages({"de"});
    const NSBundle& bundle = NSBundle::bundleWithPath(folder_.path());
    EXPECT_EQ(bundle.localizedText("n", ""), "%1$ld days left");
    EXPECT_EQ(bundle.localizedStringForKey("n", nullptr, ""), "%1$ld days left");
    EXPECT_EQ(formatted("fallback", {1}), "deutsch");
    EXPECT_EQ(formatted("only", {1}), "1");
    // The key "%ld" is missing, although its characters are those of a text in the table.
    const std::string_view key = bundle.localizedText("only", "");
    const std::string value = "instead";
    EXPECT_EQ(bundle.localizedStringForKey(key, &value, ""), "instead");
}

TEST_F(Plurals, DamagedTablesHaveNoKeys) {
    folder_.write("Base.lproj/Localizable.stringsdict", "<plist><dict><key>n</key>");
    folder_.write("Base.lproj/Localizable.strings", "n = text;");
    EXPECT_EQ(formatted("n", {1}), "text");
}

} // namespace
