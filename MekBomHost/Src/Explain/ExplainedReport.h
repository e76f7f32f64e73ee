// An evaluated report with all that words about it need. It owns nothing: all four outlive it and what is made of it.
//
//   const ExplainedReport explained{ reportTemplate, units, report, rowNumbers };
//   const std::string words = LineInWords(explained).text(3);
#pragma once

#include "EvaluatedReport.h"
#include "ReportTemplate.h"
#include "RowNumbers.h"

#include "MekRoots/Exp/VorUnitsManager.h"

namespace mekbom
{
struct ExplainedReport
{
    const ReportTemplate& reportTemplate;
    const VorUnitsManager& units;     // the units that the list shows its numbers in
    const EvaluatedReport& evaluated; // evaluated with LineContents of values and rows
    const RowNumbers& rowNumbers;     // of all rows that were read, those that a filter left out included
};
}
