// Plural tables in XML and binary form: content, notes with locations, damaged tables, and the writer.
#include "StringTables/internal/PluralPieces.h"
#include "StringTables/internal/PluralTable.h"
#include <gtest/gtest.h>

namespace {

using Intl::PluralCategory;
using StringTables::PluralTable;

std::string list(const std::string& entries) {
    return "<plist><dict>\n" + entries + "\n</dict></plist>";
}
std::string text(const std::string& key, const std::string& value) {
    return "<key>" + key + "</key><string>" + value + "</string>";
}
std::string dict(const std::string& key, const std::string& entries) {
    return "<key>" + key + "</key><dict>" + entries + "</dict>";
}
const std::string rule = text("NSStringFormatSpecTypeKey", "NSStringPluralRuleType");
const std::string days =
    dict("days", rule + text("NSStringFormatValueTypeKey", "ld") + text("one", "%ld día") + text("other", "%ld días"));

std::string notesOf(const PluralTable& table) {
    std::string all;
    for (const Runtime::Error& note : table.notes())
        all += note.text() + "\n";
    return all;
}

TEST(PluralTable, ReadsFormatsVariablesAndForms) {
    const auto table =
        PluralTable::read(list(dict("left", text("NSStringLocalizedFormatKey", "%#@days@ left") + days)));
    ASSERT_TRUE(table) << table.error().text();
    EXPECT_EQ(notesOf(*table), "");
    ASSERT_NE(table->find("left"), nullptr);
    const StringTables::PluralFormat* const plural = &table->find("left")->plural;
    EXPECT_EQ(plural->format, "%#@days@ left");
    ASSERT_EQ(plural->variables.size(), 1U);
    EXPECT_EQ(plural->variables[0].name, "days");
    EXPECT_EQ(plural->variables[0].valueType, "ld");
    EXPECT_EQ(plural->variables[0].forms[indexOf(PluralCategory::one)], "%ld día");
    EXPECT_EQ(plural->variables[0].forms[indexOf(PluralCategory::few)], std::nullopt);
    EXPECT_EQ(table->find("lef"), nullptr);
    EXPECT_EQ(table->entries()[0].location.line, 2U);
}

TEST(PluralTable, WrittenTablesReadTheSame) {
    const auto table = PluralTable::read(list(dict("b", text("NSStringLocalizedFormatKey", "%#@days@") + days) +
                                              dict("a", text("NSStringLocalizedFormatKey", "%1$#@days@") + days)));
    ASSERT_TRUE(table);
    const auto written = write(table->entries());
    ASSERT_TRUE(written);
    const auto again = PluralTable::read(*written);
    ASSERT_TRUE(again) << again.error().text();
    ASSERT_EQ(again->entries().size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(again->entries()[i].key, table->entries()[i].key);
        EXPECT_EQ(again->entries()[i].plural, table->entries()[i].plural);
    }
    const StringTables::PluralEntry notUtf8[] = {
        {.key = "k", .plural = {.format = "\xFF", .variables = {}}, .location = {}}};
    EXPECT_EQ(write(notUtf8).error().message, "the entry \"k\" is not UTF-8");
    const std::string doubled = std::string(StringTables::Table::maxBytes / 2, 'x') + "é"; // as UTF-16
    const StringTables::PluralEntry large[] = {
        {.key = "k", .plural = {.format = doubled, .variables = {}}, .location = {}}};
    EXPECT_EQ(write(large).error().message, "the table would be larger than 268435456 bytes");
}

TEST(PluralTable, NotesWhatIsSkipped) {
    const std::string format = text("NSStringLocalizedFormatKey", "%#@v@");
    const struct {
        int line;
        std::string entries, notes, chosen{}; // `chosen`: the format of "k"; empty: not checked
    } cases[] = {
        {__LINE__, text("k", "text"), "2:1: the value of \"k\" is a text, not a plural format; it is skipped\n"},
        {__LINE__, "<key>k</key><array><dict/></array>", "2:1: the value of \"k\" is an array; it is skipped\n"},
        {__LINE__, dict("k", days), "2:1: the entry \"k\" has no NSStringLocalizedFormatKey; it is skipped\n"},
        {__LINE__, dict("k", format + text("v", "x")),
         "2:78: the value of \"v\" is a text, not a variable; it is skipped\n"},
        {__LINE__, dict("k", format + dict("v", text("one", "x"))), ""},
        {__LINE__, dict("k", format + dict("v", rule + text("several", "x"))),
         "2:171: the value of \"several\" is for no plural category; it is skipped\n"},
        {__LINE__, dict("k", format + dict("v", text("NSStringFormatSpecTypeKey", "other") + text("one", "x"))),
         "2:78: the variable \"v\" has no plural rule; it is skipped\n"},
        {__LINE__, dict("k", format + dict("v", rule + dict("one", ""))),
         "2:171: the value of \"one\" is a dictionary; it is skipped\n"},
        {__LINE__,
         dict("k", dict("NSStringVariableWidthRuleType", text("9", "9") + text("60", "60") + text("20", "20"))),
         "2:1: the entry \"k\" has texts for several widths; the widest is used\n", "60"},
        {__LINE__, dict("k", dict("NSStringDeviceSpecificRuleType", text("mac", "m") + text("iphone", "i"))),
         "2:1: the entry \"k\" has several texts for kinds of device or for widths; "
         "that for \"other\", else \"iphone\", else the first device is used\n",
         "i"},
        {__LINE__, dict("k", dict("NSStringDeviceSpecificRuleType", text("mac", "m"))), "", "m"},
        {__LINE__, dict("k", format + dict("NSStringDeviceSpecificRuleType", text("mac", "m"))),
         "2:1: the entry \"k\" has a format, too; its texts for widths or devices are skipped\n"},
        {__LINE__, dict("k", format) + "\n" + dict("k", format),
         "3:1: the key \"k\" appears again; this entry is used\n"},
        {__LINE__,
         dict("k", text("NSStringLocalizedFormatKey", "%#@old@") + "\n" + format + "\n" + dict("v", "") + "\n" +
                       dict("v", text("one", "x") + "\n" + text("one", "y"))),
         "3:1: the value of \"NSStringLocalizedFormatKey\" appears again; this one is used\n"
         "5:1: the variable \"v\" appears again; this one is used\n"
         "6:1: the value of \"one\" appears again; this one is used\n",
         "%#@v@"},
    };
    for (const auto& [line, entries, notes, chosen] : cases) {
        const auto table = PluralTable::read(list(entries));
        ASSERT_TRUE(table) << "line " << line << ": " << table.error().text();
        EXPECT_EQ(notesOf(*table), notes) << "line " << line;
        if (!chosen.empty()) {
            EXPECT_EQ(table->find("k")->plural.format, chosen) << "line " << line;
        }
    }
}

TEST(PluralTable, TheLastValueOfAKeyCounts) {
    const std::string plural = dict("k", text("NSStringLocalizedFormatKey", "%d"));
    const struct {
        int line;
        std::string entries;
        std::size_t count;
    } cases[] = {
        {__LINE__, plural + "\n" + text("k", "text"), 1},
        {__LINE__, plural + "\n<key>k</key><array/>", 1},
        {__LINE__, plural + "\n" + dict("k", ""), 1},
        {__LINE__, plural + "\n<key>k</key><true/>" + text("k", "text") + plural, 2},
    };
    for (const auto& [line, entries, count] : cases) {
        const auto table = PluralTable::read(list(entries + dict("other", text("NSStringLocalizedFormatKey", "%d"))));
        ASSERT_TRUE(table) << "line " << line;
        EXPECT_EQ(table->entries().size(), count) << "line " << line;
        EXPECT_EQ(table->find("k") != nullptr, count == 2) << "line " << line;
        EXPECT_EQ(table->entries().back().key, "other") << "line " << line;
        EXPECT_NE(
            notesOf(*table).find("3:1: the entry \"k\" appears again without a plural; the earlier one is dropped\n"),
            std::string::npos)
            << "line " << line << notesOf(*table);
    }
}

TEST(PluralTable, VariablesAreBounded) {
    std::string variables;
    for (std::size_t i = 0; i <= PluralTable::maxVariables; ++i)
        variables += dict("v" + std::to_string(i), text("other", "x"));
    const auto table = PluralTable::read(list(dict("k", text("NSStringLocalizedFormatKey", "%#@v1@") + variables)));
    ASSERT_TRUE(table);
    EXPECT_EQ(table->find("k")->plural.variables.size(), PluralTable::maxVariables);
    EXPECT_EQ(notesOf(*table), "2:1: the entry \"k\" has more than 256 variables; the rest is skipped\n");
}

TEST(PluralTable, ErrorsHaveLocations) {
    const struct {
        int line;
        std::string source, error;
    } cases[] = {
        {__LINE__, "\"key\" = \"text\";",
         "1:1: expected a property list (XML or binary): plural tables have no text form"},
        {__LINE__, "<plist><dict><key>k</key></dict></plist>", "1:26: the key \"k\" has no value"},
        {__LINE__, "<plist><array/></plist>", "1:8: expected <dict>, not <array>"},
        {__LINE__, "bplist00", "byte 8: the file ends before its trailer"},
    };
    for (const auto& [line, source, error] : cases) {
        const auto table = PluralTable::read(source);
        ASSERT_FALSE(table) << "line " << line;
        EXPECT_EQ(table.error().text(), error) << "line " << line;
    }
    EXPECT_EQ(PluralTable::read("")->entries().size(), 0U);
}

TEST(PluralTable, ListsTheArgumentsOfAllForms) {
    using Kind = StringTables::Placeholder::Kind;
    const auto variable = [](const std::string& name, const std::string& type, const std::string& one,
                             const std::string& other) {
        return dict(name, rule + text("NSStringFormatValueTypeKey", type) + text("one", one) + text("other", other));
    };
    const std::string size = variable("%d size", "f", "a byte", "%.1f bytes");
    const auto table = PluralTable::read(
        list(dict("k", text("NSStringLocalizedFormatKey", "%@: %#@files@ %@") +
                           variable("files", "lu", "one in %#@%d size@", "%lu in %#@%d size@ by %4$@") + size) +
             dict("no number", text("NSStringLocalizedFormatKey", "%#@files@") +
                                   variable("files", "lu", "by %@ in %#@%d size@", "in %#@%d size@ %") + size)));
    ASSERT_TRUE(table);
    const auto signature = signatureOf(table->find("k")->plural);
    const std::vector<std::optional<Kind>> expected = {Kind::text, Kind::integer, Kind::number, Kind::text};
    EXPECT_EQ(signature.arguments, expected);
    ASSERT_TRUE(signature.conflict); // the last "%@" uses the size's argument
    EXPECT_EQ(signature.conflict->position, 3U);
    const auto withoutNumber = signatureOf(table->find("no number")->plural);
    EXPECT_EQ(withoutNumber.arguments, (std::vector<std::optional<Kind>>{Kind::integer, Kind::text, Kind::number}));
    EXPECT_FALSE(withoutNumber.conflict);
    EXPECT_FALSE(signature.hasLonePercent);
    EXPECT_TRUE(withoutNumber.hasLonePercent);
    EXPECT_EQ(signature.unknownVariable, "");
}

TEST(PluralTable, EndsWhereFormsNameEachOther) {
    StringTables::PluralFormat web{"%#@v0@", {}};
    std::string names;
    for (std::size_t i = 0; i < PluralTable::maxVariables; ++i)
        names += "%#@v" + std::to_string(i) + "@";
    for (std::size_t i = 0; i < PluralTable::maxVariables; ++i) {
        auto& variable = web.variables.emplace_back();
        variable.name = "v" + std::to_string(i);
        variable.forms.back() = names;
    }
    EXPECT_EQ(signatureOf(web).arguments.size(), StringTables::FormatSignature::mostArguments);
}

// All entries share one dictionary: a small file that would be a large table.
TEST(PluralTable, SharedTextsAreBounded) {
    std::vector<StringTables::PluralEntry> entries;
    StringTables::PluralFormat plural{.format = "%#@v@", .variables = {{.name = "v", .valueType = "d", .forms = {}}}};
    plural.variables[0].forms[indexOf(PluralCategory::other)] = std::string(std::size_t{1} << 20, 'x');
    for (int i = 0; i < 65; ++i)
        entries.push_back({.key = std::to_string(i), .plural = plural, .location = {}});
    const auto bytes = write(entries);
    ASSERT_TRUE(bytes);
    ASSERT_LT(bytes->size(), std::size_t{2} << 20);
    const auto table = PluralTable::read(*bytes);
    ASSERT_FALSE(table);
    EXPECT_NE(table.error().text().find("the table has too much text"), std::string::npos);
}

// Changes or cuts at every byte never cause a crash.
TEST(PluralTable, SurvivesDamage) {
    const auto good =
        write(PluralTable::read(list(dict("k", text("NSStringLocalizedFormatKey", "%#@days@") + days)))->entries());
    ASSERT_TRUE(good);
    for (std::size_t at = 0; at < good->size(); ++at) {
        for (const int change : {1, 0x10, 0x80}) {
            std::string bytes = *good;
            bytes[at] = static_cast<char>(bytes[at] ^ change);
            static_cast<void>(PluralTable::read(bytes));
        }
        static_cast<void>(PluralTable::read(good->substr(0, at)));
    }
}

} // namespace
