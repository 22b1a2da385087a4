// The identifiers in C++ code, and the accessors that no code uses.
#include "Check/Identifiers.h"
#include "CheckedSource.h"
#include <gtest/gtest.h>

namespace {

using Support::CheckedSource;
using Support::Strings;

// "NAME" or "QUALIFIER::NAME" for each identifier.
std::string identifiers(std::string_view code) {
    std::string all;
    Check::forEachIdentifier(code, [&](std::string_view name, std::string_view qualifier) {
        all.append(all.empty() ? "" : " ").append(qualifier).append(qualifier.empty() ? "" : "::").append(name);
    });
    return all;
}

TEST(Identifiers, AreFoundOutsideOfCommentsAndLiterals) {
    const struct {
        int line;
        const char *code, *expected;
    } cases[] = {
        {__LINE__, "a /* b */ c // d\ne", "a c e"},
        {__LINE__, "a(\"b\\\"c\", 'd', '\\'') e", "a e"},
        {__LINE__, "R\"x(a )\" b)x\" c u8R\"(d)\"", "c"},
        {__LINE__, "1'000 a 0xFF 1.5e3f b1", "a b1"},
        {__LINE__, "A::B:: c a::/* x */b", "A A::B B::c a a::b"},
        {__LINE__, "::a + ::b; a . ::c", "a b a c"},
        {__LINE__, "return ::b; case ::x: y::z", "return b case x y y::z"},
        {__LINE__, "Сhatlist::title", "Сhatlist Сhatlist::title"}, // begins with a Cyrillic letter
        {__LINE__, "\"open", ""},
        {__LINE__, "a /* open", "a"},
        {__LINE__, "R\"(open", ""},
        {__LINE__, "PRIuPTR\"(\" c", "PRIuPTR c"}, // the R does not begin a raw string
        {__LINE__, "\"\\", ""},
    };
    for (const auto& one : cases)
        EXPECT_EQ(identifiers(one.code), one.expected) << one.line;
}

TEST(Check, FindsAccessorsThatNoCodeUses) {
    CheckedSource source{{"en.lproj/T.strings", "Cart.title = a;\nHome.title = b;\nused = c;\ndelete = d;\n"
                                                "/* lumora: allow unused-accessor */\nby_name = e;\nold = f;"}};
    const Support::TemporaryFolder code;
    code.write("a.cpp", "auto a = T::Home::title() + S::used(); // old");
    code.write("deep/b.mm", "auto b = T::delete_();");
    code.write("notes.txt", "old");
    code.write(".hidden/c.cpp", "old();");
    code.write("Shop.h", "// Generated from the resources of the module Shop; do not edit.\nconst std::string& old();");
    EXPECT_EQ(source.findings({.usedIn = {code.path()}}),
              (Strings{"unused-accessor en.lproj/T.strings:1:1 en Cart.title",
                       "unused-accessor en.lproj/T.strings:7:1 en old"}));
    EXPECT_EQ(source.takeMessages(), Strings());
    source.findings({.usedIn = {code / "none"}});
    EXPECT_EQ(source.takeMessages().size(), 1U);
}

} // namespace
