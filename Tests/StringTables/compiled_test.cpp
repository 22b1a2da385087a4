#include "../Support/TemporaryFolder.h"
#include "StringTables/internal/CompiledIndex.h"
#include "StringTables/internal/StoredTable.h"
#include "StringTables/internal/Writer.h"
#include "Tables.h"
#include <filesystem>
#include <fstream>
#include <map>
#include <plist/plist.h>
#include <random>
#include <thread>

namespace {

using namespace std::string_literals;
using StringTables::Entry;
using StringTables::StoredTable;
using StringTables::Table;
using Texts = std::map<std::string, std::string>;

// Entries with all kinds of strings: ASCII and others, short and long, empty, shared by entries, a key that is also a
// text.
Texts sample(int count) {
    Texts texts = {{"", "empty key"},
                   {"empty", ""},
                   {"Ключ", "Текст 💪"},
                   {"shared 1", "the same"},
                   {"shared 2", "the same"},
                   {"the same", "as a text"},
                   {"long", std::string(5000, 'l')},
                   {"percent signs", "50 % of %@, %d%"},
                   {"percent signs far into the text", std::string(70'000, 'l') + "%@"},
                   {"длинный", std::string(3000, '\0')}};
    for (int i = 0; i < count; ++i)
        texts.emplace("Group.key_" + std::to_string(i),
                      (i % 2 ? "Text number " : "Текст номер ") + std::to_string(i * i));
    return texts;
}

std::string compiled(const Texts& texts) {
    std::vector<Entry> entries;
    for (const auto& [key, text] : texts)
        entries.push_back({key, text});
    return *StringTables::writeCompiled(entries);
}

std::optional<std::string_view> find(StoredTable& table, std::string_view key) {
    const StringTables::FoundText found = table.find(key, Runtime::keyHash(key));
    return found ? std::optional(found.text()) : std::nullopt;
}

class CompiledTable : public testing::Test {
protected:
    std::string file(std::string_view bytes) { return folder_.write("Table.strings", bytes); }
    // Looks up a key in a new table at `path` after `before` other lookups. The fourth lookup at the latest reads the
    // whole table.
    static std::optional<std::string> found(const std::string& path, const std::string& key, int before = 0) {
        StoredTable table(path);
        for (int i = 0; i < before; ++i)
            (void)find(table, "other " + std::to_string(i));
        const auto text = find(table, key);
        return text ? std::optional(std::string(*text)) : std::nullopt;
    }

    Support::TemporaryFolder folder_;
};

TEST_F(CompiledTable, IsAPlainDictionaryForEveryReader) {
    const Texts texts = sample(300);
    const std::string bytes = compiled(texts);
    EXPECT_EQ(Tables::read(bytes), Tables::Pairs(texts.begin(), texts.end()));
    EXPECT_TRUE(Tables::notes(bytes).empty());
    plist_t other = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &other);
    EXPECT_EQ(plist_dict_get_size(other), texts.size());
    for (const auto& [key, text] : texts)
        if (text.find('\0') == text.npos) {
            char* value = nullptr;
            plist_get_string_val(plist_dict_get_item(other, key.c_str()), &value);
            EXPECT_EQ(value, text) << key;
            std::free(value);
        }
    plist_free(other);
    EXPECT_EQ(compiled(texts), bytes);
}

TEST_F(CompiledTable, FindsEveryText) {
    for (const int count : {0, 1, 300, 3000}) {
        const Texts texts = sample(count);
        const std::string path = file(compiled(texts));
        StoredTable table(path);
        for (const auto& [key, text] : texts) {
            const StringTables::FoundText found = table.find(key, 1);
            EXPECT_EQ(found.text(), text) << "a wrong hash only costs time";
            EXPECT_EQ(find(table, key), text);
            EXPECT_EQ(text.substr(0, found.percents().begin()).find('%'), text.npos);
            EXPECT_EQ(text.find('%', found.percents().end(text)), text.npos);
            EXPECT_EQ(find(table, key + "?"), std::nullopt);
        }
        for (const std::string key : {"", "empty", "Ключ", "длинный", "the same", "long", "none"})
            for (const int before : {0, 3, 8})
                EXPECT_EQ(found(path, key, before), texts.contains(key) ? std::optional(texts.at(key)) : std::nullopt)
                    << key;
    }
    EXPECT_EQ(found(file(*StringTables::writeCompiled({})), ""), std::nullopt);
}

TEST_F(CompiledTable, ReadsTablesOfOtherFormsWhole) {
    const std::string many = "/*" + std::string(10'000, 'c') + "*/";
    EXPECT_EQ(found(file(many + "a = b;"), "a"), "b");
    EXPECT_EQ(found(file(many + "a = b; c"), "a"), "b");
    EXPECT_EQ(found(file(many + "a = b;;"), "a"), std::nullopt);
    EXPECT_EQ(found(folder_ / "none", "a"), std::nullopt);
    EXPECT_EQ(found(folder_.path(), "a"), std::nullopt);
    std::vector<Entry> entries;
    const Texts texts = sample(1000);
    for (const auto& [key, text] : texts)
        entries.push_back({key, text});
    EXPECT_EQ(found(file(*StringTables::write(entries, StringTables::Form::binary)), "Ключ"), "Текст 💪");
}

// Where the parts of a compiled table are.
struct Parts {
    explicit Parts(const std::string& bytes) {
        StringTables::internal::CompiledIndex::recognize(bytes.substr(0, index.headSize), index);
        for (std::size_t i = 0; i < 8; ++i)
            offsets = offsets << 8 | static_cast<unsigned char>(bytes[bytes.size() - 8 + i]);
    }
    StringTables::internal::CompiledIndex index;
    std::size_t offsets = 0; // the offset of the table of offsets
};

TEST_F(CompiledTable, KeepsIntactEntriesOfADamagedTable) {
    const Texts texts = sample(100);
    const std::string bytes = compiled(texts);
    const Parts parts(bytes);
    const struct {
        int line;
        std::size_t at, size;    // the damaged bytes
        std::size_t mostMissing; // texts that are not found
        std::string error;       // part of the error of reading all entries
    } cases[] = {
        // An ASCII text, a UTF-8 text, the dictionary, a UTF-16 string, the offsets, the trailer, slots, the index's
        // head.
        {__LINE__, bytes.find("Text number 1") + 3, 1, 1, "the table's index contradicts the entry"},
        {__LINE__, bytes.find("Текст номер") + 3, 1, 1, "the table's index contradicts the entry"},
        {__LINE__, parts.index.frontSize(), 40, 0, ""},
        {__LINE__, parts.offsets - 20, 1, 0, "the table's index contradicts the entry"},
        {__LINE__, parts.offsets, 100, 0, ""},
        {__LINE__, bytes.size() - 32, 32, 0, ""},
        {__LINE__, parts.index.slotAt(5), 100, 5, "the table's index contradicts the entry"},
        {__LINE__, 20, 1, texts.size(), "the table's index is damaged"},
    };
    for (const auto& [line, at, size, mostMissing, error] : cases) {
        std::string damaged = bytes;
        for (std::size_t i = at; i < at + size; ++i)
            damaged[i] = static_cast<char>(damaged[i] ^ 0x04);
        const std::string errorOf = Tables::errorOf(damaged);
        EXPECT_NE(errorOf, "") << "line " << line;
        EXPECT_NE(errorOf.find(error), std::string::npos) << "line " << line << ": " << errorOf;
        const std::string path = file(damaged);
        for (const int before : {0, 8}) {
            std::size_t missing = 0;
            for (const auto& [key, text] : texts)
                if (const auto one = found(path, key, before))
                    EXPECT_EQ(one, text) << "line " << line;
                else
                    ++missing;
            EXPECT_LE(missing, mostMissing) << "line " << line;
            EXPECT_EQ(missing == 0, mostMissing == 0) << "line " << line;
        }
    }
    // A file that is cut among its ASCII strings.
    const std::string path = file(bytes.substr(0, parts.index.frontSize() * 3 / 4));
    for (const int before : {0, 8}) {
        std::size_t there = 0;
        for (const auto& [key, text] : texts)
            if (const auto one = found(path, key, before)) {
                EXPECT_EQ(one, text);
                ++there;
            }
        EXPECT_GT(there, 0u);
        EXPECT_LT(there, texts.size());
    }
}

TEST_F(CompiledTable, DetectsAnIndexThatContradictsTheDictionary) {
    const std::string one = compiled({{"a", "1"}, {"b", "2"}});
    std::string exchanged = one, marked = one;
    const std::size_t values = Parts(one).index.frontSize() + 3; // after the dictionary's marker and two keys
    std::swap(exchanged[values], exchanged[values + 1]);
    EXPECT_NE(Tables::errorOf(exchanged).find("the table's index contradicts the entry \"a\""), std::string::npos);
    // A damaged mark is detected, and so is an overwritten index, because the trailer has a mark, too.
    marked[15] = 'x';
    EXPECT_EQ(Tables::errorOf(marked), "byte 8: the table's index is damaged");
    EXPECT_EQ(Tables::errorOf(marked.replace(8, 16, std::string(16, '\1'))), "byte 8: the table's index is damaged");
}

// After any edit or truncation, a lookup returns the key's own text or none.
TEST_F(CompiledTable, NeverGivesAnotherKeysText) {
    const Texts texts = sample(60);
    const std::string bytes = compiled(texts);
    std::vector<std::string> keys;
    for (const auto& [key, text] : texts)
        keys.push_back(key);
    const Parts parts(bytes);
    std::mt19937 random(5);
    const auto below = [&](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    // Most of the edits are in parts with numbers: the index, the dictionary, the offsets and the trailer.
    const auto place = [&] {
        switch (below(4)) {
        case 0:
            return below(parts.index.slotsEnd());
        case 1:
            return parts.offsets + below(bytes.size() - parts.offsets);
        case 2:
            return std::min(parts.index.frontSize() + below(300), bytes.size() - 1);
        default:
            return below(bytes.size());
        }
    };
    for (int i = 0; i < 2000; ++i) {
        std::string damaged = bytes;
        for (std::size_t edits = 1 + below(4); edits > 0; --edits) {
            const std::size_t at = place(), size = std::min(1 + below(16), bytes.size() - at);
            switch (below(3)) {
            case 0:
                damaged[at] = static_cast<char>(below(256));
                break;
            case 1: // overwrite a part of the file with another
                damaged.replace(at, size, bytes, place(), size);
                break;
            default:
                std::swap(damaged[at], damaged[place()]);
            }
        }
        if (below(8) == 0)
            damaged.resize(below(damaged.size()));
        StoredTable table(file(damaged));
        for (int look = 0; look < 7; ++look) { // the fourth at the latest reads the whole table
            const std::string& key = keys[below(keys.size())];
            ASSERT_EQ(find(table, key).value_or(texts.at(key)), texts.at(key)) << i;
        }
        const auto whole = Table::read(damaged);
        for (const Entry& entry : whole ? whole->entries() : std::span<const Entry>())
            ASSERT_EQ(entry.text, texts.at(std::string(entry.key))) << i;
    }
}

TEST_F(CompiledTable, DetectsAReplacedFile) {
    const Texts before = sample(500);
    Texts after = before;
    for (auto& [key, text] : after)
        text += " new";
    const std::string path = file(compiled(before));
    StoredTable table(path);
    EXPECT_EQ(find(table, "long"), before.at("long"));
    std::filesystem::rename(folder_.write("new", compiled(after)), path);
    EXPECT_EQ(find(table, "Ключ"), after.at("Ключ"));
    EXPECT_EQ(find(table, "long"), after.at("long"));
    StoredTable gone(path);
    EXPECT_EQ(find(gone, "Ключ"), after.at("Ключ"));
    std::filesystem::remove(path);
    EXPECT_EQ(find(gone, "Ключ"), after.at("Ключ"));
    EXPECT_EQ(find(gone, "long"), std::nullopt);
}

TEST_F(CompiledTable, IsReadByManyThreadsAtOnce) {
    const Texts texts = sample(1000);
    const std::string path = file(compiled(texts));
    for (int round = 0; round < 20; ++round) {
        StoredTable table(path);
        std::atomic<int> wrong = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&, i] {
                const auto begin = std::next(texts.begin(), std::ptrdiff_t{i} * 40);
                for (auto at = begin; at != std::next(begin, 40); ++at)
                    wrong += find(table, at->first) != at->second;
            });
        for (std::thread& thread : threads)
            thread.join();
        EXPECT_EQ(wrong, 0);
    }
}

// All slots refer to one long string. Without a limit, the lookups would compare 20 GB with checksums.
TEST_F(CompiledTable, TakesLinearTimeForAHostileIndex) {
    Texts texts;
    for (int i = 0; i < 20'000; ++i)
        texts.emplace(std::to_string(i), "text");
    texts.emplace("long", std::string(1 << 20, 'l'));
    std::string bytes = compiled(texts);
    const Parts parts(bytes);
    // The offset and size of the string, for the texts of all slots.
    const std::size_t longText[] = {bytes.find("llllllll"), 1 << 20};
    for (std::uint32_t i = 0; i < parts.index.slotCount(); ++i)
        for (std::size_t byte = 0; byte < 8; ++byte)
            bytes[parts.index.slotAt(i) + 8 + byte] = static_cast<char>(longText[byte / 4] >> 8 * (byte % 4) & 0xFF);
    StoredTable table(file(bytes));
    std::size_t there = 0;
    for (const auto& [key, text] : texts)
        there += static_cast<std::size_t>(find(table, key).has_value());
    EXPECT_LE(there, 1u); // the string's own key
}

} // namespace
