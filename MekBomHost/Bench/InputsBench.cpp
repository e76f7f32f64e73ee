// What does it cost to find out how a parts list is written: its encoding, what stands between its fields, its decimal
// sign? Each list is read twice, from its bytes to data rows: recognised, and with everything said beforehand.
//   BM_PlainRecognised, BM_PlainForced            commas and decimal points
//   BM_GermanRecognised, BM_GermanForced          semicolons, decimal commas, Windows-1252
//   BM_UnsettledRecognised, BM_UnsettledForced    whole numbers alone: all of the file's head is searched for a sign
// What is found stands in the first 64 KB, so the share of it is largest in short lists. Freeing the rows is not timed.
// Scripts/bench.py counts instructions of readParts() alone, which it knows by its name.
#include "InputChoices.h"
#include "MemorySource.h"
#include "PartsFormats.h"
#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"

#include "Support/BenchParts.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace
{
using namespace mekbom;

const InputChoices kRecognised;

InputChoices forced(char delimiter, TextEncoding::eEncoding encoding, NumberNotation::eSign decimalSign)
{
    InputChoices choices;
    choices.delimiter = delimiter;
    choices.encoding = encoding;
    choices.decimalSign = decimalSign;
    return choices;
}

std::string germanText(long long numRows)
{
    std::string text = partsText(numRows);
    for (char& c : text)
        c = c == ',' ? ';' : c == '.' ? ',' : c;
    return text.replace(text.find("Length"), 6, "L\xE4nge");
}

// Without decimals.
std::string wholeText(long long numRows)
{
    std::string text;
    bool isBehindPoint = false;
    for (const char c : partsText(numRows))
    {
        isBehindPoint = c == '.' || (isBehindPoint && c != ',');
        if (!isBehindPoint)
            text += c;
    }
    return text;
}

std::unique_ptr<Report> report()
{
    const std::string text = R"({ "sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails",
        "tuples": [ { "token": "%Handle" }, { "token": "%MNum" }, { "token": "%Material" }, { "token": "%Length" },
                    { "token": "%Weight" }, { "token": "%Quantity" } ] } ] } ] })";
    return std::make_unique<Report>(TemplateReader::read("bench.json", text), VorUnitsManager::metric());
}

[[gnu::noinline]] void readParts(Report& report, const std::string& bytes, const InputChoices& choices)
{
    MemorySource source("parts.csv", bytes);
    FindingList notes;
    const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(source, choices, notes);
    PartsList(*pRecords).readRows(report.engineTemplate(), report.filterTokens());
}

void read(benchmark::State& state, const std::string& bytes, const InputChoices& choices)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        std::unique_ptr<Report> pReport = report();
        state.ResumeTiming();
        readParts(*pReport, bytes, choices);
        state.PauseTiming();
        pReport.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // rows per second
}

void BM_PlainRecognised(benchmark::State& state)
{
    read(state, partsText(state.range(0)), kRecognised);
}

void BM_PlainForced(benchmark::State& state)
{
    read(state, partsText(state.range(0)), forced(',', TextEncoding::kUtf8, NumberNotation::kPoint));
}

void BM_GermanRecognised(benchmark::State& state)
{
    read(state, germanText(state.range(0)), kRecognised);
}

void BM_GermanForced(benchmark::State& state)
{
    read(state, germanText(state.range(0)), forced(';', TextEncoding::kWindows1252, NumberNotation::kComma));
}

void BM_UnsettledRecognised(benchmark::State& state)
{
    read(state, wholeText(state.range(0)), kRecognised);
}

void BM_UnsettledForced(benchmark::State& state)
{
    read(state, wholeText(state.range(0)), forced(',', TextEncoding::kUtf8, NumberNotation::kPoint));
}
}

BENCHMARK(BM_PlainRecognised)->Arg(1'000)->Arg(20'000);
BENCHMARK(BM_PlainForced)->Arg(1'000)->Arg(20'000);
BENCHMARK(BM_GermanRecognised)->Arg(1'000)->Arg(20'000);
BENCHMARK(BM_GermanForced)->Arg(1'000)->Arg(20'000);
BENCHMARK(BM_UnsettledRecognised)->Arg(1'000)->Arg(20'000);
BENCHMARK(BM_UnsettledForced)->Arg(1'000)->Arg(20'000);
