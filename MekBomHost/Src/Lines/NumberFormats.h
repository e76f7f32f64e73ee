// How the numbers of a report are shown where the engine's way would not do: those without a unit, those of columns with
// a unit, decimals or thousands of their own, and those of a column whose heading cannot name one unit for all.
//
//   NumberFormats formats(reportTemplate, layout, quantities, units, settings);
//   formats.setFor(*reportTemplate.pTemplate);            // before it is evaluated
//
//   column "%Length" of details in mm, its total with "unit": "m/2"   ->   4567.5 and 12.35
//   "%Price" 1234567.89                                               ->   1234567.89 instead of 1.23457e+06
//   one column for lengths and weights                                ->   4567.5 mm and 12.35 kg
//
// The engine asks for the text of a number when it has none in store; a report without such columns has no formats.
#pragma once

#include "DisplaySettings.h"
#include "ReportLayout.h"
#include "ReportTemplate.h"
#include "TokenQuantities.h"

#include "VorBomNumberFormat.h"

#include "MekRoots/Exp/VorUnitsManager.h"

#include <memory>
#include <vector>

namespace mekbom
{
class NumberFormats
{
public:
    // To be made when the rows are there: totals of plain numbers have as many decimals as what they sum. None of the
    // five is looked at later.
    NumberFormats(const ReportTemplate& reportTemplate, const ReportLayout& layout, const TokenQuantities& quantities,
                  const VorUnitsManager& units, const DisplaySettings& settings);

    // Gives each tuple its format. The template refers to this object from then on.
    void setFor(VorBomTemplate& engineTemplate) const;

private:
    struct TupleFormat
    {
        const VorBomTemplateItem* pSection;
        int tuple;
        std::unique_ptr<const VorBomNumberFormat> pFormat;
    };

    std::vector<TupleFormat> m_formats;
};
}
