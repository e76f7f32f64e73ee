// An evaluated report with all that words about it need. Owns none of it.
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
    const VorUnitsManager& units;     // that the report shows numbers in
    const EvaluatedReport& evaluated; // with the values and the rows of its lines
    const RowNumbers& rowNumbers;
};
}
