// What does one formula cost, from text to number, as evaluateFormula computes it?
//   BM_TypicalFormula       eight formulas of the kind that templates hold, with three to eight variables: nanoseconds
//                           each, reading the text included. The first is the one that most reports have.
//   BM_FormulaWithError     the same for a formula that fails at its end.
//   BM_FormulaLength        does the time grow with the length alone? Characters per second should stay the same from 10
//                           to 100,000 terms. Not representative: nobody writes such sums.
//   BM_LookUpAmongVariables does a name cost more among many? Every name is looked up once.
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"

#include <benchmark/benchmark.h>

#include <cwchar>
#include <string>
#include <vector>

namespace
{
struct Typical
{
    const char* name;
    const wchar_t* formula;
    int numVariables; // of those below, from the first on
};

const wchar_t* const kNames[] = { L"%Weight", L"%Length",    L"%Paint",    L"%Width",
                                  L"%Height", L"%Thickness", L"%Quantity", L"%Price" };
const double kValues[] = { 12.5, 6000.0, 3.2, 150.0, 300.0, 7.1, 4.0, 1.85 };

const Typical kTypical[] = {
    { "sum of two, doubled", L"(%Weight+%Paint)*2", 3 },
    { "change of unit", L"%Length/1000", 3 },
    { "weight per metre", L"%Weight/(%Length/1000)", 3 },
    { "price of a part", L"%Weight*%Price*1.19", 8 },
    { "plate area", L"2*(%Length*%Width+%Length*%Thickness+%Width*%Thickness)/1000000", 6 },
    { "steel weight", L"%Length*%Width*%Height*0.00000785*%Quantity", 7 },
    { "with a name for a step", L"area=%Length*%Width/1000000;area*%Paint*%Quantity*1", 7 },
    { "weighted mean", L"(%Weight*0.5+%Paint*0.3+%Width*0.15+%Height*0.05)/(1-%Thickness/100)", 6 },
};
}

static void BM_TypicalFormula(benchmark::State& state)
{
    const Typical& typical = kTypical[state.range(0)];
    double result = 0.0;
    if (!evaluateFormula(typical.formula, kNames, kValues, typical.numVariables, &result))
        state.SkipWithError("the formula fails");
    for (auto _ : state)
        benchmark::DoNotOptimize(evaluateFormula(typical.formula, kNames, kValues, typical.numVariables, &result));
    state.SetItemsProcessed(state.iterations()); // formulas per second
    state.SetLabel(typical.name);
}
BENCHMARK(BM_TypicalFormula)->DenseRange(0, 7);

static void BM_FormulaWithError(benchmark::State& state)
{
    double result = 0.0;
    for (auto _ : state)
        benchmark::DoNotOptimize(evaluateFormula(L"(%Weight+%Paint)*%Stranger", kNames, kValues, 3, &result));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FormulaWithError);

static void BM_FormulaLength(benchmark::State& state)
{
    std::wstring formula = L"1";
    for (int i = 0; i < state.range(0); ++i)
        formula += i % 2 == 0 ? L"+%Weight" : L"*0.5";
    double result = 0.0;
    for (auto _ : state)
        benchmark::DoNotOptimize(evaluateFormula(formula.c_str(), kNames, kValues, 8, &result));
    state.SetItemsProcessed(state.iterations() * static_cast<long long>(formula.size())); // characters per second
}
BENCHMARK(BM_FormulaLength)->RangeMultiplier(10)->Range(1, 100000);

static void BM_LookUpAmongVariables(benchmark::State& state)
{
    std::vector<std::wstring> names;
    for (int i = 0; i < state.range(0); ++i)
        names.push_back(L"%Name" + std::to_wstring(i));
    VorExprEvValue value;
    for (auto _ : state)
    {
        VorExprEvVariableList list;
        for (const std::wstring& name : names)
            list.prepend(VorExprEvTextView(name.c_str(), 0, static_cast<int>(name.size())), value);
        for (const std::wstring& name : names)
            benchmark::DoNotOptimize(list.find(VorExprEvTextView(name.c_str(), 0, static_cast<int>(name.size()))));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // names registered and looked up per second
}
BENCHMARK(BM_LookUpAmongVariables)
    ->Arg(8)
    ->Arg(16)
    ->Arg(24)
    ->Arg(25)
    ->Arg(32)
    ->Arg(64)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(100000);
