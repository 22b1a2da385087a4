// Reading texts: a plain one compared with a function-local static, a formatted one with snprintf and with a map and
// fmt. Also reading the current language.
#include "StringTables/internal/Table.h"
#include "other_library.h"
#include <Lumora/Lumora.h>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <fmt/format.h>
#include <unordered_map>

namespace {

namespace Texts = Lumora::LumoraStrings::Localizable;

// Every benchmark checks its result before it is timed.
bool correct(benchmark::State& state, bool holds) {
    if (!holds)
        state.SkipWithError("the result is wrong");
    return holds;
}

// The application's English texts by key. The text that is formatted below has fmt's placeholder instead of "%@".
std::unordered_map<std::string, std::string> developmentTexts() {
    std::unordered_map<std::string, std::string> texts;
    const auto table = StringTables::Table::readFile(LUMORA_RESOURCES "/Base.lproj/Localizable.strings");
    for (const auto& [key, text, offset] : table->entries())
        texts.emplace(key, text);
    std::string& text = texts["DeleteAccount.ActiveSubscriptionServer"];
    text.replace(text.find("%@"), 2, "{}");
    return texts;
}

// Times `make`, which makes the text that all libraries format, for different days.
template <class Make> void formatted(benchmark::State& state, Make make) {
    if (!correct(state, make(7).find("until 7.") != std::string::npos))
        return;
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(make(day++ & 31));
}

void formattedSnprintf(benchmark::State& state) {
    formatted(state, [](int day) {
        char out[256];
        const int size = std::snprintf(out, sizeof out,
                                       "You have an active subscription until %d. Please cancel it before "
                                       "deleting your account.",
                                       day);
        return std::string(out, static_cast<std::size_t>(size));
    });
}
BENCHMARK(formattedSnprintf);

void formattedMapAndFmt(benchmark::State& state) {
    static const auto texts = developmentTexts();
    formatted(state, [](int day) {
        return fmt::format(fmt::runtime(texts.find("DeleteAccount.ActiveSubscriptionServer")->second), day);
    });
}
BENCHMARK(formattedMapAndFmt)->ThreadRange(1, 16)->UseRealTime();

// Reads four other texts first, so that the table is in memory: three are read from the file one by one, the fourth
// with the whole table.
void formattedText(benchmark::State& state) {
    Foundation::Host::setPreferredLanguages({"en"});
    for (const char* key : {"Continue", "access_tab_title", "Diet.AllDish", "Save"})
        benchmark::DoNotOptimize(Lumora::Localization::legacyTr(key));
    formatted(state, [](int day) { return Texts::DeleteAccount::activeSubscriptionServer(day); });
}
BENCHMARK(formattedText)->ThreadRange(1, 16)->UseRealTime();

void plainFunctionLocalStatic(benchmark::State& state) {
    if (!correct(state, functionLocalStatic() == "All new dishes of the day"))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(functionLocalStatic().data());
}
BENCHMARK(plainFunctionLocalStatic)->ThreadRange(1, 2)->UseRealTime();

void plainText(benchmark::State& state) {
    Foundation::Host::setPreferredLanguages({"en"});
    if (!correct(state, Texts::continue_() == "Continue"))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(Texts::continue_().data());
}
BENCHMARK(plainText)->ThreadRange(1, 2)->UseRealTime();

void currentLanguageCode(benchmark::State& state) {
    Foundation::Host::setPreferredLanguages({"pt_AO"}); // not one of the application's languages
    if (!correct(state, Lumora::Localization::currentLanguageCode().rawValue() == "pt-PT"))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(Lumora::Localization::currentLanguageCode());
}
BENCHMARK(currentLanguageCode);

} // namespace
