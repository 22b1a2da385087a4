#include "SourceBundle/Tables.h"

#include "../Support/TemporaryFolder.h"
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
    EXPECT_EQ(names(SourceBundle::developmentTables(folder.path(), diagnostics)), (Strings{"A", "B"}));
    EXPECT_EQ(Support::texts(diagnostics), Strings{"warning: " + folder.path().string() +
                                                   ": has no development texts: neither "
                                                   "Base.lproj nor en.lproj is there"});
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
    ASSERT_EQ(found.size(), 4u);
    EXPECT_EQ(found[0], "note: " + base + "Plurals.stringsdict: is skipped: plural rules are no table of texts");
    EXPECT_TRUE(found[1].starts_with("error: " + base + "Broken.strings:2:")) << found[1];
    EXPECT_EQ(found[2], "error: " + base + "Folder.strings: is not a regular file");
    EXPECT_TRUE(found[3].starts_with("warning: " + base + "Twice.strings:2:1: ")) << found[3];
}

} // namespace
