#include "Generator/OutputFile.h"

#include "../Support/TemporaryFolder.h"
#include "Generator/CodeText.h"
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(OutputFile, ReplacesWhatChangedAndRemovesWhatIsStale) {
    const Support::TemporaryFolder folder;
    const fs::path out = folder / "new" / "out";
    ASSERT_TRUE(
        Generator::writeFiles(out, {{"a.h", "// mark\n1"}, {"in/b.h", "// mark\n2"}, {"in/c.h", "// mark\n3"}}));
    folder.write("new/out/in/ours.h", "// by hand\n// mark\n");
    const auto before = fs::last_write_time(out / "a.h") - std::chrono::hours(1);
    fs::last_write_time(out / "a.h", before);

    ASSERT_TRUE(Generator::writeFiles(out, {{"a.h", "// mark\n1"}, {"in/b.h", "// mark\nnew"}}));
    EXPECT_EQ(fs::last_write_time(out / "a.h"), before);
    EXPECT_EQ(Support::contents(out / "in/b.h"), "// mark\nnew");
    EXPECT_FALSE(fs::exists(out / "in/c.h"));
    EXPECT_TRUE(fs::exists(out / "in/ours.h"));

    folder.write("file", "");
    EXPECT_EQ(Generator::writeFiles(folder / "file", {{"a.h", ""}}).error().file, folder / "file");
}

TEST(CodeText, ShowsWhatCannotBeSeen) {
    EXPECT_EQ(Generator::visibleText("a\n\r\t\"\\é№"), "a\\n\\r\\t\"\\é№");
    EXPECT_EQ(Generator::visibleText("\u200B\u202E\u00A0\U000E0001\x7F"), "\\u200B\\u202E\\u00A0\\U000E0001\\u007F");
    EXPECT_EQ(Generator::visibleText("\xFF\xC3\xE2\x82 "), "\\xFF\\xC3\\xE2\\x82 ");
    EXPECT_EQ(Generator::visibleText("日本語", 2), "日本…");
    EXPECT_EQ(Generator::visibleText("日本", 2), "日本");
}

TEST(CodeText, WritesLiteralsOfAnyBytes) {
    EXPECT_EQ(Generator::literal("a\"b\\c é"), R"("a\"b\\c é")");
    EXPECT_EQ(Generator::literal(std::string("\0"
                                             "1\n\xFF\x61",
                                             5)),
              R"("\0001\012\377a")");
    EXPECT_EQ(Generator::literal("?\?\?=/"), "\"?\\?\\?=/\"");
    EXPECT_EQ(Generator::literal("\u202E"), R"("\342\200\256")");
}

} // namespace
