// Kinds of quantity are numbered three ways: by eTokenUnitType, which template files carry; by eSystems, which units
// managers are asked by; and by their places in VorUnitsTransformArray::kSystems, where the units stand here.
//
//   areas     type kAreaUnit, 3     system kArea, 4      unit m_units[3]
//   angles    type kAngleUnit, 4    system kAngle, 1     unit m_units[1]
//
// One table below leads from types to places; from there kSystems leads to systems.
#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Exp/MEKUnitsCommon.h"
#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Exp/VorUnitTransform.h"
#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace
{
using Systems = VorUnitsTransformArray;

constexpr std::size_t indexOf(Systems::eSystems system)
{
    return static_cast<std::size_t>(Systems::indexOf(system));
}

// For each eTokenUnitType, by its number, which of the units its numbers are shown in.
constexpr std::size_t kNone = Systems::kNumSystems;
constexpr std::size_t kUnitOfType[] = {
    kNone, // kNoUnit
    indexOf(Systems::kDistance),
    indexOf(Systems::kWeight),
    indexOf(Systems::kArea),
    indexOf(Systems::kAngle),
    indexOf(Systems::kWeightPerDistance),
    indexOf(Systems::kAreaPerDistance),
    kNone, // kReservedUnitType
    indexOf(Systems::kDensity),
};
static_assert(std::size(kUnitOfType) == VorBomTemplateUnits::kDensityUnit + 1, "one entry for each type");

const int kShowUnitSymbol = 0; // columns name their unit once, not in every cell

bool isZero(wchar_t character)
{
    return character == L'-' || character == L'0' || character == L'.';
}

int clamped(int decimals)
{
    return decimals < 0 ? VorBomTemplateUnits::kSignificantDigits : std::min(decimals, VorNumberText::kMostDecimals);
}
}

// The numbers are those of the units' catalogue: unit, unit of input, format. They stand until the current units come.
VorBomTemplateUnits::VorBomTemplateUnits()
    : m_units{ MEKUnit(3, 3, 2),       MEKUnit(2006, 2006, 81), MEKUnit(1009, 1009, 112), MEKUnit(3003, 3, 2),
               MEKUnit(4000, 4000, 2), MEKUnit(4100, 4100, 2),  MEKUnit(7001, 7001, 552) }
{
    MEKUnitsCommon::getUnitOfDistance(m_units[indexOf(Systems::kDistance)]);
    MEKUnitsCommon::getUnitOfWeight(m_units[indexOf(Systems::kWeight)]);
    MEKUnitsCommon::getUnitOfArea(m_units[indexOf(Systems::kArea)]);
    MEKUnitsCommon::getUnitOfAngle(m_units[indexOf(Systems::kAngle)]);
    MEKUnitsCommon::getUnitOfWeightPerDistance(m_units[indexOf(Systems::kWeightPerDistance)]);
    MEKUnitsCommon::getUnitOfAreaPerDistance(m_units[indexOf(Systems::kAreaPerDistance)]);
    MEKUnitsCommon::getUnitOfDensity(m_units[indexOf(Systems::kDensity)]);
}

// The table the other way round. It is so short that a second one would only be a second thing to keep right.
VorBomTemplateUnits::eTokenUnitType VorBomTemplateUnits::unitTypeOf(VorUnitsTransformArray::eSystems system)
{
    for (std::size_t type = 0; type < std::size(kUnitOfType); ++type)
        if (kUnitOfType[type] != kNone && Systems::kSystems[kUnitOfType[type]] == system)
            return static_cast<eTokenUnitType>(type);
    return kNoUnit;
}

void VorBomTemplateUnits::setUnits(const VorUnitsManager* pManager)
{
    for (const std::size_t unit : kUnitOfType) // as managers have always been asked: distance, weight, area ...
        if (unit != kNone)
            m_units[unit] = pManager->getUnit(Systems::kSystems[unit]);
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

// NOLINTNEXTLINE(performance-unnecessary-value-param): as above
VorString VorBomTemplateUnits::getDisplayString(VorString token, double value) const
{
    const eTokenUnitType type = getUnitType(token);
    return type == kNoUnit ? plainText(value, decimalsOf(token)) : getDisplayString(type, value);
}

VorString VorBomTemplateUnits::getDisplayString(eTokenUnitType type, double value) const
{
    if (type == kNoUnit)
        return plainText(value, m_nDecimals);
    const MEKUnit* pUnit = unitOfType(type);
    return pUnit != nullptr ? formatIn(*pUnit, value) : VorString();
}

void VorBomTemplateUnits::setDecimals(int decimals)
{
    m_nDecimals = clamped(decimals);
}

void VorBomTemplateUnits::setDecimals(const VorString& token, int decimals)
{
    bool inserted = false;
    m_decimals.findOrInsert(token, 0, inserted)->value = clamped(decimals);
}

int VorBomTemplateUnits::decimalsOf(const VorString& token) const
{
    const auto* pNode = m_decimals.find(token);
    return pNode != nullptr ? pNode->value : m_nDecimals;
}

VorString VorBomTemplateUnits::plainText(double value, int decimals)
{
    wchar_t text[VorNumberText::fixedRoom(VorNumberText::kMostDecimals)];
    if (decimals == kSignificantDigits)
        return VorString(text, VorNumberText::writeGeneral(value, text));
    const int length = VorNumberText::writeFixed(value, clamped(decimals), text);
    const bool isMinusZero = text[0] == L'-' && std::all_of(text, text + length, isZero);
    return isMinusZero ? VorString(text + 1, length - 1) : VorString(text, length);
}

// A setting that the repository lacks leaves its variable as it is. The three for zeros begin with what holds now, the
// minus with 0: where nothing is said about it, a blank stands between feet and inches.
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
    const auto number = static_cast<std::size_t>(type); // a negative one becomes one too large
    if (number >= std::size(kUnitOfType) || kUnitOfType[number] == kNone)
        return nullptr;
    return &m_units[kUnitOfType[number]];
}

VorString VorBomTemplateUnits::formatIn(const MEKUnit& unit, double value) const
{
    return unit.getVorUnitTransform().formatValue(value, m_nSuppressLastZeros, kShowUnitSymbol, m_nSuppressZeroFeet,
                                                  m_nSuppressZeroInch, m_feetInchSeparator);
}
