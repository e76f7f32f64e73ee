#include "DataTokens.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace mekbom
{
TEST(DataTokensTest, WhatSteersSumsAndComputesIsNoDatum)
{
    VorBomTemplate reportTemplate;
    auto* const pDetails = new VorBomTemplateItem(VorBomTemplateItem::kDetails);
    for (const wchar_t* const token :
         { L"%GroupBy:%Name,%Material", L"%SortDescBy:%Class", L"%FilterBy:1", L"%SumBy:%Weight", L"%Weight",
           L"%Formula:%Length/1000+%Length", L"%SumBy:%Formula:%Paint*2", L"%Handle", L"Weight", L"%%PaintMeter" })
        pDetails->addData(VorBomDataTuple(token, 0));
    reportTemplate.addChild(pDetails);

    EXPECT_EQ((std::vector<std::string>{ "%Class", "%Length", "%Material", "%Name", "%Paint", "%Weight" }),
              DataTokens::of(reportTemplate));
}

TEST(DataTokensTest, AColumnMayBeForWhateverRowsHave)
{
    for (const wchar_t* const token : { L"%Weight", L"%Bay", L"%Handle", L"%%PaintMeter" })
        EXPECT_TRUE(DataTokens::canBeColumn(token)) << Utf8::toBytes(token);
    for (const wchar_t* const token : { L"Weight", L"%SumBy:%Weight", L"%Formula:%Weight", L"%GroupBy:%Name", L"" })
        EXPECT_FALSE(DataTokens::canBeColumn(token)) << Utf8::toBytes(token);
}

TEST(DataTokensTest, WhatIsSummedOrStandsInAFormulaIsComputedWith)
{
    VorBomTemplate reportTemplate;
    auto* const pDetails = new VorBomTemplateItem(VorBomTemplateItem::kDetails);
    for (const wchar_t* const token : { L"%GroupBy:%Name", L"%SortDescBy:%Class", L"%SumBy:%Weight", L"%Name",
                                        L"%Formula:%Length/1000", L"%SumBy:%Formula:%Paint*2" })
        pDetails->addData(VorBomDataTuple(token, 0));
    reportTemplate.addChild(pDetails);

    EXPECT_EQ((std::set<std::string>{ "%Length", "%Paint", "%Weight" }), DataTokens::computedWith(reportTemplate));
}
}
