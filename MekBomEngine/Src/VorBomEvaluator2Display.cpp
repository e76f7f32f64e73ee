// Formulas and display texts of evaluated sections.
//
// Told on a details line with %Length 2000 and "%Formula:%Length/1000":
//   computed    the formula sees %Length = 2000 from line and row; line and row get 2.0 under "%Formula:%Length/1000"
//   displayed   %Length is a distance, so the formula is one: both numbers become texts in the unit of distances
#include "VorBomEvaluator2.h"

#include "VorBomDisplayPlan.h"
#include "VorBomHeaderPlan.h"

#include "MekRoots/Exp/VorAssert.h"

#include <memory>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // named in assertion reports
}

// A plan for one section and one row, which an evaluation would make once for all rows: the result is the same, as the
// steps are the plan's.
void VorBomEvaluator2::evaluateExpressions(VorBomTemplateItem* pItem, VorBomDataRow* pRow)
{
    if (pItem == nullptr)
        return;
    VorBomDataRow noRow; // has no numbers; the results that it gets go with it
    VorBomHeaderPlan plan(std::make_shared<VorBomTuplePositions>(), *pItem);
    plan.computeFormulas(*pItem, pRow != nullptr ? pRow : &noRow);
    plan.leaveLastFormula();
}

void VorBomEvaluator2::applyUnitsForData(VorBomTemplateUnits* pUnits, VorBomDataTupleArray& tuples)
{
    VorBomDisplayPlan(tuples).show(*pUnits, tuples);
}

void VorBomEvaluator2::fillGenericString(VorGenericString& target, const VorBomDataRow* pRow)
{
    constexpr int kPlainEntry = 0; // shown as it stands
    for (const VorBomDataTuple& tuple : pRow->getData())
    {
        const VorString& token = tuple.token().token();
        const VorBomDataValue& value = tuple.value();
        target.addToken(token);
        switch (value.type())
        {
            case VorBomDataValue::kIntData:
                target.addEntry(token, *static_cast<const int*>(value.data()), kPlainEntry);
                break;
            case VorBomDataValue::kDoubleData:
                target.addEntry(token, *static_cast<const double*>(value.data()), kPlainEntry, L"%.1f");
                break;
            case VorBomDataValue::kStringData:
                target.addEntry(token, *static_cast<const VorString*>(value.data()), kPlainEntry);
                break;
            default: VorAssert::vorAssert(L"false", kSourcePath, __LINE__); break;
        }
    }
}
