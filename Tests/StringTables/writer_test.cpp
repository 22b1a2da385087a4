#include "StringTables/internal/Writer.h"
#include "Tables.h"

namespace {

using namespace std::string_literals;
using StringTables::Entry;
using StringTables::Form;

const std::vector<Entry> sample = {
    {"Finish \"it\"", "Fertig\\\n\t\r"}, {"", "é & <日> 💪"}, {"same", "same"}, {"again", "same"}};

TEST(Writer, WritesText) {
    EXPECT_EQ(*StringTables::write(sample, Form::text), "\"Finish \\\"it\\\"\" = \"Fertig\\\\\\n\\t\\r\";\n"
                                                        "\"\" = \"é & <日> 💪\";\n"
                                                        "\"same\" = \"same\";\n"
                                                        "\"again\" = \"same\";\n");
    const std::vector<Entry> controls = {{"'\x1B", std::string_view("\0\x7F", 2)}};
    EXPECT_EQ(*StringTables::write(controls, Form::text), "\"'\\U001B\" = \"\\U0000\\U007F\";\n");
    EXPECT_EQ(*StringTables::write({}, Form::text), "");
}

TEST(Writer, WritesXml) {
    EXPECT_EQ(*StringTables::write(sample, Form::xml),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
              "<plist version=\"1.0\">\n<dict>\n"
              "\t<key>Finish \"it\"</key>\n\t<string>Fertig\\\n\t&#13;</string>\n"
              "\t<key></key>\n\t<string>é &amp; &lt;日&gt; 💪</string>\n"
              "\t<key>same</key>\n\t<string>same</string>\n"
              "\t<key>again</key>\n\t<string>same</string>\n"
              "</dict>\n</plist>\n");
}

TEST(Writer, WritesBinary) {
    const std::vector<Entry> two = {{"OK", "é"}, {"Ja", "OK"}};
    EXPECT_EQ(*StringTables::write(two, Form::binary),
              "bplist00"
              "\xD2\1\2\3\1"
              "\x52OK\x52Ja\x61\0\xE9"
              "\x8\xD\x10\x13"
              "\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x16"s);
}

TEST(Writer, WritesComments) {
    const std::vector<Entry> entries = {{"a", "1"}, {"b", "2"}, {"c", "3"}};
    const std::vector<std::string> comments = {"Ä: two\nlines", "", "*/ --- -"};
    const std::vector<std::string> fromText = {"Ä: two\nlines", "", "* / --- -"},
                                   fromXml = {"Ä: two\nlines", "", "*/ - - - -"};
    EXPECT_EQ(*StringTables::write(entries, Form::text, comments),
              "/* Ä: two\nlines */\n\"a\" = \"1\";\n\"b\" = \"2\";\n/* * / --- - */\n\"c\" = \"3\";\n");
    EXPECT_EQ(StringTables::Table::read(*StringTables::write(entries, Form::text, comments))->comments(), fromText);
    EXPECT_EQ(StringTables::Table::read(*StringTables::write(entries, Form::xml, comments))->comments(), fromXml);
    for (const auto& [comment, wrong] :
         {std::pair("\0"s, "contains a NUL character"), std::pair("\x80"s, "is not UTF-8"),
          std::pair("\1"s, "contains a character that XML cannot represent")}) {
        const std::vector<std::string> bad = {"", comment};
        EXPECT_EQ(StringTables::write(entries, Form::xml, bad).error().message, "the comment of \"b\" "s + wrong);
        EXPECT_EQ(static_cast<bool>(StringTables::write(entries, Form::text, bad)), comment == "\1");
    }
}

TEST(Writer, RejectsWhatAFormCannotRepresent) {
    for (const std::string& text : {"\0"s, "\x1F"s, "\uFFFE"s, "a\uFFFF"s}) {
        const std::vector<Entry> entries = {{"k", text}};
        EXPECT_EQ(StringTables::write(entries, Form::xml).error().message,
                  "the entry \"k\" contains a character that XML cannot represent");
        EXPECT_TRUE(StringTables::write(entries, Form::text));
    }
    for (const Form form : {Form::text, Form::xml, Form::binary}) {
        const std::vector<Entry> entries = {{"a", "b"}, {"k", "\xED\xA0\x80"}}, bad = {{"a", "b"}, {"k\x80", "b"}};
        EXPECT_EQ(StringTables::write(entries, form).error().message, "the entry \"k\" is not UTF-8");
        EXPECT_EQ(StringTables::write(bad, form).error().message, "the entry \"k\x80\" is not UTF-8");
    }
}

// A binary table whose entries share a long text is small, but would be too large in other forms.
TEST(Writer, IsBounded) {
    const std::string text(1 << 20, 'x');
    std::vector<std::string> keys;
    for (int i = 0; i < 257; ++i)
        keys.push_back(std::to_string(i));
    std::vector<Entry> entries;
    for (const std::string& key : keys)
        entries.push_back({key, text});
    for (const Form form : {Form::text, Form::xml})
        EXPECT_EQ(StringTables::write(entries, form).error().message, "the table would be larger than 268435456 bytes");
    EXPECT_LT(StringTables::write(entries, Form::binary)->size(), text.size() + 10'000);
    const std::string doubled = std::string(StringTables::Table::maxBytes / 2, 'x') + "é"; // as UTF-16
    entries = {{"key", doubled}};
    EXPECT_EQ(StringTables::writeCompiled(entries).error().message, "the table would be larger than 268435456 bytes");
}

// Converts every form to every other, from few short strings to sizes that need longer references, offsets and counts.
TEST(Writer, RoundTrips) {
    for (const std::size_t count : {0u, 1u, 14u, 15u, 127u, 300u, 70000u}) {
        std::vector<std::string> keys;
        for (std::size_t i = 0; i < count; ++i)
            keys.push_back("key." + std::to_string(i) + (i % 3 ? "" : "\n\"é💪"));
        Tables::Pairs expected;
        std::vector<Entry> entries;
        for (std::size_t i = 0; i < count; ++i) {
            const std::string& text = keys[i * i % count];
            expected.emplace_back(keys[i], text);
            entries.push_back({keys[i], text});
        }
        auto bytes = StringTables::write(entries, Form::text);
        for (const Form form : {Form::xml, Form::binary, Form::text, Form::binary, Form::xml, Form::text}) {
            bytes = StringTables::write(StringTables::Table::read(*bytes)->entries(), form);
            const auto table = StringTables::Table::read(*bytes);
            ASSERT_TRUE(table) << table.error().text();
            ASSERT_EQ(Tables::pairs(*table), expected) << count;
        }
    }
}

} // namespace
