#include "Tables.h"

namespace {

using namespace std::string_literals;
using Tables::errorOf;
using Tables::Pairs;
using Tables::read;

const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";

std::string plist(const std::string& dict) {
    return "<plist version=\"1.0\"><dict>" + dict + "</dict></plist>";
}

TEST(XmlTable, ReadsRealisticFiles) {
    const Pairs ok = {{"OK", "In Ordnung"}};
    const std::string entry = "<key>OK</key>\n\t<string>In Ordnung</string>\n";
    EXPECT_EQ(read(head + plist(entry)), ok);
    EXPECT_EQ(read("\xEF\xBB\xBF \r\n\t" + plist(entry) + "\n<!-- end -->"), ok);
    EXPECT_EQ(read("<!-- a --><?xml-model x?>" + plist("<!-- b -->" + entry)), ok);
    EXPECT_EQ(read(head + "<plist><dict/></plist>"), Pairs());
    EXPECT_EQ(
        read(plist(
            "<key></key><string/><key>a &amp; b</key><string>&lt;b&gt; <![CDATA[<&]]> &#x1F4AA;\r\n &#13;</string>")),
        (Pairs{{"", ""}, {"a & b", "<b> <& 💪\n \r"}}));
    EXPECT_EQ(read("<?xml version='1.0' encoding='ISO-8859-1'?>" + plist("<key>k</key><string>\xE9</string>")),
              (Pairs{{"k", "é"}}));
    for (const bool bigEndian : {false, true})
        for (const bool marked : {false, true})
            EXPECT_EQ(read(Tables::utf16("<?xml version='1.0' encoding='UTF-16'?>" + plist(entry), bigEndian, marked)),
                      ok);
}

TEST(XmlTable, KeepsTheCommentsDirectlyBeforeAnEntry) {
    const std::string source = plist("<!-- no -->\n\n<!-- a -->\n<key>a</key><string><![CDATA[<!-- no -->]]></string>\n"
                                     "<key>b</key><!-- no --><string/>\n\t<!--\n c &amp;\n -->\n<key>c</key><string/>");
    EXPECT_EQ(StringTables::Table::read(source)->comments(), (std::vector<std::string>{"a", "", "c &amp;"}));
    EXPECT_EQ(StringTables::Table::read("<?xml version='1.0' encoding='ISO-8859-1'?>" +
                                        plist("\n<!-- \xE9 --><key>k</key><string/>"))
                  ->comments(),
              std::vector<std::string>{"é"});
}

TEST(XmlTable, NotesSkippedValues) {
    const std::string source = head + "<plist><dict>\n<key>n</key><dict><key>one</key><string>%d day</string>\n"
                                      "<key>x</key><array><string>a</string><dict/></array></dict>\n"
                                      "<key>i</key><integer>1</integer><key>a</key><string>1</string>\n"
                                      " <key>a</key><string>2</string><key>t</key><true/></dict></plist>";
    EXPECT_EQ(read(source), (Pairs{{"a", "2"}}));
    EXPECT_EQ(Tables::notes(source),
              (std::vector<std::string>{"4:1: the value of \"n\" is a dictionary, not a text; skipped",
                                        "6:1: the value of \"i\" is a number, not a text; skipped",
                                        "7:2: the key \"a\" appears again; this text is used",
                                        "7:32: the value of \"t\" is a boolean, not a text; skipped"}));
    const auto table = StringTables::Table::read(source);
    EXPECT_EQ(table->locations()[0].line, 7u);
}

TEST(XmlTable, RejectsWithLocationAndReason) {
    const std::string bomb = "<!DOCTYPE plist [<!ENTITY a \"ha\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>\n";
    std::string arrays;
    for (int i = 0; i < 1000000; ++i)
        arrays += "<array>";
    const struct {
        int line;
        std::string source, expected;
    } cases[] = {
        {__LINE__, "<dict/>", "1:1: expected <plist>, not <dict>"},
        {__LINE__, "<html>", "1:1: the unknown element <html>"},
        {__LINE__, "<plist>\n<string>a</string></plist>", "2:1: expected <dict>, not <string>"},
        {__LINE__, "<plist></plist>", "1:8: <plist> is empty"},
        {__LINE__, "<plist><dict/>\n<dict/></plist>", "2:1: a second value in <plist>"},
        {__LINE__, plist("<string>a</string>"), "1:28: expected <key>, not <string>"},
        {__LINE__, plist("<key>a</key><key>b</key>"), "1:40: expected a value, not <key>"},
        {__LINE__, plist("<key>a</key>"), "1:40: the key \"a\" has no value"},
        {__LINE__, plist("<key>a</key><array><key>b</key></array>"), "1:47: <key> outside of a dictionary"},
        {__LINE__, plist("<key>a</key><string><true/></string>"), "1:48: <true> does not belong here"},
        {__LINE__, plist("<key>a</key><plist/>"), "1:40: <plist> does not belong here"},
        {__LINE__, plist("<key>a</key><text>b</text>"), "1:40: the unknown element <text>"},
        {__LINE__, plist("é, "), "1:28: expected a tag, not text"},
        {__LINE__, plist("<key>é</key><array>\nx</array>"), "2:1: expected a tag, not text"},
        {__LINE__, head + plist("<key>a</key><string>&hi;</string>"), "3:48: the unknown entity \"hi\""},
        {__LINE__, "<plist><dict>\n", "2:1: no element found"},
        {__LINE__, "<plist><dict></plist>", "1:16: mismatched tag"},
        {__LINE__, plist("") + "x", "1:43: junk after document element"},
        {__LINE__, plist("<key>\xFF</key>"), "1:33: not well-formed (invalid token)"},
        {__LINE__, plist("<key>&#0;</key>"), "1:33: reference to invalid character number"},
        {__LINE__, "<?xml version='1.0' encoding='KOI8-R'?><plist/>", "1:31: unknown encoding"},
        {__LINE__, bomb + plist("<key>&b;</key><string/>"), "1:29: entity declarations are not allowed"},
        {__LINE__, "<!DOCTYPE plist [<!ENTITY x SYSTEM \"/etc/passwd\">]>" + plist(""),
         "1:49: entity declarations are not allowed"},
        {__LINE__, plist("<key>a</key>" + arrays), "1:922: nested too deeply"},
    };
    for (const auto& [line, source, expected] : cases)
        EXPECT_EQ(errorOf(source), expected) << "line " << line;
}

TEST(XmlTable, SurvivesDamage) {
    Tables::readDamaged(
        head +
            plist("<key>k&amp;</key><string>é</string>\n<key>d</key><dict><key>a</key><array><true/></array></dict>"),
        "\0<>/&;\"[ k\xC3\xFF"s);
}

TEST(XmlTable, TakesLinearTime) {
    const std::size_t large = 10 << 20;
    EXPECT_EQ(read(plist("<key>k</key><string>" + std::string(large, 'x') + "</string>"))[0].second.size(), large);
    EXPECT_NE(errorOf("<plist a='" + std::string(large, 'x')), "");
    EXPECT_NE(errorOf("<!DOCTYPE plist [" + std::string(large, ' ')), "");
}

} // namespace
