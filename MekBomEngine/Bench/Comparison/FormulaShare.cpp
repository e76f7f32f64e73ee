// What does a row pay for its formula? The same rows are evaluated with three details lines in turn, alike but for
// their last column: the formula; the length once more, a number shown but not computed; none.
//   FormulaShare --data parts.csv [--runs N]
//   formulaNanoseconds   formula less length, per row: to compute it and to append the result to the row
//   columnNanoseconds    length less none, per row: one more number in the line, its copy and its text
//   computeNanoseconds   looking a row up and computing its formula, less looking it up: what remains for the formula,
//                        the values of its names included, without what is done with the result. As in a report, each
//                        row has just been looked at
// The median over the runs, each difference between neighbouring evaluations in one process.
#include "ComparisonRun.h"
#include "EngineData.h"

#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "VorBomColumns.h"
#include "VorBomFormulaColumn.h"

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

// The formula's tuple is the last of the innermost section.
const VorBomDataTupleArray& detailsOf(const VorBomTemplate& report)
{
    const VorBomItemBase* pSection = report.child();
    while (pSection->child() != nullptr)
        pSection = pSection->child();
    return pSection->getData();
}

// Times steps over rows that fit the inner caches, many at once, since a clock costs as much as a step.
class FormulaTimer
{
public:
    explicit FormulaTimer(const VorBomDataTupleArray& details)
        : m_details(details),
          m_positions(std::make_shared<VorBomTuplePositions>()),
          m_columns(m_positions, { details[0].token().token() }),
          m_formula(m_positions, details, details.length() - 1)
    {
    }

    double computeMilliseconds(VorBomItemBase* pFirst)
    {
        double milliseconds = 0;
        for (VorBomItemBase* pNext = pFirst; pFirst != nullptr; pFirst = pNext)
        {
            pNext = run(pFirst, true); // brings the rows in
            const Stopwatch lookingUp;
            run(pFirst, false);
            milliseconds -= lookingUp.milliseconds();
            const Stopwatch computing;
            run(pFirst, true);
            milliseconds += computing.milliseconds();
        }
        return milliseconds;
    }

private:
    static constexpr int kRowsAtOnce = 200; // some 100 KB

    // Where the next rows begin.
    VorBomItemBase* run(VorBomItemBase* pRow, bool computes)
    {
        for (int i = 0; i < kRowsAtOnce && pRow != nullptr; ++i, pRow = pRow->next())
        {
            m_columns.find(*pRow);
            if (computes)
                m_formula.compute(m_details, static_cast<VorBomDataRow*>(pRow), m_result);
        }
        return pRow;
    }

    const VorBomDataTupleArray& m_details;
    std::shared_ptr<VorBomTuplePositions> m_positions;
    VorBomColumns m_columns;
    VorBomFormulaColumn m_formula;
    double m_result = 0;
};

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
    loadComparisonRows(*pWithFormula, run.dataPath(), kSharedTexts);
    InputRows rows(*pWithFormula);
    evaluate(*pWithFormula, rows); // pays for fresh memory pages

    const double nanosecondsPerRow = 1e6 / rows.count();
    std::vector<double> formula;
    std::vector<double> column;
    std::vector<double> compute;
    FormulaTimer timer(detailsOf(*pWithFormula));
    for (int i = 0; i < run.numRuns(); ++i)
    {
        const double withFormula = evaluate(*pWithFormula, rows);
        const double withLength = evaluate(*pWithLength, rows);
        const double withNeither = evaluate(*pWithNeither, rows);
        formula.push_back((withFormula - withLength) * nanosecondsPerRow);
        column.push_back((withLength - withNeither) * nanosecondsPerRow);
        rows.hangUnder(*pWithFormula);
        compute.push_back(timer.computeMilliseconds(pWithFormula->getBomData()->child()) * nanosecondsPerRow);
    }
    ComparisonRun::Line("formula share", rows.count())
        .add("formulaNanoseconds", median(formula))
        .add("columnNanoseconds", median(column))
        .add("computeNanoseconds", median(compute))
        .print();
    return 0;
}
