// Most values are nowhere near the middle between two texts, and one multiplication tells to which they round
// (roundQuickly). Only the others are converted and rounded on their decimal digits. Both ways agree: the quick one
// declines wherever the exact one could decide otherwise.
//
//   0.79375 mm in feet and inches to 1/16"
//     quickly   0.79375 * (16/25.4) = 0.49999999999999994   too close to call
//     exactly   0.79375 * 10/254 = 0.03125 in, or 0.5 sixteenths; half away from zero: 1/16"
#include "MekRoots/Exp/VorUnitTransform.h"

#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorPowersOfTen.h"
#include "VorDecimalNumber.h"
#include "VorQuantityText.h"
#include "VorUnitCatalogue.h"
#include "VorUnitFormat.h"

#include <algorithm>
#include <cmath>

namespace
{
const wchar_t kSourcePath[] = L"MekUnits/Src/VorUnitTransform"; // named in assertion reports

// Shown for a number that is not in the catalogue.
const VorUnitDefinition kModelUnit = {
    0, VorUnitsTransformArray::kDistance, VorUnitDefinition::kPlainNumber, L"", L"", L"", 0, 1, 1, L""
};

const int kInchesPerFoot = 12;
const int kSecondsPerMinute = 60;
const int kMinutesPerDegree = 60;
const wchar_t kFootMark = L'\'';
const wchar_t kInchMark = L'"';
const wchar_t kDegreeSign = L'\u00B0';
const wchar_t kMinuteMark = L'\'';
const wchar_t kSecondMark = L'"'; // the last mark of either layout; huge values are seconds or inches alone

// How far a product of a value and m_dPartsPerInternalUnit, relative to its size, can stand from the decimal number
// that is shown: 6 roundings of half a unit in the last place, 7e-16 in all, with some room.
const double kProductTolerance = 4e-15;

// Products from here on have no tolerance below a half left.
const double kQuickLimit = 0.5 / kProductTolerance;

// Digits that survive a conversion there and back.
const int kReadDigits = 15;

const VorUnitDefinition& unitOrModelUnit(int unit)
{
    const VorUnitDefinition* pUnit = VorUnitCatalogue::findUnit(unit);
    if (pUnit != nullptr)
        return *pUnit;
    VorAssert::vorAssert(L"isUnit( unit )", kSourcePath, __LINE__);
    return kModelUnit;
}

// -1 for a fraction.
int decimalsOf(int format)
{
    return VorUnitFormat::isFraction(format) ? -1 : VorUnitFormat::decimalsOf(format);
}

// Format 2 is hundred parts, 1016 is sixteen.
unsigned int partsOf(int format)
{
    if (VorUnitFormat::isFraction(format))
        return static_cast<unsigned int>(VorUnitFormat::denominatorOf(format));
    return VorPowersOfTen::kAll<unsigned int>[static_cast<std::size_t>(VorUnitFormat::decimalsOf(format))];
}

// Whole numbers up to this are exact doubles, as is then every product and sum of them up to this.
constexpr std::uint64_t kLargestExact = std::uint64_t{ 1 } << 53;

// Sets `scaled` to what scaleExactly says of `size`, a value without its sign; 0 with `scaled` untouched when `size`
// has more than three decimals or one of the numbers is too large to be sure. A double next to a number of at most 15
// digits is shown as that very number, here as thousandths / 1000; what it becomes is then one quotient of two exact
// doubles.
int scaleQuickly(double size, std::uint64_t numerator, std::uint64_t denominator, double& scaled)
{
    constexpr double kMostThousandths = 1e15;
    const double nearThousandths = size * 1000;
    if (!(nearThousandths < kMostThousandths))
        return 0;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): a wrong one is found out below
    const auto thousandths = static_cast<double>(static_cast<std::int64_t>(nearThousandths + 0.5));
    const double dividend = thousandths * static_cast<double>(static_cast<std::int64_t>(numerator));
    const double divisor = 1000 * static_cast<double>(static_cast<std::int64_t>(denominator));
    const auto largest = static_cast<double>(kLargestExact);
    if (thousandths / 1000 != size || dividend > largest || divisor > largest)
        return 0;
    scaled = dividend / divisor;
    return 1;
}

// |value| * numerator / denominator on the decimal digits, with the sign of `value`.
double scaleExactly(double value, std::uint64_t numerator, std::uint64_t denominator)
{
    if (numerator == denominator || value == 0 || !std::isfinite(value))
        return value;
    double scaled = 0;
    if (scaleQuickly(std::fabs(value), numerator, denominator, scaled) == 0)
    {
        VorDecimalNumber number(value);
        number.multiply(numerator);
        number.divide(denominator);
        scaled = number.toDouble();
    }
    return std::copysign(scaled, value);
}

double roundToReadDigits(double value)
{
    VorDecimalNumber number(value);
    number.roundToDigits(kReadDigits);
    return std::copysign(number.toDouble(), value);
}

// Whether (below + 1/2) / numParts has a decimal text that ends, as the half of a third has not. True of all decimals,
// and of fractions like 1/16.
bool isDecimal(unsigned int numParts)
{
    constexpr unsigned int kTwosAndFives = 1000000000; // of each as many as any number of parts can have
    return kTwosAndFives % numParts == 0;
}

// Whether `size`, a value without its sign, is the double of (below + 1/2) / numParts of the unit: it is shown as that
// very number then, which has few digits. One division of two exact numbers tells; no when they could be inexact.
bool isHalfway(double size, std::uint64_t below, unsigned int numParts, const VorUnitDefinition& unit)
{
    constexpr std::uint64_t kMostHalves = 50000000; // with 2 * 256 parts, 14 digits at most
    const std::uint64_t numHalves = 2 * below + 1;
    const std::uint64_t halvesPerUnit = std::uint64_t{ 2 } * numParts;
    if (numHalves > kMostHalves || unit.numerator > kLargestExact / numHalves ||
        unit.denominator > kLargestExact / halvesPerUnit || !isDecimal(numParts))
        return false;
    return size ==
           static_cast<double>(numHalves * unit.numerator) / static_cast<double>(halvesPerUnit * unit.denominator);
}

// Rounds `product`, the parts of a value without its sign; 0 with `parts` untouched when it is close to the middle
// between two parts, or too large to tell, infinite or undefined. The first comparison is written so that a NaN fails
// it.
int roundFarFromMiddle(double product, std::uint64_t& parts)
{
    if (!(product < kQuickLimit))
        return 0;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): a wrong one is too far from the product
    const auto nearest = static_cast<std::int64_t>(product + 0.5);
    if (std::fabs(product - static_cast<double>(nearest)) + product * kProductTolerance >= 0.5)
        return 0;
    parts = static_cast<std::uint64_t>(nearest);
    return 1;
}

// Rounds `size`, a value without its sign, to the parts that are shown, of which it has `product`; 0 with `parts`
// untouched when it is too close to the middle between two parts, too large to be sure, infinite or undefined.
int roundQuickly(double size, double product, unsigned int numParts, const VorUnitDefinition& unit,
                 std::uint64_t& parts)
{
    if (roundFarFromMiddle(product, parts))
        return 1;
    if (!(product < kQuickLimit))
        return 0;
    const auto below = static_cast<std::uint64_t>(product);
    if (!isHalfway(size, below, numParts, unit))
        return 0;
    parts = below + 1; // half away from zero
    return 1;
}

VorString wordFor(double value)
{
    if (std::isnan(value))
        return VorString(L"nan");
    return VorString(value < 0 ? L"-inf" : L"inf");
}

// How formatValue was asked to lay out a number.
struct Layout
{
    VorUnitDefinition::eLayout layout;
    int numDecimals; // -1 for fractions
    unsigned int numParts;
    int suppressLastZeros;
    int suppressZeroFeet;
    int suppressZeroInch;
    wchar_t feetInchSeparator;
};

// "0", "3.41", "3 5/16", "3". Without `showZeroWhole` a fraction stands alone: "5/16".
void addNumber(VorQuantityText& text, const VorRoundedNumber& number, const Layout& layout, bool showZeroWhole)
{
    if (layout.numDecimals >= 0)
    {
        text.addInteger(number.whole);
        text.addDecimals(number.part, layout.numDecimals, layout.suppressLastZeros);
        return;
    }
    const bool showsWhole = number.whole > 0 || number.part == 0 || showZeroWhole;
    if (showsWhole)
        text.addInteger(number.whole);
    if (number.part == 0)
        return;
    if (showsWhole)
        text.addCharacter(L' ');
    text.addFraction(number.part, layout.numParts);
}

// Inches show wherever feet do not, so that zero is 0" and never nothing. Behind feet a fraction alone has its zero in
// front: 7'-0 1/2".
void addFeetAndInches(VorQuantityText& text, const VorRoundedNumber& number, const Layout& layout)
{
    const std::uint64_t feet = number.whole / kInchesPerFoot;
    VorRoundedNumber inches = number;
    inches.whole = number.whole % kInchesPerFoot;

    const bool showsFeet = feet > 0 || layout.suppressZeroFeet == 0;
    const bool showsInches = !inches.isZero() || layout.suppressZeroInch == 0 || !showsFeet;
    if (showsFeet)
    {
        text.addInteger(feet);
        text.addCharacter(kFootMark);
    }
    if (showsFeet && showsInches && layout.feetInchSeparator != 0)
        text.addCharacter(layout.feetInchSeparator);
    if (showsInches)
    {
        addNumber(text, inches, layout, showsFeet);
        text.addCharacter(kInchMark);
    }
}

// Seconds of zero, and then minutes of zero, are the last zeros of an angle.
void addDegreesAndMinutes(VorQuantityText& text, const VorRoundedNumber& number, const Layout& layout)
{
    const std::uint64_t minutes = number.whole / kSecondsPerMinute;
    VorRoundedNumber seconds = number;
    seconds.whole = number.whole % kSecondsPerMinute;

    const bool showsSeconds = !seconds.isZero() || layout.suppressLastZeros == 0;
    const bool showsMinutes = showsSeconds || minutes % kMinutesPerDegree != 0;
    text.addInteger(minutes / kMinutesPerDegree);
    text.addCharacter(kDegreeSign);
    if (showsMinutes)
    {
        text.addInteger(minutes % kMinutesPerDegree);
        text.addCharacter(kMinuteMark);
    }
    if (showsSeconds)
    {
        addNumber(text, seconds, layout, true);
        text.addCharacter(kSecondMark);
    }
}

void addRounded(VorQuantityText& text, const VorRoundedNumber& number, const Layout& layout)
{
    switch (layout.layout)
    {
        case VorUnitDefinition::kPlainNumber: addNumber(text, number, layout, false); break;
        case VorUnitDefinition::kFeetAndInches: addFeetAndInches(text, number, layout); break;
        case VorUnitDefinition::kDegreesAndMinutes: addDegreesAndMinutes(text, number, layout); break;
    }
}

void addHuge(VorQuantityText& text, double shown, const Layout& layout)
{
    text.addWithExponent(VorDecimalNumber(shown));
    if (layout.layout != VorUnitDefinition::kPlainNumber)
        text.addCharacter(kSecondMark);
}
}

VorUnitTransform::VorUnitTransform(int unit, int format)
    : m_pUnit(&unitOrModelUnit(unit)),
      m_nDecimals(decimalsOf(format)),
      m_nParts(partsOf(format)),
      m_dPartsPerInternalUnit(static_cast<double>(m_pUnit->denominator) / static_cast<double>(m_pUnit->numerator) *
                              m_nParts)
{
}

// The other conversion is called by its full name, here as in formatInPieces: a derived class that overrides one of
// them changes neither the other nor the texts.
double VorUnitTransform::toDisplayUnits(double internalValue) const
{
    const double quotient = scaleExactly(internalValue, m_pUnit->denominator, m_pUnit->numerator);
    if (m_pUnit->numerator == m_pUnit->denominator || !std::isfinite(quotient))
        return quotient;
    const double asRead = roundToReadDigits(quotient);
    return VorUnitTransform::toInternalUnits(asRead) == internalValue ? asRead : quotient;
}

double VorUnitTransform::toInternalUnits(double displayValue) const
{
    return scaleExactly(displayValue, m_pUnit->numerator, m_pUnit->denominator);
}

// Plain decimals that are quickly told are made here and the rest elsewhere, so that most numbers of a report do not
// pay for what others need.
VorString VorUnitTransform::formatValue(double internalValue, int suppressLastZeros, int showUnitSymbol,
                                        int suppressZeroFeet, int suppressZeroInch, wchar_t feetInchSeparator) const
{
    const bool isPlainDecimal = m_pUnit->layout == VorUnitDefinition::kPlainNumber && m_nDecimals >= 0;
    const double size = std::fabs(internalValue);
    std::uint64_t parts = 0;
    if (isPlainDecimal && showUnitSymbol == 0 &&
        roundQuickly(size, size * m_dPartsPerInternalUnit, m_nParts, *m_pUnit, parts))
        return VorQuantityText::ofDecimal(internalValue < 0 && parts > 0, parts, m_nDecimals, suppressLastZeros);
    return formatInPieces(internalValue, suppressLastZeros, showUnitSymbol, suppressZeroFeet, suppressZeroInch,
                          feetInchSeparator);
}

// Rounds as formatValue does, and on the decimal digits where that cannot tell. A number that does not fit even then
// has too many digits before its point and is shown with an exponent.
VorString VorUnitTransform::formatInPieces(double internalValue, int suppressLastZeros, int showUnitSymbol,
                                           int suppressZeroFeet, int suppressZeroInch, wchar_t feetInchSeparator) const
{
    const double size = std::fabs(internalValue);
    std::uint64_t parts = 0;
    int fits = roundQuickly(size, size * m_dPartsPerInternalUnit, m_nParts, *m_pUnit, parts);
    VorRoundedNumber number{ parts / m_nParts, parts % m_nParts };
    double shown = internalValue;
    if (fits == 0)
    {
        shown = VorUnitTransform::toDisplayUnits(internalValue);
        if (!std::isfinite(shown))
            return wordFor(shown);
        fits = VorDecimalNumber(shown).roundToParts(m_nParts, number);
    }

    const Layout layout = { m_pUnit->layout,  m_nDecimals,      m_nParts,         suppressLastZeros,
                            suppressZeroFeet, suppressZeroInch, feetInchSeparator };
    VorQuantityText text;
    if (shown < 0 && (fits == 0 || number.isZero() == 0))
        text.addCharacter(L'-');
    if (fits != 0)
        addRounded(text, number, layout);
    else
        addHuge(text, shown, layout);
    if (showUnitSymbol != 0 && layout.layout == VorUnitDefinition::kPlainNumber)
        text.addSymbol(m_pUnit->symbol);
    return text.text();
}

VorUnitsTransformArray::eSystems VorUnitTransform::system() const
{
    return m_pUnit->system;
}
