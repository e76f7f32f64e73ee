// What do the steps around the evaluation of a report cost, for 10 to 100,000 rows of six columns?
//   BM_ReadRows      from the text of a parts list to data rows; freeing them is not timed
//   BM_WriteTable    from an evaluated report, grouped by material, with a line for each row, to the text of its table
//   BM_WrapTable     the same with a column too narrow for its texts, which takes the slower way over wrapped lines
#include "CsvReader.h"
#include "MemorySource.h"
#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"
#include "TextTableWriter.h"

#include "Support/BenchParts.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace
{
using namespace mekbom;

std::unique_ptr<Report> reportWith(const std::string& members)
{
    const std::string text = "{ " + members + R"("sections": [ { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%Material" } ], "children": [
          { "type": "kDetails", "tuples": [ { "token": "%Handle" }, { "token": "%MNum" }, { "token": "%Length" },
            { "token": "%Weight" }, { "token": "%Quantity" } ] } ] } ] } ] })";
    return std::make_unique<Report>(TemplateReader::read("bench.json", text), VorUnitsManager::metric());
}

void readRows(Report& report, const std::string& parts)
{
    MemorySource source("parts.csv", parts);
    CsvReader records(source);
    PartsList(records).readRows(report.engineTemplate(), report.filterTokens());
}

void BM_ReadRows(benchmark::State& state)
{
    const std::string parts = partsText(state.range(0));
    for (auto _ : state)
    {
        state.PauseTiming();
        std::unique_ptr<Report> pReport = reportWith("");
        state.ResumeTiming();
        readRows(*pReport, parts);
        state.PauseTiming();
        pReport.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // rows per second
    state.SetComplexityN(state.range(0));
}

void writeTables(benchmark::State& state, const std::string& members)
{
    const std::unique_ptr<Report> pReport = reportWith(members);
    readRows(*pReport, partsText(state.range(0)));
    pReport->evaluate();
    for (auto _ : state)
    {
        CountingSink sink;
        TextTableWriter().write(pReport->evaluated(), sink);
        benchmark::DoNotOptimize(sink.numBytes);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0)); // details lines per second
    state.SetComplexityN(state.range(0));
}

void BM_WriteTable(benchmark::State& state)
{
    writeTables(state, "");
}

void BM_WrapTable(benchmark::State& state)
{
    writeTables(state, R"("columns": [ { "token": "%Material", "width": 3 }, { "token": "%MNum", "width": 2 } ], )");
}
}

BENCHMARK(BM_ReadRows)->RangeMultiplier(10)->Range(10, 100'000)->Complexity();
BENCHMARK(BM_WriteTable)->RangeMultiplier(10)->Range(10, 100'000)->Complexity();
BENCHMARK(BM_WrapTable)->RangeMultiplier(10)->Range(10, 100'000)->Complexity();
