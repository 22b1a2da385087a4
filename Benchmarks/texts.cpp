// Reading texts: a plain one beside a function-local static, a formatted one beside a map and fmt.
#include "border.h"
#include <Lumora/Lumora.h>

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <unordered_map>

namespace {

namespace Texts = Lumora::LumoraStrings::Localizable;

// What a benchmark times it first checks.
bool agrees(benchmark::State& state, bool holds) {
    if (!holds)
        state.SkipWithError("the result is wrong");
    return holds;
}

void plainFunctionLocalStatic(benchmark::State& state) {
    if (!agrees(state, functionLocalStatic() == "All new dishes of the day"))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(functionLocalStatic().data());
}
BENCHMARK(plainFunctionLocalStatic);

void plainText(benchmark::State& state) {
    Foundation::Host::setPreferredLanguages({"en"});
    if (!agrees(state, Texts::continue_() == "Continue"))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(Texts::continue_().data());
}
BENCHMARK(plainText)->ThreadRange(1, 2)->UseRealTime();

void formattedMapAndFmt(benchmark::State& state) {
    static const std::unordered_map<std::string, std::string> texts = [] {
        std::unordered_map<std::string, std::string> all;
        for (int i = 0; i < 1361; ++i)
            all["Key." + std::to_string(i)] = "Text " + std::to_string(i);
        all["DeleteAccount.ActiveSubscriptionServer"] =
            "You have an active subscription until {}. Please cancel it before deleting your account.";
        return all;
    }();
    const auto make = [](int day) {
        return fmt::format(fmt::runtime(texts.find("DeleteAccount.ActiveSubscriptionServer")->second), day);
    };
    if (!agrees(state, make(7).find("until 7.") != std::string::npos))
        return;
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(make(day++ & 31));
}
BENCHMARK(formattedMapAndFmt);

void formattedText(benchmark::State& state) {
    Foundation::Host::setPreferredLanguages({"en"});
    if (!agrees(state, Texts::DeleteAccount::activeSubscriptionServer(7).find("until 7.") != std::string::npos))
        return;
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(Texts::DeleteAccount::activeSubscriptionServer(day++ & 31));
}
BENCHMARK(formattedText)->ThreadRange(1, 2)->UseRealTime();

void currentLanguageCode(benchmark::State& state) {
    Foundation::Host::setPreferredLanguages({"pt_AO"});
    if (!agrees(state, Lumora::Localization::currentLanguageCode().rawValue() == "pt-PT"))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(Lumora::Localization::currentLanguageCode());
}
BENCHMARK(currentLanguageCode);

} // namespace
