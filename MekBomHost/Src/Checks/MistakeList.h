// The mistakes that rules find in one list, each at its place in the template file, in the order in which they are
// added.
//
//   MistakeList mistakes(reportTemplate);
//   mistakes.add(MistakeCodes::kSumOutsideFooter, tuple, "the total stands in a header", "move it to the footer");
//   messageOf(mistakes.findings()[0])   ->   list.json:8:17: error MB301: the total ...; help: move it to the footer
#pragma once

#include "CheckedTemplate.h"
#include "Finding.h"
#include "FindingCodes.h"

#include <string>
#include <vector>

namespace mekbom
{
class MistakeList
{
public:
    // The template outlives the list.
    explicit MistakeList(const ReportTemplate& reportTemplate) : m_template(reportTemplate) {}

    // `what` says what is written and what comes of it, `help` how to write it right, with the author's own tokens.
    void add(const FindingCode& code, const CheckedTuple& tuple, const std::string& what, const std::string& help);
    void add(const FindingCode& code, const VorBomTemplateItem& section, const std::string& what,
             const std::string& help);
    void add(const FindingCode& code, const TemplatePlace& place, const std::string& what, const std::string& help);

    // The same for a mistake that is less bad, or worse, in this list than its code says.
    void add(const FindingCode& code, Finding::eSeverity severity, const CheckedTuple& tuple, const std::string& what,
             const std::string& help);

    // A finding that lacks its place, such as those of FormulaRules, which sees no file: it gets the tuple's.
    void add(Finding finding, const CheckedTuple& tuple);

    // Findings that have their places in the template file, and lack no more than its name.
    void addPlaced(const std::vector<Finding>& findings);

    const std::vector<Finding>& findings() const { return m_findings; }

private:
    TemplatePlace placeOf(const CheckedTuple& tuple) const
    {
        return m_template.placeOfTuple(*tuple.pSection, tuple.index);
    }
    void addAt(const TemplatePlace& place, Finding finding);

    const ReportTemplate& m_template;
    std::vector<Finding> m_findings;
};
}
