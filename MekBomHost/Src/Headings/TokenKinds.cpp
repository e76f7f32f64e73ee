#include "TokenKinds.h"

#include "Utf8.h"

namespace mekbom
{
TokenKinds::TokenKinds()
{
    m_template.setUnitsForTokens(nullptr);
}

VorBomTemplateUnits::eTokenUnitType TokenKinds::of(const std::string& token) const
{
    return m_template.getBomTemplateUnits()->getUnitType(Utf8::toWide(token));
}
}
