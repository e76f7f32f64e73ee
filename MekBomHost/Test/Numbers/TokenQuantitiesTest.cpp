#include "TokenQuantities.h"

#include "TemplateReader.h"
#include "Utf8.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// A template that shows formulas, the last two with a result of their own. The one row of its data has a whole number
// %Count, a number %Cut and a text %Mark, which no catalogue knows.
const char* const kTemplate = R"({
  "tokenUnits": { "%Count": "kWeightUnit", "%Cut": "kWeightUnit", "%Mark": "kWeightUnit", "%Width": "kNoUnit",
                  "%Thick": "kReservedUnitType", "%Length/9": "kNoUnit" },
  "columns": [ { "token": "%Formula:%Weight*%Price", "result": "EUR" },
               { "token": "%Formula:%Length/1000", "result": "none" } ],
  "sections": [ { "type": "kDetails", "tuples": [
    { "token": "%Formula:2*%Quantity*%Length" }, { "token": "%Formula:%Weight*2" }, { "token": "%Formula:%Quantity*2" },
    { "token": "%Formula:%Length/9" }, { "token": "%Formula:%Weight/%Length" },
    { "token": "%Formula:%Weight*%Price" }, { "token": "%Formula:%Length/1000" } ] } ] })";

class QuantitiesOfTemplate
{
public:
    QuantitiesOfTemplate() : m_template(TemplateReader::read("list.json", kTemplate))
    {
        auto* const pRow = new VorBomDataRow();
        pRow->addData(VorBomDataTuple(L"%Count", 4));
        pRow->addData(VorBomDataTuple(L"%Cut", 1.5));
        pRow->addData(VorBomDataTuple(L"%Mark", VorString(L"B1")));
        m_template.pTemplate->getBomData()->addChild(new VorBomDataRow()); // lacks everything
        m_template.pTemplate->getBomData()->addChild(pRow);
        m_template.pTemplate->setUnitsForTokens(nullptr);
        m_pFormulas = std::make_unique<FormulaResults>(m_template);
    }

    TokenQuantities quantities() const
    {
        return { *m_template.pTemplate->getBomData(), *m_template.pTemplate->getBomTemplateUnits(), *m_pFormulas };
    }

private:
    ReportTemplate m_template;
    std::unique_ptr<FormulaResults> m_pFormulas;
};

// What the numbers of a column measure that shows these tokens: a kind or a label.
std::string measureOver(const std::vector<VorString>& tokens)
{
    const QuantitiesOfTemplate ofTemplate;
    const Measure measure = ofTemplate.quantities().commonMeasureOf(tokens);
    return measure.pKind == nullptr ? measure.label : measure.pKind->name;
}
}

TEST(TokenQuantitiesTest, QuantitiesAreOfTheKindOfTheirToken)
{
    EXPECT_EQ("length", measureOver({ L"%Length" }));
    EXPECT_EQ("weight", measureOver({ L"%Weight" }));
    EXPECT_EQ("area", measureOver({ L"%Paint" }));
    EXPECT_EQ("density", measureOver({ L"%Density" }));
    EXPECT_EQ("weight", measureOver({ L"%Cut" }));
}

TEST(TokenQuantitiesTest, TotalsAndFormulasAreOfTheKindOfWhatTheyAreMadeOf)
{
    EXPECT_EQ("weight", measureOver({ L"%SumBy:%Weight" }));
    EXPECT_EQ("length", measureOver({ L"%Formula:2*%Quantity*%Length" }));
    EXPECT_EQ("weight", measureOver({ L"%SumBy:%Formula:%Weight*2" }));
    EXPECT_EQ("weight-per-length", measureOver({ L"%Formula:%Weight/%Length" }));
    EXPECT_EQ("", measureOver({ L"%Formula:%Quantity*2" }));
    EXPECT_EQ("", measureOver({ L"%Formula:%Length/9" })); // the template took its unit away
}

TEST(TokenQuantitiesTest, FormulasAreWhatTheirColumnSays)
{
    EXPECT_EQ("EUR", measureOver({ L"%Formula:%Weight*%Price", L"%SumBy:%Formula:%Weight*%Price" }));
    EXPECT_EQ("", measureOver({ L"%Formula:%Length/1000" }));
}

TEST(TokenQuantitiesTest, WholeNumbersTextsAndNumbersWithoutUnitHaveNone)
{
    for (const wchar_t* const token : { L"%Count", L"%Mark", L"%Quantity", L"%Name", L"%Width", L"%Thick", L"%Never" })
        EXPECT_EQ("", measureOver({ token })) << VorString(token).length();
    EXPECT_EQ("", measureOver({}));
}

TEST(TokenQuantitiesTest, AColumnOfSeveralMeasuresNamesNone)
{
    EXPECT_EQ("weight", measureOver({ L"%Weight", L"%SumBy:%Weight", L"%Name" }));
    EXPECT_EQ("", measureOver({ L"%Weight", L"%Length" }));
    EXPECT_EQ("", measureOver({ L"%Name", L"%Weight" }));
    EXPECT_EQ("", measureOver({ L"%Weight", L"%SumBy:%Quantity" }));
    EXPECT_EQ("", measureOver({ L"%Formula:%Weight*%Price", L"%Formula:%Length/1000" }));
}

TEST(TokenQuantitiesTest, TotalsThatAreNoSumsMeasureWhatTheyAreAbout)
{
    EXPECT_EQ("weight", measureOver({ L"%Weight", L"%MeanBy:%Weight" }));
    EXPECT_EQ("", measureOver({ L"%Weight", L"%CountBy:%Weight" }));
    EXPECT_EQ("", measureOver({ L"%CountBy:%Weight" }));
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
    const QuantitiesOfTemplate ofTemplate;
    const TokenQuantities quantities = ofTemplate.quantities();

    for (const TypeCase& test : kTypes)
    {
        EXPECT_EQ(test.type, quantities.typeOf(test.token)) << Utf8::toBytes(test.token);
        EXPECT_EQ(test.isNumeric, quantities.isNumeric(test.token)) << Utf8::toBytes(test.token);
    }
}
}
