// What do the texts of a report cost?
//   CopyTexts               what does a row pay for its tokens? All copies of one text: the ordinary case.
//   AppendCharacters        is building a text linear?
//   CompareEqualTexts       what does a tuple look-up pay when both texts are the same block?
//   CompareTextsNaturally   what does one comparison of a sort key pay? Position numbers: "B-17" and the like.
//   FindPrefix              what does one prefix check of a token pay?
//   SplitList               is splitting a list of tokens linear?
//   FormatLine              what does a formatted line pay? Not representative: reports write numbers with VorNumberText.
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace
{
std::vector<VorString> positionNumbers(int count)
{
    std::mt19937 random(1);
    std::vector<VorString> numbers(static_cast<std::size_t>(count));
    for (VorString& number : numbers)
        number.format(L"%c-%d", static_cast<int>(L'A' + random() % 4), static_cast<int>(random() % 2000));
    return numbers;
}
}

static void BM_CopyTexts(benchmark::State& state)
{
    const VorString token(L"%SumBy:%Weight");
    std::vector<VorString> copies(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
    {
        for (VorString& copy : copies)
            copy = token;
        benchmark::DoNotOptimize(copies.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_CopyTexts)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_AppendCharacters(benchmark::State& state)
{
    for (auto _ : state)
    {
        VorString text;
        for (std::int64_t i = 0; i < state.range(0); ++i)
            text += L'x';
        benchmark::DoNotOptimize(text.getStringW());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_AppendCharacters)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_CompareEqualTexts(benchmark::State& state)
{
    const VorString token(L"%SumBy:%Weight");
    const VorString copy(token);
    for (auto _ : state)
        benchmark::DoNotOptimize(token == copy);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CompareEqualTexts);

static void BM_CompareTextsNaturally(benchmark::State& state)
{
    const std::vector<VorString> numbers = positionNumbers(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        int sum = 0;
        for (std::size_t i = 1; i < numbers.size(); ++i)
            sum += VorString::compareWithNumbers(numbers[i - 1], numbers[i]);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * (state.range(0) - 1));
}
BENCHMARK(BM_CompareTextsNaturally)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_FindPrefix(benchmark::State& state)
{
    const VorString token(L"%SumBy:%Weight");
    for (auto _ : state)
        benchmark::DoNotOptimize(token.find(L"%SumBy:", 0));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FindPrefix);

static void BM_SplitList(benchmark::State& state)
{
    VorString list;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        list += L"%PosNum,";
    VorStringArray pieces;
    for (auto _ : state)
    {
        VorString::getTokens(list, pieces, L",");
        benchmark::DoNotOptimize(pieces.begin());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SplitList)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_FormatLine(benchmark::State& state)
{
    VorString text;
    for (auto _ : state)
    {
        text.format(L"%s %-12s %8.2f %d", L"B-17", L"HEA 200", 42.3, 4);
        benchmark::DoNotOptimize(text.getStringW());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FormatLine);
