#include "NumberFormats.h"

#include "TemplateReader.h"
#include "Utf8.h"

#include "VorBomDataRow.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// What the `index`-th tuple of the details shows of `number`, in a list in metric units; "engine" where the engine's own
// way is left. The two rows have a %Price of 1.5 and 0.25, a whole number %Count and a text %Mark.
std::string shown(const std::string& columns, const std::string& tuples, double number, int index = 0)
{
    const VorUnitsManager units = VorUnitsManager::metric();
    const ReportTemplate list = TemplateReader::read(
        "list.json", R"({ "columns": [ )" + columns + R"( ], "sections": [ { "type": "kDetails", "tuples": [ )" +
                         tuples + " ] } ] }");
    VorBomTemplate& engineTemplate = *list.pTemplate;
    for (const double price : { 1.5, 0.25 })
    {
        auto* const pRow = new VorBomDataRow();
        pRow->addData(VorBomDataTuple(L"%Price", price));
        pRow->addData(VorBomDataTuple(L"%Count", 1));
        pRow->addData(VorBomDataTuple(L"%Mark", VorString(L"B1")));
        engineTemplate.getBomData()->addChild(pRow);
    }
    engineTemplate.setUnitsForTokens(&units);
    const FormulaResults formulas(list);
    const TokenQuantities quantities(*engineTemplate.getBomData(), *engineTemplate.getBomTemplateUnits(), formulas);
    const NumberFormats formats(list, ReportLayout(list, units), quantities, units, DisplaySettings());
    formats.setFor(engineTemplate);
    const auto& details = static_cast<const VorBomTemplateItem&>(*engineTemplate.child());
    const VorBomNumberFormat* const pFormat = engineTemplate.numberFormat(details, index);
    return pFormat == nullptr ? "engine" : Utf8::toBytes(pFormat->textOf(number));
}

std::string tuple(const std::string& token)
{
    return R"({ "token": ")" + token + R"(" })";
}
}

TEST(NumberFormatsTest, TheEngineShowsWhatItShowsRight)
{
    for (const char* const token : { "%Weight", "%SumBy:%Length", "%Name", "%Quantity", "%Mark", "%Count",
                                     "%Formula:%Weight*%Quantity", "%GroupBy:%Material" })
        EXPECT_EQ("engine", shown("", tuple(token), 1.0)) << token;
}

TEST(NumberFormatsTest, PlainNumbersAreShownAsTheyAre)
{
    EXPECT_EQ("1234567.891", shown("", tuple("%Price"), 1234567.891));
    EXPECT_EQ("2147483648", shown("", tuple("%SumBy:%Quantity"), 2147483648.0));
}

TEST(NumberFormatsTest, ComputedNumbersHaveNoMoreDecimalsThanWhatTheyAreMadeOf)
{
    EXPECT_EQ("1234567.89", shown("", tuple("%SumBy:%Price"), 1234567.8900000001));
    EXPECT_EQ("0.333333", shown("", tuple("%Formula:%Quantity/3"), 0.3333333333));
}

TEST(NumberFormatsTest, ColumnsHaveDecimalsAndThousands)
{
    EXPECT_EQ("1 234.50", shown(R"({ "token": "%Price", "decimals": 2, "thousands": true })", tuple("%Price"), 1234.5));
    EXPECT_EQ("1 234", shown(R"({ "token": "%Quantity", "thousands": true })", tuple("%Quantity"), 1234));
    EXPECT_EQ("1 234.57", shown(R"({ "token": "%Weight", "thousands": true })", tuple("%Weight"), 1234.567));
    EXPECT_EQ("1235", shown(R"({ "token": "%Weight", "decimals": 0 })", tuple("%Weight"), 1234.567));
    EXPECT_EQ("1.23", shown(R"({ "token": "%Length", "unit": "m/2" })", tuple("%Length"), 1234.567));
}

TEST(NumberFormatsTest, NumbersNameTheirUnitWhereTheHeadingCannot)
{
    const std::string both = tuple("%Name") + R"(, { "token": "%Weight", "column": "%Any" })";
    const char* const kFooter = R"({ "token": "%SumBy:%Length", "value": 0.0, "column": "%Any" })";
    const VorUnitsManager units = VorUnitsManager::metric();

    EXPECT_EQ("engine", shown("", both, 2.5, 1));

    const ReportTemplate list = TemplateReader::read(
        "list.json", R"({ "sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ )" +
                         both + R"( ] } ] }, { "type": "kReportFooter", "tuples": [ )" + kFooter + " ] } ] }");
    VorBomTemplate& engineTemplate = *list.pTemplate;
    engineTemplate.setUnitsForTokens(&units);
    const FormulaResults formulas(list);
    const TokenQuantities quantities(*engineTemplate.getBomData(), *engineTemplate.getBomTemplateUnits(), formulas);
    const NumberFormats formats(list, ReportLayout(list, units), quantities, units, DisplaySettings());
    formats.setFor(engineTemplate);
    const auto& header = static_cast<const VorBomTemplateItem&>(*engineTemplate.child());
    const auto& details = static_cast<const VorBomTemplateItem&>(*header.child());
    const auto& footer = static_cast<const VorBomTemplateItem&>(*header.next());

    EXPECT_EQ("2.5 kg", Utf8::toBytes(engineTemplate.numberFormat(details, 1)->textOf(2.5)));
    EXPECT_EQ("2.5 mm", Utf8::toBytes(engineTemplate.numberFormat(footer, 0)->textOf(2.5)));
}

TEST(NumberFormatsTest, HiddenNumbersAreNotRoundedEither)
{
    EXPECT_EQ("1234567.5", shown(R"({ "token": "%Price", "hidden": true })", tuple("%Price"), 1234567.5));
    EXPECT_EQ("engine", shown(R"({ "token": "%Weight", "hidden": true })", tuple("%Weight"), 1.5));
}
}
