// Number and year texts beside ICU's own formatters, kept and made afresh.
#include <Lumora/Lumora.h>

#include <benchmark/benchmark.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

namespace {

using Lumora::Localization;

std::string utf8(const icu::UnicodeString& text) {
    std::string out;
    return text.toUTF8String(out);
}

void useGerman() {
    Foundation::Host::setPreferredLanguages({"de"});
    Foundation::Host::setCurrentLocale("de_DE");
}

std::string icuNumber(const icu::number::LocalizedNumberFormatter& formatter, double value) {
    UErrorCode status = U_ZERO_ERROR;
    return utf8(formatter.formatDouble(value, status).toString(status));
}

icu::number::LocalizedNumberFormatter madeForNumbers() {
    return icu::number::NumberFormatter::withLocale("de_DE").precision(icu::number::Precision::maxFraction(3));
}

void numberIcuKept(benchmark::State& state) {
    const auto formatter = madeForNumbers();
    double value = 1234.5;
    for (auto _ : state)
        benchmark::DoNotOptimize(icuNumber(formatter, value += 1));
}
BENCHMARK(numberIcuKept);

void numberIcuAfresh(benchmark::State& state) {
    double value = 1234.5;
    for (auto _ : state)
        benchmark::DoNotOptimize(icuNumber(madeForNumbers(), value += 1));
}
BENCHMARK(numberIcuAfresh);

void numberText(benchmark::State& state) {
    useGerman();
    if (Localization::legacyTrNumber(1234.5, false) != icuNumber(madeForNumbers(), 1234.5)) {
        state.SkipWithError("the result is wrong");
        return;
    }
    double value = 1234.5;
    for (auto _ : state)
        benchmark::DoNotOptimize(Localization::legacyTrNumber(value += 1, false));
}
BENCHMARK(numberText);

icu::number::LocalizedNumberFormatter madeForYears() {
    UErrorCode status = U_ZERO_ERROR;
    return icu::number::NumberFormatter::withLocale("de_DE")
        .adoptUnit(icu::MeasureUnit::createYear(status))
        .unitWidth(UNUM_UNIT_WIDTH_FULL_NAME);
}

std::string icuYears(const icu::number::LocalizedNumberFormatter& formatter, std::int64_t years) {
    UErrorCode status = U_ZERO_ERROR;
    return utf8(formatter.formatInt(years, status).toString(status));
}

void yearsIcuKept(benchmark::State& state) {
    const auto formatter = madeForYears();
    std::int64_t years = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(icuYears(formatter, years++ & 127));
}
BENCHMARK(yearsIcuKept);

void yearsIcuAfresh(benchmark::State& state) {
    std::int64_t years = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(icuYears(madeForYears(), years++ & 127));
}
BENCHMARK(yearsIcuAfresh);

void yearsText(benchmark::State& state) {
    useGerman();
    if (Localization::legacyTrYear(25) != icuYears(madeForYears(), 25)) {
        state.SkipWithError("the result is wrong");
        return;
    }
    std::int64_t years = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(Localization::legacyTrYear(years++ & 127));
}
BENCHMARK(yearsText);

} // namespace
