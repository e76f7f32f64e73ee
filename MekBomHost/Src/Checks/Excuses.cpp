// "--allow MB150" is refused rather than passed over: there is no such mistake, so that the one that was meant would go
// on stopping the report. The codes in a template need no second look: TemplateReader has refused them at their place.
#include "Excuses.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "MistakeCodes.h"

#include <algorithm>
#include <iterator>

namespace mekbom
{
namespace
{
void requireMistake(const std::string& code)
{
    if (MistakeCodes::has(code))
        return;
    Finding finding =
        Finding::of(FindingCodes::kMistakeUnknown, inQuotes(code), "the code of a mistake, such as \"MB105\"");
    finding.source = "--allow";
    throw Fault(kWrongUsage, finding);
}
}

Excuses::Excuses(const std::map<std::string, std::string>& reasons, const std::vector<std::string>& codes)
{
    for (const auto& [code, reason] : reasons)
        m_codes.insert(code);
    for (const std::string& code : codes)
    {
        requireMistake(code);
        m_codes.insert(code);
    }
}

std::vector<Finding> Excuses::without(const std::vector<Finding>& findings) const
{
    std::vector<Finding> others;
    std::copy_if(findings.begin(), findings.end(), std::back_inserter(others),
                 [this](const Finding& finding) { return !cover(finding.code); });
    return others;
}

const std::map<std::string, std::string>& excusesOfBuiltInTemplate()
{
    static const std::map<std::string, std::string> reasons = {
        { "MB201", "rows are sorted by material and not by position number" },
        { "MB202", "\"%GroupBy:Material\" and \"%SortDescBy:Weight\" name what data without percent signs have" },
        { "MB214", "\"%FilterBy: %Beam , %Plate\" is for whoever gathers the data" },
        { "MB501", "\"%PosNum\" and \"%posNum\" are in no catalogue" },
        { "MB503", "the material of a group is that of its first row" },
        { "MB505", "materials start as 0" },
    };
    return reasons;
}
}
