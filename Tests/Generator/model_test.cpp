// The accessors that the generator makes from tables, and its messages about them.
#include "Generator/Generator.h"

#include "../Support/SourceFolder.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using Strings = std::vector<std::string>;

std::string content(const std::vector<Generator::OutputFile>& files, const std::string& path) {
    const auto found = std::ranges::find(files, std::filesystem::path(path), &Generator::OutputFile::path);
    return found == files.end() ? "no file " + path : found->content;
}

// A source with the development table T, and what is generated from it.
class Tree : public Support::SourceFolder {
public:
    explicit Tree(std::string_view text) { write("Base.lproj/T.strings", text); }

    std::vector<Generator::OutputFile> files(const Generator::Options& options = {.module = "M"}) {
        const auto source = read();
        return Generator::filesOf(Generator::modelOf(source, options, diagnostics), options);
    }
    // "Group::name" of every accessor of the table, then "- REASON" for each key without one.
    Strings accessors(const Generator::Options& options = {.module = "M"}) {
        Strings all;
        const auto source = read();
        const auto model = Generator::modelOf(source, options, diagnostics);
        for (const auto& table : model.tables) {
            for (const auto& entry : table.entries)
                all.push_back(entry.groups + (entry.groups.empty() ? "" : "::") + entry.name);
            for (const auto& [entry, reason] : table.leftOut)
                all.push_back("- " + reason);
        }
        return all;
    }
};

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
        {__LINE__, "50% of max", "std::string key(std::int64_t value)"}, // "% o" is octal
        {__LINE__, "%.1f %s %hhd", "std::string key(double first, " + described + "second, std::int64_t third)"},
    };
    for (const auto& each : cases) {
        const std::string header = content(Tree("key = \"" + each.text + "\";").files(), "MStrings/T.h");
        EXPECT_NE(header.find("LUMORA_EXPORT " + each.declaration + ";"), std::string::npos)
            << "line " << each.line << ":\n"
            << header;
    }
}

TEST(Model, LeavesOutKeysWithoutAccessor) {
    const std::string longName(Generator::maxPathLength + 1, 'a');
    std::string deep;
    for (std::size_t part = 0; part <= Generator::maxPathParts; ++part)
        deep += "a.";
    const struct {
        int line;
        std::string table;
        Strings accessors; // "- REASON" if there is none
        const char* place; // location of the last key that was left out
    } cases[] = {
        // No name.
        {__LINE__, "ok = a;\n \"\" = \"\";", {"ok", "- it has no letter or digit for a name"}, "2:2"},
        {__LINE__,
         "\"...\" = a; \"%%\" = b;",
         {"- it has no letter or digit for a name", "- it has no letter or digit for a name"},
         "1:12"},
        {__LINE__, "\"settings.second.%@\" = a; \"%%.x\" = b; \"a.-.b\" = c;", {"Settings::second", "x", "A::b"}, ""},
        // Name clashes: the first key keeps the name.
        {__LINE__,
         "\"foo bar\" = a;\n  \"FooBar\" = b;",
         {"fooBar", "- the name fooBar belongs to key \"foo bar\" (line 1)"},
         "2:3"},
        {__LINE__,
         "\"A.1\" = a;\n\"A.1.b\" = b;",
         {"A::_1", "- the name A::_1 belongs to key \"A.1\" (line 1)"},
         "2:1"},
        {__LINE__,
         "\"1.b\" = b;\n\"1\" = a;",
         {"_1::b", "- the name _1 belongs to a group of key \"1.b\" (line 1)"},
         "2:1"},
        // A key without an accessor does not occupy a name.
        {__LINE__,
         "\"A.1\" = \"%2$@\";\n\"A.1.b\" = b;",
         {"A::_1::b", "- its text has no placeholder for argument 1 of 2"},
         "1:1"},
        // Different spellings may name one group, and a group may have the name of an entry in another group.
        {__LINE__,
         "\"foo bar.x\" = a; \"FooBar.y\" = b; \"Z.FooBar\" = c;",
         {"FooBar::x", "FooBar::y", "Z::fooBar"},
         ""},
        // Placeholders.
        {__LINE__, "\"a b\" = \"%1$@ %3$d\";", {"- its text has no placeholder for argument 2 of 3"}, "1:1"},
        {__LINE__, "a = \"%1$@ %1$d\";", {"- its text takes argument 1 both as text and as an integer"}, "1:1"},
        {__LINE__, "a = \"%1$@ %d\";", {"- its text mixes placeholders with and without a position"}, "1:1"},
        // Limits.
        {__LINE__, longName + " = a;", {"- its name is longer than 1000 bytes"}, "1:1"},
        {__LINE__, "a = \"%65$@\";", {"- its text takes more than 64 arguments"}, "1:1"},
        {__LINE__, "\"" + deep + "\" = a;", {"- it has more than 64 parts"}, "1:1"},
    };
    for (const auto& one : cases) {
        Tree tree(one.table);
        EXPECT_EQ(tree.accessors(), one.accessors) << "line " << one.line;
        const Strings messages = tree.takeMessages();
        const auto leftOut = std::ranges::count_if(one.accessors, [](const auto& each) { return each[0] == '-'; });
        ASSERT_EQ(messages.size(), static_cast<std::size_t>(leftOut)) << "line " << one.line;
        if (leftOut != 0) {
            const std::string begin = std::string("warning: Base.lproj/T.strings:") + one.place + ": key \"";
            EXPECT_TRUE(messages.back().starts_with(begin)) << messages.back();
            EXPECT_TRUE(messages.back().ends_with(" has no accessor: " + one.accessors.back().substr(2)))
                << messages.back();
        }
    }
}

TEST(Model, NamesTheOtherFileOfAClash) {
    Tree tree("\"OneName\" = a;");
    tree.write("en.lproj/T.strings", "x = a;\n\"One name\" = a;");
    EXPECT_EQ(tree.accessors(), (Strings{"x", "oneName",
                                         "- the name oneName belongs to key \"One name\" (" +
                                             (tree / "en.lproj/T.strings").string() + ", line 2)"}));
}

TEST(Model, UsesTheNamesFile) {
    Tree tree("\"Ban %@\" = \"%@\";\nbanUser = a;\nok = b;\nodd = c;");
    const auto names = tree.write("names", "\"T/Ban %@\" = \"Moderation.banUser\";\n"
                                           "\"T/banUser\" = \"ok\";\n"
                                           "\"T/odd\" = \"Group.EMAIL\";\n"
                                           "\"T/gone\" = \"gone\";\n"
                                           "\"T/ok\" = \"std.ok\";\n");
    const Generator::Options options{.module = "M", .names = names};
    // Names from the names file take precedence.
    EXPECT_EQ(tree.accessors(options),
              (Strings{"Moderation::banUser", "ok", "odd", "- the name ok belongs to key \"banUser\" (line 2)"}));
    EXPECT_EQ(
        tree.takeMessages(),
        (Strings{
            "warning: names:3:1: the part \"EMAIL\" is not a C++ identifier that the naming rules leave unchanged",
            "warning: names:5:1: the part \"std\" is not a C++ identifier that the naming rules leave unchanged",
            "warning: Base.lproj/T.strings:3:1: key \"ok\" has no accessor: the name ok belongs to key "
            "\"banUser\" (line 2)",
            "warning: names:4:1: names \"T/gone\", which is not in the development texts of a table with accessors"}));
    (void)tree.accessors({.module = "M", .names = tree / "none"});
    EXPECT_TRUE(tree.diagnostics.hasErrors());
}

TEST(Model, ReportsOtherProblems) {
    Tree tree("x = y; a = \"%d %\"; b = \"%#@n@\";");
    tree.write("de.lproj/T.strings", "x = y;\nold = a; older = b;");
    tree.write("fr.lproj/T.strings", "old = y;");
    tree.write("fr.lproj/U.strings", "more = y;");
    tree.write("Base.lproj/Odd names.strings", "");
    tree.write("Base.lproj/OddNames.strings", "k = a;");
    tree.write("Base.lproj/---.strings", "k = a;");
    (void)tree.accessors();
    EXPECT_EQ(
        tree.takeMessages(),
        (Strings{"warning: Base.lproj/---.strings: the table has no accessors: its name has no letter or digit",
                 "warning: Base.lproj/OddNames.strings: the table has no accessors: the name OddNames belongs to "
                 "Base.lproj/Odd names.strings",
                 "warning: Base.lproj/T.strings:1:8: the text of key \"a\" has a % that begins no placeholder and "
                 "is printed literally (write %% for a percent sign)",
                 "warning: Base.lproj/T.strings:1:20: the text of key \"b\" names the plural variable \"n\", which it "
                 "does not have",
                 "note: de.lproj/T.strings:2:1: 3 keys are only in translations and have no accessor; the first "
                 "is \"old\""}));
    // The pseudo-language ar-XB is before "de" but has no file that the message could name.
    Support::SourceFolder folder;
    folder.write("de.lproj/---.strings", "k = a;");
    const auto source = folder.read({.developmentLanguage = "de", .addsPseudoLanguages = true});
    Generator::NamesFile none;
    (void)Generator::accessorTables(source, none, folder.diagnostics);
    EXPECT_EQ(folder.takeMessages(),
              Strings{"warning: de.lproj/---.strings: the table has no accessors: its name has no letter or digit"});
}

TEST(Model, ChecksItsOptions) {
    SourceBundle::Diagnostics diagnostics;
    Generator::check({.module = "class", .includes = {"a\"b"}, .shards = 0}, diagnostics);
    Strings messages;
    for (const SourceBundle::Diagnostic& diagnostic : diagnostics.all())
        messages.push_back(diagnostic.what.text());
    EXPECT_EQ(messages, (Strings{"the module's name must be a C++ identifier that is not reserved: \"class\"",
                                 "cannot be included: \"a\"b\"", "the accessors can be split into 1 to 1000 sources"}));
}

TEST(Emitter, CutsLongCommentsBetweenCharacters) {
    const std::string dots(999, '.');
    const std::string header = content(Tree("/* " + dots + "é */ a = b;").files(), "MStrings/T.h");
    EXPECT_NE(header.find("// " + dots + "\n"), std::string::npos) << header;
}

TEST(Emitter, SplitsLargeTablesBetweenGroups) {
    std::ostringstream text;
    for (int i = 0; i < 260; ++i)
        text << "root" << i << " = a;\n";
    for (int group = 0; group < 3; ++group)
        for (int i = 0; i < 80; ++i)
            text << "\"Group" << group << ".e" << i << "\" = a;\n";
    const auto files = Tree(text.str()).files({.module = "M", .shards = 3});

    EXPECT_EQ(content(files, "MStrings/T.h"),
              "// Generated from the resources of the module M; do not edit.\n#pragma once\n\n"
              "#include \"T-1.h\"\n#include \"T-2.h\"\n");
    EXPECT_NE(content(files, "MStrings/T-1.h").find("& root249();"), std::string::npos);
    // Ten entries of the root, then complete groups.
    EXPECT_NE(content(files, "MStrings/T-2.h").find("& root250();"), std::string::npos);
    EXPECT_NE(content(files, "MStrings/T-2.h").find("M::MStrings::T::Group2 {"), std::string::npos);
    for (const char* source : {"MStrings-1.cpp", "MStrings-2.cpp", "MStrings-3.cpp"})
        EXPECT_TRUE(std::ranges::count(content(files, source), '{') > 500 / 3)
            << source; // a third of the accessors is in each
}

} // namespace
