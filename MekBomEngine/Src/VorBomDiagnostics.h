// Is told why a report looks as it does: why a column is blank, a total too small, a level missing.
//
//   class Log : public VorBomDiagnostics
//   {
//   public:
//       void takeFinding(const VorBomFinding& finding) override { print(finding.text(), finding.token); }
//   };
//   Log log;
//   VorBomEvaluationOptions options;
//   options.pDiagnostics = &log;
//   VorBomEvaluator2::evaluate(pTemplate, &result, options);
//
// An evaluation tells first what is to be said of the template (VorBomTemplateCheck), then of the rows as they are, for
// which it walks them once more, and of formulas and merged rows as it comes to them. Without an observer none of this
// is looked for.
#pragma once

#include "VorBomFinding.h"

class VorBomDiagnostics
{
public:
    virtual ~VorBomDiagnostics() = default;

    // The finding lives until the call returns, the rows and sections that it names as long as their owners. May read
    // everything and change nothing; what it throws ends the evaluation and passes through. A report of many rows may
    // have as many findings.
    virtual void takeFinding(const VorBomFinding& finding) = 0;
};
