#include "VorBomTokenTrace.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
Texts tracedFrom(VorStringArray tokens, std::initializer_list<const wchar_t*> tuples)
{
    VorBomTokenTrace trace(tokens);
    for (const wchar_t* token : tuples)
        trace.addTuple(token);
    return elementsOf(tokens);
}
}

TEST(VorBomTokenTraceTest, TupleAddsItselfAndWhatItSumsOrComputes)
{
    EXPECT_EQ((Texts{ L"%SumBy:%Formula:%A*%B", L"%Formula:%A*%B", L"%A", L"%B" }),
              tracedFrom({}, { L"%SumBy:%Formula:%A*%B" }));
    EXPECT_EQ((Texts{ L"%Formula:%A*%A", L"%A", L"%A" }), tracedFrom({}, { L"%Formula:%A*%A" }));
    EXPECT_EQ((Texts{ L"%SumBy:%A", L"%A" }), tracedFrom({}, { L"%SumBy:%A" }));
    EXPECT_EQ(Texts{ L"Title" }, tracedFrom({}, { L"Title" }));
}

TEST(VorBomTokenTraceTest, KnownTupleAddsNothingAtAll)
{
    EXPECT_EQ(Texts{ L"%Formula:%A*2" }, tracedFrom(arrayOf({ L"%Formula:%A*2" }), { L"%Formula:%A*2" }));
    EXPECT_EQ((Texts{ L"%A", L"%SumBy:%A" }), tracedFrom(arrayOf({ L"%A" }), { L"%SumBy:%A", L"%A" }));
    EXPECT_EQ((Texts{ L"%A", L"%a" }), tracedFrom({}, { L"%A", L"%a", L"%A" })) << "case counts";
}

TEST(VorBomTokenTraceTest, RequestsAddWhatTheyName)
{
    VorStringArray tokens;
    VorBomTokenTrace trace(tokens);

    trace.addGroupingTokens(arrayOf({ L"%B", L"%A", L"%B" }));
    trace.addSortingTokens(arrayOf({ L"%SortDescBy:%C", L"%SortAscBy:%A", L"%D" }));

    EXPECT_EQ((Texts{ L"%B", L"%A", L"%C", L"%D" }), elementsOf(tokens));
}

TEST(VorBomTokenTraceTest, SortingLooksAtNoCaseAndKeepsTheOrderOfTheRest)
{
    VorStringArray tokens = arrayOf({ L"%b", L"%A", L"%B", L"%a" });

    VorBomTokenTrace(tokens).sort();

    EXPECT_EQ((Texts{ L"%A", L"%a", L"%b", L"%B" }), elementsOf(tokens));
}
