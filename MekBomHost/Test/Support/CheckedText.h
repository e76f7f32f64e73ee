// The mistakes in a template that a test writes down, as text: a line for each.
#pragma once

#include "KnownTokens.h"
#include "TemplateCheck.h"
#include "TemplateReader.h"

#include <string>
#include <vector>

namespace mekbom
{
inline std::string linesOf(const std::vector<Finding>& findings)
{
    std::string lines;
    for (const Finding& finding : findings)
        lines += messageOf(finding) + "\n";
    return lines;
}

// "MB105 MB201": the codes of what is found, in the order of the file.
inline std::string codesOf(const std::vector<Finding>& findings)
{
    std::string codes;
    for (const Finding& finding : findings)
        codes += (codes.empty() ? "" : " ") + finding.code;
    return codes;
}

inline std::vector<Finding> mistakesIn(const std::string& templateText,
                                       const std::vector<std::string>& dataTokens = std::vector<std::string>())
{
    ReportTemplate reportTemplate = TemplateReader::read("list.json", templateText);
    reportTemplate.pTemplate->setUnitsForTokens(nullptr);
    return TemplateCheck::run(reportTemplate, KnownTokens(reportTemplate, dataTokens), !dataTokens.empty());
}
}
