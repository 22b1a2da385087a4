// Catalogs that were cut, altered or made with bad intent: an error or, where the change makes another sound catalog,
// that one; never a read outside of the bytes.
#include "AssetCatalog/internal/Catalog.h"

#include "Sample.h"
#include "Walk.h"
#include <gtest/gtest.h>

namespace {

using namespace AssetCatalog;

// Whether `bytes` are a sound catalog, which is then read.
bool isSound(const std::string& bytes) {
    const Walk::Exact exact(bytes);
    const auto catalog = Catalog::read(exact.span());
    return catalog && Walk::everything(*catalog) != 0;
}

TEST(DamagedCatalog, CutAtEveryLength) {
    const std::string sound = *build(Sample::assets());
    ASSERT_TRUE(isSound(sound));
    for (std::size_t length = 0; length < sound.size(); ++length)
        EXPECT_FALSE(isSound(sound.substr(0, length))) << length;
    EXPECT_FALSE(isSound(sound + '\0'));
}

TEST(DamagedCatalog, EveryByteAltered) {
    const std::string sound = *build(Sample::assets());
    std::size_t refused = 0;
    for (std::size_t place = 0; place < sound.size(); ++place)
        for (const int change : {0x01, 0x80, 0xFF, 0x10}) {
            std::string bytes = sound;
            bytes[place] = static_cast<char>(bytes[place] ^ change);
            if (!isSound(bytes))
                ++refused;
        }
    // Components of colours, texts of catalogs, filling and blobs may be altered unseen; that is less than half.
    EXPECT_GT(refused, sound.size() * 2);
}

// Every four bytes of the index exchanged with every other four: offsets, sizes and counts stand at such places.
TEST(DamagedCatalog, WordsExchanged) {
    const std::string sound = *build(Sample::assets());
    for (std::size_t a = 0; a + 4 <= sound.size(); a += 4)
        for (std::size_t b = a + 4; b + 4 <= sound.size(); b += 4) {
            std::string bytes = sound;
            std::swap_ranges(&bytes[a], &bytes[a] + 4, &bytes[b]);
            isSound(bytes);
        }
}

TEST(DamagedCatalog, OtherVersionIsNamed) {
    std::string bytes = *build({});
    // The only four bytes 01 00 00 00 of an empty catalog are its version.
    const std::size_t place = bytes.find(std::string("\1\0\0\0", 4));
    ASSERT_NE(place, std::string::npos);
    ASSERT_EQ(bytes.find(std::string("\1\0\0\0", 4), place + 1), std::string::npos);
    bytes[place] = 2;
    EXPECT_EQ(Catalog::read(Walk::Exact(bytes).span()).error().message,
              "is a catalog of version 2; this program reads version 1");
}

} // namespace
