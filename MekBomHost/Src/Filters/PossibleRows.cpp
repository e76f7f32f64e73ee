#include "PossibleRows.h"

#include "ConditionReader.h"
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
    const std::string& text = filter.text();
    if (text.empty())
        return true;
    ConditionReader reader(text);
    reader.read(); // which went well when the filter was made
    std::vector<Answers> answers;
    for (const FilterStep& step : reader.steps())
    {
        if (step.action == FilterStep::kCondition)
        {
            const RowCondition& condition = reader.conditions()[step.condition];
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
