// Told on [%Weight:12.5][%Name:HEA200], shown in pounds, by a plan that keeps values:
//   %Weight    12.5 is written down, the number becomes "27.56", and its column knows now: that was a weight
//   %Name      a text is written down as what it is, and shown as it stands
#include "VorBomDisplayPlan.h"

namespace
{
void setWhole(VorBomTypedValue& value, std::int64_t whole)
{
    value.isWhole = true;
    value.whole = whole;
    value.number = static_cast<double>(whole);
}

VorBomTypedValue typed(const VorBomDataValue& value)
{
    VorBomTypedValue typedValue;
    typedValue.type = value.type();
    if (value.type() == VorBomDataValue::kIntData)
        setWhole(typedValue, *static_cast<const int*>(value.data()));
    else if (value.type() == VorBomDataValue::kDoubleData)
        typedValue.number = *static_cast<const double*>(value.data());
    return typedValue;
}
}

// The tokens alone are read. Which kind of quantity each shows is asked for when it first shows a number, as units may
// be told of further tokens until then.
VorBomDisplayPlan::VorBomDisplayPlan(const VorBomDataTupleArray& tuples)
{
    m_columns.reserve(static_cast<std::size_t>(tuples.length()));
    for (const VorBomDataTuple& tuple : tuples)
        m_columns.emplace_back(tuple.token());
}

void VorBomDisplayPlan::show(VorBomTemplateUnits& units, VorBomDataTupleArray& tuples)
{
    if (!m_values.empty())
    {
        showAndKeep(units, tuples);
        return;
    }
    VorBomDataTuple* pTuple = tuples.begin();
    for (VorBomDisplayColumn& column : m_columns)
        column.show(units, pTuple++->value());
}

void VorBomDisplayPlan::setWholeTotal(int index, std::int64_t total)
{
    setWhole(m_values[static_cast<std::size_t>(index)], total);
}

// A column knows the unit of a number only once it has shown it.
void VorBomDisplayPlan::showAndKeep(VorBomTemplateUnits& units, VorBomDataTupleArray& tuples)
{
    VorBomDataTuple* pTuple = tuples.begin();
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        VorBomDataValue& value = pTuple++->value();
        m_values[i] = typed(value);
        m_columns[i].show(units, value);
        if (m_values[i].type == VorBomDataValue::kDoubleData)
            m_values[i].unitType = m_columns[i].unitType();
    }
}
