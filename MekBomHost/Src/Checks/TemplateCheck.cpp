// Each class of rules goes through the template by itself, and what they find is brought into the order of the file at
// the end, as an author reads it. Findings of one tuple stay as they were added, so the classes run in the order of
// their codes: a "%GroupBy:%Materail" is told as one that nothing sorts (MB201) before it is told as misspelled
// (MB501).
#include "TemplateCheck.h"

#include "CheckedTemplate.h"
#include "FormulaMistakes.h"
#include "GroupingRules.h"
#include "MistakeList.h"
#include "StructureRules.h"
#include "SumRules.h"
#include "TokenRules.h"

#include <algorithm>
#include <tuple>

namespace mekbom::TemplateCheck
{
namespace
{
bool standsBefore(const Finding& first, const Finding& second)
{
    return std::tie(first.begin.line, first.begin.column) < std::tie(second.begin.line, second.begin.column);
}
}

std::vector<Finding> run(const ReportTemplate& reportTemplate, const KnownTokens& tokens, bool hasData)
{
    const CheckedTemplate list(reportTemplate);
    MistakeList mistakes(reportTemplate);
    if (list.levels().empty()) // the rules may ask for the first level and the deepest one
        return mistakes.findings();
    StructureRules(list, tokens, mistakes).run();
    GroupingRules(list, tokens, mistakes).run(hasData);
    SumRules(list, tokens, mistakes).run();
    FormulaMistakes(list, tokens, mistakes).run();
    TokenRules(list, tokens, mistakes).run(hasData);
    std::vector<Finding> findings = mistakes.findings();
    std::stable_sort(findings.begin(), findings.end(), standsBefore);
    return findings;
}
}
