// What does a whole report cost per row? Fourteen columns, sorted by material, mark and length, grouped by material and
// mark, a details line with a formula for each row, weight totals at every level: the ordinary list of a large model.
//   BM_Evaluate          from evaluate() to the finished tree; data and template are there before the clock starts
//   BM_FreeResult        destroying that tree
//   BM_EvaluateLevels    100 rows under more and more group levels, each row a group of its own in all of them
//   BM_EvaluateColumns   100 rows with more and more columns in the details line
// Sizes 10^2 to 10^5 show the curve; -DMEK_BUILD_BENCHMARKS=ON, then --benchmark_filter=Evaluate.
#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

namespace
{
using Item = VorBomTemplateItem;

struct Columns
{
    const VorString num{ L"%Num" }, mark{ L"%MNum" }, material{ L"%Material" }, profile{ L"%Name" },
        length{ L"%Length" }, weight{ L"%Weight" }, paint{ L"%Paint" }, quantity{ L"%Quantity" }, phase{ L"%Phase" },
        type{ L"%Class" }, coating{ L"%Coating" }, thickness{ L"%Thick" }, width{ L"%Width" }, handle{ L"%Handle" };
};

VorString numbered(const wchar_t* pattern, unsigned number)
{
    VorString text;
    text.format(pattern, number);
    return text;
}

std::vector<VorString> numberedTexts(const wchar_t* pattern, unsigned numTexts)
{
    std::vector<VorString> texts;
    for (unsigned i = 0; i < numTexts; ++i)
        texts.push_back(numbered(pattern, i + 1));
    return texts;
}

void addRows(VorBomData& data, int numRows)
{
    const Columns columns;
    std::mt19937 random(1);
    const auto below = [&random](unsigned limit) { return static_cast<unsigned>(random() % limit); };
    const unsigned numMarks = static_cast<unsigned>(numRows) / 20 + 1;
    const auto marks = numberedTexts(L"B%u", numMarks);
    const auto materials = numberedTexts(L"S%u35JR", 8);
    const auto profiles = numberedTexts(L"HEA%u", 60);
    const auto few = numberedTexts(L"%u", 10);
    for (int i = 0; i < numRows; ++i)
    {
        auto* pRow = new VorBomDataRow;
        const unsigned position = below(numMarks);
        pRow->addData(VorBomDataTuple(columns.handle, numbered(L"%X", static_cast<unsigned>(i) + 4096)));
        pRow->addData(VorBomDataTuple(columns.num, marks[position]));
        pRow->addData(VorBomDataTuple(columns.mark, marks[below(numMarks)]));
        pRow->addData(VorBomDataTuple(columns.material, materials[below(8)]));
        pRow->addData(VorBomDataTuple(columns.profile, profiles[below(60)]));
        pRow->addData(VorBomDataTuple(columns.length, 100.0 + below(120000) / 10.0));
        pRow->addData(VorBomDataTuple(columns.weight, 0.1 + below(100000) / 100.0));
        pRow->addData(VorBomDataTuple(columns.paint, 1000.0 * below(10000)));
        pRow->addData(VorBomDataTuple(columns.quantity, static_cast<int>(below(20)) + 1));
        pRow->addData(VorBomDataTuple(columns.phase, few[below(5)]));
        pRow->addData(VorBomDataTuple(columns.type, few[below(10)]));
        pRow->addData(VorBomDataTuple(columns.coating, few[below(4)]));
        pRow->addData(VorBomDataTuple(columns.thickness, 1.0 + below(40)));
        pRow->addData(VorBomDataTuple(columns.width, 50.0 + below(400)));
        data.addChild(pRow);
    }
}

Item* addSection(VorBomItemBase& parent, Item::eTemplateItemType type, std::initializer_list<VorBomDataTuple> tuples)
{
    auto* pSection = new Item(type);
    for (const VorBomDataTuple& tuple : tuples)
        pSection->addData(tuple);
    parent.addChild(pSection);
    return pSection;
}

std::unique_ptr<VorBomTemplate> makeReport(int numRows)
{
    auto pTemplate = std::make_unique<VorBomTemplate>();
    const Columns c;
    const VorString none;
    Item* pReport = addSection(*pTemplate, Item::kReportHeader, {});
    addSection(*pTemplate, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pMaterial =
        addSection(*pReport, Item::kGroupHeader,
                   { { L"%GroupBy:%Material", none }, { L"%SortAscBy:%Material", none }, { c.material, none } });
    addSection(*pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pMark = addSection(*pMaterial, Item::kGroupHeader,
                             { { L"%GroupBy:%MNum", none }, { L"%SortAscBy:%MNum", none }, { c.mark, none } });
    addSection(*pMaterial, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pDetails = addSection(*pMark, Item::kDetails, { { L"%SortDescBy:%Length", none } });
    for (const VorString& token : { c.handle, c.num, c.mark, c.material, c.profile, c.length, c.weight, c.paint,
                                    c.quantity, c.phase, c.type, c.coating, c.thickness, c.width })
        pDetails->addData(VorBomDataTuple(token, none));
    pDetails->addData(VorBomDataTuple(L"%Formula:%Length*%Quantity/1000", none));
    addRows(*pTemplate->getBomData(), numRows);
    const VorUnitsManager units;
    pTemplate->setUnitsForTokens(&units);
    pTemplate->findUsedTokens();
    return pTemplate;
}

constexpr int kNumColumns = 14;

// What an evaluation appended to the rows is taken off again, so that every run meets the same rows.
void removeFormulas(VorBomTemplate& report)
{
    for (VorBomItemBase* pRow = report.getBomData()->child(); pRow != nullptr; pRow = pRow->next())
        pRow->getData().setLogicalLength(kNumColumns);
}

// Prepares a report of 100 rows that has its sections.
void addFewRows(VorBomTemplate& report)
{
    addRows(*report.getBomData(), 100);
    const VorUnitsManager units;
    report.setUnitsForTokens(&units);
    report.findUsedTokens();
}

std::unique_ptr<VorBomTemplate> makeReportOfLevels(int numLevels)
{
    auto pTemplate = std::make_unique<VorBomTemplate>();
    const Columns c;
    VorBomItemBase* pParent = addSection(*pTemplate, Item::kReportHeader, {});
    for (int i = 0; i < numLevels; ++i)
        pParent = addSection(*pParent, Item::kGroupHeader,
                             { { L"%GroupBy:%Handle", VorString() }, { c.handle, VorString() } });
    addFewRows(*pTemplate);
    return pTemplate;
}

std::unique_ptr<VorBomTemplate> makeReportOfColumns(int numColumns)
{
    auto pTemplate = std::make_unique<VorBomTemplate>();
    const Columns c;
    Item* pReport = addSection(*pTemplate, Item::kReportHeader, {});
    Item* pDetails = addSection(*pReport, Item::kDetails, {});
    for (int i = 0; i < numColumns; ++i)
        pDetails->addData(VorBomDataTuple(i % 2 == 0 ? c.length : c.profile, VorString()));
    addFewRows(*pTemplate);
    return pTemplate;
}

void evaluateRepeatedly(benchmark::State& state, VorBomTemplate& report)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        removeFormulas(report);
        auto pResult = std::make_unique<VorBomTemplate>();
        state.ResumeTiming();
        benchmark::DoNotOptimize(VorBomEvaluator2::evaluate(&report, pResult.get()));
        state.PauseTiming();
        pResult.reset();
        state.ResumeTiming();
    }
}
}

static void BM_Evaluate(benchmark::State& state)
{
    const auto pReport = makeReport(static_cast<int>(state.range(0)));
    evaluateRepeatedly(state, *pReport);
    state.SetItemsProcessed(state.iterations() * state.range(0)); // rows per second
}
BENCHMARK(BM_Evaluate)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

static void BM_FreeResult(benchmark::State& state)
{
    const auto pReport = makeReport(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        state.PauseTiming();
        removeFormulas(*pReport);
        auto pResult = std::make_unique<VorBomTemplate>();
        VorBomEvaluator2::evaluate(pReport.get(), pResult.get());
        state.ResumeTiming();
        pResult.reset();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_FreeResult)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

static void BM_EvaluateLevels(benchmark::State& state)
{
    evaluateRepeatedly(state, *makeReportOfLevels(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_EvaluateLevels)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

static void BM_EvaluateColumns(benchmark::State& state)
{
    evaluateRepeatedly(state, *makeReportOfColumns(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_EvaluateColumns)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
