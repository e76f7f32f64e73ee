#include "CalculatedTotal.h"

#include "NumberInValue.h"
#include "Utf8.h"

namespace mekbom
{
namespace
{
// The tuple of the footer that stands for the name; 0 for a name that the template would have been refused for.
int tupleOf(const VorString& name, const ColumnTotal& total, const VorBomItemBase& footer)
{
    for (const ColumnTotal::Operand& operand : total.operands)
        for (int i = 0; operand.name == name && i < footer.getData().length(); ++i)
            if (footer.getData()[i].token().token() == operand.sum)
                return i;
    return 0;
}
}

CalculatedTotal::CalculatedTotal(const ColumnTotal& total, const VorBomItemBase& footer)
    : m_formula(total.formula.getStringW(), total.formula.length())
{
    for (const VorString& name : m_formula.names())
        m_tuples.push_back(tupleOf(name, total, footer));
}

// Rounded to six decimals, as results of formulas are in rows, 0.00056568 kg/mm would be shown as 0.566 kg/m.
VorBomTypedValue CalculatedTotal::valueIn(const VorBomReportSection& footer, std::string& reason) const
{
    reason = reasonAgainst(footer);
    if (!reason.empty())
        return {};
    std::vector<double> sums;
    for (const int tuple : m_tuples)
        sums.push_back(footer.pValues[tuple].number);
    double result = 0;
    if (m_formula.evaluateUnrounded(sums.data(), result) == 1)
        return { VorBomDataValue::kDoubleData, VorBomTemplateUnits::kNoUnit, result };
    reason = "it divides by zero";
    return {};
}

// Empty where nothing speaks against it.
std::string CalculatedTotal::reasonAgainst(const VorBomReportSection& footer) const
{
    const auto rowsOf = [&footer, this](std::size_t name) { return footer.pNumRowsWithDatum[m_tuples[name]]; };
    const auto nameOf = [this](std::size_t name) { return Utf8::toBytes(m_formula.names()[name]); };
    for (std::size_t i = 0; i < m_tuples.size(); ++i)
    {
        if (rowsOf(i) == 0 || !holdsNumber(footer.pValues[m_tuples[i]].type))
            return "no row has a number for " + nameOf(i);
        if (rowsOf(i) != rowsOf(0))
            return nameOf(0) + " is the sum of " + std::to_string(rowsOf(0)) + " rows, " + nameOf(i) + " of " +
                   std::to_string(rowsOf(i));
    }
    return std::string();
}
}
