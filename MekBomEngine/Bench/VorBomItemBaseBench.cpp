// What does it cost to find a row's datum by its token? Sorting, grouping and filling sections all ask this.
//   BM_TupleOfManyRows      the tenth of fourteen tuples, in 10 to 100,000 rows that share their token texts: the
//                           ordinary case; per look-up it grows only as the rows leave the caches
//   BM_EqualTokenText       the same with a token of equal characters but a text of its own, as a template file gives
//   BM_TupleAmongMany       the last of 10 to 100,000 tuples: linear, and not representative of real rows
//   BM_EmptyTree            destroying 10 to 100,000 rows of fourteen tuples, half of them sub-rows
#include "VorBomDataRow.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <iterator>
#include <vector>

namespace
{
// An ordinary parts list; their lengths differ as those of real tokens do.
const wchar_t* const kColumns[] = { L"%Num",    L"%MNum",    L"%Material", L"%Name",  L"%Length",
                                    L"%Weight", L"%Paint",   L"%Quantity", L"%Phase", L"%Class",
                                    L"%Thick",  L"%Coating", L"%Width",    L"%Role" };
const std::size_t kAskedColumn = 9;

std::vector<VorString> columnTokens()
{
    return std::vector<VorString>(std::begin(kColumns), std::end(kColumns));
}

std::vector<VorString> numberedTokens(long long numTokens)
{
    std::vector<VorString> tokens;
    for (int i = 0; i < numTokens; ++i)
    {
        VorString token;
        token.format(L"%%Column%d", i);
        tokens.push_back(token);
    }
    return tokens;
}

// A chain of rows under `parent`; every second one is the child of the row before it if `isNested`.
void addRows(VorBomItemBase& parent, const std::vector<VorString>& tokens, long long numRows, bool isNested)
{
    for (int i = 0; i < numRows; ++i)
    {
        auto* pRow = new VorBomDataRow;
        for (const VorString& token : tokens)
            pRow->addData(VorBomDataTuple(token, 0.5 * i));
        VorBomItemBase* pParent = isNested && i % 2 == 1 ? parent.lastChild() : &parent;
        pParent->addChild(pRow);
    }
}

void lookUpInEveryRow(benchmark::State& state, VorBomItemBase& parent, const VorString& token)
{
    for (auto _ : state)
        for (VorBomItemBase* pRow = parent.child(); pRow != nullptr; pRow = pRow->next())
            benchmark::DoNotOptimize(pRow->getTupleAt(token));
    state.SetItemsProcessed(state.iterations() * state.range(0)); // look-ups
}
}

static void BM_TupleOfManyRows(benchmark::State& state)
{
    const std::vector<VorString> tokens = columnTokens();
    VorBomItemBase parent;
    addRows(parent, tokens, state.range(0), false);
    lookUpInEveryRow(state, parent, tokens[kAskedColumn]);
    parent.empty();
}
BENCHMARK(BM_TupleOfManyRows)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_EqualTokenText(benchmark::State& state)
{
    const std::vector<VorString> tokens = columnTokens();
    VorBomItemBase parent;
    addRows(parent, tokens, state.range(0), false);
    lookUpInEveryRow(state, parent, VorString(tokens[kAskedColumn].getStringW()));
    parent.empty();
}
BENCHMARK(BM_EqualTokenText)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_TupleAmongMany(benchmark::State& state)
{
    const std::vector<VorString> tokens = numberedTokens(state.range(0));
    VorBomItemBase parent;
    addRows(parent, tokens, 1, false);
    for (auto _ : state)
        benchmark::DoNotOptimize(parent.child()->getTupleAt(tokens.back()));
    state.SetItemsProcessed(state.iterations() * state.range(0)); // tuples passed
    parent.empty();
}
BENCHMARK(BM_TupleAmongMany)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_EmptyTree(benchmark::State& state)
{
    const std::vector<VorString> tokens = columnTokens();
    for (auto _ : state)
    {
        state.PauseTiming();
        VorBomItemBase parent;
        addRows(parent, tokens, state.range(0), true);
        state.ResumeTiming();
        parent.empty();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // rows
}
BENCHMARK(BM_EmptyTree)->Arg(10)->Arg(1000)->Arg(100000);
