// Number and year texts compared with ICU's formatters, which are either kept or created for each text.
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

icu::number::LocalizedNumberFormatter numberFormatter() {
    return icu::number::NumberFormatter::withLocale("de_DE").precision(icu::number::Precision::maxFraction(3));
}

// Times `make`, which makes the text of a number, for the numbers from `first` to `last`, after comparing the first
// text with `expected`.
template <class Number, class Make>
void timed(benchmark::State& state, Number first, Number last, const char* expected, Make make) {
    if (make(first) != expected) {
        state.SkipWithError("the result is wrong");
        return;
    }
    Number value = first;
    for (auto _ : state) {
        benchmark::DoNotOptimize(make(value));
        value = value < last ? value + 1 : first;
    }
}

template <class Make> void timedNumbers(benchmark::State& state, Make make) {
    timed(state, 1234.5, 1e9, "1.234,5", make);
}
template <class Make> void timedYears(benchmark::State& state, Make make) {
    timed(state, std::int64_t{25}, std::int64_t{125}, "25 Jahre", make);
}

void numberIcuKept(benchmark::State& state) {
    const auto formatter = numberFormatter();
    timedNumbers(state, [&](double value) { return icuNumber(formatter, value); });
}
BENCHMARK(numberIcuKept);

void numberIcuCreated(benchmark::State& state) {
    timedNumbers(state, [](double value) { return icuNumber(numberFormatter(), value); });
}
BENCHMARK(numberIcuCreated);

void numberText(benchmark::State& state) {
    useGerman();
    timedNumbers(state, [](double value) { return Localization::legacyTrNumber(value, false /* no plus sign */); });
}
BENCHMARK(numberText);

icu::number::LocalizedNumberFormatter yearFormatter() {
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
    const auto formatter = yearFormatter();
    timedYears(state, [&](std::int64_t years) { return icuYears(formatter, years); });
}
BENCHMARK(yearsIcuKept);

void yearsIcuCreated(benchmark::State& state) {
    timedYears(state, [](std::int64_t years) { return icuYears(yearFormatter(), years); });
}
BENCHMARK(yearsIcuCreated);

void yearsText(benchmark::State& state) {
    useGerman();
    timedYears(state, [](std::int64_t years) { return Localization::legacyTrYear(years); });
}
BENCHMARK(yearsText);

} // namespace
