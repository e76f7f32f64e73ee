// What does an array cost, beside the standard vector?
//   AppendNumbers/block/n    are appends linear whatever block is reported? Blocks 8 and 2000.
//   AppendToVector/n         the yardstick for it.
//   AppendTexts/n            the same with elements that are more than bytes.
//   CopyTextArray/n          what does a copy of a list of tokens pay?
//   ReadNumbers/n            what does the checked access pay?
//   FillAndEmpty/n           what does an array pay that is used again and again? Storage is kept, so no allocations.
// From 100,000 numbers on, the first three measure above all whether malloc has given the last array's pages back to the
// system; run each alone.
#include "MekRoots/Exp/VorArray.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace
{
using IntArray = VorArray<int, VorArrayMemCopyReallocator<int>>;
}

static void BM_AppendNumbers(benchmark::State& state)
{
    for (auto _ : state)
    {
        IntArray array(static_cast<int>(state.range(0)));
        for (int i = 0; i < static_cast<int>(state.range(1)); ++i)
            array.append(i);
        benchmark::DoNotOptimize(array.begin());
    }
    state.SetItemsProcessed(state.iterations() * state.range(1));
}
BENCHMARK(BM_AppendNumbers)->ArgsProduct({ { 8, 2000 }, { 10, 1000, 100000, 1000000 } });

static void BM_AppendToVector(benchmark::State& state)
{
    for (auto _ : state)
    {
        std::vector<int> vector;
        for (int i = 0; i < static_cast<int>(state.range(0)); ++i)
            vector.push_back(i);
        benchmark::DoNotOptimize(vector.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_AppendToVector)->Arg(10)->Arg(1000)->Arg(100000)->Arg(1000000);

static void BM_AppendTexts(benchmark::State& state)
{
    const VorString token(L"%Weight");
    for (auto _ : state)
    {
        VorStringArray array;
        for (std::int64_t i = 0; i < state.range(0); ++i)
            array.append(token);
        benchmark::DoNotOptimize(array.begin());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_AppendTexts)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_CopyTextArray(benchmark::State& state)
{
    VorStringArray source;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        source.append(VorString(L"%Weight"));
    for (auto _ : state)
    {
        const VorStringArray copy(source);
        benchmark::DoNotOptimize(copy.begin());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_CopyTextArray)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_ReadNumbers(benchmark::State& state)
{
    IntArray array;
    array.setLogicalLength(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        int sum = 0;
        for (int i = 0; i < array.length(); ++i)
            sum += array[i];
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ReadNumbers)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_FillAndEmpty(benchmark::State& state)
{
    IntArray array(2000);
    for (auto _ : state)
    {
        for (int i = 0; i < static_cast<int>(state.range(0)); ++i)
            array.append(i);
        array.empty();
        benchmark::DoNotOptimize(array.begin());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_FillAndEmpty)->Arg(10)->Arg(1000)->Arg(100000);
