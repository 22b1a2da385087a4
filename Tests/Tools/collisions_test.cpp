// Names made to have the same hash cost as little as others. The test replaces memcmp and bcmp, which compare long
// names, and counts their calls: a hash table whose names all collide needs four times as many for twice the names.
#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Catalog.h"
#include "AssetCatalog/internal/Layout.h"
#include "Check/Check.h"
#include "Compiler/Bundle.h"
#include "Exchange/Export.h"
#include "Exchange/Import.h"
#include "Exchange/Po.h"
#include "Exchange/Xliff.h"
#include "Generator/Generator.h"
#include "Runtime/internal/KeyedStore.h"
#include "StringTables/internal/CompiledIndex.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"

#include "../Support/CollidingNames.h"
#include "../Support/SourceFolder.h"
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <span>
#include <thread>

namespace {

std::atomic<std::size_t> comparisons{0};

int compared(const void* one, const void* other, std::size_t size) noexcept {
    comparisons.fetch_add(1, std::memory_order_relaxed);
    const auto* a = static_cast<const unsigned char*>(one);
    const auto* b = static_cast<const unsigned char*>(other);
    const auto [first, second] = std::mismatch(a, a + size, b);
    return first == a + size ? 0 : *first - *second;
}

} // namespace

extern "C" {
int memcmp(const void* one, const void* other, std::size_t size) noexcept {
    return compared(one, other, size);
}
int bcmp(const void* one, const void* other, std::size_t size) noexcept {
    return compared(one, other, size);
}
}

namespace {

using Names = std::vector<std::string>;

const std::size_t few = 512, many = 2 * few;

std::size_t comparisonsIn(const std::function<void()>& work) {
    const std::size_t before = comparisons;
    work();
    return comparisons - before;
}

// A hash and names that collide in it.
struct Hash {
    int line;
    Names (*make)(std::size_t count);
};
const Hash hashes[] = {
    {__LINE__, CollidingNames::inKeyHash},
    {__LINE__, CollidingNames::inStandardHash},
    {__LINE__, CollidingNames::inCatalogHash},
};

// Twice the names need at most 2.4 times as many comparisons, plus `few` that do not depend on their number.
void expectLinear(const Hash& hash, const char* what, const std::function<void(const Names&)>& work) {
    const Names names = hash.make(many);
    work(Names(names.begin(), names.begin() + 8)); // so that what happens only once is not counted
    const std::size_t some = comparisonsIn([&] { work(Names(names.begin(), names.begin() + few)); });
    const std::size_t all = comparisonsIn([&] { work(names); });
    EXPECT_LE(all, some * 12 / 5 + few) << what << ", line " << hash.line;
}

TEST(Collisions, AreMade) {
    const Names keys = CollidingNames::inKeyHash(2), standard = CollidingNames::inStandardHash(4096),
                assets = CollidingNames::inCatalogHash(2);
    EXPECT_EQ(Runtime::keyHash(keys[0]), Runtime::keyHash(keys[1]));
    EXPECT_EQ(std::hash<std::string>()(standard[0]), std::hash<std::string>()(standard[4095]));
    EXPECT_NE(assets[0], assets[1]);
    EXPECT_EQ(AssetCatalog::Format::hashOf(AssetCatalog::Kind::image, assets[0]),
              AssetCatalog::Format::hashOf(AssetCatalog::Kind::image, assets[1]));
}

TEST(Collisions, CostAKeyedStoreNothing) {
    for (const Hash& hash : hashes)
        expectLinear(hash, "store", [](const Names& names) {
            Runtime::KeyedStore<std::size_t, 16> store;
            for (std::size_t i = 0; i < names.size(); ++i)
                ASSERT_EQ(*store.add(store.unlimited, names[i], i), i);
            for (std::size_t i = 0; i < names.size(); ++i)
                ASSERT_EQ(*store.find(names[i]), i);
            ASSERT_EQ(store.find(names[0] + "?"), nullptr);
        });
}

TEST(Collisions, AreAddedByManyThreads) {
    const Names names = CollidingNames::inKeyHash(300);
    Runtime::KeyedStore<std::size_t, 16> store;
    std::vector<std::thread> threads;
    std::atomic<std::size_t> wrong{0};
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&] {
            for (std::size_t i = 0; i < names.size(); ++i)
                wrong += *store.add(store.unlimited, names[i], i) != i || *store.find(names[i]) != i ? 1U : 0U;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0U);
}

TEST(Collisions, CostATableNothing) {
    for (const Hash& hash : hashes) {
        const auto entriesOf = [](const Names& names) {
            std::vector<StringTables::Entry> entries;
            for (const std::string& name : names)
                entries.push_back({name, name, 0});
            return entries;
        };
        const auto readAll = [](const Runtime::Result<std::string>& bytes, const Names& names) {
            ASSERT_TRUE(bytes);
            const auto table = StringTables::Table::read(*bytes);
            ASSERT_TRUE(table);
            for (const std::string& name : names)
                ASSERT_EQ(table->find(name), name);
        };
        for (const auto form : {StringTables::Form::text, StringTables::Form::xml, StringTables::Form::binary})
            expectLinear(hash, "table",
                         [&](const Names& names) { readAll(StringTables::write(entriesOf(names), form), names); });
        expectLinear(hash, "compiled table",
                     [&](const Names& names) { readAll(StringTables::writeCompiled(entriesOf(names)), names); });
    }
}

// Hashes of keys that fill half of the index's 2,001 buckets, with 8 keys each: the index gives up before it has tried
// every displacement. The low half of a hash determines its bucket.
TEST(Collisions, EndTheSearchForAnIndex) {
    std::mt19937_64 random(1);
    std::vector<std::uint64_t> keys;
    for (std::uint64_t bucket = 0; bucket < 1000; ++bucket)
        for (int i = 0; i < 8; ++i)
            keys.push_back(random() << 32 | ((bucket << 32) / 2001 + 1));
    EXPECT_FALSE(StringTables::internal::CompiledIndexWriter::make(keys));
    std::ranges::generate(keys, random);
    EXPECT_TRUE(StringTables::internal::CompiledIndexWriter::make(keys));
}

TEST(Collisions, CostACatalogNothing) {
    using namespace AssetCatalog;
    const Hash& ownHash = hashes[2];
    expectLinear(ownHash, "catalog", [](const Names& names) {
        std::vector<Asset> assets;
        for (const std::string& name : names) {
            const Picture dot{.fit = {}, .width = 1, .height = 1, .points = {1, 1}, .bytes = shared(std::string(name))};
            assets.push_back({.catalog = "A", .name = name, .pictures = {dot}});
        }
        const auto built = build(std::move(assets));
        ASSERT_TRUE(built) << built.error().text();
        const std::string bytes = built->bytes();
        const auto catalog = Catalog::read({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
        ASSERT_TRUE(catalog) << catalog.error().text();
        for (const std::string& name : names)
            ASSERT_EQ((*catalog)[catalog->find(Kind::image, name).value()].name(), name);
    });
}

// Writes names as keys, as texts, as keys of plurals and as names of assets.
void writeSource(const Support::SourceFolder& folder, std::span<const std::string> names) {
    std::string table, plurals, catalog;
    for (const std::string& name : names) {
        table += "\"" + name + "\" = \"" + name + "\";\n";
        plurals += "<key>" + name +
                   "</key><dict><key>NSStringLocalizedFormatKey</key><string>%#@n@</string><key>n</key><dict>"
                   "<key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>"
                   "<key>NSStringFormatValueTypeKey</key><string>d</string>"
                   "<key>other</key><string>%d</string></dict></dict>\n";
        catalog += (catalog.empty() ? "\"" : ",\"") + name + R"(": {"localizations": {"de": {"stringUnit":
                   {"state": "translated", "value": ")" +
                   name + "\"}}}}";
        folder.write("A.xcassets/" + name + ".colorset/Contents.json",
                     R"({"colors": [{"idiom": "universal", "color": {"color-space": "srgb",
                     "components": {"red": "1", "green": "0", "blue": "0", "alpha": "1"}}}]})");
    }
    for (const char* language : {"en.lproj/", "de.lproj/"}) {
        folder.write(std::string(language) + "T.strings", table);
        folder.write(std::string(language) + "P.stringsdict", "<plist><dict>" + plurals + "</dict></plist>");
    }
    folder.write("C.xcstrings", R"({"sourceLanguage": "en", "version": "1.0", "strings": {)" + catalog + "}}");
}

struct Command {
    const char* name;
    void (*run)(const SourceBundle::Source& source, Support::SourceFolder& folder, const Support::TemporaryFolder& out);
};
const Command commands[] = {
    {"read", [](const auto&, auto& folder, const auto&) { static_cast<void>(folder.read()); }},
    {"generate",
     [](const auto& source, auto& folder, const auto& out) {
         const Generator::Options options{.module = "Q"};
         const auto model = Generator::modelOf(source, options, folder.diagnostics);
         ASSERT_TRUE(Generator::writeModule(model, options, out / "generated"));
     }},
    {"check",
     [](const auto& source, auto& folder, const auto&) {
         static_cast<void>(Check::check(source, {.folders = {folder.path()}}, folder.diagnostics));
     }},
    {"compile",
     [](const auto& source, auto& folder, const auto& out) {
         const std::filesystem::path folders[] = {folder.path()};
         const auto ignored = [](std::string_view, std::size_t, std::size_t) {};
         ASSERT_TRUE(Compiler::compileBundle(source, folders, out / "B.bundle", folder.diagnostics, ignored));
     }},
    {"export and import", [](const auto& source, auto& folder, const auto&) {
         const std::filesystem::path folders[] = {folder.path()};
         auto all = Exchange::translationsOf(source, folders, "de", /*onlyMissing=*/false, folder.diagnostics);
         ASSERT_FALSE(Exchange::writePo(all, folder.diagnostics).empty());
         ASSERT_FALSE(Exchange::writeXliff(all, "1").empty());
         for (Exchange::Unit& unit : all.units)
             unit.target += "!";
         ASSERT_TRUE(Exchange::importTranslations(source, std::span(&all, 1), {}, folder.diagnostics));
     }}};

TEST(Collisions, CostTheProgramNothing) {
    for (const Hash& hash : std::span(hashes).first(2)) { // CostACatalogNothing tests the third
        const Names names = hash.make(many);
        std::vector<std::size_t> some(std::size(commands)), all(some);
        for (auto* const counts : {&some, &all}) {
            Support::SourceFolder folder;
            const Support::TemporaryFolder out;
            writeSource(folder, std::span(names).first(counts == &some ? few : many));
            const SourceBundle::Source source = folder.read();
            for (std::size_t i = 0; i < std::size(commands); ++i)
                (*counts)[i] = comparisonsIn([&] { commands[i].run(source, folder, out); });
        }
        for (std::size_t i = 0; i < std::size(commands); ++i)
            EXPECT_LE(all[i], some[i] * 12 / 5 + few) << commands[i].name << ", line " << hash.line;
    }
}

} // namespace
