// What does grouping pay to hold a row against the one before it? Both grouping tokens stand among fourteen columns and
// are equal in most neighbours, so that the second one is usually compared too.
//   BM_CompareWithNextRow       10 to 100,000 rows
//   BM_CompareByManyTokens      two equal rows of 10 to 1,000 columns by all of them: what a hostile template costs
#include "VorBomDataRow.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace
{
const int kNumColumns = 14;
const int kRowsPerGroup = 10;

VorString numbered(const wchar_t* pattern, int number)
{
    VorString text;
    text.format(pattern, number);
    return text;
}

VorStringArray columnTokens(int numColumns)
{
    VorStringArray tokens;
    for (int i = 0; i < numColumns; ++i)
        tokens.append(numbered(L"%%Column%d", i));
    return tokens;
}

VorBomDataRow* newRow(const VorStringArray& tokens, int group)
{
    auto* pRow = new VorBomDataRow;
    for (const VorString& token : tokens)
        pRow->addData(VorBomDataTuple(token, numbered(L"S%dJR", group)));
    return pRow;
}
}

static void BM_CompareWithNextRow(benchmark::State& state)
{
    const VorStringArray columns = columnTokens(kNumColumns);
    VorStringArray grouping;
    grouping.append(columns[3]);
    grouping.append(columns[9]);
    VorBomItemBase parent;
    for (int i = 0; i < state.range(0); ++i)
        parent.addChild(newRow(columns, i / kRowsPerGroup));

    for (auto _ : state)
        for (VorBomItemBase* pItem = parent.child(); pItem->next() != nullptr; pItem = pItem->next())
            benchmark::DoNotOptimize(
                static_cast<VorBomDataRow*>(pItem)->compare(static_cast<VorBomDataRow*>(pItem->next()), grouping));

    state.SetItemsProcessed(state.iterations() * (state.range(0) - 1)); // comparisons
    parent.empty();
}
BENCHMARK(BM_CompareWithNextRow)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_CompareByManyTokens(benchmark::State& state)
{
    const VorStringArray columns = columnTokens(static_cast<int>(state.range(0)));
    VorBomItemBase parent;
    parent.addChild(newRow(columns, 1));
    parent.addChild(newRow(columns, 1));
    auto* pFirst = static_cast<VorBomDataRow*>(parent.child());
    auto* pSecond = static_cast<VorBomDataRow*>(parent.lastChild());

    for (auto _ : state)
        benchmark::DoNotOptimize(pFirst->compare(pSecond, columns));

    state.SetItemsProcessed(state.iterations() * state.range(0)); // tokens
    parent.empty();
}
BENCHMARK(BM_CompareByManyTokens)->Arg(10)->Arg(100)->Arg(1000);
