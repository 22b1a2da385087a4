// Reading tables: the development texts of the application from text and from binary form.
#include "Runtime/internal/File.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <Lumora/Lumora.h>

#include <benchmark/benchmark.h>
#include <cstring>

namespace {

using StringTables::Form;
using StringTables::Table;

std::string textForm() {
    return *Runtime::readFile(LUMORA_RESOURCES "/Base.lproj/Localizable.strings", Table::maxBytes);
}

void readTable(benchmark::State& state, const std::string& bytes) {
    const auto checked = Table::read(bytes);
    if (!checked || checked->entries().size() != 1362 || checked->find("Continue") != "Continue") {
        state.SkipWithError("the result is wrong");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming(); // the bytes are the reader's own
        std::string copy = bytes;
        state.ResumeTiming();
        benchmark::DoNotOptimize(Table::read(std::move(copy)));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void tableFromText(benchmark::State& state) {
    readTable(state, textForm());
}
BENCHMARK(tableFromText);

void tableFromBinary(benchmark::State& state) {
    const auto table = Table::read(textForm());
    readTable(state, *StringTables::write(table->entries(), Form::binary));
}
BENCHMARK(tableFromBinary);

// What the machine allows: the file read, and its bytes looked at once.
void readAndMemchr(benchmark::State& state) {
    const std::string bytes = textForm();
    for (auto _ : state) {
        const auto read = Runtime::readFile(LUMORA_RESOURCES "/Base.lproj/Localizable.strings", Table::maxBytes);
        benchmark::DoNotOptimize(std::memchr(read->data(), 0, read->size()));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(readAndMemchr);

void fileTranslation(benchmark::State& state) {
    if (Lumora::Localization::localizationFileTranslation("ru", "Continue").empty()) {
        state.SkipWithError("the result is wrong");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(Lumora::Localization::localizationFileTranslation("ru", "Continue"));
}
BENCHMARK(fileTranslation);

} // namespace
