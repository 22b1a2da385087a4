// Texts and plurals of string catalogs, and plural tables beside tables of texts.
#include "../Support/SourceFolder.h"
#include "StringTables/internal/PluralTable.h"
#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;
using SourceBundle::SourceEntry;

// "FORMAT {NAME TYPE one=... other=...}", or the text of an entry without a plural.
std::string shown(const SourceEntry& entry) {
    if (entry.plural == nullptr)
        return std::string(entry.text);
    std::string text = entry.plural->format;
    for (const auto& variable : entry.plural->variables) {
        text += " {" + variable.name + ' ' + variable.valueType;
        for (std::size_t i = 0; i < variable.forms.size(); ++i)
            if (variable.forms[i])
                text.append(" ").append(Intl::pluralCategoryNames[i]).append("=").append(*variable.forms[i]);
        text += '}';
    }
    return text;
}

// The JSON with " in place of each '.
std::string quotes(std::string json) {
    std::ranges::replace(json, '\'', '"');
    return json;
}

// The entry of the key "k" with this English localization, or the first message if the catalog has an error.
std::string shownOf(const std::string& localization) {
    Support::SourceFolder folder;
    folder.write("T.xcstrings",
                 quotes("{'sourceLanguage': 'en', 'strings': {'k': {'localizations': {'en': " + localization + "}}}}"));
    const auto source = folder.read();
    return folder.diagnostics.hasErrors() ? folder.takeMessages().front()
                                          : shown(*source.tables.at(0).find("en")->find("k"));
}

TEST(StringCatalog, HasTheTextsOfEveryLanguage) {
    Support::SourceFolder folder;
    // The languages are those in the catalog, not that of its folder.
    folder.write("Deep/mul.lproj/T.xcstrings", quotes(R"({
  'version': '1.0',
  'strings': {
    '%@ is here': {},
    'title': {
      'comment': 'A \u00e9',
      'extractionState': 'stale',
      'localizations': {
        'de': {'stringUnit': {'state': 'needs_review', 'value': 'Titel'}},
        'en': {'stringUnit': {'state': 'translated', 'value': 'Title'}},
        'fr': {'stringUnit': {'state': 'new', 'value': ''}}
      },
      'shouldTranslate': false
    }
  },
  'sourceLanguage': 'en'
})"));
    const auto source = folder.read();
    EXPECT_EQ(folder.takeMessages(), Strings());
    EXPECT_EQ(source.developmentLanguage, "en");
    ASSERT_EQ(source.tables.size(), 1U);
    const auto& table = source.tables[0];
    ASSERT_EQ(table.languages.size(), 2U);
    const SourceEntry* title = table.find("de")->find("title");
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->text, "Titel");
    EXPECT_EQ(title->comment, "A é");
    EXPECT_EQ(title->state, SourceBundle::State::needsReview);
    EXPECT_TRUE(title->isStale);
    EXPECT_FALSE(title->isTranslatable);
    EXPECT_EQ(title->error("m").text(), title->file->path.string() + ":5:5: m");
    EXPECT_EQ(table.find("en")->find("title")->text, "Title");
    EXPECT_EQ(table.find("en")->find("%@ is here")->text, "%@ is here");
}

TEST(StringCatalog, GivesTheDevelopmentLanguageByDefault) {
    Support::SourceFolder folder;
    folder.write("T.xcstrings", quotes("{'sourceLanguage': 'de', 'strings': {}}"));
    EXPECT_EQ(folder.read().developmentLanguage, "de");
    folder.write("Info.plist", "CFBundleDevelopmentRegion = fr;");
    EXPECT_EQ(folder.read().developmentLanguage, "fr");
}

TEST(StringCatalog, HasPluralsDevicesAndSubstitutions) {
    const auto unit = [](const std::string& text) {
        return "{'stringUnit': {'state': 'translated', 'value': '" + text + "'}}";
    };
    const auto plural = [&](const std::string& one, const std::string& other) {
        return "{'plural': {'one': " + unit(one) + ", 'other': " + unit(other) + "}}";
    };
    const struct {
        int line;
        std::string localization, shown;
    } cases[] = {
        {__LINE__, "{'variations': " + plural("%arg day", "%lld days") + "}",
         "%#@value@ {value lld one=%lld day other=%lld days}"},
        // The first number selects the form; with several arguments all get positions.
        {__LINE__, "{'variations': " + plural("%@ has one file", "%@ has %lld files") + "}",
         "%2$#@value@ {value lld one=%1$@ has one file other=%1$@ has %2$lld files}"},
        {__LINE__, "{'variations': " + plural("%2$@: %1$.1f", "%2$@: %1$.1f s") + "}",
         "%#@value@ {value .1f one=%2$@: %1$.1f other=%2$@: %1$.1f s}"},
        {__LINE__, "{'variations': " + plural("One", "Many") + "}", "%#@value@ {value lld one=One other=Many}"},
        {__LINE__, "{'variations': {'device': {'mac': " + unit("Click") + ", 'other': " + unit("Tap") + "}}}", "Tap"},
        {__LINE__, "{'variations': {'device': {'iphone': " + unit("Tap") + ", 'ipad': " + unit("Touch") + "}}}", "Tap"},
        {__LINE__,
         "{'variations': {'device': {'ipad': " + unit("x") + ", 'other': {'variations': " + plural("%d a", "%d b") +
             "}}}}",
         "%#@value@ {value d one=%d a other=%d b}"},
        {__LINE__,
         "{'stringUnit': {'state': 'translated', 'value': '%@: %#@f%d@ in %#@folders@ by %@'}, 'substitutions': {"
         "'f%d': {'argNum': 2, 'formatSpecifier': '%ld', 'variations': " +
             plural("%arg file", "%arg files, 100%%arg") +
             "}, 'folders': {'argNum': 3, 'formatSpecifier': '', 'variations': " + plural("a folder", "%arg folders") +
             "}}}",
         "%1$@: %2$#@f%d@ in %3$#@folders@ by %4$@ {f%d ld one=%2$ld file other=%2$ld files, 100%%arg} "
         "{folders lld one=a folder other=%3$lld folders}"},
        // A substitution without a number ('argNum'), and one that is used in a form of another.
        {__LINE__,
         "{'substitutions': {'a': {'variations': " + plural("%arg egg", "%arg eggs in %#@b@") +
             "}, 'b': {'argNum': 3, "
             "'variations': " +
             plural("a box", "%arg boxes") + "}}, 'variations': {'device': {'iphone': " + unit("Tap %@, %#@a@") +
             ", 'other': " + unit("Click %@, %#@a@, %.1f") + "}}}",
         "Click %1$@, %2$#@a@, %4$.1f {a lld one=%2$lld egg other=%2$lld eggs in %3$#@b@} {b lld one=a box "
         "other=%3$lld "
         "boxes}"},
        // An empty text in the state `new` counts as absent.
        {__LINE__,
         "{'variations': {'plural': {'one': {'stringUnit': {'state': 'new', 'value': ''}}, 'other': " +
             unit("%d eggs") + "}}}",
         "%#@value@ {value d other=%d eggs}"},
        {__LINE__,
         "{'variations': {'device': {'other': {'stringUnit': {'value': '', 'state': 'new'}}, 'ipad': " + unit("x") +
             "}}}",
         "x"},
        {__LINE__, "{'variations': {'plural': {'other': {'stringUnit': {'state': 'new', 'value': ''}}}}}", "k"},
        // A text for a device takes precedence over the entry's own, in any order.
        {__LINE__, "{'variations': {'device': {'mac': " + unit("Click") + "}}, 'stringUnit': {'value': 'Hi'}}",
         "Click"},
        {__LINE__, "{'stringUnit': {'value': 'Hi'}, 'variations': {'device': {'mac': {}}}}", "Hi"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(shownOf(one.localization), one.shown) << "line " << one.line;
}

TEST(StringCatalog, IsRejectedWithALocation) {
    const struct {
        int line;
        std::string json, message;
    } cases[] = {
        {__LINE__, "", "T.xcstrings: invalid JSON"},
        {__LINE__, "[]", "T.xcstrings:1:1: is not a string catalog"},
        {__LINE__, "{'strings': {}}", "is not a string catalog: has no \"sourceLanguage\""},
        {__LINE__, "{'sourceLanguage': 'en'}", "is not a string catalog"},
        {__LINE__, "{'sourceLanguage': 'en', 'strings': {'a': 5}}", "is not a string catalog"},
        {__LINE__, "{'sourceLanguage': 'en',\n'strings': {'a': {'x': nul}}}", "T.xcstrings:2:"},
        {__LINE__, "{'sourceLanguage': 'en', 'strings': {'a': {}", "invalid JSON"},
        {__LINE__, "{'sourceLanguage': 'en', 'strings': {},\n'version': 1.0.0}", "T.xcstrings:2:"},
        {__LINE__, "{'a': [tru], 'sourceLanguage': 'en', 'strings': {}}", "T.xcstrings:1:"},
        {__LINE__, "{'sourceLanguage': 'en', 'strings': {}}\n{}", "T.xcstrings:2:"},
        {__LINE__, "{'sourceLanguage': 'en', 'strings': {'\xFF': {}}}", "invalid JSON"},
        {__LINE__, "{'sourceLanguage': '../en', 'strings': {}}", "\"../en\" is not the name of a language"},
    };
    // Values that are nested too deeply.
    const std::string deep(100'000, '[');
    std::string devices;
    for (int i = 0; i < 2000; ++i)
        devices += "{'variations': {'device': {'other': ";
    for (const std::string& json :
         {"{'sourceLanguage': 'en', 'x': " + deep + std::string(deep.size(), ']') + ", 'strings': {}}",
          "{'sourceLanguage': 'en', 'strings': {'k': {'localizations': {'en': " + devices + "5" +
              std::string(6000, '}') + "}}}}"}) {
        Support::SourceFolder folder;
        folder.write("T.xcstrings", quotes(json));
        (void)folder.read();
        EXPECT_TRUE(folder.takeMessages().at(0).ends_with("has JSON that is nested too deeply"));
    }
    for (const auto& one : cases) {
        Support::SourceFolder folder;
        folder.write("T.xcstrings", quotes(one.json));
        (void)folder.read();
        const Strings messages = folder.takeMessages();
        ASSERT_GE(messages.size(), 1U) << "line " << one.line;
        EXPECT_TRUE(messages[0].starts_with("error: T.xcstrings")) << "line " << one.line << messages[0];
        EXPECT_NE(messages[0].find(one.message), std::string::npos) << "line " << one.line << messages[0];
    }
}

// An import writes into a folder that is named after the language.
TEST(StringCatalog, RejectsLanguagesThatCannotBeFolders) {
    for (const std::string name : {"../../outside", "/outside", "a/b", "..", "", "de\\u0000"}) {
        Support::SourceFolder folder;
        folder.write("T.xcstrings", quotes("{'sourceLanguage': 'en', 'strings': {\n'k': {'localizations': {'" + name +
                                           "': {'stringUnit': {'value': 'x'}}}}}}"));
        EXPECT_EQ(folder.read().tables.at(0).languages.size(), 1U) << name;
        const Strings messages = folder.takeMessages();
        ASSERT_EQ(messages.size(), 1U) << name;
        EXPECT_TRUE(messages[0].starts_with("warning: T.xcstrings:2:1: \"")) << messages[0];
    }
}

TEST(StringCatalog, ReportsWhatItLeavesOut) {
    Support::SourceFolder folder;
    folder.write("T.xcstrings",
                 quotes("{'sourceLanguage': 'en', 'strings': {'a': {},\n'a': {}, 'd': {'localizations': "
                        "{'en': {'variations': {'device': {'mac': {'stringUnit': {'value': 'x'}}, "
                        "'other': {'stringUnit': {'value': 'y'}}}}}}},\n"
                        "'p': {'localizations': {'en': {'variations': {'plural': {'other': {'variations': "
                        "{'device': {'mac': {'stringUnit': {'value': 'x'}}, "
                        "'other': {'stringUnit': {'value': 'y'}}}}}}}}}},\n"
                        "'s': {'localizations': {'de': {'stringSet': {}}, 'en': {'stringSet': {}}}}}}"));
    folder.write("en.lproj/T.strings", "a = b;");
    (void)folder.read();
    EXPECT_EQ(folder.takeMessages(),
              (Strings{"warning: T.xcstrings:2:1: the key appears again; this text is used",
                       "note: T.xcstrings:2:10: texts for specific devices are left out",
                       "note: T.xcstrings:3:1: texts for specific devices are left out",
                       "note: T.xcstrings:4:1: \"stringSet\" is not supported and is left out",
                       "error: en.lproj/T.strings: is the table \"T\" in the language en, as is T.xcstrings"}));
}

TEST(StringCatalog, LimitsTheSubstitutionsOfATextAndItsDeviceTogether) {
    const auto substitutions = [](const std::string& name) {
        std::string all = "'substitutions': {";
        for (int i = 0; i < 200; ++i)
            all += (i == 0 ? "'" : ", '") + name + std::to_string(i) + "': {}";
        return all + "}";
    };
    Support::SourceFolder folder;
    folder.write("T.xcstrings", quotes("{'sourceLanguage': 'en', 'strings': {'k': {'localizations': {'en': {" +
                                       substitutions("a") + ", 'variations': {'device': {'other': {" +
                                       substitutions("b") + ", 'stringUnit': {'value': '%#@a1@'}}}}}}}}}"));
    const auto source = folder.read();
    EXPECT_EQ(source.tables.at(0).find("en")->find("k")->plural->variables.size(), 256U);
    EXPECT_EQ(folder.takeMessages(),
              (Strings{"warning: T.xcstrings:1:38: a text has more than 256 substitutions; the rest is left out"}));
}

TEST(PluralTables, WinOverEqualKeysOfTexts) {
    Support::SourceFolder folder;
    folder.write("en.lproj/T.strings", "a = b;\n/* why */\nfiles = x;");
    folder.write("A/en.lproj/T.stringsdict", R"(<plist><dict>
<key>files</key><dict><key>NSStringLocalizedFormatKey</key><string>Found %#@n@ here</string>
<key>n</key><dict><key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>
<key>NSStringFormatValueTypeKey</key><string>d</string><key>one</key><string>%d file</string>
<key>other</key><string>%d files</string></dict></dict></dict></plist>)");
    const auto source = folder.read();
    EXPECT_EQ(folder.takeMessages(), Strings());
    const auto* texts = source.tables.at(0).find("en");
    ASSERT_EQ(texts->entries().size(), 2U);
    const SourceEntry& files = texts->entries()[1];
    EXPECT_EQ(shown(files), "Found %#@n@ here {n d one=%d file other=%d files}");
    EXPECT_EQ(files.text, "Found %d files here");
    EXPECT_EQ(files.comment, "why");
    EXPECT_EQ(files.line, 2U);
    // A form that consists only of references to itself gives an empty text, however many it has.
    std::string names;
    for (int i = 0; i < 500; ++i)
        names += "%#@n@";
    folder.write("A/en.lproj/T.stringsdict",
                 "<plist><dict><key>files</key><dict><key>NSStringLocalizedFormatKey</key><string>"
                 "%#@n@</string><key>n</key><dict><key>other</key><string>" +
                     names + "</string></dict></dict></dict></plist>");
    EXPECT_EQ(folder.read().tables.at(0).find("en")->entries()[1].text, "");
    folder.write("A/en.lproj/T.stringsdict", "<plist>");
    EXPECT_TRUE(folder.read().tables.at(0).find("en")->isDamaged);
    EXPECT_TRUE(folder.diagnostics.hasErrors());
}

} // namespace
