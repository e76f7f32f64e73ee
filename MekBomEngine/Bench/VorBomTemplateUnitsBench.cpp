// What does it cost to show a number? 10 to 100,000 different values per run, since every cell of a report is another.
//   BM_DisplayPlain      a token without unit
//   BM_DisplayWeight     decimals of a unit
//   BM_DisplayFeet       feet and inches with fractions, the slowest layout
#include "VorBomTemplateUnits.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace
{
std::vector<double> lengths(long long numValues)
{
    std::mt19937 random(1);
    std::vector<double> values;
    for (int i = 0; i < numValues; ++i)
        values.push_back(static_cast<double>(random() % 120000) / 10.0);
    return values;
}

void showAll(benchmark::State& state, const VorUnitsManager& manager, VorBomTemplateUnits::eTokenUnitType type)
{
    const VorString token(L"%Shown");
    VorBomTemplateUnits units;
    units.setUnits(&manager);
    units.AddTokenType(token, type);
    const std::vector<double> values = lengths(state.range(0));
    for (auto _ : state)
        for (const double value : values)
            benchmark::DoNotOptimize(units.getDisplayString(token, value));
    state.SetItemsProcessed(state.iterations() * state.range(0)); // numbers
}
}

static void BM_DisplayPlain(benchmark::State& state)
{
    showAll(state, VorUnitsManager::metric(), VorBomTemplateUnits::kNoUnit);
}
BENCHMARK(BM_DisplayPlain)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_DisplayWeight(benchmark::State& state)
{
    showAll(state, VorUnitsManager::metric(), VorBomTemplateUnits::kWeightUnit);
}
BENCHMARK(BM_DisplayWeight)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_DisplayFeet(benchmark::State& state)
{
    showAll(state, VorUnitsManager::imperial(), VorBomTemplateUnits::kDistanceUnit);
}
BENCHMARK(BM_DisplayFeet)->Arg(10)->Arg(1000)->Arg(100000);
