#include "StringTables/internal/Scan.h"

#include <gtest/gtest.h>
#include <string>

namespace PlainScan { // plain_scan.cpp
const char* either(const char* at, const char* end, char a, char b);
const char* ascii(const char* at, const char* end);
} // namespace PlainScan

namespace {

// Texts of all sizes around the blocks of 8, 16 and 64 bytes, with one hit at every place and beyond the end.
TEST(Scan, FindsTheSameWithAndWithoutSse2) {
    for (std::size_t size = 0; size <= 150; ++size)
        for (std::size_t hit = 0; hit <= size; ++hit) {
            std::string text(size + 1, 'x');
            const char* const begin = text.data();
            const char* const end = begin + size;
            const char* const expected = begin + hit;
            text[hit] = hit % 2 == 0 ? '"' : '\\';
            ASSERT_EQ(StringTables::internal::findEither(begin, end, '"', '\\'), expected) << size;
            ASSERT_EQ(PlainScan::either(begin, end, '"', '\\'), expected) << size;
            text[hit] = hit % 2 == 0 ? '\x80' : '\xFF';
            ASSERT_EQ(StringTables::internal::skipAscii(begin, end), expected) << size;
            ASSERT_EQ(PlainScan::ascii(begin, end), expected) << size;
        }
}

} // namespace
