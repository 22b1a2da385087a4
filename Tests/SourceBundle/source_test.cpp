// The content of a source, and the messages about what is left out.
#include "SourceBundle/Source.h"

#include "../Support/SourceFolder.h"
#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;
using SourceBundle::Source;
using SourceBundle::SourceTable;

// "TABLE LANGUAGE KEY=TEXT ..." for each table and language.
Strings contents(const Source& source) {
    Strings all;
    for (const SourceTable& table : source.tables)
        for (const auto& texts : table.languages) {
            std::string line = table.name + ' ' + texts.language;
            for (const auto& entry : texts.entries())
                line.append(" ").append(entry.key).append("=").append(entry.text);
            all.push_back(line);
        }
    return all;
}

// "TABLE/KEY=TEXT" for each development text.
Strings developmentTexts(const Source& source) {
    Strings all;
    for (const SourceTable& table : source.tables)
        for (const auto* entry : source.developmentEntries(table))
            all.push_back(table.name + "/" + std::string(entry->key) + "=" + std::string(entry->text));
    return all;
}

TEST(Source, HasTheTablesOfEveryLanguageFolderAtAnyDepth) {
    Support::SourceFolder folder;
    folder.write("App/Base.lproj/T.strings", "a = b;\n/* why */ c = d;");
    folder.write("App/Deep/er/German.lproj/T.strings", "a = x;");
    folder.write("App/Deep/fr.lproj/More/es.lproj/U.strings", "a = y;");
    folder.write("App/Images.xcassets/Contents.json", "{}");
    folder.write(".git/en.lproj/T.strings", "hidden = text;");
    folder.write("Other/Deep/Images.xcassets/Contents.json", "{}");
    const Source source = folder.read();
    EXPECT_EQ(contents(source), (Strings{"T Base a=b c=d", "T de a=x", "U es a=y"}));
    EXPECT_EQ(source.catalogs, (std::vector{folder / "App/Images.xcassets", folder / "Other/Deep/Images.xcassets"}));
    EXPECT_EQ(folder.takeMessages(), Strings());
    const auto* entry = source.tables[0].find("Base")->find("c");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->comment, "why");
    EXPECT_EQ(entry->error("is odd").text(), (folder / "App/Base.lproj/T.strings").string() + ":2:11: is odd");
}

TEST(Source, IsReadFromSeveralOverlappingFolders) {
    Support::SourceFolder folder;
    folder.write("One/en.lproj/T.strings", "a = b;");
    folder.write("Two/de.lproj/T.strings", "a = c;");
    folder.write("Two/en.lproj/U.strings", "a = d;");
    const std::filesystem::path folders[] = {folder / "One", folder / "Two", folder.path()};
    const Source source = Source::read(folders, {}, folder.diagnostics);
    EXPECT_EQ(contents(source), (Strings{"T de a=c", "T en a=b", "U en a=d"}));
    EXPECT_EQ(folder.takeMessages(), Strings());
}

TEST(Source, RejectsTwoTablesWithTheSameNameAndLanguage) {
    Support::SourceFolder folder;
    folder.write("One/en.lproj/T.strings", "a = b;");
    folder.write("Two/English.lproj/T.strings", "a = c;");
    EXPECT_EQ(contents(folder.read()), Strings{"T en a=b"});
    EXPECT_EQ(folder.takeMessages(),
              Strings{"error: Two/English.lproj/T.strings: is the table \"T\" in the language en, as is "
                      "One/en.lproj/T.strings"});
}

TEST(Source, NamesItsDevelopmentLanguage) {
    const struct {
        int line;
        const char *info, *option, *language;
        Strings messages;
    } cases[] = {
        {__LINE__, nullptr, "", "en", {}},
        {__LINE__, "CFBundleDevelopmentRegion = de;", "", "de", {}},
        {__LINE__, "CFBundleDevelopmentRegion = German;", "", "de", {}},
        {__LINE__, "CFBundleDevelopmentRegion = de;", "French", "fr", {}},
        {__LINE__, "CFBundleDevelopmentRegion = \"\";", "", "en", {}},
        {__LINE__, "CFBundleDevelopmentRegion = it_IT;", "", "it", {}}, // the nearest language with a folder
        {__LINE__, nullptr, "zh-hans-CN", "zh_Hans", {}},
        {__LINE__, nullptr, "pt-BR", "pt-BR", {}},
        {__LINE__, "<plist><dict><key>More</key><array/></dict></plist>", "", "en", {}}, // gives no message
        {__LINE__, "CFBundleDevelopmentRegion = \"$(DEVELOPMENT_LANGUAGE)\";", "de", "de", {}},
        {__LINE__,
         "x = y;\nCFBundleDevelopmentRegion = \"$(DEVELOPMENT_LANGUAGE)\";",
         "",
         "en",
         {"warning: Info.plist:2:1: the development language is the build setting $(DEVELOPMENT_LANGUAGE), whose "
          "value is unknown (use --development-language instead)"}},
        {__LINE__, "CFBundle = ;", "", "en", {"error: Info.plist:1:12: "}},
    };
    for (const auto& one : cases) {
        Support::SourceFolder folder;
        folder.write("Base.lproj/T.strings", "a = b;");
        folder.write("it.lproj/T.strings", "a = c;");
        folder.write("zh_Hans.lproj/T.strings", "a = d;");
        if (one.info != nullptr)
            folder.write("Info.plist", one.info);
        EXPECT_EQ(folder.read({.developmentLanguage = one.option}).developmentLanguage, one.language) << one.line;
        const Strings messages = folder.takeMessages();
        ASSERT_EQ(messages.size(), one.messages.size()) << one.line;
        for (std::size_t i = 0; i < messages.size(); ++i)
            EXPECT_TRUE(messages[i].starts_with(one.messages[i])) << one.line << ": " << messages[i];
    }
}

// As at run time for a user of the development language: its own folder first, then Base.lproj.
TEST(Source, HasDevelopmentTextsOfTheLanguageAndOfBase) {
    Support::SourceFolder folder;
    folder.write("en.lproj/T.strings", "both = english; only = english;");
    folder.write("Base.lproj/T.strings", "base = base; both = base;");
    folder.write("Base.lproj/Layout.strings", "title = a;");
    folder.write("de.lproj/German.strings", "a = b;");
    EXPECT_EQ(developmentTexts(folder.read()),
              (Strings{"Layout/title=a", "T/both=english", "T/only=english", "T/base=base"}));
    EXPECT_EQ(developmentTexts(folder.read({.developmentLanguage = "fr"})),
              (Strings{"Layout/title=a", "T/base=base", "T/both=base"}));
    EXPECT_EQ(folder.takeMessages(), Strings());

    std::filesystem::remove_all(folder / "Base.lproj");
    EXPECT_EQ(developmentTexts(folder.read({.developmentLanguage = "fr"})), Strings());
    EXPECT_EQ(folder.takeMessages(),
              Strings{"warning: : has no development texts: neither in the language fr nor in Base.lproj"});
}

TEST(Source, ReportsWhatItLeavesOut) {
    Support::SourceFolder folder;
    folder.write("Base.lproj/.hidden.strings", "?");
    folder.write("Base.lproj/Layout.xib", "?");
    folder.write("Base.lproj/Capital.Strings", "a = b;");
    folder.write("Base.lproj/Twice.strings", "a = b;\na = c;");
    folder.write("Base.lproj/Broken.strings", "a = b;\nc = ;");
    folder.write("Base.lproj/\xE9.strings", "a = b;");
    folder.write("d\xE9.lproj/T.strings", "a = b;");
    folder.write("loose.strings", "a = b;");
    folder.write("loose.colorset/Contents.json", "{}");
    folder.write("sub/Capital.XCStrings", "{}");
    folder.write("sub/de.LPROJ/T.strings", "a = b;");
    folder.write("file.lproj", "?");
    std::filesystem::create_directory(folder / "Base.lproj/Folder.strings");
    std::filesystem::create_directory_symlink(".", folder / "loop");
    std::filesystem::create_symlink("nowhere", folder / "Base.lproj/Gone.strings");

    const Source source = folder.read();
    EXPECT_EQ(contents(source), (Strings{"Broken Base", "Folder Base", "Gone Base", "Twice Base a=c"}));
    EXPECT_TRUE(source.tables[0].languages[0].isDamaged);
    const Strings expected = {"warning: Base.lproj/Capital.Strings: is left out: its extension must be .strings",
                              "note: Base.lproj/Layout.xib: is not a table and is left out",
                              "warning: Base.lproj/\xE9.strings: is left out: its name and language must be UTF-8",
                              "warning: d\xE9.lproj/T.strings: is left out: its name and language must be UTF-8",
                              "warning: file.lproj: is not a folder of tables and is left out",
                              "note: loop: is a link to a folder and is left out",
                              "warning: loose.colorset: is not in an asset catalog (*.xcassets) and is left out",
                              "warning: loose.strings: is not in a language folder (*.lproj) and is left out",
                              "warning: sub/Capital.XCStrings: is left out: its extension must be .xcstrings",
                              "warning: sub/de.LPROJ: is left out: its extension must be .lproj",
                              "error: Base.lproj/Broken.strings:2:",
                              "error: Base.lproj/Folder.strings: is not a regular file",
                              "error: Base.lproj/Gone.strings: ",
                              "warning: Base.lproj/Twice.strings:2:1: "};
    const Strings messages = folder.takeMessages();
    ASSERT_EQ(messages.size(), expected.size());
    for (std::size_t i = 0; i < messages.size(); ++i)
        EXPECT_TRUE(messages[i].starts_with(expected[i])) << messages[i];
}

TEST(Source, RejectsFoldersThatAreNotSources) {
    Support::SourceFolder folder;
    folder.write("notes.txt", "?");
    folder.write("file", "?");
    folder.write("Compiled.bundle/.lumora-bundle", "");
    folder.write("Compiled.bundle/en.lproj/T.strings", "a = b;");
    const std::filesystem::path folders[] = {folder.path() / "none", folder / "file", folder / "Compiled.bundle"};
    (void)Source::read(folders, {}, folder.diagnostics);
    EXPECT_EQ(folder.takeMessages(),
              (Strings{"error: none: is not a folder of resources", "error: file: is not a folder of resources",
                       "error: Compiled.bundle: is a compiled bundle, not a source"}));
    std::filesystem::remove_all(folder / "Compiled.bundle");
    (void)folder.read();
    EXPECT_EQ(folder.takeMessages(), Strings{"error: : has no tables (*.lproj, *.xcstrings) and no asset catalogs "
                                             "(*.xcassets)"});
}

TEST(Source, DoesNotFollowLinksThatLeadOut) {
    Support::SourceFolder folder;
    const auto secret = folder.write("elsewhere/T.strings", "secret, and no table");
    folder.write("source/en.lproj/A.strings", "a = b;");
    for (const std::string name : {"en.lproj/T.strings", "Info.plist", "Base.lproj", "T.xcstrings"}) {
        const std::filesystem::path link = folder / "source" / name;
        std::filesystem::create_symlink(name == "Base.lproj" ? secret.parent_path() : secret, link);
        const std::filesystem::path folders[] = {folder / "source"};
        (void)Source::read(folders, {}, folder.diagnostics);
        EXPECT_EQ(folder.takeMessages(), Strings{"error: source/" + name + ": is a link that leads out of the source"});
        std::filesystem::remove(link);
    }
    // A link inside the source is followed.
    std::filesystem::create_directory_symlink("en.lproj", folder / "source/de.lproj");
    const std::filesystem::path folders[] = {folder / "source"};
    EXPECT_EQ(contents(Source::read(folders, {}, folder.diagnostics)), (Strings{"A de a=b", "A en a=b"}));
    EXPECT_EQ(folder.takeMessages(), Strings());
    // Links that lead in circles are followed once.
    std::filesystem::create_directory_symlink(".", folder / "source/de.lproj/x.lproj");
    EXPECT_EQ(contents(Source::read(folders, {}, folder.diagnostics)), (Strings{"A de a=b", "A en a=b", "A x a=b"}));
    EXPECT_EQ(folder.takeMessages(), (Strings{"note: source/de.lproj/x.lproj: is a link to a folder and is left out",
                                              "note: source/en.lproj/x.lproj/x.lproj: is a link to a folder and is "
                                              "left out"}));
}

} // namespace
