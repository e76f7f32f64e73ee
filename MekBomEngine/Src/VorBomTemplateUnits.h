// What kind of quantity each token of a template shows, in which unit, and how numbers become display text.
//
//   VorBomTemplateUnits units;                                          // the current units
//   units.AddTokenType(L"%Weight", VorBomTemplateUnits::kWeightUnit);
//   units.getDisplayString(L"%Weight", 12.5)   ->  "12.5", in the weight unit
//   units.getDisplayString(L"%PosNum", 3.0)    ->  "3": no unit is known for it
//
// Values are in the model's internal units: millimetre, kilogram, radian and what follows from them. Tokens are
// compared exactly, case included. Copies are independent.
//
// Nothing here fails or reports: a token that nobody registered is shown without unit, and a type that means nothing
// as empty text. One object is for one thread at a time; evaluations that run at once have one each, as templates do.
// The evaluation of a report registers the formulas that it shows, so an object that served one knows more tokens than
// before.
#pragma once

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"
#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <array>

class MEK_BOM_API VorBomTemplateUnits
{
public:
    // The numbers are part of the contract: template files carry them.
    enum eTokenUnitType : int
    {
        kNoUnit = 0, // shown with "%g", or with the decimals that are set
        kDistanceUnit = 1,
        kWeightUnit = 2,
        kAreaUnit = 3,
        kAngleUnit = 4,
        kWeightPerDistanceUnit = 5,
        kAreaPerDistanceUnit = 6,
        kReservedUnitType = 7, // shown as empty text
        kDensityUnit = 8
    };

    // The type whose numbers are shown in the unit of that kind of quantity; kNoUnit for a number that is no kind.
    //   VorBomTemplateUnits::unitTypeOf(VorUnitsTransformArray::kAngle)   ->  kAngleUnit
    static eTokenUnitType unitTypeOf(VorUnitsTransformArray::eSystems system);

    // No token registered; the units that MEKUnitsCommon has as current ones; trailing zeros, zero feet and zero inches
    // suppressed; a blank between feet and inches.
    VorBomTemplateUnits();

    VorBomTemplateUnits(const VorBomTemplateUnits& other) = default;
    VorBomTemplateUnits& operator=(const VorBomTemplateUnits& other) = default;
    virtual ~VorBomTemplateUnits() = default;

    // Takes the units of `pManager`, not null, and reads the display settings from the repository. Settings that are
    // missing there stay as they are, except that the separator is a minus sign only if it says so.
    //   "C0_BOMSuppressLastZeros"           1 drops trailing zeros of decimals
    //   "C40_SuppressZeroFeet"              1 shows 0'-6" as 6"
    //   "C40_SuppressZeroInch"              1 shows 7'-0" as 7'
    //   "C40_ShowMinusBetweenFeetAndInch"   nonzero shows 7'-6", 0 shows 7' 6"
    // The units are copied: the manager is not owned and may change or go afterwards. Texts that were shown before
    // stay what they are; what is shown from now on is in the new units. Registered tokens keep their types.
    void setUnits(const VorUnitsManager* pManager);

    // Replaces the display settings, for a report that has its own: what the repository holds counts no more, until
    // setUnits() reads it again. The numbers are those of the settings above, in the same order.
    //   const VorUnitsManager imperial = VorUnitsManager::imperial();
    //   VorBomTemplateUnits units;
    //   units.setUnits(&imperial);
    //   units.setDisplaySettings(1, 1, 0, 1);
    //   units.getDisplayString(VorBomTemplateUnits::kDistanceUnit, 2133.6)   ->  "7'-0\""
    void setDisplaySettings(int suppressLastZeros, int suppressZeroFeet, int suppressZeroInch,
                            int showMinusBetweenFeetAndInch);

    // Registers `token`. The first registration wins: a token that has a type keeps it.
    // That holds for kNoUnit, too: registered as having no unit, a token never gets one, not even a formula from its
    // tokens. The type is stored as given, also one that is none of the nine, which is shown as empty text then.
    //   VorBomTemplateUnits units;
    //   units.AddTokenType(L"%Length", VorBomTemplateUnits::kDistanceUnit);
    //   units.AddTokenType(L"%Length", VorBomTemplateUnits::kWeightUnit);
    //   units.getUnitType(L"%Length")   ->  kDistanceUnit
    void AddTokenType(VorString token, eTokenUnitType type);

    // The registered type; kNoUnit for a token that is not registered. Tokens are looked up as they are: that "%Weight"
    // is registered says nothing of "%SumBy:%Weight".
    eTokenUnitType getUnitType(VorString token) const;

    // How many decimals numbers without a unit have, from 0 to 100; kSignificantDigits for six significant digits, as
    // "%g" has them: what holds until somebody sets something else. Zeros at the end stay, whatever the settings say,
    // and what is rounded to nothing is no "-0.00". For all tokens, or for one; "%SumBy:" and formulas take those of
    // the (first) token in them that has its own. Tokens that have a unit are not concerned. Not to be called while a
    // report is evaluated.
    //   VorBomTemplateUnits units;
    //   units.getDisplayString(L"%Price", 17214000.0)   ->  "1.7214e+07"
    //   units.setDecimals(L"%Price", 2);
    //   units.getDisplayString(L"%Price", 17214000.0)   ->  "17214000.00"
    static constexpr int kSignificantDigits = -1;
    void setDecimals(int decimals);
    void setDecimals(const VorString& token, int decimals);
    // Of a token, kSignificantDigits included; without one those for all tokens that have none of their own.
    int decimalsOf(const VorString& token) const;
    int decimals() const { return m_nDecimals; }
    // Whether decimals were set for this very token.
    bool hasDecimals(const VorString& token) const { return m_decimals.find(token) != nullptr; }

    // The text of a number without a unit, as a token with that many decimals shows it.
    static VorString plainText(double value, int decimals);

    // How many tokens are registered. What getUnitType() answers for a token can change only together with this number,
    // and only from kNoUnit: a type, once registered, stays for good.
    int numTokenTypes() const { return m_tokenTypes.count(); }

    // The text that a report shows for `value`, a number in internal units: in the unit of the token's kind; as "%g"
    // prints it, or with the decimals that are set, for a token without unit.
    // On purpose: kReservedUnitType, and any type that is none of the nine, gives empty text.
    // Pinned by VorBomTemplateUnitsTest.ReservedAndUnknownTypesShowNothing.
    // How many decimals there are is the unit's format; the settings only drop zeros and shape feet and inches.
    VorString getDisplayString(VorString token, double value) const;
    VorString getDisplayString(eTokenUnitType type, double value) const; // for every token of that type

private:
    void readSettings();
    const MEKUnit* unitOfType(eTokenUnitType type) const;
    VorString formatIn(const MEKUnit& unit, double value) const;

    VorStringHashMap<eTokenUnitType> m_tokenTypes;
    VorStringHashMap<int> m_decimals; // of tokens that have their own
    int m_nDecimals = kSignificantDigits;
    std::array<MEKUnit, VorUnitsTransformArray::kNumSystems> m_units; // in the order of kSystems
    int m_nSuppressLastZeros = 1;
    int m_nSuppressZeroFeet = 1;
    int m_nSuppressZeroInch = 1;
    wchar_t m_feetInchSeparator = L' '; // blank or '-'
};
