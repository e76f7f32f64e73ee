#include "VorBomDataRow.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{
struct Row : VorBomDataRow
{
    using VorBomDataRow::operator=;
    Row(Tuples tuples) { addTuples(*this, tuples); }
};

void fill(VorBomDataRow& row)
{
    addTuples(row, { tuple(L"%A", 1), tuple(L"%B", NoValue()) });
    row.setObjectHandle(L"1A7");
    row.setEqualPartObjectHandles(arrayOf({ L"1A8", L"1A9" }));
    row.setHostKey(UINT64_MAX);
    row.setUseThisDataForSums(0);
}

void expectFilled(const VorBomDataRow& row)
{
    ASSERT_EQ(2, row.getData().length());
    EXPECT_EQ(VorString(L"%A"), row.getData()[0].token().token());
    EXPECT_EQ(VorString(L"1"), row.getData()[0].value().asString());
    EXPECT_EQ(VorBomDataValue::kUnknownData, row.getData()[1].value().type());
    EXPECT_EQ(VorString(L"1A7"), row.objectHandle());
    EXPECT_EQ((Texts{ L"1A8", L"1A9" }), elementsOf(row.EqualPartObjectHandles()));
    EXPECT_EQ(UINT64_MAX, row.hostKey());
    EXPECT_EQ(0, row.getUseThisDataForSums());
}
}

TEST(VorBomDataRowTest, StartsWithoutIdentityAndCounts)
{
    const VorBomDataRow row;

    EXPECT_EQ(VorString(), row.objectHandle());
    EXPECT_EQ(0, row.EqualPartObjectHandles().length());
    EXPECT_EQ(8, row.EqualPartObjectHandles().growBy());
    EXPECT_EQ(0U, row.hostKey());
    EXPECT_EQ(1, row.getUseThisDataForSums());
    EXPECT_EQ(0, row.getData().length());
}

TEST(VorBomDataRowTest, CopiesShareLinksAndOwnTheRest)
{
    const LeakCheck leaks;
    VorBomDataRow sibling;
    VorBomDataRow child;
    VorBomDataRow source;
    fill(source);
    source.setNext(&sibling);
    source.addChild(&child);
    Row target({ tuple(L"%X", 7), tuple(L"%Y", 8), tuple(L"%Z", 9) });

    const VorBomDataRow copy(source);
    target = source;
    source.setEqualPartObjectHandles(VorStringArray());
    source.getData()[0].value().set(5);

    expectFilled(copy);
    expectFilled(target);
    EXPECT_EQ(&sibling, copy.next());
    EXPECT_EQ(&child, copy.child());
    EXPECT_EQ(&sibling, target.next());
    EXPECT_EQ(&child, target.lastChild());
}

TEST(VorBomDataRowTest, SetFromCopiesEverythingButTheLinks)
{
    VorBomDataRow sourceSibling;
    VorBomDataRow sourceChild;
    VorBomDataRow source;
    fill(source);
    source.setNext(&sourceSibling);
    source.addChild(&sourceChild);
    VorBomDataRow sibling;
    VorBomDataRow child;
    Row target({ tuple(L"%X", 7), tuple(L"%Y", 8), tuple(L"%Z", 9) });
    target.setNext(&sibling);
    target.addChild(&child);

    target.setFrom(&source);

    expectFilled(target);
    EXPECT_EQ(&sibling, target.next());
    EXPECT_EQ(&child, target.child());
    EXPECT_EQ(&child, target.lastChild());
}

TEST(VorBomDataRowTest, SetFromNullOrItselfChangesNothing)
{
    VorBomDataRow row;
    fill(row);

    row.setFrom(nullptr);
    expectFilled(row);

    row.setFrom(&row);
    expectFilled(row);
}

TEST(VorBomDataRowTest, RowsWithTheDatumComeAfterRowsWithout)
{
    const VorStringArray tokens = arrayOf({ L"%Weight" });
    Row with({ tuple(L"%Weight", 2.5) });
    Row without({ tuple(L"%Name", L"HEA200") });
    Row alsoWithout({});
    const AssertLog log;

    EXPECT_EQ(1, with.compare(&without, tokens));
    EXPECT_EQ(-1, without.compare(&with, tokens));
    EXPECT_EQ(0, without.compare(&alsoWithout, tokens));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomDataRowTest, EqualTokensFallThroughToTheNext)
{
    const VorStringArray tokens = arrayOf({ L"%Material", L"%Weight" });
    Row light({ tuple(L"%Weight", 1.0), tuple(L"%Material", L"S235") });
    Row heavy({ tuple(L"%Material", L"S235"), tuple(L"%Weight", 2.0) });
    Row strong({ tuple(L"%Material", L"S355"), tuple(L"%Weight", 0.5) });

    EXPECT_EQ(-1, light.compare(&heavy, tokens));
    EXPECT_EQ(1, heavy.compare(&light, tokens));
    EXPECT_LT(heavy.compare(&strong, tokens), 0); // the material decides
    EXPECT_EQ(0, light.compare(&light, tokens));
}

TEST(VorBomDataRowTest, TokensThatBothLackArePassedOver)
{
    const VorStringArray tokens = arrayOf({ L"%Length", L"%Weight" });
    Row light({ tuple(L"%Weight", 1.0) });
    Row heavy({ tuple(L"%Weight", 2.0) });

    EXPECT_EQ(-1, light.compare(&heavy, tokens));
}

TEST(VorBomDataRowTest, WithoutTokensAllRowsAreEqual)
{
    Row light({ tuple(L"%Weight", 1.0) });
    Row heavy({ tuple(L"%Weight", 2.0) });

    EXPECT_EQ(0, light.compare(&heavy, VorStringArray()));
}

TEST(VorBomDataRowTest, NaturalOrderIsNotLookedFor)
{
    const VorStringArray tokens = arrayOf({ L"%MNum" }); // which the catalogue sorts naturally
    Row second({ tuple(L"%MNum", L"B2") });
    Row tenth({ tuple(L"%MNum", L"B10") });

    EXPECT_GT(second.compare(&tenth, tokens), 0);
}

TEST(VorBomDataRowTest, UnlikeKindsAreReportedAndCompareLess)
{
    AssertLog log;
    Row number({ tuple(L"%Weight", 1) });
    Row text({ tuple(L"%Weight", L"1") });

    EXPECT_EQ(-1, number.compare(&text, arrayOf({ L"%Weight" })));
    EXPECT_EQ(-1, text.compare(&number, arrayOf({ L"%Weight" })));

    EXPECT_TRUE(log.holdsOnly(L"false", L"MekBomEngine/Src/VorBomDataValue"));
}

TEST(VorBomDataRowTest, UsedDataAreReportedWithAllHandles)
{
    Row row({ usedTuple(L"%A", 1), usedTuple(L"%B", 0), usedTuple(L"%C", 2), usedTuple(L"%A", 1) });
    row.setObjectHandle(L"1A7");
    row.setEqualPartObjectHandles(arrayOf({ L"1A8", L"1A9" }));
    VorStringArrayArray handles;
    VorStringArrayArray tokens;

    row.appendUsedHandlesAndTokens(handles, tokens);

    ASSERT_EQ(1, handles.length());
    ASSERT_EQ(1, tokens.length());
    EXPECT_EQ((Texts{ L"1A7", L"1A8", L"1A9" }), elementsOf(handles[0]));
    EXPECT_EQ((Texts{ L"%A", L"%A" }), elementsOf(tokens[0])); // a flag of 2 is no 1
}

TEST(VorBomDataRowTest, RowsWithoutUsedDataReportNothing)
{
    Row row({ usedTuple(L"%A", 0) });
    row.setObjectHandle(L"1A7");
    VorStringArrayArray handles;
    VorStringArrayArray tokens;

    row.appendUsedHandlesAndTokens(handles, tokens);

    EXPECT_EQ(0, handles.length());
    EXPECT_EQ(0, tokens.length());
}

TEST(VorBomDataRowTest, ReferenceToEqualPartsShowsWhatTheRowHasAtTheTime)
{
    const LeakCheck leaks;
    VorBomDataRow row;
    const VorStringArray& handles = row.EqualPartObjectHandles();

    row.setEqualPartObjectHandles(arrayOf({ L"1A8" }));
    EXPECT_EQ(Texts{ L"1A8" }, elementsOf(handles));
    row.setEqualPartObjectHandles(arrayOf({ L"1A9", L"1B0" }));
    EXPECT_EQ((Texts{ L"1A9", L"1B0" }), elementsOf(handles));
    row.setEqualPartObjectHandles(handles);
    EXPECT_EQ((Texts{ L"1A9", L"1B0" }), elementsOf(handles)) << "its own";
    row.setEqualPartObjectHandles(VorStringArray());
    EXPECT_EQ(Texts(), elementsOf(handles));
    VorBomDataRow other;
    other.setEqualPartObjectHandles(arrayOf({ L"1C1" }));
    row = other;
    EXPECT_EQ(Texts{ L"1C1" }, elementsOf(handles));
    row.setFrom(&other);
    EXPECT_EQ(Texts{ L"1C1" }, elementsOf(handles));
}

// A model has millions of rows, of which hardly any stands for equal parts.
TEST(VorBomDataRowTest, RowIsAsSmallAsItsBaseAHandleAPointerAKeyAndAFlag)
{
    EXPECT_EQ(sizeof(VorBomItemBase) + 3 * sizeof(void*) + sizeof(std::uint64_t), sizeof(VorBomDataRow));
}
