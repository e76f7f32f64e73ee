// What does the whole report cost the engine? From evaluate() to the finished tree, the rows loaded before; and what
// costs freeing the tree, which is timed apart.
//   EngineReport --data parts.csv [--texts shared|own] [--runs N] [--text report.txt]
// Bytes are what the process takes from the C library's allocator, pool chunks with what is unused in them included:
// for the rows while they are loaded, for the result during the first run, its working memory included that the pool
// keeps.
#include "ComparisonRun.h"
#include "EngineData.h"

#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "VorBomItemWalk.h"

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace
{
eTexts textsAskedFor(const ComparisonRun& run)
{
    const std::string texts = run.option("--texts", "shared");
    if (texts == "shared")
        return kSharedTexts;
    if (texts == "own")
        return kOwnTexts;
    std::fprintf(stderr, "--texts %s: expected 'shared' or 'own'\n", texts.c_str());
    std::exit(2);
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void appendText(std::string& text, const VorString& value)
{
    for (int i = 0; i < value.length(); ++i)
        text += static_cast<char>(value.getStringW()[i]);
}

// A line for each section that shows anything: its visible values with tabs between.
std::string flattened(VorBomTemplate& result)
{
    std::string text;
    for (VorBomItemWalk walk(result.child(), 0); walk.item() != nullptr; walk.advance(true, true))
    {
        bool isFirst = true;
        for (const VorBomDataTuple& tuple : walk.item()->getData())
        {
            if (VorBomDataToken::isInvisibleToken(tuple.token().token()) != 0)
                continue;
            if (!isFirst)
                text += '\t';
            appendText(text, tuple.value().asString());
            isFirst = false;
        }
        if (!isFirst)
            text += '\n';
    }
    return text;
}

// The times of every run, and the bytes that the first one took.
struct Measured
{
    std::vector<double> evaluateTimes;
    std::vector<double> freeTimes;
    double resultBytes = 0;
};

void runOnce(VorBomTemplate& report, const ComparisonRun& run, Measured& measured)
{
    auto pResult = std::make_unique<VorBomTemplate>();
    const double bytesBefore = allocatedBytes();
    const Stopwatch evaluating;
    VorBomEvaluator2::evaluate(&report, pResult.get());
    measured.evaluateTimes.push_back(evaluating.milliseconds());
    if (measured.evaluateTimes.size() == 1)
    {
        measured.resultBytes = allocatedBytes() - bytesBefore;
        run.writeText(flattened(*pResult));
    }
    const Stopwatch freeing;
    pResult.reset();
    measured.freeTimes.push_back(freeing.milliseconds());
}
}

int main(int argc, char** argv)
{
    const ComparisonRun run(argc, argv);
    const auto pReport = createComparisonReport(kFormulaColumn);
    const double bytesBefore = allocatedBytes();
    loadComparisonRows(*pReport, run.dataPath(), textsAskedFor(run));
    const double rowBytes = allocatedBytes() - bytesBefore;
    InputRows rows(*pReport);

    Measured measured;
    for (int i = 0; i < run.numRuns(); ++i)
    {
        runOnce(*pReport, run, measured);
        rows.hangUnder(*pReport);
    }
    ComparisonRun::Line("engine", rows.count())
        .add("milliseconds", measured.evaluateTimes)
        .add("freeMilliseconds", measured.freeTimes)
        .add("rowBytes", rowBytes / rows.count())
        .add("resultBytes", measured.resultBytes / rows.count())
        .print();
    return 0;
}
