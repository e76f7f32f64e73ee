// Each condition may have two answers over all rows, or only one. With columns %Mark and %Weight:
//   not %BoltName            no row has a bolt name: "no" alone, and so "yes" alone of its opposite
//   %Name or %Mark           "no" alone, and either: some rows may have a mark, so either
//   both joined by "and"     "yes" is possible where it is on both sides
// The steps are those that RowFilter takes for one row, on pairs of answers in place of single ones.
#include "PossibleRows.h"

#include "Utf8.h"

#include <utility>
#include <vector>

namespace mekbom::PossibleRows
{
namespace
{
// What rows can answer: with a column for %Name some have a name and some have none, without it all have none.
struct Answers
{
    bool canBeYes;
    bool canBeNo;
};

Answers answersTo(const RowCondition& condition, bool hasColumn)
{
    if (condition.comparison == RowCondition::kUnequal) // which a row without the datum meets
        return { true, hasColumn };
    return { hasColumn, true };
}
}

bool canPass(const RowFilter& filter, const std::function<bool(const std::string&)>& hasColumn)
{
    if (filter.steps().empty())
        return true;
    std::vector<Answers> answers;
    for (const FilterStep& step : filter.steps())
    {
        if (step.action == FilterStep::kCondition)
        {
            const RowCondition& condition = filter.conditions()[step.condition];
            answers.push_back(answersTo(condition, hasColumn(Utf8::toBytes(condition.token))));
            continue;
        }
        Answers& last = answers.back();
        if (step.action == FilterStep::kNot)
        {
            std::swap(last.canBeYes, last.canBeNo);
            continue;
        }
        const Answers other = last;
        answers.pop_back();
        Answers& joined = answers.back();
        if (step.action == FilterStep::kAnd)
            joined = { joined.canBeYes && other.canBeYes, joined.canBeNo || other.canBeNo };
        else
            joined = { joined.canBeYes || other.canBeYes, joined.canBeNo && other.canBeNo };
    }
    return answers.back().canBeYes;
}
}
