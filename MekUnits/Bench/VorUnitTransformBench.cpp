// What does one number of a report cost to show?
//
//   ToChars               the yardstick: std::to_chars at the same decimals on the same numbers, into a buffer
//   FormatValue           the same numbers as texts of their own: rounding, allocation and release included
//   FormatConvertedValue  the same in pounds
//   FormatFeetAndInches   lengths to 1/16", which to_chars has no answer for
//   ...Halves             only numbers halfway between two texts, again with to_chars as the yardstick
//   FormatHalvesOfInches  the same converted
//   ToInternalUnits       one number of a parts list that is given in mm, in or m²
//
// ToChars and FormatValue, ToCharsHalves and FormatHalves are to be compared within one run; the argument is the number
// of decimals.
#include "MekRoots/Exp/MEKUnit.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstddef>
#include <random>
#include <vector>

namespace
{
// Lengths and weights as a model has them: most with digits to the end, a third of them short. Seeded.
std::vector<double> modelValues()
{
    std::mt19937 random(20);
    std::vector<double> values;
    for (int i = 0; i < 4096; ++i)
    {
        const double value = static_cast<double>(random() % 12000000) / 1000.0;
        values.push_back(i % 3 == 0 ? value : value * 1.0000001 / 3.0);
    }
    return values;
}

// Halves of the last place shown at two decimals, in a unit of `factor`.
std::vector<double> halves(double factor)
{
    std::vector<double> values;
    for (int i = 0; i < 4096; ++i)
        values.push_back((i * 37 % 100000 + 0.5) / 100.0 * factor);
    return values;
}

void formatAll(benchmark::State& state, const MEKUnit& unit, const std::vector<double>& values)
{
    const VorUnitTransform& transform = unit.getVorUnitTransform();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(transform.formatValue(values[i++ % values.size()], 0, 0, 1, 1, L'-'));
    state.SetItemsProcessed(state.iterations()); // texts per second
}

void writeAll(benchmark::State& state, int numDecimals, const std::vector<double>& values)
{
    char text[64];
    std::size_t i = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(std::to_chars(text, text + sizeof(text), values[i++ % values.size()],
                                               std::chars_format::fixed, numDecimals));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations()); // texts per second
}

void ToChars(benchmark::State& state)
{
    writeAll(state, static_cast<int>(state.range(0)), modelValues());
}
BENCHMARK(ToChars)->DenseRange(0, 4)->Arg(9);

void FormatValue(benchmark::State& state)
{
    formatAll(state, MEKUnit(3, 3, static_cast<int>(state.range(0))), modelValues());
}
BENCHMARK(FormatValue)->DenseRange(0, 4)->Arg(9);

void FormatConvertedValue(benchmark::State& state)
{
    formatAll(state, MEKUnit(1021, 1021, static_cast<int>(state.range(0))), modelValues());
}
BENCHMARK(FormatConvertedValue)->Arg(2);

void FormatFeetAndInches(benchmark::State& state)
{
    formatAll(state, MEKUnit(13, 13, 1016), modelValues());
}
BENCHMARK(FormatFeetAndInches);

void ToCharsHalves(benchmark::State& state)
{
    writeAll(state, 2, halves(1.0));
}
BENCHMARK(ToCharsHalves);

void FormatHalves(benchmark::State& state)
{
    formatAll(state, MEKUnit(3, 3, 2), halves(1.0));
}
BENCHMARK(FormatHalves);

void FormatHalvesOfInches(benchmark::State& state)
{
    formatAll(state, MEKUnit(10, 10, 2), halves(25.4));
}
BENCHMARK(FormatHalvesOfInches);

void ToInternalUnits(benchmark::State& state)
{
    const std::vector<double> values = modelValues();
    const MEKUnit unit(static_cast<int>(state.range(0)), 3, 2);
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(unit.getVorUnitTransform().toInternalUnits(values[i++ % values.size()]));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ToInternalUnits)->Arg(3)->Arg(10)->Arg(3003);
}
