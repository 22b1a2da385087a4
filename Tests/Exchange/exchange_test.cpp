// Files for translators: they are read back exactly as written, and an import changes only texts.
#include "../Support/SourceFolder.h"
#include "Exchange/Export.h"
#include "Exchange/Import.h"
#include "Exchange/Languages.h"
#include "Exchange/PluralExpression.h"
#include "Exchange/Po.h"
#include "Exchange/Xliff.h"
#include "Intl/internal/PluralRules.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <cstring>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using Exchange::State;
using Exchange::Translations;
using Exchange::Unit;
using Intl::PluralCategory;
using Strings = std::vector<std::string>;

const std::string difficult[] = {"plain",
                                 " leading and trailing ",
                                 "quotes \" ' \\ and \\\" \\n",
                                 "\nlines\r\nof\rtext\n",
                                 "tab\t bell\a \x01 \x1f \x7f",
                                 "100%% %@ %1$@ %#@n@",
                                 "<b>&amp;</b> ]]> <![CDATA[x]]>",
                                 "\u2028 \u2029 \u200F\u202Bעברית\u202C \u0085 \uFEFF \uFFFE \U0001F600",
                                 "/* comment */ // \"=\"; #, fuzzy",
                                 "\\u{41} \\\\ [a.b]/c",
                                 "e\u0301 \u00e9"};

std::string idText(const std::string& key, Strings part, std::optional<PluralCategory> category) {
    return Exchange::textOf({"T", key, std::move(part), category});
}

TEST(UnitIds, AreReadBack) {
    EXPECT_EQ(idText("cart.title", {}, {}), "T/cart.title");
    EXPECT_EQ(idText("a/b [c]", {"variables", "d.e"}, PluralCategory::one),
              "T[variables.d\\u{2e}e.plural.one]/a/b [c]");
    for (const std::string& key : difficult)
        for (const Exchange::UnitId& id : {Exchange::UnitId{key, key, {}, {}},
                                           {key, key, {"device", key}, {}},
                                           {key, key, {"substitutions", key}, PluralCategory::few},
                                           {"", "", {}, {}}}) {
            const std::string text = Exchange::textOf(id);
            EXPECT_EQ(Exchange::unitIdOf(text), std::optional(id)) << text;
            EXPECT_TRUE(std::ranges::none_of(text, [](char c) { return c >= 0 && c < ' '; })) << text;
        }
    for (const char* wrong : {"", "key", "T[a/key", "T/\\", "T/\\u{", "T/\\u{D800}", "T/\\u{110000}", "T/\\u{4G}"})
        EXPECT_EQ(Exchange::unitIdOf(wrong), std::nullopt) << wrong;
}

// Units with every difficult text in every position, and all states.
Translations difficultTranslations(const std::string& language) {
    Translations translations{.sourceLanguage = "en", .targetLanguage = language};
    constexpr State states[] = {State::translated, State::isNew, State::needsReview};
    for (std::size_t i = 0; i < std::size(difficult); ++i) {
        Unit unit{.id = {"T", difficult[i], {}, {}},
                  .source = difficult[i],
                  .target = difficult[(i + 1) % std::size(difficult)]};
        unit.state = states[i % 3];
        unit.comment = difficult[i];
        unit.place = "a b.strings:5";
        translations.units.push_back(unit);
        for (const PluralCategory category : Exchange::categoriesOf(language)) {
            unit.id.part = {"variables", difficult[i]};
            unit.id.category = unit.sourceCategory = category;
            unit.source = category == PluralCategory::one ? "one" : "other";
            translations.units.push_back(unit);
        }
    }
    Exchange::markFuzzy(translations.units, language);
    return translations;
}

TEST(ExchangeFiles, RoundTripEveryText) {
    for (const char* language : {"de", "ar", "ja", "ru", "fr", "xx"}) {
        const Translations translations = difficultTranslations(language);
        SourceBundle::Diagnostics diagnostics;
        const auto xliff = Exchange::readXliff(Exchange::writeXliff(translations, /*version=*/"1"), "f", diagnostics);
        ASSERT_TRUE(xliff) << xliff.error().text();
        std::string bytes = Exchange::writePo(translations, diagnostics);
        EXPECT_NE(bytes.find("#. lines\n#. of\n#. text\n"), std::string::npos);
        // An obsolete entry, which is ignored.
        bytes.insert(bytes.find("\n\n"), "\n\n#, fuzzy\n#~ msgid \"obsolete\"\n#~ msgstr \"\"");
        const auto po = Exchange::readPo(bytes, "f", diagnostics);
        ASSERT_TRUE(po) << po.error().text();
        EXPECT_TRUE(diagnostics.all().empty());
        ASSERT_EQ(xliff->size(), 1U);
        for (const Translations& read : {xliff->front(), *po}) {
            EXPECT_EQ(read.sourceLanguage, "en");
            EXPECT_EQ(read.targetLanguage, language);
            ASSERT_EQ(read.units.size(), translations.units.size());
            for (const Unit& unit : translations.units) {
                const auto found = std::ranges::find(read.units, unit.id, &Unit::id);
                ASSERT_NE(found, read.units.end()) << Exchange::textOf(unit.id);
                EXPECT_EQ(found->source, unit.source);
                EXPECT_EQ(found->target, unit.target);
                if (read.hasStates)
                    EXPECT_EQ(found->state, unit.state);
                else
                    EXPECT_EQ(found->isFuzzy, unit.isFuzzy);
            }
        }
    }
}

TEST(ExchangeFiles, AreRejectedWithLocations) {
    const std::string head = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\nLanguage: de\\n\"\n";
    const std::string xml =
        "<xliff version='1.2'><file source-language='en' target-language='de'><body><trans-unit id='T/a'>";
    const struct {
        int line;
        std::string bytes, error;
    } cases[] = {
        {__LINE__, "", "f: not a PO file: it has no header"},
        {__LINE__, "msgid \"\"\nmsgstr \"Language: de\\n\"",
         "f:1: the header field Content-Type must say charset=UTF-8"},
        {__LINE__, "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"",
         "f:1: the header has no field Language"},
        {__LINE__, head + "msgid \"a\nmsgstr \"\"", "f:3:9: the string is not closed"},
        {__LINE__, head + "msgid \"a\\q\"\nmsgstr \"\"", "f:3:10: bad escape"},
        {__LINE__, head + "msgid \"a\"\n\nmsgid \"b\"", "f:5:6: not expected here"},
        {__LINE__, head + "msgid \"a\"", "f:3:10: the entry has no msgstr"},
        {__LINE__, head + "msgid \"a\"\nmsgid_plural \"b\"\nmsgstr[1] \"\"", "f:5:7: expected the form 0"},
        {__LINE__, head + "message \"a\"", "f:3:1: expected msgctxt"},
        {__LINE__, head + "msgid \"\xFF\"", "f:3:8: not UTF-8"},
        {__LINE__, "\xFF\xFEm\0"s, "f:1:1: not UTF-8"},
        {__LINE__, "\0<\0a\0/\0>"s, "f:1: not XLIFF 1.2"},
        {__LINE__, "<a/>", "f:1: not XLIFF 1.2"},
        {__LINE__, "<xliff version='2.0'/>", "f:1: not XLIFF 1.2"},
        {__LINE__, "<xliff version='1.2'>\n<file/></xliff>", "f:2: <file> has no source-language"},
        {__LINE__, xml + "<source>\n<x id='1'/></source></trans-unit></body></file></xliff>",
         "f:2: this inline element <x>"},
        {__LINE__, xml, "no element found"},
        {__LINE__, "<!DOCTYPE x [<!ENTITY e 'f'>]><xliff version='1.2'>&e;</xliff>",
         "entity declarations are not allowed"},
    };
    Support::TemporaryFolder folder;
    for (const auto& one : cases) {
        SourceBundle::Diagnostics faults;
        const auto read = Exchange::readTranslations(folder.write("f", one.bytes), faults);
        ASSERT_FALSE(read) << "line " << one.line;
        EXPECT_NE(read.error().text().find(one.error), std::string::npos) << "line " << one.line << read.error().text();
    }
}

// The formula has two forms that German does not distinguish.
TEST(ExchangeFiles, MayHaveOnePluralFormTwice) {
    const std::string begin = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\nLanguage: de\\n"
                              "Plural-Forms: nplurals=3; plural=(n == 1 ? 0 : n == 2 ? 1 : 2);\\n\"\n\n"
                              "msgctxt \"T/k\"\nmsgid \"a\"\nmsgid_plural \"b\"\nmsgstr[0] \"A\"\n";
    const struct {
        int line;
        std::string two, many;
        Strings targets, messages;
    } cases[] = {
        {__LINE__, "B", "B", {"A", "B"}, {}},
        {__LINE__, "", "B", {"A", "B"}, {}},
        {__LINE__, "B", "", {"A", "B"}, {}},
        {__LINE__,
         "B",
         "C",
         {},
         {"f:5: msgstr[1] and msgstr[2] are different texts for the same plural form \"other\" of de"}},
    };
    for (const auto& one : cases) {
        SourceBundle::Diagnostics faults;
        const auto po =
            Exchange::readPo(begin + "msgstr[1] \"" + one.two + "\"\nmsgstr[2] \"" + one.many + "\"\n", "f", faults);
        ASSERT_TRUE(po) << po.error().text();
        Strings targets, messages;
        for (const auto& unit : po->units)
            targets.push_back(unit.target);
        EXPECT_EQ(targets, one.targets) << "line " << one.line;
        for (const auto& fault : faults.all())
            messages.push_back(fault.what.text());
        EXPECT_EQ(messages, one.messages) << "line " << one.line;
    }
}

TEST(PluralExpressions, MatchTheLanguages) {
    for (const char* language :
         {"ar",  "be", "br", "cs", "cy", "da", "de", "en", "es",    "fr", "ga", "he",  "hi", "is", "ja",
          "ksh", "kw", "lt", "lv", "mk", "mt", "pl", "pt", "pt-PT", "ro", "ru", "shi", "sl", "xx", "zh-Hans"}) {
        const auto categories = Exchange::integerCategoriesOf(language);
        const auto expression = Intl::integerPluralExpression(language);
        for (const std::uint64_t n : std::vector<std::uint64_t>{0, 1, 2, 3, 5, 11, 12, 21, 22, 71, 100, 101, 102, 1000,
                                                                40000, 100000, 1000000, 1000001}) {
            const auto form = Exchange::evaluated(expression, n);
            ASSERT_TRUE(form && *form < categories.size()) << language << expression;
            EXPECT_EQ(categories[*form], Intl::pluralCategory(language, {.i = n})) << language << " " << n;
        }
        EXPECT_TRUE(Exchange::categoriesOfForms(expression, categories.size(), language)) << language;
    }
    EXPECT_EQ(Exchange::evaluated("1 + 2 * 3 - 4 / 2 % 3 == 5 ? !!n : !n", 7), 1U);
    for (const char* wrong : {"", "n n", "1 / (n - 1)", "(n", "n ? 1", "n $ 2", "!"})
        EXPECT_EQ(Exchange::evaluated(wrong, 1), std::nullopt) << wrong;
    EXPECT_FALSE(Exchange::evaluated(std::string(100000, '('), 1));
    // Another numbering of the forms is understood, another rule is not.
    using Forms = std::vector<std::optional<PluralCategory>>;
    EXPECT_EQ(Exchange::categoriesOfForms("n == 1", 2, "de"), (Forms{PluralCategory::other, PluralCategory::one}));
    EXPECT_EQ(Exchange::categoriesOfForms("n > 1", 2, "fr"), (Forms{PluralCategory::one, PluralCategory::other}));
    EXPECT_EQ(Exchange::categoriesOfForms("n > 1", 2, "de"), std::nullopt);
    EXPECT_EQ(Exchange::categoriesOfForms("n != 1", 2, "ru"), std::nullopt);
}

const std::string plist = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";
const std::string rule = "<key>NSStringFormatSpecTypeKey</key> <string>NSStringPluralRuleType</string>\n"
                         "<key>NSStringFormatValueTypeKey</key> <string>ld</string>\n";
// A plural table with the key "files"; `forms` belong to the variable n of its format.
std::string filesEntry(const std::string& format, const std::string& forms) {
    return plist + "<dict>\n  <key>files</key>\n  <dict>\n    <key>NSStringLocalizedFormatKey</key>\n    <string>" +
           format + "</string>\n    <key>n</key>\n    <dict>\n" + rule + forms +
           "\n    </dict>\n  </dict>\n</dict>\n</plist>\n";
}
const std::string oneAndOther =
    "      <key>one</key> <string>%ld file</string>\n      <key>other</key> <string>%ld files</string>";

// Little-endian UTF-16 with a byte-order mark.
std::string utf16(const std::string& ascii) {
    std::string out = "\xFF\xFE";
    for (const char c : ascii)
        (out += c) += '\0';
    return out;
}

std::string binary(const std::vector<StringTables::Entry>& entries) {
    return *StringTables::write(entries, StringTables::Form::binary);
}

struct Edit {
    std::string id, target;
    State state = State::translated;
};

// The numbers of changed texts and files, and the messages.
struct ImportResult {
    std::size_t texts = 0, files = 0;
    Strings messages;
};
// Exports the German texts of a source, edits them and imports them.
ImportResult importEdited(Support::SourceFolder& folder, const std::vector<Edit>& edits) {
    const std::filesystem::path folders[] = {folder.path()};
    const auto source = SourceBundle::Source::read(folders, {}, folder.diagnostics);
    folder.diagnostics = {};
    Translations translations =
        Exchange::translationsOf(source, folders, "de", /*onlyMissing=*/false, folder.diagnostics);
    for (const Edit& edit : edits) {
        const auto id = *Exchange::unitIdOf(edit.id);
        auto unit = std::ranges::find(translations.units, id, &Unit::id);
        if (unit == translations.units.end())
            unit = translations.units.insert(unit, {.id = id});
        unit->target = edit.target;
        unit->state = edit.state;
    }
    const auto imported = Exchange::importTranslations(source, std::span(&translations, 1), {}, folder.diagnostics);
    if (!imported)
        return {.messages = {imported.error().text()}};
    return {imported->texts, imported->files, folder.takeMessages()};
}

TEST(Imports, ChangeNothingButTexts) {
    const std::string odd =
        "// top\n\"a\" = \"x\"; /* a's */ 'b'=y;\"c\";\n\n/* d */ \"d\" /* d2 */ =\n\t\"\\U0041 \\\"\" ;";
    const std::string english = "/* Says a. */\na = \"A\"; b = \"B\"; c = \"C\"; d = \"D\"; /* E&F. */ e = \"E\"; f = "
                                "\"F %@\"; g = \"9%%argue\";";
    const struct {
        int line;
        std::string file, before;
        std::vector<Edit> edits;
        std::string after;
    } cases[] = {
        // Text form: only the literal is replaced, whatever surrounds it.
        {__LINE__,
         "T.strings",
         odd,
         {{"T/a", "q\" \\ \n\r\x01 \u2028"}},
         "// top\n\"a\" = \"q\\\" \\\\ \\n\\r\\U0001 \u2028\"; /* a's */ 'b'=y;\"c\";\n\n/* d */ \"d\" /* d2 */ "
         "=\n\t\"\\U0041 \\\"\" ;"},
        {__LINE__,
         "T.strings",
         odd,
         {{"T/b", "Y"}, {"T/c", "z"}, {"T/d", ""}}, // an empty translation is ignored
         "// top\n\"a\" = \"x\"; /* a's */ 'b'=\"Y\";\"c\" = \"z\";\n\n/* d */ \"d\" /* d2 */ =\n\t\"\\U0041 \\\"\" ;"},
        {__LINE__,
         "T.strings",
         odd,
         {{"T/d", "D"}},
         "// top\n\"a\" = \"x\"; /* a's */ 'b'=y;\"c\";\n\n/* d */ \"d\" /* d2 */ =\n\t\"D\" ;"},
        // New keys come last, with their comments, in the order of the development texts.
        {__LINE__,
         "T.strings",
         odd,
         {{"T/f", "%@ F"}, {"T/e", "Ee"}, {"T/g", "9%%"}},
         odd + "\n/* E&F. */\n\"e\" = \"Ee\";\n\"f\" = \"%@ F\";\n\"g\" = \"9%%\";\n"},
        {__LINE__, "T.strings", "a = b", {{"T/b", "B"}}, "a = b;\n\"b\" = \"B\";\n"},
        {__LINE__,
         "T.strings",
         "{ a = b; } // end",
         {{"T/b", "B"}, {"T/a", "c"}},
         "{ a = \"c\"; \n\"b\" = \"B\";\n} // end"},
        {__LINE__, "T.strings", "{}", {{"T/b", "B"}}, "{\n\"b\" = \"B\";\n}"},
        {__LINE__, "T.strings", "a = b;\r\n", {{"T/e", "B"}}, "a = b;\r\n/* E&F. */\r\n\"e\" = \"B\";\r\n"},
        {__LINE__, "T.strings", "\xEF\xBB\xBF", {{"T/b", "B"}}, "\xEF\xBB\xBF\"b\" = \"B\";\n"},
        {__LINE__,
         "T.strings",
         "a = 1; a = 2; b = (x, \"y;\"); // b",
         {{"T/a", "3"}, {"T/b", "B"}},
         "a = 1; a = \"3\"; b = (x, \"y;\"); // b\n\"b\" = \"B\";\n"},
        {__LINE__, "T.strings", utf16("a = b;"), {{"T/a", "B"}, {"T/b", "C"}}, utf16("a = \"B\";\n\"b\" = \"C\";\n")},
        // The XML form.
        {__LINE__,
         "T.strings",
         plist + "<dict><!-- a -->\n\t<key>a</key> "
                 "<string><![CDATA[x]]>y</string>\n\t<key>b</key><string/>\n</dict></plist>",
         {{"T/a", "<&>\r\n"}, {"T/b", "B"}, {"T/e", "E"}},
         plist + "<dict><!-- a -->\n\t<key>a</key> "
                 "<string>&lt;&amp;&gt;&#13;\n</string>\n\t<key>b</key><string>B</string>\n\t<!-- E&F. -->"
                 "\n\t<key>e</key>\n\t<string>E</string>\n</dict></plist>"},
        {__LINE__,
         "T.strings",
         "<?xml version='1.0' encoding='ISO-8859-1'?><plist><dict><key>a</key><string>\xE9</string></dict></plist>",
         {{"T/a", "é"}, {"T/e", "b"}},
         "<?xml version='1.0' "
         "encoding='ISO-8859-1'?><plist><dict><key>a</key><string>\xE9</string><!-- E&F. --><key>e</key><string>b"
         "</string></dict></plist>"},
        {__LINE__,
         "T.strings",
         "<?xml version='1.0' encoding='ISO-8859-1'?><plist><dict><key>a</key><string>\xE9</string></dict></plist>",
         {{"T/a", "ü"}},
         "<?xml version='1.0' encoding='ISO-8859-1'?><plist><dict><key>a</key><string>&#252;</string></dict></plist>"},
        {__LINE__,
         "T.strings",
         plist + "<dict/></plist>",
         {{"T/a", "x"}},
         plist + "<dict>\n    <!-- Says a. -->\n    <key>a</key>\n    <string>x</string>\n</dict></plist>"},
        // Plurals: an existing form, a missing form, a format, and a whole entry.
        {__LINE__,
         "T.stringsdict",
         filesEntry("%#@n@!", oneAndOther),
         {{"T[variables.n.plural.other]/files", "%ld Dateien"}, {"T[format]/files", "%#@n@ da"}},
         filesEntry(
             "%#@n@ da",
             "      <key>one</key> <string>%ld file</string>\n      <key>other</key> <string>%ld Dateien</string>")},
        {__LINE__,
         "T.stringsdict",
         filesEntry("%#@n@!", "      <key>other</key> <string>%ld files</string>"),
         {{"T[variables.n.plural.one]/files", "eine Datei"}},
         filesEntry(
             "%#@n@!",
             "      <key>one</key> <string>eine Datei</string>\n      <key>other</key> <string>%ld files</string>")},
        {__LINE__,
         "T.stringsdict",
         plist + "<dict>\n</dict>\n</plist>\n",
         {{"T[variables.n.plural.one]/files", "a"},
          {"T[variables.n.plural.other]/files", "%ld b"},
          {"T[format]/files", "%#@n@?"}},
         plist +
             "<dict>\n    <!-- Counts files. -->\n    <key>files</key>\n    <dict>\n        "
             "<key>NSStringLocalizedFormatKey</key>\n"
             "        <string>%#@n@?</string>\n        <key>n</key>\n        <dict>\n            "
             "<key>NSStringFormatSpecTypeKey</key>\n"
             "            <string>NSStringPluralRuleType</string>\n            <key>NSStringFormatValueTypeKey</key>\n"
             "            <string>ld</string>\n            <key>one</key>\n            <string>a</string>\n            "
             "<key>other</key>\n"
             "            <string>%ld b</string>\n        </dict>\n    </dict>\n</dict>\n</plist>\n"},
        // The binary form keeps its order.
        {__LINE__,
         "T.strings",
         binary({{"b", "1"}, {"a", "2"}}),
         {{"T/a", "3"}, {"T/d", "4"}},
         binary({{"b", "1"}, {"a", "3"}, {"d", "4"}})},
    };
    for (const auto& one : cases) {
        Support::SourceFolder folder;
        folder.write("en.lproj/T.strings", english);
        folder.write("en.lproj/T.stringsdict",
                     filesEntry("%#@n@!", oneAndOther)
                         .insert(plist.size() + std::strlen("<dict>\n"), "  <!-- Counts files. -->\n"));
        const auto file = folder.write("de.lproj/" + one.file, one.before);
        EXPECT_EQ(importEdited(folder, {}).files, 0U) << "line " << one.line;
        EXPECT_EQ(Support::contents(file), one.before) << "line " << one.line;
        EXPECT_EQ(importEdited(folder, one.edits).messages, Strings()) << "line " << one.line;
        EXPECT_EQ(Support::contents(file), one.after) << "line " << one.line;
    }
}

TEST(Imports, ChangeNothingThatTheyCannotEdit) {
    Support::SourceFolder folder;
    folder.write("en.lproj/T.stringsdict", filesEntry("%#@n@", oneAndOther));
    const std::string number = filesEntry("%#@n@", "<key>one</key> <integer>1</integer>");
    const auto plurals = folder.write("de.lproj/T.stringsdict", number);
    const Strings messages = importEdited(folder, {{"T[variables.n.plural.one]/files", "eine"}}).messages;
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].ends_with("the table has a value of another kind for files")) << messages[0];
    EXPECT_EQ(Support::contents(plurals), number);

    // Two tables in one file.
    for (const std::string table : {"U", "V"})
        folder.write("en.lproj/" + table + ".strings", "a = A;");
    const auto texts = folder.write("de.lproj/U.strings", "a = x;");
    std::filesystem::create_symlink("U.strings", folder / "de.lproj/V.strings");
    EXPECT_EQ(
        importEdited(folder, {{"U/a", "y"}, {"V/a", "y"}}).messages,
        Strings{(folder / "de.lproj/V.strings").string() + ": is the same file as another that would be changed"});
    EXPECT_EQ(Support::contents(texts), "a = x;");
}

std::string catalogOf(const std::string& localizations) {
    return "{\n  \"sourceLanguage\" : \"en\",\n  \"strings\" : {\n    \"%lld k\" : {\n" + localizations +
           "    }\n  },\n  \"version\" : \"1.0\"\n}";
}
std::string stringUnit(const std::string& text, const std::string& state = "translated") {
    return "{ \"stringUnit\" : { \"state\" : \"" + state + "\", \"value\" : \"" + text + "\" } }";
}

TEST(Imports, ChangeNothingButTextsOfStringCatalogs) {
    const std::string english = "      \"localizations\" : {\n        \"en\" : ";
    const std::string plural = "{ \"variations\" : { \"plural\" : { \"one\" : " + stringUnit("a k") +
                               ", \"other\" : " + stringUnit("%lld k") + " } } }";
    const std::string added = "\"stringUnit\" : {\n            \"state\" : \"translated\",\n            \"value\" : \"";
    const struct {
        int line;
        std::string before;
        std::vector<Edit> edits;
        std::string after;
    } cases[] = {
        {__LINE__,
         catalogOf(""),
         {{"T/%lld k", "%lld \"K\"\x01"}},
         catalogOf("      \"localizations\" : {\n        \"de\" : {\n          " + added +
                   "%lld \\\"K\\\"\\u0001\"\n          }\n        }\n      }\n")},
        {__LINE__,
         catalogOf(english + stringUnit("%lld k") + ",\n        \"de\":" + stringUnit("%lld k", "new") + "\n      }\n"),
         {{"T/%lld k", "%lld k"}},
         catalogOf(english + stringUnit("%lld k") + ",\n        \"de\":" + stringUnit("%lld k") + "\n      }\n")},
        {__LINE__,
         catalogOf(english + stringUnit("%lld k") + ",\n        \"de\":" + stringUnit("%lld k", "new") + "\n      }\n"),
         {{"T/%lld k", "K %lld", State::needsReview}},
         catalogOf(english + stringUnit("%lld k") + ",\n        \"de\":" + stringUnit("K %lld", "needs_review") +
                   "\n      }\n")},
        // A new language and its forms are added in alphabetical order.
        {__LINE__,
         catalogOf(english + plural + ",\n        \"fr\" : " + stringUnit("x") + "\n      }\n"),
         {{"T[plural.other]/%lld k", "%lld K"}, {"T[plural.one]/%lld k", "ein K"}},
         catalogOf("      \"localizations\" : {\n        \"de\" : {\n          \"variations\" : {\n            "
                   "\"plural\" : {\n"
                   "              \"one\" : {\n                \"stringUnit\" : {\n                  \"state\" : "
                   "\"translated\",\n"
                   "                  \"value\" : \"ein K\"\n                }\n              },\n              "
                   "\"other\" : {\n"
                   "                \"stringUnit\" : {\n                  \"state\" : \"translated\",\n"
                   "                  \"value\" : \"%lld K\"\n                }\n              }\n            }\n      "
                   "    }\n        },\n        \"en\" : " +
                   plural + ",\n        \"fr\" : " + stringUnit("x") + "\n      }\n")},
    };
    for (const auto& one : cases) {
        Support::SourceFolder folder;
        const auto file = folder.write("T.xcstrings", one.before);
        EXPECT_EQ(importEdited(folder, {}).files, 0U) << "line " << one.line;
        EXPECT_EQ(Support::contents(file), one.before) << "line " << one.line;
        EXPECT_EQ(importEdited(folder, one.edits).messages, Strings()) << "line " << one.line;
        EXPECT_EQ(Support::contents(file), one.after) << "line " << one.line;
    }
}

TEST(Imports, CountTheArgumentsOfACatalogAsItsReaderDoes) {
    Support::SourceFolder folder;
    const auto forms = [](const std::string& other) { return R"({"plural":{"other":)" + stringUnit(other) + "}}"; };
    folder.write("T.xcstrings", R"({"sourceLanguage":"en","strings":{"days":{"localizations":{"en":{"variations":)" +
                                    forms("%arg days") + R"(},"de":{}}},"k":{"localizations":{"en":{"stringUnit":)" +
                                    R"({"value":"%@ has %#@cats@, %.1f"},"substitutions":{"cats":{"variations":)" +
                                    forms("%arg cats") + "}}}}}}}");
    const struct {
        int line;
        const char *id, *target;
        bool fits;
    } cases[] = {
        {__LINE__, "T[plural.other]/days", "%lld Tage", true},
        {__LINE__, "T[plural.other]/days", "%@ Tage", false},
        {__LINE__, "T/k", "%3$.1f, %#@cats@ von %1$@", true}, // the second argument is that of `cats`
        {__LINE__, "T/k", "%2$.1f, %#@cats@ von %1$@", false},
    };
    for (const auto& one : cases) {
        const Strings messages = importEdited(folder, {{one.id, one.target}}).messages;
        const bool takesOther = !messages.empty() && messages[0].find(" takes ") != std::string::npos;
        EXPECT_NE(takesOther, one.fits) << "line " << one.line << (messages.empty() ? "" : messages[0]);
    }
}

// The state is stored with the translation, even if the development text is in a file without states.
TEST(Imports, ChangeTheStateInACatalogOfTranslations) {
    Support::SourceFolder folder;
    folder.write("Info.plist", "CFBundleDevelopmentRegion = en;");
    folder.write("en.lproj/T.strings", "k = K;");
    const auto catalog = [](const std::string& state) {
        return R"({"sourceLanguage":"fr","strings":{"k":{"localizations":{"de":)" + stringUnit("x", state) + "}}}}";
    };
    const auto file = folder.write("T.xcstrings", catalog("needs_review"));
    EXPECT_EQ(importEdited(folder, {{"T/k", "x"}}).messages, Strings());
    EXPECT_EQ(Support::contents(file), catalog("translated"));
}

TEST(Exports, KeepEmptyFormsOfPlurals) {
    Support::SourceFolder folder;
    folder.write("en.lproj/T.stringsdict",
                 filesEntry("%#@n@", "<key>one</key> <string/> <key>other</key> <string>%ld</string>"));
    EXPECT_EQ(
        importEdited(folder, {{"T[variables.n.plural.one]/files", "1"}, {"T[variables.n.plural.other]/files", "%ld"}})
            .texts,
        2U);
}

TEST(Exports, NameNoFolderThatIsNotUtf8) {
    Support::SourceFolder folder;
    folder.write("\xE9/en.lproj/T.strings", "a = b;");
    const std::filesystem::path folders[] = {folder.path()};
    const auto exported =
        Exchange::translationsOf(folder.read(), folders, "de", /*onlyMissing=*/false, folder.diagnostics);
    EXPECT_EQ(exported.units.at(0).place, "T.strings:1");
}

// The translation is in a file of another kind, which cannot contain the same forms as the development text.
TEST(Exports, LeaveOutTextsThatAnImportCannotWrite) {
    StringTables::PluralEntry entry{.key = "%lld k", .plural = {"%#@n@", {{"n", "lld", {}}}}, .location = {}};
    entry.plural.variables[0].forms.back() = "%lld K";
    const std::pair<std::string, std::string> files[] = {{"de.lproj/T.strings", "\"%lld k\" = \"%lld K\";"},
                                                         {"de.lproj/T.stringsdict", *StringTables::write({&entry, 1})}};
    const std::string forms =
        "{ \"plural\" : { \"one\" : " + stringUnit("a k") + ", \"other\" : " + stringUnit("%lld k") + " } }";
    for (const auto& [name, content] : files) {
        Support::SourceFolder folder;
        folder.write("T.xcstrings", catalogOf("\"localizations\" : { \"en\" : { \"variations\" : " + forms + " } }"));
        folder.write(name, content);
        const std::filesystem::path folders[] = {folder.path()};
        const auto source = folder.read();
        EXPECT_TRUE(
            Exchange::translationsOf(source, folders, "de", /*onlyMissing=*/false, folder.diagnostics).units.empty())
            << name;
        const Strings messages = folder.takeMessages();
        ASSERT_EQ(messages.size(), 1U) << name;
        EXPECT_TRUE(messages[0].starts_with("warning: " + name) && messages[0].find("is left out") != std::string::npos)
            << messages[0];
    }
}

} // namespace
