// Reading tables in text, binary and compiled form: the application's English and Russian texts.
#include "Runtime/internal/File.h"
#include "StringTables/internal/StoredTable.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <Lumora/Lumora.h>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <random>
#include <vector>

namespace {

using StringTables::Form;
using StringTables::Table;

// The English table, which is in text form.
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
        state.PauseTiming(); // Table::read() keeps the string that it is given
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

constexpr auto compiledPath = "/tmp/lumora-benchmark.strings";

// Writes the Russian texts as a compiled table, which has them in UTF-16, to compiledPath. Returns its keys in random
// order. After a failure to write, the benchmarks report that the keys are not found.
std::vector<std::string> writeCompiledTable() {
    const auto table = Table::readFile(LUMORA_RESOURCES "/ru.lproj/Localizable.strings");
    (void)Runtime::writeFile(compiledPath, *StringTables::writeCompiled(table->entries()));
    std::vector<std::string> keys;
    for (const StringTables::Entry& entry : table->entries())
        keys.emplace_back(entry.key);
    std::ranges::shuffle(keys, std::mt19937(1));
    return keys;
}

// Computes the hash at each call, as NSBundle::localizedText() does; accessors have it in their code.
StringTables::FoundText find(StringTables::StoredTable& table, std::string_view key) {
    return table.find(key, Runtime::keyHash(key));
}

void compiledOneText(benchmark::State& state) {
    const std::vector<std::string> keys = writeCompiledTable();
    std::size_t next = 0;
    for (auto _ : state) {
        StringTables::StoredTable table(compiledPath);
        if (!find(table, keys[next++ % keys.size()]))
            state.SkipWithError("the result is wrong");
    }
}
BENCHMARK(compiledOneText);

void compiledAllTexts(benchmark::State& state) {
    const std::vector<std::string> keys = writeCompiledTable();
    for (auto _ : state) {
        StringTables::StoredTable table(compiledPath);
        for (const std::string& key : keys)
            if (!find(table, key))
                state.SkipWithError("the result is wrong");
    }
}
BENCHMARK(compiledAllTexts);

// The same texts in a binary table without an index, which is read and checked as a whole.
void binaryAllTexts(benchmark::State& state) {
    const std::vector<std::string> keys = writeCompiledTable();
    const auto read = Table::readFile(compiledPath);
    (void)Runtime::writeFile(compiledPath, *StringTables::write(read->entries(), Form::binary));
    for (auto _ : state) {
        const auto table = Table::readFile(compiledPath);
        for (const std::string& key : keys)
            if (!table->find(key))
                state.SkipWithError("the result is wrong");
    }
}
BENCHMARK(binaryAllTexts);

// Lookups in a table that was read as a whole before.
void compiledLookUp(benchmark::State& state) {
    const std::vector<std::string> keys = writeCompiledTable();
    StringTables::StoredTable table(compiledPath);
    for (const std::string& key : keys)
        if (!find(table, key))
            state.SkipWithError("the result is wrong");
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(find(table, keys[next]));
        next = next + 1 == keys.size() ? 0 : next + 1;
    }
}
BENCHMARK(compiledLookUp);

// The least time that reading a text table can take: reads the file and looks at each of its bytes once.
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
