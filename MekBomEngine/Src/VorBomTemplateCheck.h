// What is to be said of a template before there is any row. An evaluation that has an observer checks its template
// itself.
//
//   VorBomTemplateCheck::check(*pTemplate, log);
//   VorBomTemplateCheck::checkTokens(*pTemplate, ownTokens, log);
//
//   "%Formula:(%Weight+2" in the details    ->  kFormulaUnreadable, "Impaired paranthesis", at 0
//   a third section beside a footer         ->  kSectionNotEvaluated
//   "%GroupBy:%Materail"                    ->  kTokenNotInCatalogue, unless it is one of the host's own
//
// Changes nothing: neither the template nor the thread's variables and errors of formulas.
#pragma once

#include "VorBomDiagnostics.h"
#include "VorBomTemplate.h"

#include "MekRoots/Exp/MekExport.h"

class MEK_BOM_API VorBomTemplateCheck
{
public:
    // The findings that hold whatever the data. Sections are met level by level, from the outermost.
    static void check(const VorBomTemplate& reportTemplate, VorBomDiagnostics& diagnostics);

    // kTokenNotInCatalogue for all tokens that evaluated sections show, add up, group by, sort by or compute with, and
    // that neither the catalogue nor `ownTokens` have. Texts that are no tokens, a caption such as "Title", are passed
    // over.
    static void checkTokens(const VorBomTemplate& reportTemplate, const VorStringArray& ownTokens,
                            VorBomDiagnostics& diagnostics);
};
