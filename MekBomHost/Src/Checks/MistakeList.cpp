// A rule knows the tuple that is wrong, and its author wants the line and column of the file. TemplateReader has kept
// both in the style of the section:
//
//   tuple 1 of the kGroupFooter   ->   "/sections/1/tuples/1", line 8, columns 17 to 44   ->   "list.json:8:17: ..."
//
// What is about no tuple, such as a footer beside the details, has the place of its section.
#include "MistakeList.h"

#include <utility>

namespace mekbom
{
namespace
{
Finding findingOf(const FindingCode& code, const std::string& what, const std::string& help)
{
    Finding finding = Finding::stating(code, what);
    finding.remedy = help;
    return finding;
}
}

void MistakeList::add(const FindingCode& code, const CheckedTuple& tuple, const std::string& what,
                      const std::string& help)
{
    addAt(placeOf(tuple), findingOf(code, what, help));
}

void MistakeList::add(const FindingCode& code, const VorBomTemplateItem& section, const std::string& what,
                      const std::string& help)
{
    addAt(m_template.styleOf(&section).place, findingOf(code, what, help));
}

void MistakeList::add(const FindingCode& code, const TemplatePlace& place, const std::string& what,
                      const std::string& help)
{
    addAt(place, findingOf(code, what, help));
}

void MistakeList::add(const FindingCode& code, Finding::eSeverity severity, const CheckedTuple& tuple,
                      const std::string& what, const std::string& help)
{
    Finding finding = findingOf(code, what, help);
    finding.severity = severity;
    addAt(placeOf(tuple), std::move(finding));
}

void MistakeList::add(Finding finding, const CheckedTuple& tuple)
{
    addAt(placeOf(tuple), std::move(finding));
}

void MistakeList::addPlaced(const std::vector<Finding>& findings)
{
    for (const Finding& finding : findings)
    {
        m_findings.push_back(finding);
        m_findings.back().source = m_template.fileName;
    }
}

void MistakeList::addAt(const TemplatePlace& place, Finding finding)
{
    finding.source = m_template.fileName;
    finding.begin = place.span.begin;
    finding.end = place.span.end;
    finding.path = place.path;
    m_findings.push_back(std::move(finding));
}
}
