// Compares our reader and writer of the XML and binary forms with those of libplist.
#include "StringTables/internal/Writer.h"
#include "Tables.h"
#include <algorithm>
#include <cstdlib> // std::free
#include <memory>
#include <plist/plist.h>
#include <random>

namespace {

using StringTables::Entry;
using StringTables::Form;
using Tables::Pairs;

using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, decltype(&plist_free)>;

Pairs pairs(plist_t dict) {
    Pairs out;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(dict, &iterator);
    for (;;) {
        char *key = nullptr, *text = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dict, iterator, &key, &value);
        if (!value)
            break;
        plist_get_string_val(value, &text);
        out.emplace_back(key, text);
        std::free(key);
        std::free(text);
    }
    std::free(iterator);
    return out;
}

Pairs sorted(Pairs pairs) {
    std::ranges::sort(pairs);
    return pairs;
}

Pairs random(std::mt19937& source) {
    const std::string pieces[] = {"Exercise", ".", " ", "%@", "&", "<b>", "é", "日本", "💪", "\n", "\"", "\\", "x"};
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1), length(0, 40), count(0, 600);
    const auto text = [&] {
        std::string out;
        for (std::size_t left = length(source); left > 0; --left)
            out += pieces[piece(source)];
        return out;
    };
    Pairs out;
    for (std::size_t left = count(source); left > 0; --left)
        out.emplace_back(std::to_string(left) + text(), text());
    return out;
}

TEST(Peer, AgreesInBothDirections) {
    std::mt19937 source(20240229);
    for (int round = 0; round < 20; ++round) {
        const Pairs expected = sorted(random(source));
        std::vector<Entry> entries;
        const Node dict(plist_new_dict(), plist_free);
        for (const auto& [key, text] : expected) {
            entries.push_back({key, text});
            plist_dict_set_item(dict.get(), key.c_str(), plist_new_string(text.c_str()));
        }
        for (const Form form : {Form::xml, Form::binary}) {
            const std::string ours = *StringTables::write(entries, form);
            plist_t read = nullptr;
            plist_from_memory(ours.data(), static_cast<std::uint32_t>(ours.size()), &read);
            const Node theirs(read, plist_free);
            ASSERT_TRUE(theirs);
            EXPECT_EQ(sorted(pairs(theirs.get())), expected);

            char* bytes = nullptr;
            std::uint32_t size = 0;
            (form == Form::xml ? plist_to_xml : plist_to_bin)(dict.get(), &bytes, &size);
            EXPECT_EQ(sorted(Tables::read(std::string(bytes, size))), expected);
            std::free(bytes);
        }
    }
}

} // namespace
