// What does the map from tokens to values cost?
//   InsertTokens/n    is filling it linear? Numbered tokens, which is the hash rule's bad case: digits are close together,
//                     so that at 100,000 of them a bucket in use holds more than ten. Real tables hold some dozens of words.
//   FindToken/n       what does one look-up pay, and what does a long chain add?
//   MissToken/n       the same for a token that is not there.
#include "MekRoots/Exp/VorArray.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace
{
VorString token(int number)
{
    VorString text;
    text.format(L"%%Token%d", number);
    return text;
}

std::vector<VorString> tokens(int first, int count)
{
    std::vector<VorString> result;
    for (int i = 0; i < count; ++i)
        result.push_back(token(first + i));
    return result;
}

VorStringHashMap<int> mapOf(const std::vector<VorString>& keys)
{
    VorStringHashMap<int> map;
    bool inserted = false;
    for (const VorString& key : keys)
        map.findOrInsert(key, 1, inserted);
    return map;
}

void findAll(benchmark::State& state, int firstWanted)
{
    const int count = static_cast<int>(state.range(0));
    const VorStringHashMap<int> map = mapOf(tokens(0, count));
    const std::vector<VorString> wanted = tokens(firstWanted, count);
    std::mt19937 random(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(map.find(wanted[random() % wanted.size()]));
    state.SetItemsProcessed(state.iterations());
}
}

static void BM_InsertTokens(benchmark::State& state)
{
    const std::vector<VorString> keys = tokens(0, static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(mapOf(keys).count());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_InsertTokens)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_FindToken(benchmark::State& state)
{
    findAll(state, 0);
}
BENCHMARK(BM_FindToken)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_MissToken(benchmark::State& state)
{
    findAll(state, 1000000);
}
BENCHMARK(BM_MissToken)->Arg(10)->Arg(1000)->Arg(100000);
