// Lumora's texts read from an ICU resource bundle, with MessageFormat for the argument.
#include <benchmark/benchmark.h>
#include <string>
#include <unicode/msgfmt.h>
#include <unicode/resbund.h>

namespace {

icu::ResourceBundle englishBundle() {
    UErrorCode status = U_ZERO_ERROR;
    return {LUMORA_PEER_CATALOGS, "en", status};
}

std::string utf8(const icu::UnicodeString& text) {
    std::string out;
    return text.toUTF8String(out);
}

std::string text(const icu::ResourceBundle& bundle, const char* key) {
    UErrorCode status = U_ZERO_ERROR;
    return utf8(bundle.getStringEx(key, status));
}

std::string formatted(const icu::ResourceBundle& bundle, int day) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Formattable argument(day);
    icu::UnicodeString out;
    icu::MessageFormat::format(bundle.getStringEx("DeleteAccount.ActiveSubscriptionServer", status), &argument, 1, out,
                               status);
    return utf8(out);
}

void plainIcu(benchmark::State& state) {
    const auto bundle = englishBundle();
    if (text(bundle, "Continue") != "Continue")
        return state.SkipWithError("the result is wrong");
    for (auto _ : state)
        benchmark::DoNotOptimize(text(bundle, "Continue"));
}
BENCHMARK(plainIcu);

void formattedIcu(benchmark::State& state) {
    const auto bundle = englishBundle();
    if (formatted(bundle, 7).find("until 7.") == std::string::npos)
        return state.SkipWithError("the result is wrong");
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(formatted(bundle, day++ & 31));
}
BENCHMARK(formattedIcu);

} // namespace
