#include "Tables.h"

namespace {

using namespace std::string_literals;
using Tables::errorOf;
using Tables::Pairs;
using Tables::read;

std::string bigEndian(std::uint64_t number, std::size_t size) {
    std::string out;
    while (size-- > 0)
        out += static_cast<char>(number >> 8 * size);
    return out;
}

// A file of these objects, the first at the top. An object begins with its type (1 integer, 5 ASCII, 6 UTF-16, A array,
// D dictionary) and its size in four bits each; the size F means that an integer object with the size follows. Offsets
// have `offsetSize` bytes; the references in the objects must have `refSize`.
std::string file(const std::vector<std::string>& objects, std::size_t offsetSize = 1, std::size_t refSize = 1) {
    std::string out = "bplist00", offsets;
    for (const std::string& object : objects) {
        offsets += bigEndian(out.size(), offsetSize);
        out += object;
    }
    const std::size_t tableAt = out.size();
    return out + offsets + "\0\0\0\0\0\0"s + bigEndian(offsetSize, 1) + bigEndian(refSize, 1) +
           bigEndian(objects.size(), 8) + bigEndian(0, 8) + bigEndian(tableAt, 8);
}

// {"OK": "Ja", "é": "In Ordnung, weiter"}, where the last text has its length in a number object.
const std::vector<std::string> plain = {"\xD2\1\3\2\4", "\x52OK", "\x52Ja", "\x61\x00\xE9"s,
                                        "\x5F\x10\x12In Ordnung, weiter"};
const Pairs plainPairs = {{"OK", "Ja"}, {"é", "In Ordnung, weiter"}};
// Places in file(plain): objects at 8, 13, 16, 19, 22, offsets from 43, trailer from 48; in the trailer the sizes of an
// offset and a reference at 6 and 7, the count of objects at 8, the top object at 16, the place of the offsets at 24.
constexpr std::size_t trailerAt = 48;

// As file(), but objects 1 and 2 are exchanged in the file: the offsets are not in the order of the objects' numbers.
std::string disordered(std::vector<std::string> objects, std::size_t offsetSize = 1, std::size_t refSize = 1) {
    std::swap(objects[1], objects[2]);
    std::string out = file(objects, offsetSize, refSize);
    constexpr std::size_t trailerSize = 32;
    const auto offsets = out.end() - static_cast<std::ptrdiff_t>(trailerSize + objects.size() * offsetSize);
    const auto size = static_cast<std::ptrdiff_t>(offsetSize);
    std::swap_ranges(offsets + size, offsets + 2 * size, offsets + 2 * size);
    return out;
}

TEST(BinaryTable, ReadsEveryLayout) {
    // The objects of `plain` with references of another size.
    const auto sized = [](std::size_t refSize) {
        auto objects = plain;
        objects[0] = "\xD2";
        for (const unsigned ref : {1u, 3u, 2u, 4u})
            objects[0] += bigEndian(ref, refSize);
        return objects;
    };
    EXPECT_EQ(read(disordered(plain)), plainPairs);
    for (std::size_t size = 1; size <= 8; ++size) {
        EXPECT_EQ(read(file(plain, size)), plainPairs) << size;
        EXPECT_EQ(read(file(sized(size), 1, size)), plainPairs) << size;
    }
    EXPECT_EQ(read(file({"\xD0"})), Pairs());
    EXPECT_EQ(read(file({"\xD1\1\1", "\x50"})), (Pairs{{"", ""}}));
    EXPECT_EQ(read(file({"\xD1\1\2", "\x51k", "\x63\xD8\x3D\xDC\xAA\0\0"s})), (Pairs{{"k", "💪\0"s}}));
    EXPECT_EQ(read(file({"\xD1\1\2", "\x51k", "\x60"})), (Pairs{{"k", ""}}));
    EXPECT_EQ(read(file({"\xD2\1\1\1\2", "\x51k", "\x51v"})), (Pairs{{"k", "v"}}));
    for (const std::string& count : {"\x10\2"s, "\x11\0\2"s, "\x12\0\0\0\2"s, "\x13\0\0\0\0\0\0\0\2"s})
        EXPECT_EQ(read(file({"\xD1\1\2", "\x5F" + count + "OK", "\x51v"})), (Pairs{{"OK", "v"}}));
    // UTF-16 that is longer, as long and shorter than its UTF-8.
    const std::vector<std::string> texts = {"\xD3\1\2\3\2\3\4", "\x62\0k\0K"s, "\x63\x04\x14\x04\x30\0!"s,
                                            "\x62\x65\xE5\x67\x2C", "\x61\x04\x14"};
    const Pairs pairs = {{"kK", "Да!"}, {"Да!", "日本"}, {"日本", "Д"}};
    EXPECT_EQ(read(file(texts)), pairs);
    EXPECT_EQ(read(disordered(texts)), pairs);
    const auto table = StringTables::Table::read(file(plain));
    EXPECT_EQ(table->form(), StringTables::Form::binary);
    EXPECT_EQ(table->locations()[0].line, 0u);
}

TEST(BinaryTable, NotesSkippedValues) {
    // The values: the dictionary itself, a boolean, a truncated date, a reference, an array without its members.
    const std::string bytes = file({"\xD6\1\2\3\4\5\1\0\6\7\x8\x9\6"s, "\121a", "\121b", "\121c", "\121d", "\121e",
                                    "\x09", "\x33", "\x80", "\xAF"});
    EXPECT_EQ(read(bytes), Pairs());
    EXPECT_EQ(Tables::notes(bytes),
              (std::vector<std::string>{"byte 21: the value of \"a\" is a dictionary, not a text; skipped",
                                        "byte 21: the value of \"a\" is a boolean, not a text; skipped",
                                        "byte 23: the value of \"b\" is a boolean, not a text; skipped",
                                        "byte 25: the value of \"c\" is a date, not a text; skipped",
                                        "byte 27: the value of \"d\" is a reference, not a text; skipped",
                                        "byte 29: the value of \"e\" is an array, not a text; skipped"}));
    EXPECT_EQ(Tables::notes(file({"\xD2\1\1\2\2", "\x51k", "\x51v"})),
              (std::vector<std::string>{"byte 13: the key \"k\" appears again; this text is used"}));
}

// The last value wins, whether the keys are the same object or two equal ones.
TEST(BinaryTable, LetsTheLastValueWin) {
    // Objects 1 to 6, after the dictionary; the last is an array, which is not a text.
    const std::vector<std::string> tail = {"\121k", "\121k", "\121b", "\121v", "\121w", "\xA0"};
    const struct {
        int line;
        std::string dictionary;
        Pairs expected;
    } cases[] = {
        {__LINE__, "\xD2\1\1\4\5", {{"k", "w"}}},
        {__LINE__, "\xD2\1\1\4\6", {}},
        {__LINE__, "\xD2\1\1\6\4", {{"k", "v"}}},
        {__LINE__, "\xD3\1\2\1\4\5\4", {{"k", "v"}}},
        {__LINE__, "\xD3\1\2\1\4\5\6", {}},
        {__LINE__, "\xD4\1\3\1\3\4\1\3\3", {{"k", "b"}, {"b", "b"}}},
        {__LINE__, "\xD3\3\1\1\1\4\3", {{"b", "k"}, {"k", "b"}}},
    };
    for (const auto& [line, dictionary, expected] : cases) {
        std::vector<std::string> objects = tail;
        objects.insert(objects.begin(), dictionary);
        EXPECT_EQ(read(file(objects)), expected) << "line " << line;
    }
}

TEST(BinaryTable, RejectsWithLocationAndReason) {
    const std::string good = file(plain);
    const auto edited = [&good](std::size_t at, std::string_view bytes) {
        return std::string(good).replace(at, bytes.size(), bytes);
    };
    const struct {
        int line;
        std::string source, expected;
    } cases[] = {
        {__LINE__, edited(7, "1"), "byte 6: a binary property list of an unknown version"},
        {__LINE__, "bplist00", "byte 8: the file ends before its trailer"},
        {__LINE__, edited(trailerAt + 6, "\0"s), "byte 54: offsets of 0 bytes"},
        {__LINE__, edited(trailerAt + 6, "\x9"), "byte 54: offsets of 9 bytes"},
        {__LINE__, edited(trailerAt + 7, "\xFF"), "byte 55: references of 255 bytes"},
        {__LINE__, edited(trailerAt + 8, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"),
         "byte 56: 18446744073709551615 objects do not fit into the file"},
        {__LINE__, edited(trailerAt + 15, "\6"), "byte 56: 6 objects do not fit into the file"},
        {__LINE__, edited(trailerAt + 15, "\0"s), "byte 64: there is no object 0"},
        {__LINE__, edited(trailerAt + 23, "\5"), "byte 64: there is no object 5"},
        {__LINE__, edited(trailerAt + 23, "\1"), "byte 13: expected a dictionary at the top of the table"},
        {__LINE__, edited(trailerAt + 24, "\x80"), "byte 72: the offset table is outside of the file"},
        {__LINE__, edited(trailerAt + 31, "\x31"), "byte 72: the offset table is outside of the file"},
        {__LINE__, edited(trailerAt + 31, "\7"), "byte 72: the offset table is outside of the file"},
        {__LINE__, edited(44, "\7"), "byte 44: an object is outside of the object area of the file"},
        {__LINE__, edited(44, "\x2B"), "byte 44: an object is outside of the object area of the file"},
        {__LINE__, edited(10, "\5"), "byte 10: there is no object 5"},
        {__LINE__, edited(8, "\xDF\x13\x80\0\0\0\0\0\0\1"s),
         "byte 8: 9223372036854775809 entries do not fit into the file"},
        {__LINE__, edited(8, "\xDF\x14"), "byte 9: expected the size of an object"},
        {__LINE__, edited(8, "\xD3"), "byte 8: a dictionary reaches into the next object"},
        {__LINE__, edited(9, "\0"s), "byte 8: expected a string as key"},
        {__LINE__, edited(16, "\x72"), "byte 16: an object of an unknown type"},
        {__LINE__, edited(14, "\xC3"), "byte 14: a byte above 0x7F in an ASCII string"},
        {__LINE__, edited(20, "\xDC"), "byte 20: a lone surrogate in UTF-16"},
        {__LINE__, edited(24, "\x13"), "byte 22: a string reaches beyond the objects"},
        {__LINE__, edited(22, "\x6F"), "byte 22: a string reaches beyond the objects"},
        {__LINE__, edited(23, "\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"), "byte 22: a string reaches beyond the objects"},
    };
    for (const auto& [line, source, expected] : cases)
        EXPECT_EQ(errorOf(source), expected) << "line " << line;
    EXPECT_EQ(errorOf(file({"\xD1\1\2", "\x51k", "\x5F"})), "byte 13: an object without its size");
    EXPECT_EQ(errorOf(file({"\xD1\1\2", "\x51k", "\x5F\x13\0\0"s})), "byte 13: an object without its size");
}

TEST(BinaryTable, SurvivesDamage) {
    std::string every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    Tables::readDamaged(file(plain), every);
}

// A long shared string is read once; overlapping strings are rejected.
TEST(BinaryTable, TakesLinearTime) {
    const std::size_t count = 50000, large = 1 << 20;
    const auto head = [](char marker, std::uint64_t size) { return marker + "\x12"s + bigEndian(size, 4); };
    std::vector<std::string> objects(count + 2);
    std::string own, shared;
    for (std::size_t i = 1; i <= count; ++i) {
        objects[i] = head('\x5F', 8) + bigEndian(i, 8);
        own += bigEndian(i, 4);
        shared += bigEndian(count + 1, 4);
    }
    for (std::size_t i = 1; i <= count; ++i)
        for (char& byte : objects[i])
            byte &= 0x7F; // ASCII; at most four keys become equal
    objects[0] = head('\xDF', count) + own + shared;
    objects[count + 1] = head('\x6F', large) + std::string(2 * large, '\1');
    const auto table = StringTables::Table::read(file(objects, 4, 4));
    ASSERT_TRUE(table) << table.error().text();
    ASSERT_GE(table->entries().size(), count / 4);
    EXPECT_EQ(table->entries().front().text.size(), 2 * large); // U+0101 takes two bytes
    EXPECT_EQ(table->entries().back().text.data(), table->entries().front().text.data());

    std::string longKey;
    for (std::size_t i = 1; i <= count; ++i)
        longKey += bigEndian(count + 1, 4);
    objects[0] = head('\xDF', count) + longKey + own;
    EXPECT_EQ(read(file(objects, 4, 4)).size(), 1u);

    for (std::size_t i = 1; i <= count; ++i) // lengths in ASCII bytes, because overlapping strings contain them
        objects[i] = head('\x5F', ((count - i) * 10 + 4) & 0x7F7F7F7F) + "    ";
    objects[0] = head('\xDF', count) + own + own;
    objects.pop_back();
    EXPECT_NE(errorOf(file(objects, 4, 4)).find("a string reaches into the next object"), std::string::npos);
    EXPECT_NE(errorOf(disordered(objects, 4, 4)).find("the strings together are longer than the file"),
              std::string::npos);
}

} // namespace
