#include "RowRemoval.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
std::string numbersIn(const VorBomData& data)
{
    std::string numbers;
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        numbers += std::to_string(*static_cast<const int*>(pRow->getTupleAt(L"%Row")->value().data()));
    return numbers;
}

// What is left of rows 1 to 5 where only some are wanted.
std::string leftOf(const std::vector<bool>& isWanted)
{
    VorBomData data;
    for (int number = 1; number <= 5; ++number)
    {
        auto* const pRow = new VorBomDataRow;
        pRow->addData(VorBomDataTuple(L"%Row", number));
        data.addChild(pRow);
    }
    std::size_t numAsked = 0;
    const int numRemoved =
        RowRemoval::keepOnly(data, [&](const VorBomDataRow&) -> bool { return isWanted[numAsked++]; });
    std::string left = numbersIn(data);
    EXPECT_EQ(5U, numAsked);
    EXPECT_EQ(5U, static_cast<std::size_t>(numRemoved) + left.size());
    data.empty();
    return left;
}
}

TEST(RowRemovalTest, WantedRowsStayInTheirOrder)
{
    EXPECT_EQ("12345", leftOf({ true, true, true, true, true }));
    EXPECT_EQ("24", leftOf({ false, true, false, true, false }));
    EXPECT_EQ("15", leftOf({ true, false, false, false, true }));
    EXPECT_EQ("", leftOf({ false, false, false, false, false }));
}

TEST(RowRemovalTest, WithoutRowsNobodyIsAsked)
{
    VorBomData data;
    EXPECT_EQ(0, RowRemoval::keepOnly(data, [](const VorBomDataRow&) { return false; }));
    EXPECT_EQ(nullptr, data.child());
}
}
