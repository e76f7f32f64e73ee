#include "TokenQuantities.h"

#include "Utf8.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"
#include "VorBomTemplate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// The symbol over a column that shows these tokens, in imperial units; empty without a common kind. The one row of the
// data has a whole number %Count, a number %Cut and a text %Mark, which no catalogue knows.
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
    const TokenQuantities quantities(*report.getBomData(), units, imperial);
    const UnitKind* const pKind = quantities.commonKindOf(tokens);
    return pKind == nullptr ? std::string() : quantities.symbolOf(*pKind);
}
}

TEST(TokenQuantitiesTest, NumbersAreInTheUnitOfTheirToken)
{
    EXPECT_EQ("ft-in", symbolOver({ L"%Length" }));
    EXPECT_EQ("lb", symbolOver({ L"%Weight" }));
    EXPECT_EQ("ft²", symbolOver({ L"%Paint" }));
    EXPECT_EQ("lb/ft³", symbolOver({ L"%Density" }));
    EXPECT_EQ("lb", symbolOver({ L"%Cut" }));
}

TEST(TokenQuantitiesTest, TotalsAndFormulasHaveTheUnitOfWhatTheyAreMadeOf)
{
    EXPECT_EQ("lb", symbolOver({ L"%SumBy:%Weight" }));
    EXPECT_EQ("ft-in", symbolOver({ L"%Formula:2*%Quantity*%Length" }));
    EXPECT_EQ("lb", symbolOver({ L"%SumBy:%Formula:%Weight*2" }));
    EXPECT_EQ("", symbolOver({ L"%Formula:%Quantity*2" }));
    EXPECT_EQ("", symbolOver({ L"%Formula:%Length/9" })); // the template took its unit away
}

TEST(TokenQuantitiesTest, WholeNumbersTextsAndNumbersWithoutUnitHaveNone)
{
    for (const wchar_t* const token : { L"%Count", L"%Mark", L"%Quantity", L"%Name", L"%Width", L"%Thick", L"%Never" })
        EXPECT_EQ("", symbolOver({ token })) << VorString(token).length();
    EXPECT_EQ("", symbolOver({}));
}

TEST(TokenQuantitiesTest, AColumnOfSeveralUnitsNamesNone)
{
    EXPECT_EQ("lb", symbolOver({ L"%Weight", L"%SumBy:%Weight", L"%Name" }));
    EXPECT_EQ("", symbolOver({ L"%Weight", L"%Length" }));
    EXPECT_EQ("", symbolOver({ L"%Name", L"%Weight" }));
}

TEST(TokenQuantitiesTest, ATotalIsOfWhatItSums)
{
    EXPECT_TRUE(TokenQuantities::datumOf(L"%SumBy:%Weight") == VorString(L"%Weight"));
    EXPECT_TRUE(TokenQuantities::datumOf(L"%Weight") == VorString(L"%Weight"));
    EXPECT_TRUE(TokenQuantities::datumOf(L"%SumBy:%Formula:%A*2") == VorString(L"%Formula:%A*2"));
}

TEST(TokenQuantitiesTest, TypesAreThoseOfTheCatalogueOrTheFirstRowWithTheDatum)
{
    struct TypeCase
    {
        const wchar_t* token;
        VorBomDataValue::eBomDataValueType type;
        bool isNumeric;
    };
    const TypeCase kTypes[] = {
        { L"%Weight", VorBomDataValue::kDoubleData, true },
        { L"%Quantity", VorBomDataValue::kIntData, true },
        { L"%Name", VorBomDataValue::kStringData, false },
        { L"%Formula:%Any", VorBomDataValue::kDoubleData, true },
        { L"%SumBy:%Cut", VorBomDataValue::kDoubleData, true },
        { L"%Never", VorBomDataValue::kUnknownData, false },
    };
    VorBomTemplate report;
    report.getBomData()->addChild(new VorBomDataRow()); // lacks the datum
    auto* const pRow = new VorBomDataRow();
    pRow->addData(VorBomDataTuple(L"%Cut", 1.5));
    report.getBomData()->addChild(pRow);
    const VorUnitsManager metric;
    const TokenQuantities quantities(*report.getBomData(), *report.getBomTemplateUnits(), metric);

    for (const TypeCase& test : kTypes)
    {
        EXPECT_EQ(test.type, quantities.typeOf(test.token)) << Utf8::toBytes(test.token);
        EXPECT_EQ(test.isNumeric, quantities.isNumeric(test.token)) << Utf8::toBytes(test.token);
    }
}
}
