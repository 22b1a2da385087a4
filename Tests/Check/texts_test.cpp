// Findings about texts: each fault once and at its location, and none for normal differences between languages.
#include "Check/TextRules.h"
#include "CheckedSource.h"
#include <gtest/gtest.h>

namespace {

using Support::CheckedSource;
using Support::Strings;

std::string entry(std::string_view text) {
    return "\"key\" = \"" + std::string(text) + "\";";
}

// The rules that a development text and its translation break, separated by spaces.
std::string rulesFor(const char* language, std::string_view development, std::string_view translation) {
    CheckedSource source(
        {{"en.lproj/T.strings", entry(development)}, {std::string(language) + ".lproj/T.strings", entry(translation)}});
    std::string rules;
    for (const std::string& finding : source.findings())
        rules.append(rules.empty() ? "" : " ").append(finding.substr(0, finding.find(' ')));
    return rules;
}

TEST(Check, ComparesATranslationWithTheDevelopmentText) {
    const struct {
        int line;
        const char *language, *development, *translation, *rules;
    } cases[] = {
        // Arguments, by position and kind.
        {__LINE__, "de", "%@ has %d", "%2$d von %1$@", ""},
        {__LINE__, "de", "%@ has %d", "%d von %@", "placeholder-mismatch"},
        {__LINE__, "de", "%ld %lu %x", "%d %i %u", ""},
        {__LINE__, "de", "%@", "%s", ""},
        {__LINE__, "de", "%.1f kg", "%d kg", "placeholder-mismatch"},
        {__LINE__, "de", "%@ of %@", "%@", "placeholder-mismatch"},
        {__LINE__, "de", "Hello", "Hallo %@", "placeholder-mismatch"},
        {__LINE__, "de", "100%% of %@", "100%% von %@", ""},
        {__LINE__, "de", "100%% of %@", "100% von %@", "lone-percent"},
        {__LINE__, "de", "Half off", "50 % Rabatt, 50 %", "lone-percent"},
        {__LINE__, "fr", "Half off", "50 % de remise", "lone-percent"}, // "% d" does not count as a placeholder
        {__LINE__, "de", "%@", "%1$@ %1$d", "placeholder-mismatch"},
        {__LINE__, "de", "%@ of %#@files@", "%@ von %d", "placeholder-mismatch"}, // only for the development text
        {__LINE__, "de", "%d files", "%arg Dateien", "placeholder-mismatch lone-percent"},
        // Spaces at the ends, in which languages differ, and line breaks.
        {__LINE__, "de", "Name: ", "Name:", "space-mismatch"},
        {__LINE__, "de", " a b", "c d ", "space-mismatch"},
        {__LINE__, "zh-Hans", "Full name: ", "姓名：", ""},
        {__LINE__, "zh-Hans", "Full name:", "姓名： ", "space-mismatch"},
        {__LINE__, "fr", "Total", "Somme\u00A0", "space-mismatch"},
        {__LINE__, "de", "Now\\n", "Jetzt\\n", ""},
        {__LINE__, "de", "One\\nTwo", "Eins\\r\\nZwei", ""},
        {__LINE__, "de", "One\\nTwo", "Eins Zwei", "newline-mismatch"},
        // The punctuation mark at the end.
        {__LINE__, "de", "It is done.", "Es ist fertig", "punctuation-mismatch"},
        {__LINE__, "de", "Is it done?", "Ist es fertig.", "punctuation-mismatch"},
        {__LINE__, "de", "Say \\\"it is done.\\\"", "Sag „es ist fertig.“", ""},
        {__LINE__, "de", "sec", "Sek.", ""},
        {__LINE__, "de", "Loading...", "Wird geladen…", ""},
        {__LINE__, "el", "Is it done?", "Είναι έτοιμο;", ""},
        {__LINE__, "de", "Is it done?", "Ist es fertig;", "punctuation-mismatch"},
        {__LINE__, "ar", "Is it done?", "هل انتهى الأمر؟", ""},
        {__LINE__, "hi", "It is done.", "यह हो गया है।", ""},
        {__LINE__, "es", "It is done!", "¡Ya está listo!", ""},
        {__LINE__, "fr", "It is done!", "C’est terminé\u202F!", ""},
        {__LINE__, "ja", "It is done.", "完了しました。", ""},
        {__LINE__, "ja", "It is done.", "完了しました", ""},
        {__LINE__, "th", "It is done.", "เสร็จแล้ว", ""},
        {__LINE__, "zh-Hans", "Is it done?", "完成了吗？", ""},
        {__LINE__, "zh-Hans", "Is it done?", "完成了", "punctuation-mismatch"},
        // Words and spaces.
        {__LINE__, "de", "Go on", "Mach  weiter", "double-space"},
        {__LINE__, "de", "Go  on", "Mach  weiter", "double-space"},      // reported only for the development text
        {__LINE__, "de", "List", "Liste:\\n  eins", "newline-mismatch"}, // no double space: it is indentation
        {__LINE__, "de", "Go on", "Mach mach weiter", "repeated-word"},
        {__LINE__, "ru", "Go on", "Иди иди дальше", "repeated-word"},
        {__LINE__, "de", "Go on", "Mach, mach weiter", ""},
        {__LINE__, "de", "You know her", "Die die sie kennen", ""},
        {__LINE__, "fr", "Do you hurry", "Vous vous dépêchez", ""},
        {__LINE__, "vi", "Always", "Luôn luôn", ""},
        {__LINE__, "de", "%@ of %@", "%@ %@", ""},
        // Untranslated.
        {__LINE__, "de", "Go on", "Go on", "untranslated"},
        {__LINE__, "en-GB", "Go on", "Go on", ""},
        {__LINE__, "de", "%1$@: %2$d %%", "%1$@: %2$d %%", ""},
        {__LINE__, "de", "https://example.com/a", "https://example.com/a", ""},
        {__LINE__, "de", "Go on", "", "missing-key"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(rulesFor(one.language, one.development, one.translation), one.rules) << "line " << one.line;
    // The same if the development language writes without spaces.
    CheckedSource japanese{{"Info.plist", "CFBundleDevelopmentRegion = ja;"},
                           {"ja.lproj/T.strings", entry("氏名：")},
                           {"de.lproj/T.strings", entry("Name: ")},
                           {"zh-Hans.lproj/T.strings", entry("姓名： ")}};
    EXPECT_EQ(japanese.findings(), Strings{"space-mismatch zh-Hans.lproj/T.strings:1:1 zh-Hans key"});
}

TEST(Check, FindsMissingAndUnknownKeys) {
    CheckedSource source(
        {{"en.lproj/T.strings", "a = one;\n/* lumora: allow missing-key */\nb = two;\nc = three;\nd = four;"},
         {"de.lproj/T.strings", "a = eins;\nz = zehn;\nd = vier;\nd = vier;"},
         {"en-GB.lproj/T.strings", "a = won;"},
         {"en.lproj/U.strings", "a = one;\nb = two;"},
         {"fr.lproj/T.strings", "a = un; b = deux;c = trois;d = quatre;"},
         {"fr.lproj/Layout.strings", "label = texte;"}}); // not checked: the table has no development texts
    EXPECT_EQ(source.findings(),
              (Strings{"missing-key de.lproj/T.strings:1:1 de c", "unknown-key de.lproj/T.strings:2:1 de z",
                       "duplicate-key de.lproj/T.strings:4:1 de d", "missing-key en.lproj/U.strings:1:1 de ",
                       "missing-key en.lproj/U.strings:1:1 fr "}));
    EXPECT_EQ(source.takeMessages(), Strings());
}

TEST(Check, ReportsAnErrorOnceIfOthersFollowFromIt) {
    CheckedSource source{{"en.lproj/T.strings", "a = one;\nb = two;"}, {"de.lproj/T.strings", "a = eins;\nb = ;"}};
    EXPECT_EQ(source.findings(), Strings{"unreadable-table de.lproj/T.strings:2:5 de "});
    source.write("en.lproj/T.strings", "a = ");
    source.write("de.lproj/T.strings", "a = eins;");
    EXPECT_EQ(source.findings(), Strings{"unreadable-table en.lproj/T.strings:1:5 en "});
    source.write("en.lproj/T.strings", "a = one;\nb = two;");
    // Two files for one table and language: that in More/ is read first, so the other is reported.
    source.write("More/de.lproj/T.strings", "b = zwei;");
    EXPECT_EQ(source.findings(), Strings{"unreadable-table de.lproj/T.strings:0:0 de "});

    CheckedSource conflict{{"en.lproj/T.strings", "m = \"%1$@ %1$d 5%\";"}, {"de.lproj/T.strings", "m = \"%1$@\";"}};
    EXPECT_EQ(conflict.findings(), (Strings{"placeholder-mismatch en.lproj/T.strings:1:1 en m",
                                            "lone-percent en.lproj/T.strings:1:1 en m"}));
}

TEST(Check, NamesKeysWithoutAccessor) {
    CheckedSource source(
        {{"Base.lproj/T.strings", "\"x y\" = a;\n\"x_y\" = b;\n\"\" = \"\";\n\"m\" = \"%1$@ %1$d\";"}});
    EXPECT_EQ(source.findings(),
              (Strings{"name-clash Base.lproj/T.strings:2:1 Base x_y", "unnamed-key Base.lproj/T.strings:3:1 Base ",
                       "placeholder-mismatch Base.lproj/T.strings:4:1 Base m"}));
    // A mismatch in another language is not why "--" has no accessor, so both are reported.
    CheckedSource catalog{{"T.xcstrings", R"({"sourceLanguage": "en", "version": "1.0", "strings": {
"--": {"localizations": {"en": {"stringUnit": {"value": "%@"}}, "en-GB": {"stringUnit": {"value": "%d"}}}}}})"}};
    EXPECT_EQ(catalog.findings(),
              (Strings{"placeholder-mismatch T.xcstrings:2:1 en-GB --", "unnamed-key T.xcstrings:2:1  --"}));
}

// The plural "files" with these forms, "one=One file;other=%d files". "%@" in them is a second argument.
std::string plural(std::string_view forms) {
    std::string text = "<plist version=\"1.0\"><dict>\n<key>files</key><dict><key>NSStringLocalizedFormatKey</key>"
                       "<string>%#@n@</string><key>n</key><dict><key>NSStringFormatSpecTypeKey</key>"
                       "<string>NSStringPluralRuleType</string><key>NSStringFormatValueTypeKey</key><string>d</string>";
    while (!forms.empty()) {
        const std::string_view form = forms.substr(0, forms.find(';'));
        forms.remove_prefix(std::min(form.size() + 1, forms.size()));
        const std::size_t equals = form.find('=');
        text.append("<key>").append(form.substr(0, equals)).append("</key><string>");
        text.append(form.substr(equals + 1)).append("</string>");
    }
    return text + "</dict></dict></dict></plist>";
}

TEST(Check, ComparesAllPluralForms) {
    const struct {
        int line;
        const char *language, *forms, *rule;
    } cases[] = {
        {__LINE__, "de", "one=Eine Datei von %@;other=%d Dateien von %@", ""}, // one form without the number
        {__LINE__, "de", "other=%d Dateien von %@", "missing-plural-form"},
        {__LINE__, "de", "one=Eine Datei;other=%d Dateien von %@", ""},
        {__LINE__, "de", "one=Eine Datei;other=%d Dateien", "placeholder-mismatch"},
        {__LINE__, "de", "one=Eine Datei von %2$d;other=%d Dateien von %2$@", "placeholder-mismatch"},
        {__LINE__, "ru", "one=%d файл %@;few=%d файла %@;many=%d файлов %@;other=%d файла %@", ""},
        {__LINE__, "ru", "one=%d файл %@;many=%d файлов %@;other=%d файла %@", "missing-plural-form"},
        {__LINE__, "fr", "one=%d fichier de %@;other=%d fichiers de %@", ""}, // `many`, for millions, may be left out
        {__LINE__, "ja", "other=%d 個 %@", ""},
        {__LINE__, "ja", "one=%d 個 %@", "missing-plural-form"},
        {__LINE__, "de", "one=Eine  Datei von %@;other=%d Dateien von %@", "double-space"},
        {__LINE__, "de", "one=100 % der %@;other=%d Dateien von %@", "lone-percent"},
        {__LINE__, "de", "one=Eine Datei von %@;other=%d %#@x@ von %@", "placeholder-mismatch"},
    };
    for (const auto& one : cases) {
        const std::string file = std::string(one.language) + ".lproj/T.stringsdict";
        CheckedSource source(
            {{"en.lproj/T.stringsdict", plural("one=One file by %@;other=%d files by %@")}, {file, plural(one.forms)}});
        const std::string place = " " + file + ":2:1 " + one.language + " files";
        EXPECT_EQ(source.findings(), *one.rule == '\0' ? Strings() : Strings{one.rule + place}) << "line " << one.line;
    }
    CheckedSource source{{"en.lproj/T.strings", "a = One;"},
                         {"en.lproj/T.stringsdict", plural("one=One file;other=%d files")},
                         {"de.lproj/T.strings", "a = Eins;"},
                         {"de.lproj/T.stringsdict", "<plist version=\"1.0\"><dict/></plist>"}};
    EXPECT_EQ(source.findings(), Strings{"missing-key de.lproj/T.stringsdict:1:1 de files"});
}

TEST(Check, ReadsStringCatalogs) {
    CheckedSource source{{"T.xcstrings", R"({"sourceLanguage": "en", "version": "1.0", "strings": {
        "Go on": {"localizations": {"de": {"stringUnit": {"state": "translated", "value": "Weiter"}}}},
        "Hello %@": {"localizations": {"de": {"stringUnit": {"state": "translated", "value": "Hallo"}}}},
        "--": {"comment": "lumora: allow unnamed-key, missing-key"},
        "Open": {"comment": "lumora: allow missing-key, untranslated"},
        "Quillmark": {"shouldTranslate": false},
        "Stale": {"extractionState": "stale"},
        "Stop": {},
        "cats": {"localizations": {
            "en": {"stringUnit": {"value": "%#@n@ here"}, "substitutions": {"n": {"argNum": 1, "formatSpecifier": "d",
                "variations": {"plural": {"one": {"stringUnit": {"value": "%arg cat"}}, "other": {"stringUnit": {"value": "%arg cats"}}}}}}},
            "de": {"stringUnit": {"value": "%#@n@ hier"}, "substitutions": {"n": {"argNum": 1, "formatSpecifier": "d"}}}}}
    }})"}};
    EXPECT_EQ(source.findings(),
              (Strings{"placeholder-mismatch T.xcstrings:3:9 de Hello %@", "missing-key T.xcstrings:8:9 de Stop",
                       "missing-plural-form T.xcstrings:9:9 de cats"}));
    // The place is the same for all languages, so the message names the language. The first finding is `coverage`.
    const auto all = Check::check(source.read(), {.folders = {source.path()}}, source.diagnostics);
    EXPECT_TRUE(all.at(1).message.starts_with("de: \"Hello %@\" takes ")) << all.at(1).message;
}

TEST(Check, ComparesWithAnOlderSource) {
    const CheckedSource older{{"en.lproj/T.strings", "a = \"%@\";\nb = \"%@ %d\";\nc = \"%@\";"}};
    SourceBundle::Diagnostics none;
    const std::filesystem::path folders[] = {older.path()};
    const SourceBundle::Source before = SourceBundle::Source::read(folders, {}, none);
    CheckedSource source{{"en.lproj/T.strings", "a = \"%@ %d\";\nb = \"of %@ %d\";\nnew = \"%@\";"},
                         {"de.lproj/T.strings", "a = \"von %@\";\nb = \"von %@ %d\";\nnew = \"neu %@\";"},
                         {"fr.lproj/T.strings", "a = \"de %d\";\nb = \"de %@ %d\";\nnew = \"nouveau %@\";"}};
    EXPECT_EQ(source.findings({.older = &before}), (Strings{"changed-placeholder en.lproj/T.strings:1:1 en a",
                                                            "placeholder-mismatch fr.lproj/T.strings:1:1 fr a"}));
}

TEST(Check, FindsTwoTranslationsOfOneText) {
    CheckedSource source{{"en.lproj/T.strings", "a = Open; b = Open; c = Open; d = Close;"},
                         {"en.lproj/U.strings", "/* lumora: allow inconsistent-translation */ a = Close;"},
                         {"de.lproj/T.strings", "a = Auf;\nb = Auf;\nc = Offen;\nd = Zu;"},
                         {"de.lproj/U.strings", "a = Nah;"}};
    EXPECT_EQ(source.findings(), Strings{"inconsistent-translation de.lproj/T.strings:3:1 de c"});
}

TEST(Check, CountsCoverage) {
    CheckedSource source({{"en.lproj/T.strings", "a = One; b = Two; c = Three;"},
                          {"en.lproj/U.strings", "/* lumora: allow missing-key */ d = Four;"},
                          {"de.lproj/T.strings", "a = Eins; b = Two;"}});
    const SourceBundle::Source read = source.read();
    Strings messages;
    for (const Check::Finding& finding : Check::check(read, {}, source.diagnostics))
        if (finding.rule == Check::Rule::coverage)
            messages.push_back(finding.message);
    // A text that equals the development text counts; a key that is allowed to be missing is still missing.
    EXPECT_EQ(messages, Strings{"de has 2 of 4 texts (50 %)"});
}

} // namespace
