#include "SourceBundle/Tables.h"

#include "../Support/TemporaryFolder.h"
#include "Generator/Generator.h"
#include "Tables.h"
#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;

Strings names(const std::vector<SourceBundle::SourceTable>& tables) {
    Strings names;
    for (const auto& table : tables)
        names.push_back(table.name);
    return names;
}

TEST(SourceTables, AreThoseOfTheDevelopmentLanguage) {
    const Support::TemporaryFolder folder;
    SourceBundle::Diagnostics diagnostics;
    EXPECT_TRUE(SourceBundle::developmentTables(folder.path(), diagnostics).empty());
    folder.write("en.lproj/English.strings", "a = b;");
    EXPECT_EQ(names(SourceBundle::developmentTables(folder.path(), diagnostics)), Strings{"English"});
    folder.write("Info.plist", "CFBundleDevelopmentRegion = de;");
    folder.write("de.lproj/Deutsch.strings", "a = b;");
    EXPECT_EQ(names(SourceBundle::developmentTables(folder.path(), diagnostics)), Strings{"Deutsch"});
    folder.write("Base.lproj/B.strings", "");
    folder.write("Base.lproj/A.strings", "a = b;");
    EXPECT_EQ(names(SourceBundle::developmentTables(folder.path(), diagnostics)), (Strings{"A", "B", "Deutsch"}));
    EXPECT_EQ(Support::texts(diagnostics), Strings{"warning: " + folder.path().string() +
                                                   ": has no development texts: neither "
                                                   "Base.lproj nor en.lproj is there"});
}

// As a user of the development language is answered at run time: by its own folder, then by Base.lproj.
TEST(SourceTables, OfTheRegionAndOfBaseAreOne) {
    const Support::TemporaryFolder folder;
    folder.write("en.lproj/Localizable.strings", "both = \"%d\"; english = a; \"One name\" = a;");
    folder.write("Base.lproj/Localizable.strings", "both = \"%@\"; base = a;");
    folder.write("Base.lproj/Layout.strings", "title = a;");
    folder.write("Info.plist", "<plist><dict><key>More</key><array/></dict></plist>"); // which is nobody's fault
    const auto tree = [&](SourceBundle::Diagnostics& diagnostics) {
        const auto tables = SourceBundle::developmentTables(folder.path(), diagnostics);
        std::string all;
        for (const auto& file : Generator::generateStrings(tables, {.module = "M", .includes = {}}, diagnostics))
            if (file.path.parent_path() == "MStrings")
                all += file.content;
        return all;
    };
    SourceBundle::Diagnostics diagnostics;
    const std::string header = tree(diagnostics);
    EXPECT_EQ(Support::texts(diagnostics), Strings());
    for (const char* entry : {"& title()", "& english()", "& base()", "& oneName()", " both(std::int64_t"})
        EXPECT_NE(header.find(entry), std::string::npos) << entry << '\n' << header;

    folder.write("Base.lproj/Localizable.strings", "x = a;\n\"OneName\" = a;\ny = \"%d %\";");
    EXPECT_EQ(tree(diagnostics), "");
    const std::string base = folder / "Base.lproj/Localizable.strings";
    ASSERT_EQ(diagnostics.all().size(), 2U);
    EXPECT_EQ(diagnostics.all()[0].what.text(),
              base + ":2:1: the entry of key \"OneName\" (line 2) and the entry of key \"One name\" (" +
                  (folder / "en.lproj/Localizable.strings").string() + ", line 1) have one name: oneName");
    EXPECT_TRUE(diagnostics.all()[1].what.text().starts_with(base + ":3:1: ")) << diagnostics.all()[1].what.text();

    // One folder by two names is read once.
    std::filesystem::remove_all(folder / "en.lproj");
    std::filesystem::create_symlink("Base.lproj", folder / "en.lproj");
    EXPECT_EQ(SourceBundle::developmentTables(folder.path(), diagnostics).size(), 2U);
}

TEST(SourceTables, ReportWhatTheyCannotTake) {
    const Support::TemporaryFolder folder;
    const std::string base = folder / "Base.lproj/";
    folder.write("Base.lproj/.hidden.strings", "?");
    folder.write("Base.lproj/Layout.xib", "?");
    folder.write("Base.lproj/Plurals.stringsdict", "?");
    folder.write("Base.lproj/Twice.strings", "a = b;\na = c;");
    folder.write("Base.lproj/Broken.strings", "a = b;\nc = ;");
    std::filesystem::create_directory(base + "Folder.strings");

    SourceBundle::Diagnostics diagnostics;
    EXPECT_EQ(names(SourceBundle::developmentTables(folder.path(), diagnostics)), Strings{"Twice"});
    const Strings found = Support::texts(diagnostics);
    ASSERT_EQ(found.size(), 5u);
    EXPECT_EQ(found[0], "warning: " + base + "Layout.xib: is skipped: it is no table of texts (*.strings)");
    EXPECT_EQ(found[1], "warning: " + base + "Plurals.stringsdict: is skipped: plural rules are no table of texts");
    EXPECT_TRUE(found[2].starts_with("error: " + base + "Broken.strings:2:")) << found[2];
    EXPECT_EQ(found[3], "error: " + base + "Folder.strings: is not a regular file");
    EXPECT_TRUE(found[4].starts_with("warning: " + base + "Twice.strings:2:1: ")) << found[4];
}

TEST(SourceTables, AreNotReadByLinksThatLeadOut) {
    const Support::TemporaryFolder folder;
    const auto secret = folder.write("elsewhere/T.strings", "secret, and no table");
    folder.write("source/en.lproj/A.strings", "a = b;");
    const std::string source = folder / "source";
    for (const std::string name : {"/en.lproj/T.strings", "/Info.plist", "/Base.lproj"}) {
        std::filesystem::create_symlink(name == "/Base.lproj" ? secret.parent_path() : secret, source + name);
        SourceBundle::Diagnostics diagnostics;
        (void)SourceBundle::developmentTables(source, diagnostics);
        EXPECT_EQ(Support::texts(diagnostics),
                  Strings{"error: " + source + name + ": is a link that leads out of the source bundle"});
        std::filesystem::remove(source + name);
    }
}

} // namespace
