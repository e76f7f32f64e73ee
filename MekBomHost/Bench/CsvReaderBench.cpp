// What does a parts list of 10 to 100,000 rows of six fields cost until its fields are known?
//   BM_RecordsWithoutQuotes   as programs export them
//   BM_RecordsWithQuotes      the same with three of six fields in quotes
#include "CsvReader.h"
#include "MemorySource.h"

#include "Support/BenchParts.h"

#include <benchmark/benchmark.h>

namespace
{
void readAll(benchmark::State& state, const std::string& text)
{
    for (auto _ : state)
    {
        mekbom::MemorySource source("parts.csv", text);
        mekbom::CsvReader reader(source);
        std::size_t numFields = 0;
        while (const mekbom::Record* const pRecord = reader.next())
            numFields += pRecord->size();
        benchmark::DoNotOptimize(numFields);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // records per second
    state.SetComplexityN(state.range(0));
}

void BM_RecordsWithoutQuotes(benchmark::State& state)
{
    readAll(state, mekbom::partsText(state.range(0)));
}

void BM_RecordsWithQuotes(benchmark::State& state)
{
    readAll(state, mekbom::partsText(state.range(0), "\""));
}
}

BENCHMARK(BM_RecordsWithoutQuotes)->RangeMultiplier(10)->Range(10, 100'000)->Complexity();
BENCHMARK(BM_RecordsWithQuotes)->RangeMultiplier(10)->Range(10, 100'000)->Complexity();
