// Assets: opening the compiled catalog, looking up a name, reading a colour record.
#include "AssetCatalog/internal/Catalog.h"
#include <Lumora/Lumora.h>

#include <benchmark/benchmark.h>

namespace {

using AssetCatalog::Catalog;
using AssetCatalog::Kind;

std::string catalogPath() {
    return Lumora::LumoraResources::bundle().bundlePath() + "/Assets.catalog";
}

void catalogOpen(benchmark::State& state) {
    const auto catalog = Catalog::open(catalogPath());
    if (!catalog || catalog->size() != 537) {
        state.SkipWithError("the result is wrong");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(Catalog::open(catalogPath()));
}
BENCHMARK(catalogOpen);

void catalogFind(benchmark::State& state) {
    const auto catalog = Catalog::open(catalogPath());
    if (!catalog || !catalog->find(Kind::image, "subscription_woman.latina")) {
        state.SkipWithError("the result is wrong");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(catalog->find(Kind::image, "subscription_woman.latina"));
}
BENCHMARK(catalogFind);

void colorRecord(benchmark::State& state) {
    if (!Lumora::LumoraAsset::Colors::progressGreen.color().rgba()) {
        state.SkipWithError("the result is wrong");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(&Lumora::LumoraAsset::Colors::progressGreen.color());
}
BENCHMARK(colorRecord);

} // namespace
