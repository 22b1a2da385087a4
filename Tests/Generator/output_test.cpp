#include "Generator/OutputFile.h"

#include "../Support/SourceFolder.h"
#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include "Generator/Generator.h"
#include <csignal>
#include <gtest/gtest.h>
#include <set>

namespace {

namespace fs = std::filesystem;

TEST(OutputFile, ReplacesChangedAndRemovesStaleFiles) {
    const Support::TemporaryFolder folder;
    const fs::path out = folder / "new" / "out";
    ASSERT_TRUE(Generator::writeFiles(
        out, {{"a.h", "// generated\n1"}, {"in/b.h", "// generated\n2"}, {"in/c.h", "// generated\n3"}}));
    folder.write("new/out/in/ours.h", "// by hand\n// generated\n");
    const auto before = fs::last_write_time(out / "a.h") - std::chrono::hours(1);
    fs::last_write_time(out / "a.h", before);

    ASSERT_TRUE(Generator::writeFiles(out, {{"a.h", "// generated\n1"}, {"in/b.h", "// generated\nnew"}}));
    EXPECT_EQ(fs::last_write_time(out / "a.h"), before);
    EXPECT_EQ(Support::contents(out / "in/b.h"), "// generated\nnew");
    EXPECT_FALSE(fs::exists(out / "in/c.h"));
    EXPECT_TRUE(fs::exists(out / "in/ours.h"));

    folder.write("file", "");
    EXPECT_EQ(Generator::writeFiles(folder / "file", {{"a.h", ""}}).error().file, folder / "file");
}

TEST(GenerateModule, RemovesFilesOfRemovedTables) {
    Support::SourceFolder folder;
    const auto generate = [&](const char* out) {
        const Generator::Options options{.module = "M"};
        const auto source = folder.read();
        const Generator::Model model = Generator::modelOf(source, options, folder.diagnostics);
        EXPECT_TRUE(Generator::writeModule(model, options, folder / out));
        EXPECT_FALSE(folder.diagnostics.hasErrors());
        return Support::filesBelow(folder / out);
    };
    const fs::path table = folder.write("source/Base.lproj/T.strings", "a = b;");
    folder.write("source/C.xcassets/red.colorset/Contents.json",
                 R"({"colors": [{"color": {"components": {"red": "1", "green": "0", "blue": "0"}}}]})");
    const auto all = generate("out");
    EXPECT_TRUE(all.contains("MAsset/C.h") && all.contains("MStrings/T.h"));

    fs::remove_all(folder / "source/C.xcassets");
    fs::remove(table);
    folder.write("source/Base.lproj/Other.strings", "");
    folder.write("out/MAsset/ours.h", "// by hand\n");
    auto rest = generate("out");
    EXPECT_EQ(rest.erase("MAsset/ours.h"), 1U);
    EXPECT_EQ(rest, generate("fresh"));
}

TEST(CodeWriterDeathTest, AMissingValueStopsTheProcess) {
    EXPECT_EXIT(Generator::CodeWriter("M").add("{{name}}{{nam}}", {{"name", "a"}}), testing::KilledBySignal(SIGABRT),
                "No value for \\{\\{nam\\}\\}");
}

TEST(CodeText, EscapesInvisibleCharacters) {
    EXPECT_EQ(Generator::visibleText("a\n\r\t\"\\é№"), "a\\n\\r\\t\"\\é№");
    EXPECT_EQ(Generator::visibleText("\u200B\u202E\u00A0\U000E0001\x7F"), "\\u{200B}\\u{202E}\\u{A0}\\u{E0001}\\u{7F}");
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
    EXPECT_EQ(Generator::literal("?\?\?=/"), "\"?\\?\\?=/\""); // no trigraph
    EXPECT_EQ(Generator::literal("\u202E"), R"("\342\200\256")");
}

} // namespace
