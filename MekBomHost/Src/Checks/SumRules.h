// The rules about totals, MB301 to MB309 but MB307, which only an evaluation shows (ReportJob), and MB403, about
// formulas that are never computed. Of MB308 the half that needs no data: PiecesRule tells the other.
#pragma once

#include "TemplateRules.h"

namespace mekbom
{
class SumRules : private TemplateRules
{
public:
    using TemplateRules::TemplateRules;

    void run();

private:
    void findSumOutsideFooter(const CheckedTuple& tuple);
    void findSumOfTexts(const CheckedTuple& tuple);
    void findSumOfList(const CheckedTuple& tuple);
    void findStartElsewhere(const CheckedTuple& tuple);
    void findFooterWithoutSum(const CheckedTuple& tuple);
    void findSumOfMissingFormula(const CheckedTuple& tuple);
    void findSumOfRequest(const CheckedTuple& tuple);
    void findSumOfShared(const CheckedTuple& tuple);
    void findFormulaOnlyInFooter(const CheckedTuple& tuple);

    std::string ownOfRow(const std::string& shared) const;
    bool isComputedInHeader(const std::string& formulaToken) const;
    bool isComputedForEveryRow(const std::string& formulaToken) const;
    std::string sameFormulaOfDetails(const std::string& formulaToken) const;
};
}
