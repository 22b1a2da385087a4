#include "Tables.h"

namespace {

using namespace std::string_literals;
using Tables::errorOf;
using Tables::Pairs;
using Tables::read;

TEST(TextTable, ReadsRealisticFiles) {
    const struct {
        int line;
        std::string source;
        Pairs expected;
    } cases[] = {
        {__LINE__, "", {}},
        {__LINE__, "\xEF\xBB\xBF", {}},
        {__LINE__, "/* nothing yet */ // really\n", {}},
        {__LINE__,
         "/* Training */\n\"Finish workout\" = \"Beenden\";\n\n/* no comment provided */\n"
         "\"kg_1 of %@\"=\"kg von %@\" ;//end\r\"Max:\"\t=\r\n\"Max.:\";",
         {{"Finish workout", "Beenden"}, {"kg_1 of %@", "kg von %@"}, {"Max:", "Max.:"}}},
        {__LINE__, "\"a /* b */ // c\" = \"/* */ //\";", {{"a /* b */ // c", "/* */ //"}}},
        {__LINE__, "\"k\"/**/=/* * / **/\"v\"/* a */;", {{"k", "v"}}},
        {__LINE__,
         "CFBundleName = Lumora;a/b.c-d_$1:x = /usr/lib;",
         {{"CFBundleName", "Lumora"}, {"a/b.c-d_$1:x", "/usr/lib"}}},
        {__LINE__, "a//=b;\n= c; d/**/= e/* */;", {{"a", "c"}, {"d", "e"}}},
        {__LINE__, "'it' = 'say \"hi\"'; \"q\" = \"'\";", {{"it", "say \"hi\""}, {"q", "'"}}},
        {__LINE__, "\"OK\"; Cancel ;", {{"OK", "OK"}, {"Cancel", "Cancel"}}},
        {__LINE__, "\"a\" = \"one\n two\r\nthree\";", {{"a", "one\n two\r\nthree"}}},
        {__LINE__, "\"a\" = \"1\"; \"b\" = \"2\"", {{"a", "1"}, {"b", "2"}}},
        {__LINE__, "{ \"a\" = \"1\"; b = 2 } /* end */ ", {{"a", "1"}, {"b", "2"}}},
        {__LINE__, "{}", {}},
        {__LINE__, "\"\" = \"\";", {{"", ""}}},
        {__LINE__, "\"a\"\u2028=\u2029\"1\";", {{"a", "1"}}},
        {__LINE__, "\"Привет\" = \"Тренировка 💪 日本語\";", {{"Привет", "Тренировка 💪 日本語"}}},
        {__LINE__, "\"a\"=\"1\";\"b\"=\"2\";\"a\"=\"3\";", {{"a", "3"}, {"b", "2"}}},
        {__LINE__, "a=1; b=2; a=(1); c=(2); c=3; d=4; d=(); d=(); d=5;", {{"b", "2"}, {"c", "3"}, {"d", "5"}}},
        {__LINE__, "a = {b = (1, 2, {c = d}, <0a FF>, ); e = \"f;\"}; g = h; i = <>; j = ();", {{"g", "h"}}},
    };
    for (const auto& [line, source, expected] : cases)
        EXPECT_EQ(read(source), expected) << "line " << line;
}

TEST(TextTable, ResolvesEscapes) {
    const struct {
        int line;
        std::string raw, expected;
    } cases[] = {
        {__LINE__, R"(\n\t\r\a\b\f\v)", "\n\t\r\a\b\f\v"},
        {__LINE__, R"(\"\\\'\/\%\u00e9\ )", "\"\\'/%u00e9 "}, // hexadecimal digits follow only \U
        {__LINE__, "a\\\nb\\é\\日", "a\nbé日"},
        {__LINE__, R"(\U00e9\U20AC!)", "é€!"},
        {__LINE__, R"(\UD83D\UdcAA.)", "💪."},
        {__LINE__, R"(\U0000)", "\0"s},
        {__LINE__, R"(\0\7\12\1018)", "\0\7\nA8"s},
        {__LINE__, R"(a plain part longer than sixteen bytes, \" and another one of that length)",
         "a plain part longer than sixteen bytes, \" and another one of that length"},
        // Octal escapes above \177 are characters of the NEXTSTEP encoding.
        {__LINE__, R"(\200\252\272\256\373\375)", "\u00A0“”ﬁßÿ"},
    };
    for (const auto& [line, raw, expected] : cases)
        EXPECT_EQ(read("k = \"" + raw + "\";"), (Pairs{{"k", expected}})) << "line " << line;
}

TEST(TextTable, ReadsEveryEncoding) {
    const std::string source = "// c\n\"OK\" = \"Fine\\U00e9\";\n";
    const Pairs expected = {{"OK", "Fineé"}};
    EXPECT_EQ(read("\xEF\xBB\xBF" + source), expected);
    for (const bool bigEndian : {false, true})
        for (const bool marked : {false, true})
            EXPECT_EQ(read(Tables::utf16(source, bigEndian, marked)), expected) << bigEndian << marked;
    EXPECT_EQ(read("\xFF\xFEk\0=\0'\0\x3D\xD8\xAA\xDC'\0"s), (Pairs{{"k", "💪"}}));
}

TEST(TextTable, RejectsWithLocationAndReason) {
    const struct {
        int line;
        std::string source, expected;
    } cases[] = {
        {__LINE__, "\"a\" = \"b\"\n\"c\" = \"d\";", "2:1: expected ';' after the text of \"a\""},
        {__LINE__, "a = (b)\nc", "2:1: expected ';' after the value of \"a\""},
        {__LINE__, "\"a\" \"b\";", "1:5: expected '=' or ';' after the key \"a\""},
        {__LINE__, "a = ;", "1:5: expected a value"},
        {__LINE__, "a =", "1:4: the file ends where a value is expected"},
        {__LINE__, "\"é💪\" = *;", "1:8: expected a value"},
        {__LINE__, "\r\n\r\n ;", "3:2: expected a key"},
        {__LINE__, "a=b;\r}", "2:1: expected a key"},
        {__LINE__, "\xEF\xBB\xBF= b;", "1:1: expected a key"},
        {__LINE__, "\n \"a\" = \"b;\n", "2:8: the string is never closed"},
        {__LINE__, "a = \"b\\", "1:5: the string is never closed"},
        {__LINE__, "a = b; /* c *", "1:8: the comment is never closed"},
        {__LINE__, "/*/", "1:1: the comment is never closed"},
        {__LINE__, "/* /* */ */", "1:10: expected a key"},
        {__LINE__, "{ a = b; ", "1:1: the brace is never closed"},
        {__LINE__, "{ a = b; } c", "1:12: text after the table's closing brace"},
        {__LINE__, "a = {b = c;", "1:5: the brace is never closed"},
        {__LINE__, "a = (b", "1:5: the parenthesis is never closed"},
        {__LINE__, "a = (b c)", "1:8: expected ',' or ')' in an array"},
        {__LINE__, "a = <0", "1:5: the data is never closed"},
        {__LINE__, "a = <0x>", "1:7: expected hexadecimal digits or '>' in data"},
        {__LINE__, R"(a = "\U12";)", "1:6: bad escape: \\U takes four hexadecimal digits"},
        {__LINE__, R"(a = "xy\UD83D";)", "1:8: bad escape: a surrogate without its other half"},
        {__LINE__, R"(a = "\UD83D\U0041";)", "1:6: bad escape: a surrogate without its other half"},
        {__LINE__, R"(a = "\UDCAA";)", "1:6: bad escape: a surrogate without its other half"},
        {__LINE__, R"(a = "\376";)", "1:6: bad escape: no character has this octal number"},
        {__LINE__, R"(a = "\777";)", "1:6: bad escape: no character has this octal number"},
        {__LINE__, "aaa = \"\0\";"s, "1:8: a NUL character"},
        {__LINE__, "// \xC3\xA9\xFF", "1:5: not UTF-8"},
        {__LINE__, "a = \"\xC0\x80\";", "1:6: not UTF-8"},
        {__LINE__, "a = \"\xED\xA0\x80\";", "1:6: not UTF-8"},
        {__LINE__, "a = \"\xF4\x90\x80\x80\";", "1:6: not UTF-8"},
        {__LINE__, "a = \"\xE2\x82", "1:6: not UTF-8"},
        {__LINE__, "\xFF\xFE\"\0a\0\x3D\xD8\"\0;\0"s, "1:3: a lone surrogate in UTF-16"},
        {__LINE__, "\xFF\xFE\"\0a\0\""s, "1:3: half a UTF-16 unit"},
        {__LINE__, "a = " + std::string(200, '(') + std::string(200, ')'), "1:133: nested too deeply"},
    };
    for (const auto& [line, source, expected] : cases)
        EXPECT_EQ(errorOf(source), expected) << "line " << line;
    EXPECT_EQ(errorOf(std::string(StringTables::Table::maxBytes + 1, ' ')), "the table is larger than 268435456 bytes");
}

TEST(TextTable, NotesSkippedValues) {
    EXPECT_EQ(Tables::notes("a = b;\nb = {c = d;};\n a = (1);\na = (2); a = b;\nc = <00>;"),
              (std::vector<std::string>{"2:1: the value of \"b\" is a dictionary, not a text; skipped",
                                        "3:2: the value of \"a\" is an array, not a text; skipped",
                                        "3:2: the key \"a\" appears again without a text; the earlier text is dropped",
                                        "4:1: the value of \"a\" is an array, not a text; skipped",
                                        "4:10: the key \"a\" appears again; this text is used",
                                        "5:1: the value of \"c\" is data, not a text; skipped"}));
    std::string many;
    for (int i = 0; i < 1500; ++i)
        many += "a = ();\n";
    const auto notes = Tables::notes(many);
    ASSERT_EQ(notes.size(), 1001u);
    EXPECT_EQ(notes.back(), "500 more notes are left out");
}

TEST(TextTable, LocatesTheLastOfEqualKeys) {
    const auto table = StringTables::Table::read("a = 1;\n b = 2;\na = 3;");
    ASSERT_TRUE(table);
    const auto places = table->locations();
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(std::pair(places[0].line, places[0].column), std::pair(std::size_t{3}, std::size_t{1})); // a
    EXPECT_EQ(std::pair(places[1].line, places[1].column), std::pair(std::size_t{2}, std::size_t{2})); // b
}

TEST(TextTable, KeepsTheCommentsDirectlyBeforeAnEntry) {
    const struct {
        int line;
        std::string source;
        std::vector<std::string> expected;
    } cases[] = {
        {__LINE__, "a = 1;", {""}},
        {__LINE__, "/* Title */\n\n/* Button: saves. */\na = 1;\nb = 2;", {"Button: saves.", ""}},
        {__LINE__, "/* 1 */\r\n// 2 \r\n/*\n  3\n  4 */\r\n a;", {"1\n2\n3\n4"}},
        {__LINE__, "/* no */\r\r/* yes */ a; /* b's */ b; // not c's\nc;", {"yes", "b's", ""}},
        {__LINE__, "/**/ /* x */ // y\na;\n/* z */\n\nb;", {"x\ny", ""}},
        {__LINE__, "a /* no */ = /* no */ 1 /* no */; // no\n'/* b */'; \"// c\"; d;", {"", "", "", ""}},
        {__LINE__, "/* old */\na = 1;\n/* new */\na = 2;", {"new"}},
        {__LINE__, "\xEF\xBB\xBF// ä\n{ // no\n/* b */\nb = { /* no */ c = d; }; /* e */ e; }", {"e"}},
        {__LINE__, Tables::utf16("// wide\na;"), {"wide"}},
    };
    for (const auto& [line, source, expected] : cases) {
        const auto table = StringTables::Table::read(source);
        ASSERT_TRUE(table) << "line " << line << ": " << table.error().text();
        EXPECT_EQ(table->comments(), expected) << "line " << line;
    }
}

TEST(TextTable, FindsAndLocatesAfterMoves) {
    // Short enough for the small-string optimization.
    auto read = StringTables::Table::read("\nab=b;\n 'C'=\"\";");
    ASSERT_TRUE(read);
    StringTables::Table first = *std::move(read), table;
    table = std::move(first);
    EXPECT_EQ(table.find("ab"), "b");
    EXPECT_EQ(table.find("C"), "");
    EXPECT_EQ(table.find("c"), std::nullopt);
    EXPECT_EQ(table.locations()[1].line, 3u);
    EXPECT_EQ(table.locations()[1].column, 2u);
    EXPECT_EQ(first.find("ab"), std::nullopt); // NOLINT: a moved-from table is empty
    EXPECT_TRUE(StringTables::Table().entries().empty());
}

TEST(TextTable, SurvivesDamage) {
    const std::string source = "/* c */ {\"k\\U00e9\\\"\" = \"é\\101 v\"; // x\n b; 'd' = ({e = <0f>;}, f);}";
    Tables::readDamaged(source, "\0\"\\'/*={}()<>;\nU\xC3\xFF"s);
    Tables::readDamaged(Tables::utf16(source), "\0\"\\\xD8\xFF"s);
}

TEST(TextTable, TakesLinearTime) {
    const std::size_t large = 10 << 20;
    EXPECT_EQ(read("k = \"" + std::string(large, 'x') + "\";")[0].second.size(), large);
    std::string escapes = "k = \"";
    for (std::size_t i = 0; i < large; ++i)
        escapes += "\\n";
    EXPECT_EQ(read(escapes + "\";")[0].second, std::string(large, '\n'));
    for (const char* const piece : {"(", "{a=", "{", "/*", "\"", "\"\\\"", "a=b;//", "*/", "a={};"}) {
        std::string hostile;
        while (hostile.size() < large / 16)
            hostile += piece;
        (void)errorOf(hostile);
        if (const auto table = StringTables::Table::read(hostile))
            (void)table->comments();
        (void)errorOf("a=" + hostile);
    }
}

// One entry more than the limit.
TEST(TextTable, IsBounded) {
    std::string source;
    for (std::size_t i = 0; i <= StringTables::Table::maxEntries; ++i)
        source += std::to_string(i) + ";";
    EXPECT_EQ(errorOf(source),
              "1:" + std::to_string(source.rfind(';', source.size() - 2) + 2) + ": the table has too many entries");
}

} // namespace
