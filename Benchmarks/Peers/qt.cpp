// Lumora's texts read from a Qt catalog, with QString::arg for the argument, and numbers from a QLocale that is either
// kept or created for each number.
#include <QLocale>
#include <QTranslator>

#include <benchmark/benchmark.h>

namespace {

constexpr auto catalog = LUMORA_PEER_CATALOGS "/en.qm";

std::string formatted(const QTranslator& translator, int day) {
    return translator.translate("", "DeleteAccount.ActiveSubscriptionServer").arg(day).toStdString();
}

void plainQt(benchmark::State& state) {
    QTranslator translator;
    if (!translator.load(catalog) || translator.translate("", "Continue") != "Continue")
        return state.SkipWithError("the result is wrong");
    for (auto _ : state)
        benchmark::DoNotOptimize(translator.translate("", "Continue").toStdString());
}
BENCHMARK(plainQt);

void formattedQt(benchmark::State& state) {
    QTranslator translator;
    if (!translator.load(catalog) || formatted(translator, 7).find("until 7.") == std::string::npos)
        return state.SkipWithError("the result is wrong");
    int day = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(formatted(translator, day++ & 31));
}
BENCHMARK(formattedQt);

void tableLoadQt(benchmark::State& state) {
    if (QTranslator translator; !translator.load(catalog))
        return state.SkipWithError("the result is wrong");
    for (auto _ : state) {
        QTranslator translator;
        benchmark::DoNotOptimize(translator.load(catalog));
    }
}
BENCHMARK(tableLoadQt);

void numberQtKept(benchmark::State& state) {
    const QLocale german("de_DE");
    double value = 1234.5;
    if (german.toString(value, 'f', 1) != "1.234,5")
        return state.SkipWithError("the result is wrong");
    for (auto _ : state)
        benchmark::DoNotOptimize(german.toString(value += 1, 'f', 1).toStdString());
}
BENCHMARK(numberQtKept);

void numberQtCreated(benchmark::State& state) {
    const auto make = [](double value) { return QLocale("de_DE").toString(value, 'f', 1).toStdString(); };
    double value = 1234.5;
    if (make(value) != "1.234,5")
        return state.SkipWithError("the result is wrong");
    for (auto _ : state)
        benchmark::DoNotOptimize(make(value += 1));
}
BENCHMARK(numberQtCreated);

} // namespace
