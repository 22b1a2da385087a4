// Tests/StringTables/Tables.h
// Shared by the tests of all three table forms.
#pragma once

#include "StringTables/internal/Table.h"
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace Tables {

using Pairs = std::vector<std::pair<std::string, std::string>>;

inline Pairs pairs(const StringTables::Table& table) {
    Pairs out;
    for (const StringTables::Entry& entry : table.entries())
        out.emplace_back(entry.key, entry.text);
    return out;
}

// The entries of a valid table.
inline Pairs read(std::string bytes) {
    const auto table = StringTables::Table::read(std::move(bytes));
    EXPECT_TRUE(table) << table.error().text();
    return table ? pairs(*table) : Pairs();
}

// The error of an invalid table; empty if it is valid.
inline std::string errorOf(std::string bytes) {
    const auto table = StringTables::Table::read(std::move(bytes));
    return table ? "" : table.error().text();
}

// The notes about a valid table.
inline std::vector<std::string> notes(std::string bytes) {
    std::vector<std::string> out;
    if (const auto table = StringTables::Table::read(std::move(bytes)))
        for (const Runtime::Error& note : table->notes())
            out.push_back(note.text());
    return out;
}

// ASCII text in UTF-16; `marked`: with a byte-order mark.
inline std::string utf16(std::string_view ascii, bool bigEndian = false, bool marked = true) {
    std::string out = marked ? (bigEndian ? "\xFE\xFF" : "\xFF\xFE") : "";
    for (const char c : ascii) {
        out += bigEndian ? '\0' : c;
        out += bigEndian ? c : '\0';
    }
    return out;
}

// Reads every prefix of `bytes`, and `bytes` with each byte replaced by each of `edits`. If a table is read
// successfully, all its entries must be found.
inline void readDamaged(const std::string& bytes, std::string_view edits) {
    const auto check = [](std::string damaged) {
        const auto table = StringTables::Table::read(std::move(damaged));
        if (!table)
            return;
        for (const StringTables::Entry& entry : table->entries())
            ASSERT_EQ(table->find(entry.key), entry.text);
    };
    for (std::size_t size = 0; size < bytes.size(); ++size)
        check(bytes.substr(0, size));
    for (std::size_t at = 0; at < bytes.size(); ++at)
        for (const char edit : edits) {
            std::string damaged = bytes;
            damaged[at] = edit;
            check(std::move(damaged));
        }
}

} // namespace Tables
