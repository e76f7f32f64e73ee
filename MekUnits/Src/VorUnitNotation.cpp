// A slash divides units as well as it stands before a precision, so a word is tried as one after the other:
//   "kg/m"        is a unit as it stands, shown as precisely as usual
//   "kg/m/2"      is none; cut at its last slash, it is kg/m and 2 decimals
//   "in/1/16"     is none either, but cut at "/1/" it is inches and 16 parts
//   "ft-in/16"    is feet and inches, which have a fraction where others have decimals
#include "VorUnitNotation.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "VorUnitDefinition.h"
#include "VorUnitFormat.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace
{
const int kMostDecimals = 9;
const std::size_t kMostDigits = 3; // of a denominator

// A word cut at a separator: what names the unit, and what says how precisely it is shown.
struct Pieces
{
    std::wstring_view symbol;
    std::wstring_view precision;
};

Pieces cutAtLast(std::wstring_view text, std::wstring_view separator)
{
    const std::size_t position = text.rfind(separator);
    if (position == std::wstring_view::npos)
        return { text, std::wstring_view() };
    return { text.substr(0, position), text.substr(position + separator.size()) };
}

// -1 for what is no number of at most kMostDigits digits.
int numberOf(std::wstring_view text)
{
    if (text.empty() || text.size() > kMostDigits)
        return -1;
    int number = 0;
    for (const wchar_t character : text)
    {
        if (!VorCharacters::isDigit(character))
            return -1;
        number = number * 10 + static_cast<int>(character - L'0');
    }
    return number;
}

// Null when there is no unit of this symbol or name.
const VorUnitDefinition* findUnit(std::wstring_view symbol)
{
    return VorUnitsTransformArray::findUnit(VorString(symbol.data(), static_cast<int>(symbol.size())));
}

// These two set `unit` and answer 1, or leave it and answer 0 when there is no unit or the number is out of range.
int setDecimals(const VorUnitDefinition* pUnit, int numDecimals, MEKUnit& unit)
{
    if (pUnit == nullptr || numDecimals < 0 || numDecimals > kMostDecimals)
        return 0;
    unit = MEKUnit(pUnit->number, pUnit->number, numDecimals);
    return 1;
}

int setFraction(const VorUnitDefinition* pUnit, int denominator, MEKUnit& unit)
{
    if (pUnit == nullptr || denominator < 1 || denominator > VorUnitFormat::kMostParts)
        return 0;
    unit = MEKUnit(pUnit->number, pUnit->number, VorUnitFormat::kFirstFraction + denominator);
    return 1;
}
}

// word := unit | unit '/' number | unit '/.' decimals | unit '/1/' denominator
int VorUnitNotation::read(const VorString& text, MEKUnit& unit)
{
    const std::wstring_view word(text.getStringW(), static_cast<std::size_t>(text.length()));
    if (const VorUnitDefinition* const pUnit = findUnit(word)) // before its own slash is taken for that of a precision
    {
        unit = MEKUnit(pUnit->number, pUnit->number, pUnit->format);
        return 1;
    }
    const Pieces decimals = cutAtLast(word, L"/.");
    if (setDecimals(findUnit(decimals.symbol), numberOf(decimals.precision), unit) == 1)
        return 1;
    const Pieces fraction = cutAtLast(word, L"/1/");
    if (setFraction(findUnit(fraction.symbol), numberOf(fraction.precision), unit) == 1)
        return 1;
    const Pieces usual = cutAtLast(word, L"/");
    const VorUnitDefinition* const pUnit = findUnit(usual.symbol);
    if (pUnit != nullptr && pUnit->layout == VorUnitDefinition::kFeetAndInches)
        return setFraction(pUnit, numberOf(usual.precision), unit);
    return setDecimals(pUnit, numberOf(usual.precision), unit);
}

// The mark of the precision is left out where read() expects that very kind of precision: a fraction for feet and
// inches, decimals for all others.
VorString VorUnitNotation::write(const MEKUnit& unit)
{
    const VorUnitDefinition* const pUnit = VorUnitsTransformArray::findUnit(unit.unit());
    if (pUnit == nullptr)
        return VorString();
    const int format = unit.format();
    const bool isFraction = VorUnitFormat::isFraction(format);
    const bool isUsual = isFraction == (pUnit->layout == VorUnitDefinition::kFeetAndInches);
    std::wstring text = pUnit->asciiSymbol;
    text += isUsual ? L"/" : isFraction ? L"/1/" : L"/.";
    text += std::to_wstring(isFraction ? VorUnitFormat::denominatorOf(format) : VorUnitFormat::decimalsOf(format));
    return VorString(text.c_str());
}
