// What the generator makes of tables, and what it has to say about them.
#include "Generator/Generator.h"
#include "Tables.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using Strings = std::vector<std::string>;
using Support::table;

std::string content(const std::vector<Generator::OutputFile>& files, const std::string& path) {
    const auto found = std::ranges::find(files, std::filesystem::path(path), &Generator::OutputFile::path);
    return found == files.end() ? "no file " + path : found->content;
}

Strings faultsOf(const std::string& text) {
    SourceBundle::Diagnostics diagnostics;
    std::vector<SourceBundle::SourceTable> tables;
    tables.push_back(table("T", text));
    const auto files = Generator::generateStrings(tables, {.module = "M", .includes = {}}, diagnostics);
    EXPECT_EQ(files.empty(), diagnostics.hasErrors());
    return Support::texts(diagnostics);
}

TEST(Model, MakesParametersOfPlaceholders) {
    const std::string described = "const ::Foundation::Describable& ";
    const struct {
        int line;
        std::string text;
        std::string declaration;
    } cases[] = {
        {__LINE__, "100%%", "const std::string& key()"},
        {__LINE__, "%@", "std::string key(" + described + "value)"},
        {__LINE__, "%lld or %x", "std::string key(std::int64_t first, std::int64_t second)"},
        {__LINE__, "%2$@ %1$d", "std::string key(std::int64_t first, " + described + "second)"},
        {__LINE__, "%1$@ %1$@", "std::string key(" + described + "value)"},
        {__LINE__, "%*d", "std::string key(std::int64_t first, std::int64_t second)"},
        {__LINE__, "50% of max", "std::string key(std::int64_t value)"},
    };
    for (const auto& each : cases) {
        SourceBundle::Diagnostics diagnostics;
        std::vector<SourceBundle::SourceTable> tables;
        tables.push_back(table("T", "key = \"" + each.text + "\";"));
        const auto files = Generator::generateStrings(tables, {.module = "M", .includes = {}}, diagnostics);
        EXPECT_NE(content(files, "MStrings/T.h").find("LUMORA_EXPORT " + each.declaration + ";"), std::string::npos)
            << "line " << each.line << ":\n"
            << content(files, "MStrings/T.h");
    }
}

TEST(Model, ReportsFaultsOfPlaceholders) {
    EXPECT_EQ(
        faultsOf("\n\"a b\" = \"%1$@ %3$d\";"),
        Strings{
            "error: T.strings:2:1: the text of key \"a b\" has no placeholder for argument 2 but one for argument 3"});
    EXPECT_EQ(
        faultsOf("a = \"%1$@ %1$d\";"),
        Strings{"error: T.strings:1:1: the text of key \"a\" takes argument 1 both as text and as a whole number"});
    EXPECT_EQ(faultsOf("a = \"%1$@ %d\";"),
              Strings{"error: T.strings:1:1: the text of key \"a\" mixes placeholders with and without a position"});
    EXPECT_EQ(
        faultsOf("x = y; a = \"%d %k\";"),
        Strings{"warning: T.strings:1:8: the text of key \"a\" has a % that begins no placeholder; it is printed as it "
                "stands (write %% if that is meant)"});
}

TEST(Model, ReportsFaultsOfNames) {
    EXPECT_EQ(
        faultsOf("\"foo bar\" = a;\nok = a;\n  \"FooBar\" = b;"),
        Strings{
            "error: T.strings:3:3: the entry of key \"FooBar\" (line 3) and the entry of key \"foo bar\" (line 1) have "
            "one name: fooBar"});
    EXPECT_EQ(
        faultsOf("\"A.1\" = a;\n\"A.1.b\" = b;"),
        Strings{
            "error: T.strings:2:1: a group of key \"A.1.b\" (line 2) and the entry of key \"A.1\" (line 1) have one "
            "name: A::_1"});
    EXPECT_EQ(faultsOf("\"1.b\" = b;\n\"1\" = a;"), Strings{"error: T.strings:2:1: the entry of key \"1\" (line 2) and "
                                                            "a group of key \"1.b\" (line 1) have one name: _1"});
    // Every fault of a run is told, those of one entry's name and text together.
    EXPECT_EQ(faultsOf("\"...\" = a;\n\"%%.x\" = \"%2$@\";"),
              (Strings{"error: T.strings:1:1: key \"...\" gives no name",
                       "error: T.strings:2:1: key \"%%.x\" gives no name: \"%%\" holds no letter or digit",
                       "error: T.strings:2:1: the text of key \"%%.x\" has no placeholder for argument 1 but one for "
                       "argument 2"}));
    // One group may have keys of two spellings, and a group an entry's name in another group.
    EXPECT_EQ(faultsOf("\"foo bar.x\" = a; \"FooBar.y\" = b; \"Z.FooBar\" = c;"), Strings{});
}

TEST(Model, ReportsFaultsOfTablesAndOptions) {
    SourceBundle::Diagnostics diagnostics;
    std::vector<SourceBundle::SourceTable> tables;
    for (const char* name : {"Odd names", "OddNames", "..."})
        tables.push_back(table(name, ""));
    const Generator::Options options{.module = "class", .includes = {"a\"b"}, .shards = 0};
    EXPECT_TRUE(Generator::generateStrings(tables, options, diagnostics).empty());
    EXPECT_EQ(Support::texts(diagnostics),
              (Strings{"error: the module's name is no C++ identifier, or one that C++ keeps for itself: \"class\"",
                       "error: cannot be included: \"a\"b\"", "error: the accessors are split into 1 to 1000 sources",
                       "error: OddNames.strings: has one name with Odd names.strings: OddNames",
                       "error: ....strings: the file's name gives no name to its table"}));
}

TEST(Emitter, SplitsLargeTablesBetweenGroups) {
    std::ostringstream text;
    for (int i = 0; i < 260; ++i)
        text << "root" << i << " = a;\n";
    for (int group = 0; group < 3; ++group)
        for (int i = 0; i < 80; ++i)
            text << "\"Group" << group << ".e" << i << "\" = a;\n";
    std::vector<SourceBundle::SourceTable> tables;
    tables.push_back(table("T", text.str()));
    SourceBundle::Diagnostics diagnostics;
    const auto files = Generator::generateStrings(tables, {.module = "M", .includes = {}, .shards = 3}, diagnostics);

    EXPECT_EQ(content(files, "MStrings/T.h"),
              "// Made from the resources of the module M; do not edit.\n#pragma once\n\n"
              "#include \"T-1.h\"\n#include \"T-2.h\"\n");
    EXPECT_NE(content(files, "MStrings/T-1.h").find("& root249();"), std::string::npos);
    // Ten of the root, then groups that stay whole.
    EXPECT_NE(content(files, "MStrings/T-2.h").find("& root250();"), std::string::npos);
    EXPECT_NE(content(files, "MStrings/T-2.h").find("M::MStrings::T::Group2 {"), std::string::npos);
    for (const char* source : {"MStrings-1.cpp", "MStrings-2.cpp", "MStrings-3.cpp"})
        EXPECT_TRUE(std::ranges::count(content(files, source), '{') > 166) << source;
}

} // namespace
