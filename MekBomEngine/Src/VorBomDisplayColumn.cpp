#include "VorBomDisplayColumn.h"

#include "MekRoots/Exp/VorNumberText.h"

namespace
{
VorString integerText(int value)
{
    wchar_t text[VorNumberText::kIntegerRoom];
    return VorString(text, VorNumberText::writeInteger(value, text));
}

VorString withoutSumPrefix(const VorBomDataToken& token)
{
    VorString name = token.token();
    token.getSummingRequest(name);
    return name;
}
}

VorBomDisplayColumn::VorBomDisplayColumn(const VorBomDataToken& token)
    : m_name(withoutSumPrefix(token)), m_isFormula(VorBomDataToken::removeFormulaPrefix(m_name) != 0)
{
}

void VorBomDisplayColumn::show(VorBomTemplateUnits& units, VorBomDataValue& value)
{
    if (value.type() == VorBomDataValue::kIntData)
    {
        value.set(integerText(*static_cast<const int*>(value.data())));
    }
    else if (value.type() == VorBomDataValue::kDoubleData)
    {
        if (m_nTypesKnown != units.numTokenTypes())
            lookUpType(units);
        value.set(units.getDisplayString(m_type, *static_cast<const double*>(value.data())));
    }
}

void VorBomDisplayColumn::showAll(std::vector<VorBomDisplayColumn>& columns, VorBomTemplateUnits& units,
                                  VorBomDataTupleArray& tuples)
{
    VorBomDataTuple* pTuple = tuples.begin();
    for (VorBomDisplayColumn& column : columns)
        column.show(units, pTuple++->value());
}

void VorBomDisplayColumn::lookUpType(VorBomTemplateUnits& units)
{
    if (m_isFormula)
        registerFormulaUnit(units);
    m_type = units.getUnitType(m_name);
    m_nTypesKnown = units.numTokenTypes();
}

void VorBomDisplayColumn::registerFormulaUnit(VorBomTemplateUnits& units) const
{
    if (units.getUnitType(m_name) != VorBomTemplateUnits::kNoUnit)
        return;
    for (const VorString& token : VorBomDataToken::getTokensFromFormula(m_name))
    {
        const VorBomTemplateUnits::eTokenUnitType type = units.getUnitType(token);
        if (type == VorBomTemplateUnits::kNoUnit)
            continue;
        units.AddTokenType(m_name, type);
        return;
    }
}
