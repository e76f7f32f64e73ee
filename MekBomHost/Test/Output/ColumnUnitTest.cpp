#include "ColumnUnit.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"
#include "VorBomTemplate.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
// The symbol over a column that shows these tokens, in imperial units. The one row of the data has a whole number %Count,
// a number %Cut and a text %Mark, which no catalogue knows.
std::string symbolOver(const std::vector<VorString>& tokens)
{
    VorBomTemplate report;
    auto* const pRow = new VorBomDataRow();
    pRow->addData(VorBomDataTuple(L"%Count", 4));
    pRow->addData(VorBomDataTuple(L"%Cut", 1.5));
    pRow->addData(VorBomDataTuple(L"%Mark", VorString(L"B1")));
    report.getBomData()->addChild(pRow);
    VorBomTemplateUnits& units = *report.getBomTemplateUnits();
    for (const wchar_t* const token : { L"%Count", L"%Cut", L"%Mark" })
        units.AddTokenType(token, VorBomTemplateUnits::kWeightUnit);
    units.AddTokenType(L"%Width", VorBomTemplateUnits::kNoUnit);
    units.AddTokenType(L"%Thick", VorBomTemplateUnits::kReservedUnitType);
    units.AddTokenType(L"%Length/9", VorBomTemplateUnits::kNoUnit);
    report.setUnitsForTokens(nullptr);
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    return ColumnUnit(*report.getBomData(), units, imperial).symbolOf(tokens);
}
}

TEST(ColumnUnitTest, NumbersAreInTheUnitOfTheirToken)
{
    EXPECT_EQ("ft-in", symbolOver({ L"%Length" }));
    EXPECT_EQ("lb", symbolOver({ L"%Weight" }));
    EXPECT_EQ("ft²", symbolOver({ L"%Paint" }));
    EXPECT_EQ("lb/ft³", symbolOver({ L"%Density" }));
    EXPECT_EQ("lb", symbolOver({ L"%Cut" }));
}

TEST(ColumnUnitTest, TotalsAndFormulasHaveTheUnitOfWhatTheyAreMadeOf)
{
    EXPECT_EQ("lb", symbolOver({ L"%SumBy:%Weight" }));
    EXPECT_EQ("ft-in", symbolOver({ L"%Formula:2*%Quantity*%Length" }));
    EXPECT_EQ("lb", symbolOver({ L"%SumBy:%Formula:%Weight*2" }));
    EXPECT_EQ("", symbolOver({ L"%Formula:%Quantity*2" }));
    EXPECT_EQ("", symbolOver({ L"%Formula:%Length/9" })); // the template took its unit away
}

TEST(ColumnUnitTest, WholeNumbersTextsAndNumbersWithoutUnitHaveNone)
{
    for (const wchar_t* const token : { L"%Count", L"%Mark", L"%Quantity", L"%Name", L"%Width", L"%Thick", L"%Never" })
        EXPECT_EQ("", symbolOver({ token })) << VorString(token).length();
    EXPECT_EQ("", symbolOver({}));
}

TEST(ColumnUnitTest, AColumnOfSeveralUnitsNamesNone)
{
    EXPECT_EQ("lb", symbolOver({ L"%Weight", L"%SumBy:%Weight", L"%Name" }));
    EXPECT_EQ("", symbolOver({ L"%Weight", L"%Length" }));
    EXPECT_EQ("", symbolOver({ L"%Name", L"%Weight" }));
}

TEST(ColumnUnitTest, HeadingsNameTheirUnitOnce)
{
    EXPECT_EQ("Length [mm]", ColumnUnit::headingOf("Length", "mm"));
    EXPECT_EQ("Length", ColumnUnit::headingOf("Length", ""));
    EXPECT_EQ("Length [metres]", ColumnUnit::headingOf("Length [metres]", "mm"));
    EXPECT_EQ("mm", ColumnUnit::headingOf("mm", "mm"));
    EXPECT_EQ("mm [ft-in]", ColumnUnit::headingOf("mm", "ft-in"));
}
}
