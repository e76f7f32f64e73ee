#include "VorBomData.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <set>

namespace
{
struct EmptyAndDelete
{
    void operator()(VorBomData* pData) const
    {
        pData->empty();
        delete pData;
    }
};
using OwnedData = std::unique_ptr<VorBomData, EmptyAndDelete>;

VorBomDataRow* newRow(const wchar_t* handle, Tuples tuples)
{
    VorBomDataRow* pRow = ::newRow(tuples);
    pRow->setObjectHandle(handle);
    return pRow;
}

// The lines from row "13" on that the generator gives for `seed`.
VorString randomLines(unsigned int seed)
{
    std::srand(seed);
    VorString text;
    for (int handle = 13; handle <= 112; ++handle)
    {
        const int posNum = std::rand() % 4 + 1;
        const int weight = (std::rand() % 4 + 1) * 100;
        const int material = std::rand() % 4 + 1;
        VorString line;
        line.format(L"\n[PosNum:%d][Weight:%d][Material:Mat%d]", posNum, weight, material);
        text += line;
    }
    return text;
}
}

TEST(VorBomDataTest, DepthOfTopLevelRowsIsOne)
{
    BomTree<VorBomData> data;
    data.addChild(newRow(L"1", {}));
    data.addChild(newRow(L"2", {}));

    EXPECT_EQ(1, data.depthLevel());
}

TEST(VorBomDataTest, DepthIsThatOfTheDeepestRow)
{
    BomTree<VorBomData> data;
    data.addChild(newRow(L"1", {}));
    data.child()->addChild(newRow(L"1.1", {}));
    EXPECT_EQ(2, data.depthLevel());

    data.child()->child()->addChild(newRow(L"1.1.1", {}));
    EXPECT_EQ(3, data.depthLevel());

    data.addChild(newRow(L"2", {}));
    EXPECT_EQ(3, data.depthLevel());

    data.lastChild()->addChild(newRow(L"2.1", {}));
    data.lastChild()->addChild(newRow(L"2.2", {}));
    VorBomItemBase* pLast = data.lastChild()->lastChild();
    pLast->addChild(newRow(L"2.2.1", {}));
    pLast->child()->addChild(newRow(L"2.2.1.1", {}));
    EXPECT_EQ(4, data.depthLevel()); // deepest under the last sibling's last child
}

TEST(VorBomDataTest, DepthIsMeasuredOverAHundredThousandLevelsAndAMillionRows)
{
    BomTree<VorBomData> data;
    VorBomItemBase* pItem = &data;
    for (int i = 0; i < 100000; ++i)
    {
        pItem->addChild(new VorBomDataRow);
        pItem->addChild(new VorBomDataRow); // a sibling still to come on every level
        pItem = pItem->child();
    }
    for (int i = 0; i < 1000000; ++i)
        data.addChild(new VorBomDataRow);

    EXPECT_EQ(100000, data.depthLevel());
}

TEST(VorBomDataTest, CopiesShareTheRows)
{
    BomTree<VorBomData> data;
    data.addChild(newRow(L"1", {}));
    data.addData(tuple(L"%A", 1));

    const VorBomData copy(data);
    VorBomData assigned;
    assigned = data;

    EXPECT_EQ(data.child(), copy.child());
    EXPECT_EQ(data.child(), assigned.lastChild());
    EXPECT_EQ(1, assigned.getData().length());
}

TEST(VorBomDataTest, UsedDataAreReportedRowByRow)
{
    BomTree<VorBomData> data;
    data.addChild(newRow(L"1", { usedTuple(L"%A", 1), usedTuple(L"%B", 1) }));
    data.addChild(newRow(L"2", { usedTuple(L"%A", 0) }));
    VorBomDataRow* pThird = newRow(L"3", { usedTuple(L"%C", 1) });
    pThird->setEqualPartObjectHandles(arrayOf({ L"4", L"5" }));
    pThird->setUseThisDataForSums(0); // only the template's report cares
    data.addChild(pThird);
    VorStringArrayArray handles;
    VorStringArrayArray tokens;
    handles.append(arrayOf({ L"before" }));
    tokens.append(arrayOf({ L"%before" }));

    EXPECT_EQ(1, data.getUsedHandlesAndTokens(handles, tokens));

    ASSERT_EQ(3, handles.length());
    ASSERT_EQ(3, tokens.length());
    EXPECT_EQ((Texts{ L"before" }), elementsOf(handles[0]));
    EXPECT_EQ((Texts{ L"1" }), elementsOf(handles[1]));
    EXPECT_EQ((Texts{ L"%A", L"%B" }), elementsOf(tokens[1]));
    EXPECT_EQ((Texts{ L"3", L"4", L"5" }), elementsOf(handles[2]));
    EXPECT_EQ((Texts{ L"%C" }), elementsOf(tokens[2]));
}

TEST(VorBomDataTest, UsedDataOfSubRowsAreNotReported)
{
    BomTree<VorBomData> data;
    data.addChild(newRow(L"1", {}));
    data.child()->addChild(newRow(L"1.1", { usedTuple(L"%A", 1) }));
    VorStringArrayArray handles;
    VorStringArrayArray tokens;

    EXPECT_EQ(1, data.getUsedHandlesAndTokens(handles, tokens));

    EXPECT_EQ(0, handles.length());
    EXPECT_EQ(0, tokens.length());
}

TEST(VorBomDataTest, NothingUsedReportsNothing)
{
    VorStringArrayArray handles;
    VorStringArrayArray tokens;
    VorBomData nothing;
    EXPECT_EQ(1, nothing.getUsedHandlesAndTokens(handles, tokens));

    BomTree<VorBomData> data;
    data.addChild(newRow(L"1", { usedTuple(L"%A", 0) }));
    EXPECT_EQ(1, data.getUsedHandlesAndTokens(handles, tokens));

    EXPECT_EQ(0, handles.length());
    EXPECT_EQ(0, tokens.length());
}

TEST(VorBomDataTest, SampleHasAHundredAndTwelveRows)
{
    const LeakCheck leaks;
    const OwnedData data(VorBomData::createDefaultData());

    int handle = 0;
    for (VorBomItemBase* pItem = data->child(); pItem != nullptr; pItem = pItem->next())
    {
        auto* pRow = static_cast<VorBomDataRow*>(pItem);
        VorString expected;
        expected.format(L"%d", ++handle);
        EXPECT_EQ(expected, pRow->objectHandle());
        EXPECT_EQ(0, pRow->EqualPartObjectHandles().length());
        EXPECT_EQ(1, pRow->getUseThisDataForSums());
        if (handle == 112)
        {
            EXPECT_EQ(pItem, data->lastChild());
        }
    }

    EXPECT_EQ(112, handle);
    EXPECT_EQ(1, data->depthLevel());
}

TEST(VorBomDataTest, SampleRowsHaveAnIntADoubleAndAText)
{
    const OwnedData data(VorBomData::createDefaultData());

    for (VorBomItemBase* pItem = data->child(); pItem != nullptr; pItem = pItem->next())
    {
        const VorBomDataTupleArray& tuples = pItem->getData();
        ASSERT_EQ(3, tuples.length());
        EXPECT_EQ(VorString(L"PosNum"), tuples[0].token().token());
        EXPECT_EQ(VorBomDataValue::kIntData, tuples[0].value().type());
        EXPECT_EQ(VorString(L"Weight"), tuples[1].token().token());
        EXPECT_EQ(VorBomDataValue::kDoubleData, tuples[1].value().type());
        EXPECT_EQ(VorString(L"Material"), tuples[2].token().token());
        EXPECT_EQ(VorBomDataValue::kStringData, tuples[2].value().type());
    }
}

TEST(VorBomDataTest, FirstTwelveSampleRowsAreAlwaysTheSame)
{
    const OwnedData data(VorBomData::createDefaultData());
    const wchar_t* const kLines[] = {
        L"[PosNum:1][Weight:200.2][Material:Mat1]", L"[PosNum:1][Weight:100.1][Material:Mat1]",
        L"[PosNum:3][Weight:300.2][Material:Mat3]", L"[PosNum:4][Weight:400.3][Material:Mat4]",
        L"[PosNum:1][Weight:123.4][Material:Mat1]", L"[PosNum:2][Weight:200.1][Material:Mat2]",
        L"[PosNum:3][Weight:300.2][Material:Mat3]", L"[PosNum:4][Weight:400.3][Material:Mat4]",
        L"[PosNum:1][Weight:300.2][Material:Mat1]", L"[PosNum:1][Weight:400.3][Material:Mat1]",
        L"[PosNum:1][Weight:300.2][Material:Mat2]", L"[PosNum:1][Weight:400.3][Material:Mat1]",
    };

    VorBomItemBase* pItem = data->child();
    for (const wchar_t* line : kLines)
    {
        VorString text;
        pItem->list(text, 0, 0, 0);
        EXPECT_EQ(VorString(line), text);
        pItem = pItem->next();
    }
    for (; pItem != nullptr; pItem = pItem->next())
        EXPECT_NE(VorString(L"123.4"), pItem->getTupleAt(L"Weight")->value().asString());
}

TEST(VorBomDataTest, OtherSampleRowsAreDrawnFromFourChoicesEach)
{
    const std::set<std::string> kPositions{ "1", "2", "3", "4" };
    const std::set<std::string> kWeights{ "100", "200", "300", "400" };
    const std::set<std::string> kMaterials{ "Mat1", "Mat2", "Mat3", "Mat4" };
    const OwnedData data(VorBomData::createDefaultData());

    VorBomItemBase* pItem = data->child();
    for (int handle = 1; handle < 13; ++handle)
        pItem = pItem->next();
    for (; pItem != nullptr; pItem = pItem->next())
    {
        EXPECT_EQ(1u, kPositions.count(toUtf8(pItem->getTupleAt(L"PosNum")->value().asString())));
        EXPECT_EQ(1u, kWeights.count(toUtf8(pItem->getTupleAt(L"Weight")->value().asString())));
        EXPECT_EQ(1u, kMaterials.count(toUtf8(pItem->getTupleAt(L"Material")->value().asString())));
    }
}

TEST(VorBomDataTest, OtherSampleRowsAreSeededWithTheTime)
{
    const auto before = static_cast<unsigned int>(std::time(nullptr));
    const OwnedData data(VorBomData::createDefaultData());
    const auto after = static_cast<unsigned int>(std::time(nullptr));
    VorString text;
    data->list(text, -1, 1, 1);

    int numMatches = 0;
    for (unsigned int seed = before; seed <= after; ++seed)
    {
        const VorString expected = randomLines(seed); // position, weight, material, row by row
        numMatches += text.right(expected.length()) == expected ? 1 : 0;
    }

    EXPECT_EQ(1, numMatches);
}
