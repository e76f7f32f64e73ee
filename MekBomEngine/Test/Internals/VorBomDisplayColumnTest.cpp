#include "VorBomDisplayColumn.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
using Units = VorBomTemplateUnits;

// Numbers of this type show as nothing, so that a look tells them from numbers without unit.
const Units::eTokenUnitType kHidden = Units::kReservedUnitType;

template <class Number>
VorString shown(VorBomDisplayColumn& column, Units& units, Number number)
{
    VorBomDataValue value(number);
    column.show(units, value);
    return value.asString();
}

class AsWord : public VorBomNumberFormat
{
public:
    VorString textOf(int value) const override { return VorString(value == 2 ? L"two" : L"other"); }
    VorString textOf(double value) const override { return VorString(value == 2.5 ? L"two and a half" : L"other"); }
};

VorString shownUnder(const wchar_t* token, Units& units, double number)
{
    VorBomDisplayColumn column((VorBomDataToken(VorString(token))));
    return shown(column, units, number);
}
}

TEST(VorBomDisplayColumnTest, PrefixesAreTakenOffOnceFromTheFront)
{
    Units units;
    units.AddTokenType(L"%Weight", kHidden);

    EXPECT_EQ(VorString(), shownUnder(L"%Weight", units, 2.5));
    EXPECT_EQ(VorString(), shownUnder(L"%SumBy:%Weight", units, 2.5));
    EXPECT_EQ(VorString(), shownUnder(L"%Formula:%Weight*2", units, 2.5));
    EXPECT_EQ(VorString(), shownUnder(L"%SumBy:%Formula:%Weight*3", units, 2.5));
    EXPECT_EQ(VorString(L"2.5"), shownUnder(L"%SumBy:%SumBy:%Weight", units, 2.5));
    EXPECT_EQ(VorString(L"2.5"), shownUnder(L"%Formula:%SumBy:%Weight*2", units, 2.5));
    EXPECT_EQ(VorString(L"2.5"), shownUnder(L"%GroupBy:%Weight", units, 2.5));
    EXPECT_EQ(VorString(L"2.5"), shownUnder(L"%weight", units, 2.5));
}

TEST(VorBomDisplayColumnTest, TypesRegisteredMeanwhileAreSeen)
{
    Units units;
    VorBomDisplayColumn column((VorBomDataToken(VorString(L"%Length*2"))));
    ASSERT_EQ(VorString(L"2.5"), shown(column, units, 2.5));

    units.AddTokenType(L"%Other", kHidden);
    EXPECT_EQ(VorString(L"2.5"), shown(column, units, 2.5));
    units.AddTokenType(L"%Length*2", kHidden);
    EXPECT_EQ(VorString(), shown(column, units, 2.5));
}

TEST(VorBomDisplayColumnTest, FormulaFindsTheTypeOfATokenRegisteredMeanwhile)
{
    Units units;
    VorBomDisplayColumn column((VorBomDataToken(VorString(L"%Formula:%Length*2"))));
    ASSERT_EQ(VorString(L"2.5"), shown(column, units, 2.5));
    ASSERT_EQ(0, units.numTokenTypes()) << "nothing to register yet";

    units.AddTokenType(L"%Length", kHidden);

    EXPECT_EQ(VorString(), shown(column, units, 2.5));
    EXPECT_EQ(kHidden, units.getUnitType(L"%Length*2"));
}

TEST(VorBomDisplayColumnTest, FormulaRegisteredWithoutAUnitStaysWithoutOne)
{
    Units units;
    units.AddTokenType(L"%Length", kHidden);
    units.AddTokenType(L"%Length*2", Units::kNoUnit);

    EXPECT_EQ(VorString(L"2.5"), shownUnder(L"%Formula:%Length*2", units, 2.5));
}

TEST(VorBomDisplayColumnTest, OnlyDoublesRegisterAFormula)
{
    Units units;
    units.AddTokenType(L"%Length", kHidden);
    VorBomDisplayColumn column((VorBomDataToken(VorString(L"%Formula:%Length*2"))));

    EXPECT_EQ(VorString(L"7"), shown(column, units, 7)) << "integers have no unit";
    EXPECT_EQ(VorString(L"7.0"), shown(column, units, VorString(L"7.0")));
    EXPECT_EQ(1, units.numTokenTypes());
    EXPECT_EQ(VorString(), shown(column, units, 7.0));
    EXPECT_EQ(2, units.numTokenTypes());
}

TEST(VorBomDisplayColumnTest, FormatOfTheHostShowsNumbersInPlaceOfTheUnits)
{
    Units units;
    units.AddTokenType(L"%Weight", kHidden);
    VorBomDisplayColumn column((VorBomDataToken(VorString(L"%Weight"))));
    const AsWord format;
    column.setFormat(&format);

    for (int time = 0; time < 2; ++time) // the second time from memory
    {
        EXPECT_EQ(VorString(L"two"), shown(column, units, 2));
        EXPECT_EQ(VorString(L"two and a half"), shown(column, units, 2.5));
    }
    EXPECT_EQ(kHidden, column.unitType());
}
