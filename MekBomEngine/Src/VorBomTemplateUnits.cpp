#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Exp/MEKUnitsCommon.h"
#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Exp/VorUnitTransform.h"
#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <utility>

namespace
{
const int kShowUnitSymbol = 0; // columns name their unit once, not in every cell

VorString plainText(double value)
{
    wchar_t text[VorNumberText::kGeneralRoom];
    return VorString(text, VorNumberText::writeGeneral(value, text));
}
}

// The numbers are those of the units' catalogue: unit, unit of input, format.
VorBomTemplateUnits::VorBomTemplateUnits()
    : m_distanceUnit(3, 3, 2),
      m_weightUnit(1009, 1009, 112),
      m_areaUnit(3003, 3, 2),
      m_angleUnit(2006, 2006, 81),
      m_weightPerDistanceUnit(4000, 4000, 2),
      m_areaPerDistanceUnit(4100, 4100, 2),
      m_densityUnit(7001, 7001, 552)
{
    MEKUnitsCommon::getUnitOfDistance(m_distanceUnit);
    MEKUnitsCommon::getUnitOfWeight(m_weightUnit);
    MEKUnitsCommon::getUnitOfArea(m_areaUnit);
    MEKUnitsCommon::getUnitOfAngle(m_angleUnit);
    MEKUnitsCommon::getUnitOfWeightPerDistance(m_weightPerDistanceUnit);
    MEKUnitsCommon::getUnitOfAreaPerDistance(m_areaPerDistanceUnit);
    MEKUnitsCommon::getUnitOfDensity(m_densityUnit);
}

void VorBomTemplateUnits::setUnits(const VorUnitsManager* pManager)
{
    m_distanceUnit = pManager->getUnit(VorUnitsTransformArray::kDistance);
    m_weightUnit = pManager->getUnit(VorUnitsTransformArray::kWeight);
    m_areaUnit = pManager->getUnit(VorUnitsTransformArray::kArea);
    m_angleUnit = pManager->getUnit(VorUnitsTransformArray::kAngle);
    m_weightPerDistanceUnit = pManager->getUnit(VorUnitsTransformArray::kWeightPerDistance);
    m_areaPerDistanceUnit = pManager->getUnit(VorUnitsTransformArray::kAreaPerDistance);
    m_densityUnit = pManager->getUnit(VorUnitsTransformArray::kDensity);
    readSettings();
}

void VorBomTemplateUnits::setDisplaySettings(int suppressLastZeros, int suppressZeroFeet, int suppressZeroInch,
                                             int showMinusBetweenFeetAndInch)
{
    m_nSuppressLastZeros = suppressLastZeros;
    m_nSuppressZeroFeet = suppressZeroFeet;
    m_nSuppressZeroInch = suppressZeroInch;
    m_feetInchSeparator = showMinusBetweenFeetAndInch != 0 ? L'-' : L' ';
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): existing clients are built against the signature
void VorBomTemplateUnits::AddTokenType(VorString token, eTokenUnitType type)
{
    bool inserted = false;
    m_tokenTypes.findOrInsert(token, type, inserted);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): as above
VorBomTemplateUnits::eTokenUnitType VorBomTemplateUnits::getUnitType(VorString token) const
{
    const auto* pNode = m_tokenTypes.find(token);
    return pNode != nullptr ? pNode->value : kNoUnit;
}

VorString VorBomTemplateUnits::getDisplayString(VorString token, double value) const
{
    return getDisplayString(getUnitType(std::move(token)), value);
}

VorString VorBomTemplateUnits::getDisplayString(eTokenUnitType type, double value) const
{
    if (type == kNoUnit)
        return plainText(value);
    const MEKUnit* pUnit = unitOfType(type);
    return pUnit != nullptr ? formatIn(*pUnit, value) : VorString();
}

void VorBomTemplateUnits::readSettings()
{
    int suppressLastZeros = m_nSuppressLastZeros;
    int suppressZeroFeet = m_nSuppressZeroFeet;
    int suppressZeroInch = m_nSuppressZeroInch;
    int showMinus = 0;
    vor_odbc_getDefault(L"C0_BOMSuppressLastZeros", suppressLastZeros);
    vor_odbc_getDefault(L"C40_SuppressZeroFeet", suppressZeroFeet);
    vor_odbc_getDefault(L"C40_SuppressZeroInch", suppressZeroInch);
    vor_odbc_getDefault(L"C40_ShowMinusBetweenFeetAndInch", showMinus);
    setDisplaySettings(suppressLastZeros, suppressZeroFeet, suppressZeroInch, showMinus);
}

// Null for a type that has no unit.
const MEKUnit* VorBomTemplateUnits::unitOfType(eTokenUnitType type) const
{
    switch (type)
    {
        case kDistanceUnit: return &m_distanceUnit;
        case kWeightUnit: return &m_weightUnit;
        case kAreaUnit: return &m_areaUnit;
        case kAngleUnit: return &m_angleUnit;
        case kWeightPerDistanceUnit: return &m_weightPerDistanceUnit;
        case kAreaPerDistanceUnit: return &m_areaPerDistanceUnit;
        case kDensityUnit: return &m_densityUnit;
        default: return nullptr;
    }
}

VorString VorBomTemplateUnits::formatIn(const MEKUnit& unit, double value) const
{
    return unit.getVorUnitTransform().formatValue(value, m_nSuppressLastZeros, kShowUnitSymbol, m_nSuppressZeroFeet,
                                                  m_nSuppressZeroInch, m_feetInchSeparator);
}
