// Pseudo-languages change words, but no placeholders and no markup; the accented one also adds brackets and padding.
#include "../Support/SourceFolder.h"
#include "SourceBundle/PseudoText.h"
#include "StringTables/internal/PluralPieces.h"
#include <gtest/gtest.h>

namespace {

using SourceBundle::Pseudo;
using SourceBundle::pseudoText;

// `word` displayed from right to left.
std::string turned(const std::string& word) {
    return "\u200F\u202E" + word + "\u202C\u200F";
}

TEST(PseudoTexts, ChangeOnlyWords) {
    const struct {
        int line;
        std::string text, accented, rightToLeft;
    } cases[] = {
        {__LINE__, "", "", ""},
        {__LINE__, "Save", "[Šåṽé ~~]", turned("Save")},
        {__LINE__, "%@", "[%@]", "%@"},
        {__LINE__, "%1$@ of %2$ld, 100%%", "[%1$@ öƒ %2$ld, 100%% ~]", "%1$@ " + turned("of") + " %2$ld, 100%%"},
        {__LINE__, "Go to %.1f km/h now", "[Ĝö ţö %.1f ķɱ/ĥ ñöŵ ~~~~]",
         turned("Go") + " " + turned("to") + " %.1f " + turned("km/h") + " " + turned("now")},
        {__LINE__, "one\ntwo\r\n", "[öñé\nţŵö ~~]\r\n", turned("one") + "\n" + turned("two") + "\r\n"},
        {__LINE__, "<b class=\"x y\">Hi</b> a&amp;b \\n", "[<b class=\"x y\">Ĥî</b> å&amp;ƀ \\n ~~]",
         "<b class=\"x y\">" + turned("Hi") + "</b> " + turned("a") + "&amp;" + turned("b") + " \\n"},
        {__LINE__, "a < b & c", "[å < ƀ & ç ~]", turned("a") + " < " + turned("b") + " & " + turned("c")},
        {__LINE__, "12:30 – 5", "[12:30 – 5]", "12:30 – 5"},
        // Latin letters with accents are unchanged. A decomposed one keeps its mark.
        {__LINE__, "été e\u0301", "[éţé é\u0301 ~~]", turned("été") + " " + turned("e\u0301")},
        // Letters of other alphabets with capitals get combining marks; other scripts get only padding.
        {__LINE__, "Да, %@: Ωμ\u00A0ж", "[Д\u0302а\u0302, %@: Ω\u0302μ\u0302\u00A0ж\u0302 ~~]",
         turned("Да,") + " %@: " + turned("Ωμ") + "\u00A0" + turned("ж")},
        {__LINE__, "%@さん\u3000保存👍", "[%@さん\u3000保存👍 ~~]", "%@" + turned("さん") + "\u3000" + turned("保存👍")},
        {__LINE__, "\u2068नमस्ते\u2069 أهلا", "[\u2068नमस्ते\u2069 أهلا ~~~]",
         "\u2068" + turned("नमस्ते") + "\u2069 " + turned("أهلا")},
        // Unchanged: placeholders in tags and after backslashes, escapes with digits, a character after a backslash.
        {__LINE__, "a<a href=\"%@\" id=%d>b", "[å<a href=\"%@\" id=%d>ƀ ~]",
         turned("a") + "<a href=\"%@\" id=%d>" + turned("b")},
        {__LINE__, "\\%d \\u00e9b \\éa <a<b", "[\\%d \\u00e9b \\éå <å<ƀ ~]",
         "\\%d \\u00e9b \\é" + turned("a") + " " + turned("<a<b")},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(pseudoText(one.text, Pseudo::accented), one.accented) << "line " << one.line;
        EXPECT_EQ(pseudoText(one.text, Pseudo::rightToLeft), one.rightToLeft) << "line " << one.line;
    }
}

TEST(PseudoLanguages, AreAddedToEveryTable) {
    Support::SourceFolder folder;
    folder.write("Base.lproj/T.strings", "a = Add; b = \"%@ left\";");
    folder.write("de.lproj/T.strings", "a = x; only = y;");
    folder.write("en-XA.lproj/Own.strings", "a = own;");
    folder.write("Base.lproj/Own.strings", "a = Add;");
    folder.write("C.xcstrings",
                 R"({"sourceLanguage": "en", "strings": {"Brand": {"shouldTranslate": false}, "%lld cups of %@": {
        "localizations": {"en": {"variations": {"plural": {"one": {"stringUnit": {"value": "a cup of %2$@"}},
                                                           "other": {"stringUnit": {"value": "%1$lld cups of %2$@"}}}}}}}}})");
    const auto source = folder.read({.addsPseudoLanguages = true});
    EXPECT_EQ(folder.takeMessages(), std::vector<std::string>());
    const auto text = [&source](std::size_t table, const char* key) {
        const auto* const texts = source.tables.at(table).find("en-XA");
        const auto* const entry = texts == nullptr ? nullptr : texts->find(key);
        return entry == nullptr ? std::string() : std::string(entry->text);
    };
    // The tables are C, Own and T.
    EXPECT_EQ(text(2, "a"), "[Åðð ~]");
    EXPECT_EQ(text(2, "b"), "[%@ ļéƒţ ~~]");
    EXPECT_EQ(text(2, "only"), "");
    EXPECT_EQ(text(1, "a"), "own");
    EXPECT_EQ(text(0, "Brand"), "Brand");
    const auto* const cups = source.tables.at(0).find("ar-XB")->find("%lld cups of %@");
    ASSERT_TRUE(cups != nullptr && cups->plural != nullptr);
    const auto* const english = source.tables.at(0).find("en")->find(cups->key);
    EXPECT_EQ(StringTables::signatureOf(*cups->plural).arguments,
              StringTables::signatureOf(*english->plural).arguments);
    EXPECT_EQ(cups->plural->format, english->plural->format);
    EXPECT_EQ(cups->plural->variables[0].forms[Intl::indexOf(Intl::PluralCategory::one)],
              turned("a") + " " + turned("cup") + " " + turned("of") + " %2$@");
}

} // namespace
