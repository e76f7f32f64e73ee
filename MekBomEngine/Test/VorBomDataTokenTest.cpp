#include "VorBomDataToken.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomDataToken";
const wchar_t kUnknownType[] = L"type != VorBomDataValue::kUnknownData";

// What a request appends to an array that holds "before" already.
Texts groupingOf(const wchar_t* token)
{
    VorStringArray tokens = arrayOf({ L"before" });
    const int answer = VorBomDataToken(token).getGroupingRequest(tokens);
    EXPECT_EQ(tokens.length() > 1 ? 1 : 0, answer) << VorString(token);
    return elementsOf(tokens);
}

Texts sortingOf(const wchar_t* token)
{
    VorStringArray tokens = arrayOf({ L"before" });
    const int answer = VorBomDataToken(token).getSortingRequest(tokens);
    EXPECT_EQ(tokens.length() > 1 ? 1 : 0, answer) << VorString(token);
    return elementsOf(tokens);
}

// The same after a -1.
Ints filteringOf(const wchar_t* token)
{
    VorArray<int> values;
    values.append(-1);
    const int answer = VorBomDataToken(token).getFilteringRequest(values);
    EXPECT_EQ(values.length() > 1 ? 1 : 0, answer) << VorString(token);
    return elementsOf(values);
}
}

TEST(VorBomDataTokenTest, PrefixesAreExact)
{
    EXPECT_EQ(VorString(L"%"), VorBomDataToken::kTokenPrefix);
    EXPECT_EQ(VorString(L"%GroupBy:"), VorBomDataToken::kGroupPrefix);
    EXPECT_EQ(VorString(L"%SortAscBy:"), VorBomDataToken::kSortAscPrefix);
    EXPECT_EQ(VorString(L"%SortDescBy:"), VorBomDataToken::kSortDescPrefix);
    EXPECT_EQ(VorString(L"%SumBy:"), VorBomDataToken::kSumPrefix);
    EXPECT_EQ(VorString(L"%FilterBy:"), VorBomDataToken::kFilterPrefix);
    EXPECT_EQ(VorString(L"%Formula:"), VorBomDataToken::kFormulaPrefix);
    EXPECT_EQ(VorString(L"%%"), VorBomDataToken::kFunctionPrefix);
}

TEST(VorBomDataTokenTest, TextIsKeptAsWritten)
{
    VorBomDataToken token(L" %GroupBy: %A ");
    EXPECT_EQ(VorString(L" %GroupBy: %A "), token.token());

    VorBomDataToken copy(token);
    copy.setToken(L"%B");
    EXPECT_EQ(VorString(L"%B"), copy.token());
    EXPECT_EQ(VorString(L" %GroupBy: %A "), token.token());

    token = copy;
    EXPECT_EQ(VorString(L"%B"), token.token());
    EXPECT_EQ(VorString(), VorBomDataToken().token());
}

TEST(VorBomDataTokenTest, TokensStartWithOnePercentSign)
{
    const struct
    {
        const wchar_t* text;
        int expected;
    } kCases[] = {
        { L"%Weight", 1 }, { L"%GroupBy:%PosNum", 1 }, { L"%Formula:%A+%B", 1 }, { L"%", 1 },        { L"Weight", 0 },
        { L"%%Sum", 0 },   { L"%Weight%%", 0 },        { L"%A%%B", 0 },          { L" %Weight", 0 }, { L"", 0 },
        { L"%A%B", 1 },
    };

    for (const auto& c : kCases)
        EXPECT_EQ(c.expected, VorBomDataToken::isToken(c.text)) << VorString(c.text);
}

TEST(VorBomDataTokenTest, SteeringTokensAreInvisible)
{
    const struct
    {
        const wchar_t* text;
        int expected;
    } kCases[] = {
        { L"%GroupBy:%A", 1 },        { L"%SortAscBy:%A", 1 },  { L"%SortDescBy:%A", 1 }, { L"%FilterBy:1", 1 },
        { L"%GroupBy:", 1 },          { L"%SumBy:%Weight", 0 }, { L"%Formula:%A+%B", 0 }, { L"%Weight", 0 },
        { L"x%FilterBy:1", 0 },       { L" %GroupBy:%A", 0 },   { L"%groupby:%A", 0 },    { L"", 0 },
        { L"%SumBy:%GroupBy:%A", 0 },
    };

    for (const auto& c : kCases)
        EXPECT_EQ(c.expected, VorBomDataToken::isInvisibleToken(c.text)) << VorString(c.text);
}

TEST(VorBomDataTokenTest, GroupingRequestsAppendWhatTheyGroupBy)
{
    EXPECT_EQ((Texts{ L"before", L"%A", L"%B" }), groupingOf(L"%GroupBy:%A,%B"));
    EXPECT_EQ((Texts{ L"before", L"%PosNum", L"%Material" }), groupingOf(L"%GroupBy: %PosNum , %Material"));
    EXPECT_EQ((Texts{ L"before", L"Material" }), groupingOf(L"%GroupBy:Material"));
}

TEST(VorBomDataTokenTest, OtherTokensAreNoGroupingRequests)
{
    for (const wchar_t* text :
         { L"%A", L"", L" %GroupBy:%A", L"%groupby:%A", L"%GroupBy", L"%SortAscBy:%A", L"x%GroupBy:%A" })
        EXPECT_EQ((Texts{ L"before" }), groupingOf(text));
}

TEST(VorBomDataTokenTest, CommaListsAreSplitUpToAnEmptyElement)
{
    const struct
    {
        const wchar_t* list;
        Texts expected;
    } kCases[] = {
        { L"", { L"" } },
        { L" ", { L"" } },
        { L"a", { L"a" } },
        { L"a,b", { L"a", L"b" } },
        { L"a,b,c", { L"a", L"b", L"c" } },
        { L"a,", { L"a", L"" } },
        { L",", { L"," } },
        { L",%A", { L",%A" } }, // on purpose: a leading comma ends the split
        { L",a,b", { L",a,b" } },
        { L"a,,b", { L"a", L",b" } },
        { L"a,,b,c", { L"a", L",b,c" } },
        { L"a,b,,", { L"a", L"b", L"," } },
        { L"a, ,b", { L"a", L",b" } }, // the blank goes first
        { L" , a", { L",a" } },
        { L"a b, c d", { L"ab", L"cd" } },
        { L"a\t,\nb", { L"a\t", L"\nb" } }, // only blanks are dropped
        { L"a;b", { L"a;b" } },
    };

    for (const auto& c : kCases)
    {
        VorString token = VorBomDataToken::kGroupPrefix;
        token += VorString(c.list);
        VorStringArray elements;

        EXPECT_EQ(1, VorBomDataToken(token).getGroupingRequest(elements));

        EXPECT_EQ(c.expected, elementsOf(elements)) << token;
    }
}

TEST(VorBomDataTokenTest, VeryLongListsAreSplitInLinearTime)
{
    const int numElements = 200000; // cutting off the front 200,000 times would copy 80 GB
    VorString token = VorBomDataToken::kGroupPrefix;
    for (int i = 0; i < numElements; ++i)
        token += L"%ab,";
    VorStringArray elements;

    EXPECT_EQ(1, VorBomDataToken(token).getGroupingRequest(elements));

    EXPECT_EQ(numElements + 1, elements.length());
    EXPECT_EQ(VorString(L"%ab"), elements[numElements - 1]);
    EXPECT_EQ(VorString(), elements.last());
}

TEST(VorBomDataTokenTest, SortingRequestsKeepTheirPrefixes)
{
    EXPECT_EQ((Texts{ L"before", L"%SortDescBy:%Weight" }), sortingOf(L"%SortDescBy:%Weight"));
    EXPECT_EQ((Texts{ L"before", L"%SortAscBy:%Material", L"%SortDescBy:%Weight" }),
              sortingOf(L"%SortAscBy:%Material,%SortDescBy:%Weight"));
    EXPECT_EQ((Texts{ L"before", L"%SortAscBy:%A", L"%B" }), sortingOf(L"%SortAscBy: %A , %B"));
    EXPECT_EQ((Texts{ L"before", L"%SortAscBy:", L"%A" }), sortingOf(L"%SortAscBy:,%A")); // no comma at the start here
    EXPECT_EQ((Texts{ L"before", L"%SortAscBy:%A", L",%B" }), sortingOf(L"%SortAscBy:%A,,%B"));
    EXPECT_EQ((Texts{ L"before", L"%SortAscBy:" }), sortingOf(L"%SortAscBy:"));
}

TEST(VorBomDataTokenTest, OtherTokensAreNoSortingRequests)
{
    for (const wchar_t* text : { L"%A", L"", L"%GroupBy:%A", L"x%SortAscBy:%A", L"%A,%SortAscBy:%B", L"%SortBy:%A" })
        EXPECT_EQ((Texts{ L"before" }), sortingOf(text));
}

TEST(VorBomDataTokenTest, SortingPrefixesTellTheDirection)
{
    VorString text(L"%SortDescBy:%Weight");
    int ascending = 7;
    EXPECT_EQ(1, VorBomDataToken::removeSortingPrefix(text, ascending));
    EXPECT_EQ(VorString(L"%Weight"), text);
    EXPECT_EQ(0, ascending);

    text = L"%SortAscBy:%SortDescBy:%A";
    EXPECT_EQ(1, VorBomDataToken::removeSortingPrefix(text, ascending));
    EXPECT_EQ(VorString(L"%SortDescBy:%A"), text); // one prefix at a time
    EXPECT_EQ(1, ascending);

    text = L"%SortAscBy:";
    EXPECT_EQ(1, VorBomDataToken::removeSortingPrefix(text, ascending));
    EXPECT_EQ(VorString(), text);
}

TEST(VorBomDataTokenTest, WithoutSortingPrefixNothingChanges)
{
    VorString text(L"x%SortAscBy:%A");
    int ascending = 7;

    EXPECT_EQ(0, VorBomDataToken::removeSortingPrefix(text, ascending));

    EXPECT_EQ(VorString(L"x%SortAscBy:%A"), text);
    EXPECT_EQ(7, ascending);
}

TEST(VorBomDataTokenTest, SummingRequestsNameOneToken)
{
    VorString summed(L"before");

    EXPECT_EQ(1, VorBomDataToken(L"%SumBy:%Weight").getSummingRequest(summed));
    EXPECT_EQ(VorString(L"%Weight"), summed);
    EXPECT_EQ(1, VorBomDataToken(L"%SumBy: %A , %B").getSummingRequest(summed));
    EXPECT_EQ(VorString(L" %A , %B"), summed); // blanks kept, nothing split
    EXPECT_EQ(1, VorBomDataToken(L"%SumBy:").getSummingRequest(summed));
    EXPECT_EQ(VorString(), summed);
}

TEST(VorBomDataTokenTest, OtherTokensAreNoSummingRequests)
{
    VorString summed(L"before");

    EXPECT_EQ(0, VorBomDataToken(L"%Weight").getSummingRequest(summed));
    EXPECT_EQ(0, VorBomDataToken(L"x%SumBy:%Weight").getSummingRequest(summed));
    EXPECT_EQ(0, VorBomDataToken(L"%SumBy").getSummingRequest(summed));

    EXPECT_EQ(VorString(L"before"), summed);
}

TEST(VorBomDataTokenTest, FilteringRequestsAppendIntegers)
{
    EXPECT_EQ((Ints{ -1, 3, 7 }), filteringOf(L"%FilterBy: 3, 7"));
    EXPECT_EQ((Ints{ -1, 0, 0 }), filteringOf(L"%FilterBy: %Beam , %Plate"));
    EXPECT_EQ((Ints{ -1, 0 }), filteringOf(L"%FilterBy:"));
    EXPECT_EQ((Ints{ -1, 12, 0 }), filteringOf(L"%FilterBy:1 2,,5")); // "12", then ",5" is no number
    EXPECT_EQ((Ints{ -1, 3 }), filteringOf(L"%FilterBy:3x"));
    EXPECT_EQ((Ints{ -1, -5, 2147483647 }), filteringOf(L"%FilterBy:-5,99999999999"));
}

TEST(VorBomDataTokenTest, FilterPrefixCountsAnywhereButIsCutFromTheStart)
{
    EXPECT_EQ((Ints{ -1, 0 }), filteringOf(L"x%FilterBy:1"));         // leaves ":1"
    EXPECT_EQ((Ints{ -1, 0, 2 }), filteringOf(L"x%FilterBy:1,2"));    // leaves ":1,2"
    EXPECT_EQ((Ints{ -1, 0 }), filteringOf(L"1234567890%FilterBy:")); // leaves the prefix itself
    EXPECT_EQ((Ints{ -1, 34, 0 }), filteringOf(L"123456789034,%FilterBy:"));
}

TEST(VorBomDataTokenTest, OtherTokensAreNoFilteringRequests)
{
    for (const wchar_t* text : { L"%A", L"", L"%FilterBy", L"%filterby:1", L"%Filter By:1" })
        EXPECT_EQ((Ints{ -1 }), filteringOf(text));
}

TEST(VorBomDataTokenTest, FormulasStartWithTheirPrefix)
{
    EXPECT_EQ(1, VorBomDataToken::isFormula(L"%Formula:%A+%B"));
    EXPECT_EQ(1, VorBomDataToken::isFormula(L"%Formula:"));
    EXPECT_EQ(0, VorBomDataToken::isFormula(L"%SumBy:%Formula:%A"));
    EXPECT_EQ(0, VorBomDataToken::isFormula(L"%formula:%A"));
    EXPECT_EQ(0, VorBomDataToken::isFormula(L""));
}

TEST(VorBomDataTokenTest, FormulaRequestsYieldTheFormula)
{
    VorString formula(L"before");

    EXPECT_EQ(0, VorBomDataToken(L"%A+%B").getFormulaRequest(formula));
    EXPECT_EQ(VorString(L"before"), formula);
    EXPECT_EQ(1, VorBomDataToken(L"%Formula: %A + %B").getFormulaRequest(formula));
    EXPECT_EQ(VorString(L" %A + %B"), formula);
}

TEST(VorBomDataTokenTest, FormulaPrefixIsStrippedInPlace)
{
    VorString text(L"%Formula:%A*2");
    EXPECT_EQ(1, VorBomDataToken::removeFormulaPrefix(text));
    EXPECT_EQ(VorString(L"%A*2"), text);

    EXPECT_EQ(0, VorBomDataToken::removeFormulaPrefix(text));
    EXPECT_EQ(VorString(L"%A*2"), text);
}

TEST(VorBomDataTokenTest, TokensOfAFormulaComeInOrder)
{
    const struct
    {
        const wchar_t* formula;
        Texts expected;
    } kCases[] = {
        { L"(%Weight+%Paint)*2", { L"%Weight", L"%Paint" } },
        { L"%A*%B/%A", { L"%A", L"%B", L"%A" } }, // as often as they occur
        { L"%A = %B\t-\n%C\r", { L"%A", L"%B", L"%C" } },
        { L"2*3+sin(x)", {} },
        { L"%%PaintMeter*%Length", { L"%Length" } },
        { L"%A%%B+%C", { L"%C" } },
        { L"%A,%B", { L"%A,%B" } }, // a comma is no operator
        { L"%A^2", { L"%A^2" } },
        { L"", {} },
        { L"%Formula:%A+%B", { L"%Formula:%A", L"%B" } }, // the caller strips the prefix
    };

    for (const auto& c : kCases)
        EXPECT_EQ(c.expected, elementsOf(VorBomDataToken::getTokensFromFormula(c.formula))) << VorString(c.formula);
}

TEST(VorBomDataTokenTest, KnownTokensHaveTypeAndOrder)
{
    const struct
    {
        const wchar_t* token;
        VorBomDataValue::eBomDataValueType type;
        VorBomDataToken::eSortType sort;
    } kCases[] = {
        { L"%Weight", VorBomDataValue::kDoubleData, VorBomDataToken::kSortNumeric },
        { L"%SumBy:%Quantity", VorBomDataValue::kIntData, VorBomDataToken::kSortNumeric },
        { L"%Quantity", VorBomDataValue::kIntData, VorBomDataToken::kSortNumeric },
        { L"%Formula:%Weight*2", VorBomDataValue::kDoubleData, VorBomDataToken::kSortNumeric },
        { L"%Formula:", VorBomDataValue::kDoubleData, VorBomDataToken::kSortNumeric },
        { L"%SumBy:%Formula:%A", VorBomDataValue::kDoubleData, VorBomDataToken::kSortNumeric },
        { L"%UserAttr7", VorBomDataValue::kStringData, VorBomDataToken::kSortString },
        { L"%External3", VorBomDataValue::kStringData, VorBomDataToken::kSortString },
        { L"%Name", VorBomDataValue::kStringData, VorBomDataToken::kSortAlphanumeric },
        { L"%Material", VorBomDataValue::kStringData, VorBomDataToken::kSortString },
    };
    const AssertLog log;

    for (const auto& c : kCases)
    {
        EXPECT_EQ(c.type, VorBomDataToken::getTokenType(c.token)) << VorString(c.token);
        EXPECT_EQ(c.sort, VorBomDataToken::getSortType(c.token)) << VorString(c.token);
    }

    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomDataTokenTest, SumsOfNaturalTextsSortAsPlainText)
{
    EXPECT_EQ(VorBomDataToken::kSortAlphanumeric, VorBomDataToken::getSortType(L"%MNum"));
    EXPECT_EQ(VorBomDataToken::kSortString, VorBomDataToken::getSortType(L"%SumBy:%MNum"));
}

TEST(VorBomDataTokenTest, UnknownTokensAreReported)
{
    for (const wchar_t* token : { L"%PosNum", L"%PaintMeter", L"", L"%SumBy:", L"%SumBy:%SumBy:%Weight", L"Weight",
                                  L"%GroupBy:%Weight", L"%SortAscBy:%Weight", L"%FilterBy:3", L"%weight", L"%Weight " })
    {
        AssertLog log;

        EXPECT_EQ(VorBomDataValue::kUnknownData, VorBomDataToken::getTokenType(token)) << VorString(token);

        EXPECT_TRUE(log.holdsOnly(kUnknownType, kSourcePath)) << VorString(token);
        EXPECT_EQ(1, log.count(kUnknownType, kSourcePath)) << VorString(token);
    }
}

TEST(VorBomDataTokenTest, UnknownTokensSortAsPlainTextAndAreReportedTwice)
{
    AssertLog log;

    EXPECT_EQ(VorBomDataToken::kSortString, VorBomDataToken::getSortType(L"%PosNum"));

    EXPECT_EQ(1, log.count(kUnknownType, kSourcePath));
    EXPECT_EQ(1, log.count(L"0", kSourcePath));
}
