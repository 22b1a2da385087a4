// Lumora's texts read with Boost.Locale, which reads gettext's catalogs itself and formats the argument. It has a
// catalog of its own, because its placeholders differ: {1}.
#include <benchmark/benchmark.h>
#include <boost/locale.hpp>

namespace {

std::locale english() {
    boost::locale::generator generator;
    generator.add_messages_path(LUMORA_PEER_CATALOGS);
    generator.add_messages_domain("boost");
    return generator("en_US.UTF-8");
}

std::string text(const std::locale& locale, const char* key) {
    return boost::locale::translate(key).str(locale);
}

std::string formatted(const std::locale& locale, int day) {
    return (boost::locale::format(boost::locale::translate("DeleteAccount.ActiveSubscriptionServer")) % day)
        .str(locale);
}

void plainBoost(benchmark::State& state) {
    const auto locale = english();
    // The text of "Continue" equals its key, so another key shows whether the catalog was found.
    if (text(locale, "access_tab_title") != "Access" || text(locale, "Continue") != "Continue")
        return state.SkipWithError("the result is wrong");
    for (auto _ : state)
        benchmark::DoNotOptimize(text(locale, "Continue"));
}
BENCHMARK(plainBoost);

void formattedBoost(benchmark::State& state) {
    const auto locale = english();
    if (formatted(locale, 7).find("until 7.") == std::string::npos)
        return state.SkipWithError("the result is wrong");
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(formatted(locale, day++ & 31));
}
BENCHMARK(formattedBoost);

} // namespace
