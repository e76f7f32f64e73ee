#include "QuantityNumber.h"

#include "Utf8.h"

#include "MekUnits/Src/VorUnitNotation.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
QuantityNumber numberIn(const wchar_t* unit, bool hasThousands, bool hasSymbol,
                        const DisplaySettings& settings = DisplaySettings())
{
    MEKUnit found(3, 3, 1);
    EXPECT_EQ(1, VorUnitNotation::read(unit, found));
    return QuantityNumber(found, settings, hasThousands, hasSymbol);
}
}

TEST(QuantityNumberTest, NumbersAreShownInTheUnit)
{
    EXPECT_EQ("12.35", Utf8::toBytes(numberIn(L"m/2", false, false).textOf(12345.0)));
    EXPECT_EQ("12", Utf8::toBytes(numberIn(L"m/2", false, false).textOf(12000)));
    EXPECT_EQ("12.35 m", Utf8::toBytes(numberIn(L"m/2", false, true).textOf(12345.0)));
}

TEST(QuantityNumberTest, ThousandsAreGroupedOnRequest)
{
    EXPECT_EQ("1 234 567.8", Utf8::toBytes(numberIn(L"mm/1", true, false).textOf(1234567.8)));
    EXPECT_EQ("1 200'", Utf8::toBytes(numberIn(L"ft-in/16", true, false).textOf(1200 * 304.8)));
}

TEST(QuantityNumberTest, DisplaySettingsHold)
{
    DisplaySettings settings;
    settings.suppressLastZeros = 0;
    settings.suppressZeroInch = 0;
    settings.showMinusBetweenFeetAndInch = 1;

    EXPECT_EQ("12.00", Utf8::toBytes(numberIn(L"m/2", false, false, settings).textOf(12000.0)));
    EXPECT_EQ("7'-0\"", Utf8::toBytes(numberIn(L"ft-in/16", false, false, settings).textOf(7 * 304.8)));
}
}
