// What does a number cost on its way into text and back, beside the C library?
//   WriteGeneral, PrintGeneral     one value as "%g"
//   WriteFixed, PrintFixed         one value as "%.6f"
//   WriteInteger                   one integer
//   ScanDouble, ScanWithWcstod     one value from its digits
//   ScanFloat, ScanWithSwscanf     the same in single precision
//   ScanDoubleDigits/n             is a text of many digits read in linear time?
// The values are measures as a model has them: three decimals, up to a million.
#include "MekRoots/Exp/VorNumberText.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cwchar>
#include <random>
#include <string>
#include <vector>

namespace
{
const std::size_t kNumValues = 1024;

std::vector<double> measures()
{
    std::mt19937 random(1);
    std::vector<double> values(kNumValues);
    for (double& value : values)
        value = static_cast<double>(random() % 1000000000) / 1000.0;
    return values;
}

std::vector<std::wstring> writtenMeasures()
{
    std::vector<std::wstring> texts;
    for (const double value : measures())
    {
        wchar_t text[VorNumberText::fixedRoom(3)];
        texts.emplace_back(text, static_cast<std::size_t>(VorNumberText::writeFixed(value, 3, text)));
    }
    return texts;
}

// Calls `work` with one of `inputs` after the other.
template <class Input, class Work>
void run(benchmark::State& state, const std::vector<Input>& inputs, const Work& work)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(work(inputs[i++ % kNumValues]));
    state.SetItemsProcessed(state.iterations());
}

wchar_t s_text[VorNumberText::fixedRoom(VorNumberText::kMostDecimals)];
const std::size_t kRoom = sizeof(s_text) / sizeof(s_text[0]);
}

static void BM_WriteGeneral(benchmark::State& state)
{
    run(state, measures(), [](double value) { return VorNumberText::writeGeneral(value, s_text); });
}
BENCHMARK(BM_WriteGeneral);

static void BM_PrintGeneral(benchmark::State& state)
{
    run(state, measures(), [](double value) { return std::swprintf(s_text, kRoom, L"%g", value); });
}
BENCHMARK(BM_PrintGeneral);

static void BM_WriteFixed(benchmark::State& state)
{
    run(state, measures(), [](double value) { return VorNumberText::writeFixed(value, 6, s_text); });
}
BENCHMARK(BM_WriteFixed);

static void BM_PrintFixed(benchmark::State& state)
{
    run(state, measures(), [](double value) { return std::swprintf(s_text, kRoom, L"%.6f", value); });
}
BENCHMARK(BM_PrintFixed);

static void BM_WriteInteger(benchmark::State& state)
{
    run(state, measures(),
        [](double value) { return VorNumberText::writeInteger(static_cast<long long>(value), s_text); });
}
BENCHMARK(BM_WriteInteger);

static void BM_ScanDouble(benchmark::State& state)
{
    const auto scan = [](const std::wstring& text)
    {
        const wchar_t* end = nullptr;
        return VorNumberText::scanDouble(text.c_str(), end, 0);
    };
    run(state, writtenMeasures(), scan);
}
BENCHMARK(BM_ScanDouble);

static void BM_ScanWithWcstod(benchmark::State& state)
{
    run(state, writtenMeasures(), [](const std::wstring& text) { return std::wcstod(text.c_str(), nullptr); });
}
BENCHMARK(BM_ScanWithWcstod);

static void BM_ScanFloat(benchmark::State& state)
{
    const auto scan = [](const std::wstring& text)
    {
        float value = 0;
        VorNumberText::scanFloat(text.data(), text.data() + text.size(), value);
        return value;
    };
    run(state, writtenMeasures(), scan);
}
BENCHMARK(BM_ScanFloat);

static void BM_ScanWithSwscanf(benchmark::State& state)
{
    const auto scan = [](const std::wstring& text)
    {
        float value = 0;
        std::swscanf(text.c_str(), L"%f", &value);
        return value;
    };
    run(state, writtenMeasures(), scan);
}
BENCHMARK(BM_ScanWithSwscanf);

static void BM_ScanDoubleDigits(benchmark::State& state)
{
    const std::wstring text(static_cast<std::size_t>(state.range(0)), L'7');
    const wchar_t* end = nullptr;
    for (auto _ : state)
        benchmark::DoNotOptimize(VorNumberText::scanDouble(text.c_str(), end, 0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ScanDoubleDigits)->Arg(10)->Arg(1000)->Arg(100000);
