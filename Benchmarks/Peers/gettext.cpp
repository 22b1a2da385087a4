// Lumora's texts read from a gettext catalog, with snprintf for the argument.
#include <benchmark/benchmark.h>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <libintl.h>
#include <string>

namespace {

void useCatalog() {
    setenv("LANGUAGE", "en", 1);
    std::setlocale(LC_ALL, "C.UTF-8"); // in the locale "C", gettext looks nothing up
    bindtextdomain("texts", LUMORA_PEER_CATALOGS);
}

std::string text(const char* key) {
    return dgettext("texts", key);
}

std::string formatted(int day) {
    // A variable, because the compiler would take a literal key for the format and warn of the argument.
    const char* key = "DeleteAccount.ActiveSubscriptionServer";
    char out[256];
    std::snprintf(out, sizeof out, dgettext("texts", key), std::to_string(day).c_str());
    return out;
}

void plainGettext(benchmark::State& state) {
    useCatalog();
    // The text of "Continue" equals its key, so another key shows whether the catalog was found.
    if (text("access_tab_title") != "Access" || text("Continue") != "Continue")
        return state.SkipWithError("the result is wrong");
    for (auto _ : state)
        benchmark::DoNotOptimize(text("Continue"));
}
BENCHMARK(plainGettext);

void formattedGettext(benchmark::State& state) {
    useCatalog();
    if (formatted(7).find("until 7.") == std::string::npos)
        return state.SkipWithError("the result is wrong");
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(formatted(day++ & 31));
}
BENCHMARK(formattedGettext);

} // namespace
