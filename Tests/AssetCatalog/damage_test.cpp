// Truncated, altered and malicious catalogs give an error, or another valid catalog if the change results in one; no
// byte before or after the catalog is read.
#include "AssetCatalog/internal/Catalog.h"

#include "AssetCatalog/internal/Layout.h"
#include "Sample.h"
#include "Walk.h"
#include <gtest/gtest.h>

namespace {

using namespace AssetCatalog;

// Whether `bytes` are a valid catalog, which is then read.
bool isSound(const std::string& bytes) {
    const Walk::ExactAllocation exact(bytes);
    const auto catalog = Catalog::read(exact.span());
    return catalog && Walk::everything(*catalog) != 0;
}

TEST(DamagedCatalog, TruncatedAtEveryLength) {
    const std::string sound = build(Sample::assets())->bytes();
    ASSERT_TRUE(isSound(sound));
    for (std::size_t length = 0; length < sound.size(); ++length)
        EXPECT_FALSE(isSound(sound.substr(0, length))) << length;
    EXPECT_FALSE(isSound(sound + '\0'));
}

TEST(DamagedCatalog, EveryByteAltered) {
    const std::string sound = build(Sample::assets())->bytes();
    std::size_t refused = 0;
    for (std::size_t place = 0; place < sound.size(); ++place)
        for (const int change : {0x01, 0x80, 0xFF, 0x10}) {
            std::string bytes = sound;
            bytes[place] = static_cast<char>(bytes[place] ^ change);
            if (!isSound(bytes))
                ++refused;
        }
    // Each byte has four changes. Those of colour components, catalog names, padding and blobs, which are less than
    // half of the bytes, are not detected.
    EXPECT_GT(refused, sound.size() * 2);
}

// Exchanges every four bytes with every other four, because offsets and counts in the index have that size. Some
// results are valid, so the test only finds reads outside of the catalog.
TEST(DamagedCatalog, WordsExchanged) {
    const std::string sound = build(Sample::assets())->bytes();
    for (std::size_t a = 0; a + 4 <= sound.size(); a += 4)
        for (std::size_t b = a + 4; b + 4 <= sound.size(); b += 4) {
            std::string bytes = sound;
            std::swap_ranges(&bytes[a], &bytes[a] + 4, &bytes[b]);
            isSound(bytes);
        }
}

TEST(DamagedCatalog, OtherVersionIsNamed) {
    std::string bytes = build({})->bytes();
    // The only four bytes 02 00 00 00 of an empty catalog are its version.
    const std::size_t place = bytes.find(std::string("\2\0\0\0", 4));
    ASSERT_NE(place, std::string::npos);
    ASSERT_EQ(bytes.find(std::string("\2\0\0\0", 4), place + 1), std::string::npos);
    bytes[place] = 1;
    EXPECT_EQ(Catalog::read(Walk::ExactAllocation(bytes).span()).error().message,
              "is a catalog of version 1; this program reads version 2");
}

// Checking many assets that all share one long list of variants would take quadratic time.
TEST(DamagedCatalog, SharedListsAreRejected) {
    flatbuffers::FlatBufferBuilder buffer;
    const Format::Fit fit(0, 0, 0, 0);
    const Format::Components components(0, 0, 0, 1);
    std::vector<flatbuffers::Offset<Format::Color>> variants(maxVariants,
                                                             Format::CreateColor(buffer, &fit, 0, 0, &components));
    const auto colors = buffer.CreateVector(variants);
    const auto catalog = buffer.CreateString("C");
    std::vector<std::string> names;
    for (int i = 0; i < 3000; ++i)
        names.push_back("c" + std::to_string(i));
    std::ranges::sort(names, {}, [](const std::string& name) { return Format::hashOf(Kind::color, name); });
    std::vector<std::uint64_t> hashes;
    std::vector<flatbuffers::Offset<Format::Asset>> assets;
    for (const std::string& name : names) {
        hashes.push_back(Format::hashOf(Kind::color, name));
        assets.push_back(Format::CreateAsset(buffer, static_cast<std::uint8_t>(Kind::color), 0, catalog,
                                             buffer.CreateString(name), 0, colors));
    }
    Format::FinishSizePrefixedCatalogBuffer(
        buffer,
        Format::CreateCatalog(buffer, Format::version, 0, buffer.CreateVector(hashes), buffer.CreateVector(assets)));
    std::string bytes(reinterpret_cast<const char*>(buffer.GetBufferPointer()), buffer.GetSize());
    bytes.resize(Format::aligned(bytes.size()));
    EXPECT_EQ(Catalog::read(Walk::ExactAllocation(bytes).span()).error().message,
              "is a damaged catalog: its index is damaged or of another version");
}

} // namespace
