// A number is formatted only if its text is not known yet. Told on "%Formula:%Length*2" in a report in millimetres:
//   100.0    the units know no type for "%Length*2", so that of %Length is registered; "100" is made and remembered
//   100.0    the text remembered is shown, the same text shared
//   then another column registers a type of its own, and numTokenTypes() has grown
//   100.0    the type is looked up anew, as that column may have been about this very formula, and the text made anew
#include "VorBomDisplayColumn.h"

#include "MekRoots/Exp/VorNumberText.h"

#include <cstring>

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

// Of "%SumBy:%Formula:%Length*2" both prefixes go: what is left, "%Length*2", is the text by which units know it.
VorBomDisplayColumn::VorBomDisplayColumn(const VorBomDataToken& token)
    : m_name(withoutSumPrefix(token)), m_isFormula(VorBomDataToken::removeFormulaPrefix(m_name) != 0)
{
}

VorString VorBomDisplayColumn::textOf(int value)
{
    const auto key = static_cast<std::uint64_t>(value);
    if (const VorString* pText = m_integerTexts.find(key))
        return *pText;
    VorString text = m_pFormat != nullptr ? m_pFormat->textOf(value) : integerText(value);
    m_integerTexts.remember(key, text);
    return text;
}

VorString VorBomDisplayColumn::textOf(double value, VorBomTemplateUnits& units)
{
    if (m_nTypesKnown != units.numTokenTypes())
        lookUpType(units);
    // By its bits and not by comparing: 0.0 and -0.0 are equal but may read differently, and a NaN equals nothing.
    std::uint64_t key = 0;
    static_assert(sizeof key == sizeof value, "the bits of a double tell it from all others");
    std::memcpy(&key, &value, sizeof key);
    if (const VorString* pText = m_texts.find(key))
        return *pText;
    VorString text = m_pFormat != nullptr                     ? m_pFormat->textOf(value)
                     : m_type == VorBomTemplateUnits::kNoUnit ? VorBomTemplateUnits::plainText(value, m_nDecimals)
                                                              : units.getDisplayString(m_type, value);
    m_texts.remember(key, text);
    return text;
}

void VorBomDisplayColumn::lookUpType(VorBomTemplateUnits& units)
{
    if (m_isFormula)
        registerFormulaUnit(units);
    m_type = units.getUnitType(m_name);
    m_nDecimals = decimalsIn(units);
    m_texts.clear();
    // Read last, as registering this formula has raised it.
    m_nTypesKnown = units.numTokenTypes();
}

// A formula has those that were set for its text, else those of the first of its tokens that has its own.
int VorBomDisplayColumn::decimalsIn(const VorBomTemplateUnits& units) const
{
    if (m_isFormula && !units.hasDecimals(m_name))
        for (const VorString& token : VorBomDataToken::getTokensFromFormula(m_name))
            if (units.hasDecimals(token))
                return units.decimalsOf(token);
    return units.decimalsOf(m_name);
}

// The first of its tokens that has a unit lends it: "%Length*%Weight" is shown as a length.
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
