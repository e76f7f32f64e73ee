// What does a row pay for its formula? The same rows are evaluated with three details lines in turn, alike but for
// their last column: the formula; the length once more, a number shown but not computed; none.
//   FormulaShare --data parts.csv [--runs N]
//   formulaNanoseconds   formula less length, per row: to compute it and to append the result to the row
//   columnNanoseconds    length less none, per row: one more number in the line, its copy and its text
// The median over the runs, each difference between neighbouring evaluations in one process.
#include "ComparisonRun.h"
#include "EngineData.h"

#include "MekBomEngine/Src/VorBomEvaluator2.h"

#include <algorithm>

namespace
{
double evaluate(VorBomTemplate& report, InputRows& rows)
{
    rows.hangUnder(report);
    VorBomTemplate result;
    const Stopwatch stopwatch;
    VorBomEvaluator2::evaluate(&report, &result);
    return stopwatch.milliseconds();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}
}

int main(int argc, char** argv)
{
    const ComparisonRun run(argc, argv);
    const auto pWithFormula = createComparisonReport(kFormulaColumn);
    const auto pWithLength = createComparisonReport(kLengthColumn);
    const auto pWithNeither = createComparisonReport(kNoColumn);
    loadComparisonRows(*pWithFormula, run.dataPath());
    InputRows rows(*pWithFormula);
    evaluate(*pWithFormula, rows); // pays for fresh memory pages

    const double nanosecondsPerRow = 1e6 / rows.count();
    std::vector<double> formula;
    std::vector<double> column;
    for (int i = 0; i < run.numRuns(); ++i)
    {
        const double withFormula = evaluate(*pWithFormula, rows);
        const double withLength = evaluate(*pWithLength, rows);
        const double withNeither = evaluate(*pWithNeither, rows);
        formula.push_back((withFormula - withLength) * nanosecondsPerRow);
        column.push_back((withLength - withNeither) * nanosecondsPerRow);
    }
    ComparisonRun::Line("formula share", rows.count())
        .add("formulaNanoseconds", median(formula))
        .add("columnNanoseconds", median(column))
        .print();
    return 0;
}
