// What does one formula cost, from text to number, as evaluateFormula computes it?
//   BM_TypicalFormula       eight formulas of the kind that templates hold, with three to eight variables: nanoseconds
//                           each, reading the text included. The first is the one that most reports have.
//   BM_CompiledFormula      a formula read once: what each row pays for it within a report.
//   BM_FormulaWithError     the same for a formula that fails at its end.
//   BM_FormulaLength        does the time grow with the length alone? Characters per second should stay the same from 10
//                           to 100,000 characters. Not representative: nobody writes such sums.
//   BM_NestedFormula        the same for parentheses as deep as there are characters to close them.
//   BM_LookUpAmongVariables does a name cost more among many? Every name is looked up once.
#include "TypicalFormulas.h"

#include "ExpressionEvaluator/Src/VorCompiledFormula.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"

#include <benchmark/benchmark.h>

#include <cwchar>
#include <string>
#include <vector>

static void BM_TypicalFormula(benchmark::State& state)
{
    const TypicalFormula& typical = kTypicalFormulas[state.range(0)];
    double result = 0.0;
    if (!evaluateFormula(typical.formula, kTypicalNames, kTypicalValues, typical.numVariables, &result))
        state.SkipWithError("the formula fails");
    for (auto _ : state)
        benchmark::DoNotOptimize(
            evaluateFormula(typical.formula, kTypicalNames, kTypicalValues, typical.numVariables, &result));
    state.SetItemsProcessed(state.iterations()); // formulas per second
    state.SetLabel(typical.name);
}
BENCHMARK(BM_TypicalFormula)->DenseRange(0, kNumTypicalFormulas - 1);

static void BM_CompiledFormula(benchmark::State& state)
{
    const VorCompiledFormula formula(L"%Length*%Quantity/1000", 22);
    const double values[] = { 6000.0, 4.0 };
    double result = 0.0;
    if (!formula.isCompiled() || formula.names().size() != 2)
        state.SkipWithError("the formula is not compiled as expected");
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(formula.evaluate(values, result));
        benchmark::DoNotOptimize(result);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CompiledFormula);

static void BM_FormulaWithError(benchmark::State& state)
{
    double result = 0.0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            evaluateFormula(L"(%Weight+%Paint)*%Stranger", kTypicalNames, kTypicalValues, 3, &result));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FormulaWithError);

static void evaluateForTime(benchmark::State& state, const std::wstring& formula)
{
    double result = 0.0;
    if (!evaluateFormula(formula.c_str(), kTypicalNames, kTypicalValues, kNumTypicalNames, &result))
        state.SkipWithError("the formula fails");
    for (auto _ : state)
        benchmark::DoNotOptimize(
            evaluateFormula(formula.c_str(), kTypicalNames, kTypicalValues, kNumTypicalNames, &result));
    state.SetItemsProcessed(state.iterations() * static_cast<long long>(formula.size())); // characters per second
}

static void BM_FormulaLength(benchmark::State& state)
{
    std::wstring formula = L"1";
    for (int i = 0; static_cast<int>(formula.size()) < state.range(0); ++i)
        formula += i % 2 == 0 ? L"+%Weight" : L"*0.5";
    evaluateForTime(state, formula);
}
BENCHMARK(BM_FormulaLength)->RangeMultiplier(10)->Range(10, 100000);

static void BM_NestedFormula(benchmark::State& state)
{
    const auto nDepth = static_cast<std::size_t>(state.range(0) / 4);
    std::wstring formula;
    for (std::size_t i = 0; i < nDepth; ++i)
        formula += L"1+(";
    evaluateForTime(state, formula + L"1" + std::wstring(nDepth, L')'));
}
BENCHMARK(BM_NestedFormula)->RangeMultiplier(10)->Range(10, 100000);

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
