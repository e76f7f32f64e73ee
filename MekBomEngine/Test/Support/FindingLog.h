// Writes findings down, a line for each: kind, token, place, message and rows.
//
//   FindingLog log;
//   VorBomTemplateCheck::check(reportTemplate, log);
//   log.lines   ->  { "4 %Formula:(1+2 0: Impaired paranthesis" }
#pragma once

#include "MekBomEngine/Src/VorBomDiagnostics.h"

#include <string>
#include <vector>

class FindingLog : public VorBomDiagnostics
{
public:
    void takeFinding(const VorBomFinding& finding) override
    {
        findings.push_back(finding);
        std::string line = std::to_string(finding.kind) + " " + narrow(finding.token);
        if (finding.position != VorBomFinding::kNone)
            line += " " + std::to_string(finding.position);
        if (finding.message.isEmpty() == 0)
            line += ": " + narrow(finding.message);
        for (const VorBomDataRow* pRow : { finding.pRow, finding.pOtherRow })
            if (pRow != nullptr)
                line += " row " + std::to_string(pRow->hostKey());
        lines.push_back(line);
    }

    // Those of one kind.
    std::vector<std::string> of(VorBomFinding::eKind kind) const
    {
        std::vector<std::string> chosen;
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (findings[i].kind == kind)
                chosen.push_back(lines[i]);
        return chosen;
    }

    std::vector<VorBomFinding> findings;
    std::vector<std::string> lines;

private:
    static std::string narrow(const VorString& text)
    {
        return std::string(text.getStringW(), text.getStringW() + text.length());
    }
};
