// What does preparing a template cost? Ordinary templates have ten sections; the larger sizes show that neither many
// sections nor many tokens cost more than n log n.
//   BM_UsedTokensOfSiblings      10 to 100,000 sections side by side, five tuples each, all with the same tokens
//   BM_UsedTokensOfNestedGroups  the same many group headers nested in each other, each with tokens of its own
//   BM_IsTokenRequired           asking a trace of that many tokens, as a host does once per datum it gathers
#include "VorBomTemplate.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace
{
using Item = VorBomTemplateItem;

VorString numbered(const wchar_t* pattern, int number)
{
    VorString text;
    text.format(pattern, number);
    return text;
}

std::unique_ptr<VorBomTemplate> siblings(long long numSections)
{
    const VorString tokens[] = { L"%Name", L"%Weight", L"%SortAscBy:%Name", L"%SumBy:%Weight", L"%GroupBy:%Name" };
    auto pTemplate = std::make_unique<VorBomTemplate>();
    for (int i = 0; i < numSections; ++i)
    {
        auto* pSection = new Item(Item::kDetails);
        for (const VorString& token : tokens)
            pSection->addData(VorBomDataTuple(token, 0));
        pTemplate->addChild(pSection);
    }
    return pTemplate;
}

std::unique_ptr<VorBomTemplate> nestedGroups(long long numSections)
{
    auto pTemplate = std::make_unique<VorBomTemplate>();
    VorBomItemBase* pParent = pTemplate.get();
    for (int i = 0; i < numSections; ++i)
    {
        auto* pSection = new Item(Item::kGroupHeader);
        pSection->addData(VorBomDataTuple(numbered(L"%%GroupBy:%%T%d", i), 0));
        pSection->addData(VorBomDataTuple(numbered(L"%%SumBy:%%W%d", i), 0));
        pParent->addChild(pSection);
        pParent = pSection;
    }
    return pTemplate;
}

void traceAnew(benchmark::State& state, VorBomTemplate& bomTemplate)
{
    for (auto _ : state)
    {
        VorBomTemplate root; // a root of its own, so that each run starts with an empty trace
        root.setChild(bomTemplate.child());
        root.findUsedTokens();
        root.setChild(nullptr);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // sections
}
}

static void BM_UsedTokensOfSiblings(benchmark::State& state)
{
    const auto pTemplate = siblings(state.range(0));
    traceAnew(state, *pTemplate);
}
BENCHMARK(BM_UsedTokensOfSiblings)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_UsedTokensOfNestedGroups(benchmark::State& state)
{
    const auto pTemplate = nestedGroups(state.range(0));
    traceAnew(state, *pTemplate);
}
BENCHMARK(BM_UsedTokensOfNestedGroups)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_IsTokenRequired(benchmark::State& state)
{
    const auto pTemplate = nestedGroups(state.range(0));
    pTemplate->findUsedTokens();
    const VorString token = numbered(L"%%w%d", static_cast<int>(state.range(0)) / 2);
    for (auto _ : state)
        benchmark::DoNotOptimize(pTemplate->isTokenRequired(token));
    state.SetItemsProcessed(state.iterations()); // questions
}
BENCHMARK(BM_IsTokenRequired)->Arg(10)->Arg(1000)->Arg(100000);
