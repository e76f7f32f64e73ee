#include "QueryFilter.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// Rows 1 to 4: a beam, a bolt, a bolt with a weight, something without either.
void fill(VorBomData& data)
{
    const wchar_t* const names[4][2] = {
        { L"%Weight", nullptr }, { nullptr, L"%BoltName" }, { L"%Weight", L"%BoltName" }, { nullptr, nullptr }
    };
    int number = 0;
    for (const auto& tokens : names)
    {
        auto* const pRow = new VorBomDataRow;
        pRow->addData(VorBomDataTuple(L"%Row", ++number));
        for (const wchar_t* const token : tokens)
            if (token != nullptr)
                pRow->addData(VorBomDataTuple(token, VorString(L"x")));
        data.addChild(pRow);
    }
}

// The numbers of the rows that are left: "1 2".
std::string rowsLeftBy(const std::string& text)
{
    QueryFilter filter;
    if (QueryFilter::parse(text, filter) == 0)
        return "no filter";
    VorBomData data;
    fill(data);
    filter.apply(data);
    std::string rows;
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        rows += (rows.empty() ? "" : " ") + toUtf8(pRow->getTupleAt(L"%Row")->value().asString());
    data.empty();
    return rows;
}
}

TEST(QueryFilterTest, RowsStayForWhichAllConditionsHold)
{
    const LeakCheck leakCheck;

    EXPECT_EQ("1 2 3 4", rowsLeftBy(""));
    EXPECT_EQ("1 2 3 4", rowsLeftBy("  "));
    EXPECT_EQ("2 3", rowsLeftBy("%BoltName"));
    EXPECT_EQ("1 4", rowsLeftBy("!%BoltName"));
    EXPECT_EQ("1", rowsLeftBy("%Weight, !%BoltName"));
    EXPECT_EQ("4", rowsLeftBy("!%Weight,!%BoltName"));
    EXPECT_EQ("", rowsLeftBy("%Coating"));
}

TEST(QueryFilterTest, LastRowStaysKnownToItsData)
{
    VorBomData data;
    fill(data);
    QueryFilter filter;
    ASSERT_EQ(1, QueryFilter::parse("!%Weight,%BoltName", filter));

    filter.apply(data);

    EXPECT_EQ(data.child(), data.lastChild());
    data.empty();
}

TEST(QueryFilterTest, WhatIsNoFilterIsRefused)
{
    for (const char* const text :
         { "BoltName", "%", "!", "!!%A", "%A %B", "%A,", ",%A", "%A,,%B", "%%A", "%A and %B", "! %A" })
        EXPECT_EQ("no filter", rowsLeftBy(text)) << text;
}

TEST(QueryFilterTest, ConditionsNameTheirData)
{
    QueryFilter filter;
    ASSERT_EQ(1, QueryFilter::parse("%Weight, !%BoltName", filter));

    EXPECT_TRUE(filter.names(L"%Weight"));
    EXPECT_TRUE(filter.names(L"%BoltName"));
    EXPECT_FALSE(filter.names(L"%Name"));
}

TEST(QueryFilterTest, ARefusedTextLeavesTheFilterAlone)
{
    QueryFilter filter;
    ASSERT_EQ(1, QueryFilter::parse("%Weight", filter));

    EXPECT_EQ(0, QueryFilter::parse("Weight", filter));

    EXPECT_TRUE(filter.names(L"%Weight"));
}
}
