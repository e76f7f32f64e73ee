#include "RowFilter.h"

#include "VorBomTemplate.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
VorBomDataRow& addRow(VorBomData& data, int number)
{
    auto* const pRow = new VorBomDataRow;
    pRow->addData(VorBomDataTuple(L"%Row", number));
    data.addChild(pRow);
    return *pRow;
}

// Rows 1 to 4: a beam of S355, a plate of S235, a bolt, something without any of it.
void fill(VorBomData& data)
{
    VorBomDataRow& beam = addRow(data, 1);
    beam.addData(VorBomDataTuple(L"%Material", VorString(L"S355")));
    beam.addData(VorBomDataTuple(L"%Length", 6000.0000001));
    beam.addData(VorBomDataTuple(L"%Weight", 250.0));
    beam.addData(VorBomDataTuple(L"%Phase", VorString(L"10")));
    beam.addData(VorBomDataTuple(L"%Cost code", VorString(L"A-1")));
    VorBomDataRow& plate = addRow(data, 2);
    plate.addData(VorBomDataTuple(L"%Material", VorString(L"S235")));
    plate.addData(VorBomDataTuple(L"%Length", 300.0));
    plate.addData(VorBomDataTuple(L"%Weight", 14.0));
    plate.addData(VorBomDataTuple(L"%Paint", 2.0e6));
    plate.addData(VorBomDataTuple(L"%Phase", VorString(L"2")));
    VorBomDataRow& bolt = addRow(data, 3);
    bolt.addData(VorBomDataTuple(L"%BoltName", VorString(L"M16")));
    bolt.addData(VorBomDataTuple(L"%Quantity", 8));
    addRow(data, 4);
}

VorBomDataValue::eBomDataValueType typeOf(const VorString& token)
{
    return token == L"%Cost code" ? VorBomDataValue::kStringData : VorBomDataValue::kUnknownData;
}

std::string messageOf(const std::optional<Finding>& finding)
{
    return "found " + finding->found + ", expected " + finding->expected +
           (finding->remedy.empty() ? "" : ": " + finding->remedy);
}

// The numbers of the rows that are left, "1 2", or what is wrong with the filter.
std::string rowsLeftBy(const std::string& text)
{
    VorBomTemplate units;
    units.setUnitsForTokens(nullptr);
    RowFilter filter;
    if (const auto finding = RowFilter::parse(text, filter))
        return messageOf(finding);
    if (const auto finding = filter.settle(*units.getBomTemplateUnits(), typeOf))
        return messageOf(finding);
    VorBomData data;
    fill(data);
    const int numRemoved = filter.apply(data);
    std::string rows;
    int numLeft = 0;
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next(), ++numLeft)
        rows += (rows.empty() ? "" : " ") + toUtf8(pRow->getTupleAt(L"%Row")->value().asString());
    EXPECT_EQ(4, numRemoved + numLeft) << text;
    data.empty();
    return rows;
}

struct FilterCase
{
    const char* text;
    const char* rows;
};

void expectRows(const std::vector<FilterCase>& cases)
{
    for (const FilterCase& filterCase : cases)
        EXPECT_EQ(filterCase.rows, rowsLeftBy(filterCase.text)) << filterCase.text;
}
}

TEST(RowFilterTest, TokensAloneAskForValues)
{
    const LeakCheck leakCheck;

    expectRows({ { "", "1 2 3 4" },
                 { "  ", "1 2 3 4" },
                 { "%BoltName", "3" },
                 { "!%BoltName", "1 2 4" },
                 { "%Weight, !%BoltName", "1 2" },
                 { "!%Weight,!%BoltName", "4" },
                 { "%Coating", "" },
                 { "%{Cost code}", "1" } });
}

TEST(RowFilterTest, NumbersAreComparedInTheUnitOfTheirKind)
{
    expectRows({ { "%Length > 6 m", "" }, // 6000.0000001 mm is as near to 6 m as makes no difference
                 { "%Length >= 6 m", "1" },
                 { "%Length = 6 m", "1" },
                 { "%Length < 6m", "2" },
                 { "%Length <= 6000", "1 2" },
                 { "%Length > 11 3/4 in", "1 2" },
                 { "%Length < 12\"", "2" },
                 { "%Length > 19'-8\"", "1" },
                 { "%Weight>=250", "1" },
                 { "%Weight > 300 lb", "1" },
                 { "%Paint = 2 m2", "2" },
                 { "%Quantity = 8", "3" },
                 { "%Quantity < 8.5", "3" } });
}

TEST(RowFilterTest, TextsAreEqualByAllCharactersAndOrderedNaturally)
{
    expectRows({ { "%Material = 'S355'", "1" },
                 { "%Material = \"S355\"", "1" },
                 { "%Material = S355", "1" },
                 { "%Material = 's355'", "" },
                 { "%Phase < 10", "2" }, // of phases, which are texts
                 { "%Phase = 2", "2" },
                 { "%Phase = '02'", "" },
                 { "%{Cost code} = 'A-1'", "1" } });
}

// A plate without a grade is none of S355, too.
TEST(RowFilterTest, MissingDataMeetNoComparisonButUnequal)
{
    expectRows({ { "%Material != 'S355'", "2 3 4" },
                 { "%Material <> 'S355'", "2 3 4" },
                 { "not %Material = 'S355'", "2 3 4" },
                 { "%Material < 'Z'", "1 2" },
                 { "%Weight != 14", "1 3 4" } });
}

TEST(RowFilterTest, AndBindsTighterThanOrAndNotTighterThanBoth)
{
    expectRows({ { "%BoltName or %Weight and %Paint", "2 3" },
                 { "(%BoltName or %Weight) and %Paint", "2" },
                 { "%BoltName OR %Weight, %Paint", "2 3" },
                 { "not %BoltName or %Quantity", "1 2 3 4" },
                 { "not (%BoltName or %Weight)", "4" },
                 { "NOT not %BoltName", "3" },
                 { "%Length > 1 m and %Material = S355 or %BoltName = M16", "1 3" },
                 { "%Length > 100 and(%Paint)", "2" } });
}

TEST(RowFilterTest, WhatIsNoFilterIsRefusedWithWhatWasExpected)
{
    const std::string condition = "a condition such as %BoltName, !%BoltName, %Material = 'S355' or %Length > 6 m";
    const std::string joint = "\"and\", \"or\", a comma or the end";
    const FilterCase refused[] = {
        { "BoltName", "\"BoltName\"" },
        { "%", "\"%\"" },
        { "!", "the end of the filter" },
        { "%A,", "the end of the filter" },
        { ",%A", "\",%A\"" },
        { "%A,,%B", "\",%B\"" },
        { "%%A", "\"%%A\"" },
        { "%A and", "the end of the filter" },
        { "%{A", "\"%{A\"" },
    };
    for (const FilterCase& filterCase : refused)
        EXPECT_EQ("found " + std::string(filterCase.rows) + ", expected " + condition, rowsLeftBy(filterCase.text));
    EXPECT_EQ("found \"%B\", expected " + joint, rowsLeftBy("%A %B"));
    EXPECT_EQ("found \"!%B\", expected " + joint, rowsLeftBy("%A!%B"));
    EXPECT_EQ("found \")\", expected " + joint, rowsLeftBy("%A)"));
    EXPECT_EQ("found the end of the filter, expected \")\"", rowsLeftBy("(%A"));
    EXPECT_EQ("found the end of the filter, expected a text or a number to compare with", rowsLeftBy("%A ="));
    EXPECT_EQ("found \"'S355\", expected a quote that closes the text", rowsLeftBy("%A = 'S355"));
}

TEST(RowFilterTest, WhatCannotBeComparedIsRefused)
{
    const std::string length =
        "expected a number with or without a unit of distance such as mm, m, in or ft for %Length";
    EXPECT_EQ("found \"6 kg\", " + length, rowsLeftBy("%Length > 6 kg"));
    EXPECT_EQ("found \"6,5 m\", " + length, rowsLeftBy("%Length > '6,5 m'").substr(0, 13 + 2 + length.size()));
    EXPECT_EQ("found \"6 m\", " + length + ": numbers stand without quotes", rowsLeftBy("%Length > '6 m'"));
    EXPECT_EQ("found \"3 = 4\", " + length, rowsLeftBy("%Length = 3 = 4"));
    EXPECT_EQ("found \"2\", expected a number with a unit of area such as mm2, m2 or ft2 for %Paint",
              rowsLeftBy("%Paint > 2"));
    EXPECT_EQ("found \"2 m\", expected a number, which is what %Quantity is", rowsLeftBy("%Quantity > 2 m"));
}

TEST(RowFilterTest, DeepNestingEndsInAnAnswer)
{
    EXPECT_EQ("3", rowsLeftBy(std::string(50, '(') + "%BoltName" + std::string(50, ')')));
    EXPECT_EQ("found more than 100 conditions within each other, expected fewer",
              rowsLeftBy(std::string(100000, '(') + "%BoltName"));
    EXPECT_EQ("found more than 100 conditions within each other, expected fewer",
              rowsLeftBy(std::string(100000, '!') + "%BoltName"));
}

TEST(RowFilterTest, ItKeepsItsTextAndNamesItsTokens)
{
    RowFilter filter;
    ASSERT_FALSE(RowFilter::parse(" %Weight, !%BoltName ", filter));

    EXPECT_EQ("%Weight, !%BoltName", filter.text());
    EXPECT_TRUE(filter.names(L"%Weight"));
    EXPECT_TRUE(filter.names(L"%BoltName"));
    EXPECT_FALSE(filter.names(L"%Name"));
    EXPECT_EQ(2U, filter.tokens().size());
}

TEST(RowFilterTest, ARefusedTextLeavesTheFilterAlone)
{
    RowFilter filter;
    ASSERT_FALSE(RowFilter::parse("%Weight", filter));

    EXPECT_TRUE(RowFilter::parse("Weight", filter));

    EXPECT_TRUE(filter.names(L"%Weight"));
}

TEST(RowFilterTest, LastRowStaysKnownToItsData)
{
    VorBomData data;
    fill(data);
    RowFilter filter;
    ASSERT_FALSE(RowFilter::parse("!%Weight,%BoltName", filter));

    EXPECT_EQ(3, filter.apply(data));

    EXPECT_EQ(data.child(), data.lastChild());
    data.empty();
}
}
