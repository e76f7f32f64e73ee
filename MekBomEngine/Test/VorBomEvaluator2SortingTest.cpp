#include "MekBomEngine/Test/Support/ReportBuilders.h"

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2";
const wchar_t kValuePath[] = L"MekBomEngine/Src/VorBomDataValue";
const wchar_t kTokenPath[] = L"MekBomEngine/Src/VorBomDataToken";

using Item = VorBomTemplateItem;
using Access = VorBomEvaluator2Access;

// One level per request, each the child of the one before.
void addLevels(Report& report, std::initializer_list<const wchar_t*> requests)
{
    Item* pParent = nullptr;
    for (const wchar_t* pRequest : requests)
        pParent = report.addSection(pParent, Item::kGroupHeader, { { pRequest, L"" } });
}

// The rows' handles-in-order under %Num after a sort by the template's requests.
VorString sortedNums(Report& report)
{
    report.tmpl().findUsedTokens();
    VorBomEngineStateArray stack = Access::getTemplateStack(&report.tmpl());
    EXPECT_EQ(1, Access::sortInputData(&report.data(), stack));
    return report.rowTexts(L"%Num");
}

// An evaluated section with a first row that carries `tuples`, owned by the test.
struct Opened
{
    explicit Opened(Item::eTemplateItemType type, std::initializer_list<VorBomDataTuple> tuples = {}) : section(type)
    {
        for (const VorBomDataTuple& tuple : tuples)
            row.addData(tuple);
        section.setFirstDataRow(&row);
        pair.m_pHeaderItem = &section;
    }

    VorBomDataRow row;
    Item section;
    VorHeaderFooterSortingStruct pair;
};

VorStringArray tokenList(std::initializer_list<const wchar_t*> texts)
{
    VorStringArray tokens;
    for (const wchar_t* pText : texts)
        tokens.append(VorString(pText));
    return tokens;
}
}

TEST(VorBomEvaluator2SortingTest, OuterLevelsKeysCountFirst)
{
    Report report;
    addLevels(report, { L"%Title", L"%SortAscBy:%Material", L"%SortDescBy:%Length" });
    report.addRow({ { L"%Num", L"1" }, { L"%Material", L"S355" }, { L"%Length", 1.0 } });
    report.addRow({ { L"%Num", L"2" }, { L"%Material", L"S235" }, { L"%Length", 2.0 } });
    report.addRow({ { L"%Num", L"3" }, { L"%Material", L"S355" }, { L"%Length", 3.0 } });
    report.addRow({ { L"%Num", L"4" }, { L"%Material", L"S235" }, { L"%Length", 4.0 } });

    EXPECT_EQ(VorString(L"4 2 3 1"), sortedNums(report));
}

TEST(VorBomEvaluator2SortingTest, RowWithoutTheDatumComesFirstAscendingAndLastDescending)
{
    for (const wchar_t* pRequest : { L"%SortAscBy:%Length", L"%SortDescBy:%Length" })
    {
        Report report;
        addLevels(report, { pRequest });
        report.addRow({ { L"%Num", L"1" }, { L"%Length", 1.0 } });
        report.addRow({ { L"%Num", L"2" } });
        report.addRow({ { L"%Num", L"3" }, { L"%Length", 3.0 } });

        const bool isAscending = VorString(pRequest).find(L"%SortAscBy:", 0) == 0;
        EXPECT_EQ(VorString(isAscending ? L"2 1 3" : L"3 1 2"), sortedNums(report));
    }
}

TEST(VorBomEvaluator2SortingTest, AlphanumericTokensSortNaturallyAndOthersByCharacters)
{
    Report natural;
    addLevels(natural, { L"%SortAscBy:%Name" });
    Report plain;
    addLevels(plain, { L"%SortAscBy:%Material" });
    for (const wchar_t* pText : { L"B10", L"B2", L"B1" })
    {
        natural.addRow({ { L"%Num", pText }, { L"%Name", pText } });
        plain.addRow({ { L"%Num", pText }, { L"%Material", pText } });
    }

    EXPECT_EQ(VorString(L"B1 B2 B10"), sortedNums(natural));
    EXPECT_EQ(VorString(L"B1 B10 B2"), sortedNums(plain));
}

TEST(VorBomEvaluator2SortingTest, TemplateSetsTheOrderOfATokenForItselfAlone)
{
    for (const bool isNatural : { false, true })
    {
        Report report;
        addLevels(report, { L"%SortAscBy:%Phase,%Zone" });
        if (isNatural)
            for (const wchar_t* pToken : { L"%Phase", L"%Zone" })
                report.tmpl().setSortType(pToken, VorBomDataToken::kSortAlphanumeric);
        report.addRow({ { L"%Num", L"a" }, { L"%Phase", L"10" }, { L"%Zone", L"Z1" } });
        report.addRow({ { L"%Num", L"b" }, { L"%Phase", L"2" }, { L"%Zone", L"Z10" } });
        report.addRow({ { L"%Num", L"c" }, { L"%Phase", L"2" }, { L"%Zone", L"Z9" } });
        AssertLog log;

        report.evaluate();

        EXPECT_EQ(VorString(isNatural ? L"c b a" : L"a b c"), report.rowTexts(L"%Num"));
        EXPECT_EQ(isNatural, log.isEmpty()); // %Zone is reported unless its order is set
    }
}

TEST(VorBomEvaluator2SortingTest, CallbackComparesByTheOrdersOfTheLastSort)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%Phase" });
    report.tmpl().setSortType(L"%Phase", VorBomDataToken::kSortAlphanumeric);
    VorBomDataRow* pTen = report.addRow({ { L"%Phase", L"10" } });
    VorBomDataRow* pTwo = report.addRow({ { L"%Phase", L"2" } });
    report.evaluate();

    EXPECT_EQ(1, Access::compareDataRow(pTen, pTwo));
    sortedNums(report); // sets nothing
    EXPECT_EQ(-1, Access::compareDataRow(pTen, pTwo));
}

TEST(VorBomEvaluator2SortingTest, EqualRowsKeepTheirOrder)
{
    Report report;
    addLevels(report, { L"%SortDescBy:%Material" });
    for (const wchar_t* pNum : { L"1", L"2", L"3", L"4", L"5" })
        report.addRow({ { L"%Num", pNum }, { L"%Material", L"S235" } });

    EXPECT_EQ(VorString(L"1 2 3 4 5"), sortedNums(report));
}

TEST(VorBomEvaluator2SortingTest, TokenWithoutPrefixKeepsTheDirectionBeforeIt)
{
    Report report;
    addLevels(report, { L"%SortDescBy:%Material,%Length" });
    report.addRow({ { L"%Num", L"1" }, { L"%Material", L"S235" }, { L"%Length", 1.0 } });
    report.addRow({ { L"%Num", L"2" }, { L"%Material", L"S235" }, { L"%Length", 2.0 } });
    sortedNums(report);
    EXPECT_EQ(VorString(L"2 1"), report.rowTexts(L"%Num"));
    ASSERT_EQ(2, Access::sortTokens().length());
    EXPECT_EQ(VorString(L"%Material"), Access::sortTokens()[0]);
    EXPECT_EQ(VorString(L"%Length"), Access::sortTokens()[1]);
    EXPECT_EQ(0, Access::sortOrders()[1]);
}

TEST(VorBomEvaluator2SortingTest, DirectionsMayChangeWithinOneRequest)
{
    Report report;
    addLevels(report, { L"%SortDescBy:%Material,%SortAscBy:%Length,%Width" });
    sortedNums(report);

    ASSERT_EQ(3, Access::sortOrders().length());
    EXPECT_EQ(0, Access::sortOrders()[0]);
    EXPECT_EQ(1, Access::sortOrders()[1]);
    EXPECT_EQ(1, Access::sortOrders()[2]);
}

TEST(VorBomEvaluator2SortingTest, WithoutKeysTheDataStaysAndTheOldKeysAreGone)
{
    Report report;
    addLevels(report, { L"%Material" });
    report.addRow({ { L"%Num", L"2" }, { L"%Material", L"b" } });
    report.addRow({ { L"%Num", L"1" }, { L"%Material", L"a" } });

    EXPECT_EQ(VorString(L"2 1"), sortedNums(report));
    EXPECT_TRUE(Access::sortTokens().isEmpty());
}

TEST(VorBomEvaluator2SortingTest, OneRowOrNoneIsLeftAlone)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%Material" });
    EXPECT_EQ(VorString(), sortedNums(report));
    report.addRow({ { L"%Num", L"1" }, { L"%Material", L"b" } });

    EXPECT_EQ(VorString(L"1"), sortedNums(report));
}

TEST(VorBomEvaluator2SortingTest, LastChildKeepsNamingTheRowThatWasLast)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%Material" });
    report.addRow({ { L"%Num", L"1" }, { L"%Material", L"b" } });
    const VorBomDataRow* pLast = report.addRow({ { L"%Num", L"2" }, { L"%Material", L"a" } });

    EXPECT_EQ(VorString(L"2 1"), sortedNums(report));
    EXPECT_EQ(pLast, report.data().lastChild());
    EXPECT_EQ(pLast, report.data().child());
}

TEST(VorBomEvaluator2SortingTest, UnlikeValuesUnderOneKeyAreReportedAndEveryRowIsKept)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%Length" });
    for (int i = 0; i < 200; ++i)
    {
        if (i % 3 == 0)
            report.addRow({ { L"%Length", L"long" } });
        else if (i % 3 == 1)
            report.addRow({ { L"%Length", i } });
        else
            report.addRow({ { L"%Length", i * 0.5 } });
    }
    AssertLog log;
    sortedNums(report);

    int numRows = 0;
    for (const VorBomItemBase* pRow = report.data().child(); pRow != nullptr; pRow = pRow->next())
        ++numRows;
    EXPECT_EQ(200, numRows);
    EXPECT_TRUE(log.holdsOnly(L"false", kValuePath));
}

TEST(VorBomEvaluator2SortingTest, TokenOutsideTheCatalogueIsReportedAndSortsPlainly)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%PosNum" });
    report.addRow({ { L"%Num", L"1" }, { L"%PosNum", 10 } });
    report.addRow({ { L"%Num", L"2" }, { L"%PosNum", 9 } });
    AssertLog log;

    EXPECT_EQ(VorString(L"2 1"), sortedNums(report));
    EXPECT_TRUE(log.holds(L"type != VorBomDataValue::kUnknownData", kTokenPath));
    EXPECT_TRUE(log.holds(L"0", kTokenPath));
}

TEST(VorBomEvaluator2SortingTest, TokenOutsideTheCatalogueThatFewerThanTwoRowsHaveIsNotReported)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%PosNum" });
    report.addRow({ { L"%Num", L"1" }, { L"%PosNum", 10 } });
    report.addRow({ { L"%Num", L"2" } });
    AssertLog log;

    EXPECT_EQ(VorString(L"2 1"), sortedNums(report));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomEvaluator2SortingTest, RowComparisonAnswersByTheKeysOfTheLastSort)
{
    Report report;
    addLevels(report, { L"%SortAscBy:%Name", L"%SortDescBy:%Weight" });
    VorBomDataRow* pFirst = report.addRow({ { L"%Name", L"B2" }, { L"%Weight", 1.0 } });
    VorBomDataRow* pSecond = report.addRow({ { L"%Name", L"B10" }, { L"%Weight", 1.0 } });
    VorBomDataRow* pHeavy = report.addRow({ { L"%Name", L"B2" }, { L"%Weight", 2.0 } });
    VorBomDataRow* pBare = report.addRow({ { L"%Name", L"B2" } });
    sortedNums(report);

    EXPECT_EQ(-1, Access::compareDataRow(pFirst, pSecond));
    EXPECT_EQ(1, Access::compareDataRow(pSecond, pFirst));
    EXPECT_EQ(1, Access::compareDataRow(pFirst, pHeavy));
    EXPECT_EQ(-1, Access::compareDataRow(pFirst, pBare));
    EXPECT_EQ(1, Access::compareDataRow(pBare, pFirst));
    EXPECT_EQ(0, Access::compareDataRow(pFirst, pFirst));
}

TEST(VorBomEvaluator2SortingTest, ComparingNoRowIsReported)
{
    VorBomDataRow row;
    AssertLog log;

    EXPECT_EQ(0, Access::compareDataRow(nullptr, &row));
    EXPECT_EQ(0, Access::compareDataRow(&row, nullptr));
    EXPECT_EQ(1, log.count(L"NULL != pFirstItemData", kSourcePath));
    EXPECT_EQ(1, log.count(L"NULL != pSecondItemData", kSourcePath));
}

TEST(VorBomEvaluator2SortingTest, MillionRowsAreSortedWithoutRecursion)
{
    Report report;
    addLevels(report, { L"%SortDescBy:%Quantity" });
    const VorString quantity(L"%Quantity");
    for (int i = 0; i < 1000000; ++i)
        report.addRow({ VorBomDataTuple(quantity, i) });
    sortedNums(report);

    int expected = 999999;
    for (const VorBomItemBase* pRow = report.data().child(); pRow != nullptr; pRow = pRow->next(), --expected)
        ASSERT_EQ(expected, *static_cast<const int*>(pRow->getData()[0].value().data()));
    EXPECT_EQ(-1, expected);
}

TEST(VorBomEvaluator2SortingTest, SectionsWithEqualValuesAreEqualWhateverTheirTokens)
{
    Item first(Item::kDetails);
    Item second(Item::kDetails);
    EXPECT_EQ(1, Access::isEqualAsEvaluated(&first, &second)) << "both without tuples";

    first.addData(VorBomDataTuple(L"%Weight", VorString(L"1")));
    EXPECT_EQ(0, Access::isEqualAsEvaluated(&first, &second)) << "unlike numbers of tuples";

    second.addData(VorBomDataTuple(L"%Length", VorString(L"1")));
    EXPECT_EQ(1, Access::isEqualAsEvaluated(&first, &second));

    first.addData(VorBomDataTuple(L"%Name", VorString(L"a")));
    second.addData(VorBomDataTuple(L"%Name", VorString(L"b")));
    EXPECT_EQ(0, Access::isEqualAsEvaluated(&first, &second));
}

TEST(VorBomEvaluator2SortingTest, SortedSectionsTakeTheirFootersAlong)
{
    Opened b(Item::kGroupHeader, { { L"%Material", L"b" } });
    Opened a(Item::kGroupHeader, { { L"%Material", L"a" } });
    Opened c(Item::kDetails, { { L"%Material", L"c" } });
    Item footerOfB(Item::kGroupFooter);
    Item footerOfA(Item::kReportFooter);
    c.section.setNext(&b.section);
    b.section.setNext(&footerOfB);
    footerOfB.setNext(&a.section);
    a.section.setNext(&footerOfA);
    Item* pFirst = &c.section;

    EXPECT_EQ(1, Access::sortItemList(pFirst, tokenList({ L"%SortAscBy:%Material" })));

    EXPECT_EQ(&a.section, pFirst);
    EXPECT_EQ(&footerOfA, a.section.next());
    EXPECT_EQ(&b.section, footerOfA.next());
    EXPECT_EQ(&footerOfB, b.section.next());
    EXPECT_EQ(&c.section, footerOfB.next());
    EXPECT_EQ(nullptr, c.section.next());
}

TEST(VorBomEvaluator2SortingTest, SectionsWithoutSortingTokensKeepTheirOrder)
{
    Opened b(Item::kGroupHeader, { { L"%Material", L"b" } });
    Opened a(Item::kGroupHeader, { { L"%Material", L"a" } });
    b.section.setNext(&a.section);
    Item* pFirst = &b.section;

    Access::sortItemList(pFirst, VorStringArray());

    EXPECT_EQ(&b.section, pFirst);
    EXPECT_EQ(&a.section, b.section.next());
}

TEST(VorBomEvaluator2SortingTest, NoSectionsToSortAreReported)
{
    Item* pFirst = nullptr;
    AssertLog log;

    EXPECT_EQ(1, Access::sortItemList(pFirst, VorStringArray()));
    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
}

TEST(VorBomEvaluator2SortingTest, SectionThatOpensNoGroupIsReportedAndTaken)
{
    Opened footer(Item::kPageFooter, { { L"%Material", L"a" } });
    Item* pFirst = &footer.section;
    AssertLog log;

    Access::sortItemList(pFirst, tokenList({ L"%Material" }));

    EXPECT_EQ(&footer.section, pFirst);
    EXPECT_TRUE(log.holdsOnly(L"( VorBomTemplateItem::kReportHeader == pCurrItem->type()) ||"
                              L"( VorBomTemplateItem::kGroupHeader == pCurrItem->type()) ||"
                              L"( VorBomTemplateItem::kDetails == pCurrItem->type())",
                              kSourcePath));
}

TEST(VorBomEvaluator2SortingTest, SectionsCompareByTheirRowsNeverNaturally)
{
    Opened two(Item::kGroupHeader, { { L"%Name", L"B2" } });
    Opened ten(Item::kGroupHeader, { { L"%Name", L"B10" } });
    two.section.setNext(&ten.section);
    Item* pFirst = &two.section;
    Access::sortItemList(pFirst, tokenList({ L"%SortAscBy:%Name" }));

    EXPECT_EQ(&ten.section, pFirst);
    EXPECT_EQ(1, Access::compareEvaluatedItems(&two.pair, &ten.pair));
    EXPECT_EQ(-1, Access::compareEvaluatedItems(&ten.pair, &two.pair));
    EXPECT_EQ(0, Access::compareEvaluatedItems(&two.pair, &two.pair));
}

TEST(VorBomEvaluator2SortingTest, SectionWithoutTheDatumIsReportedAndStandsFirstAscending)
{
    Opened with(Item::kGroupHeader, { { L"%Name", L"a" } });
    Opened without(Item::kGroupHeader);
    AssertLog log;
    Item* pFirst = &with.section;
    Access::sortItemList(pFirst, tokenList({ L"%SortAscBy:%Name" }));
    EXPECT_EQ(1, Access::compareEvaluatedItems(&with.pair, &without.pair));
    EXPECT_EQ(-1, Access::compareEvaluatedItems(&without.pair, &with.pair));
    EXPECT_EQ(0, Access::compareEvaluatedItems(&without.pair, &without.pair));

    pFirst = &with.section;
    Access::sortItemList(pFirst, tokenList({ L"%SortDescBy:%Name" }));
    EXPECT_EQ(-1, Access::compareEvaluatedItems(&with.pair, &without.pair));
    EXPECT_EQ(1, Access::compareEvaluatedItems(&without.pair, &with.pair));
    EXPECT_EQ(3, log.count(L"NULL != pFirstTupleToCompare", kSourcePath));
    EXPECT_EQ(3, log.count(L"NULL != pSecondTupleToCompare", kSourcePath));
}

TEST(VorBomEvaluator2SortingTest, MissingPartsOfAPairAreReportedAndEqualToAnything)
{
    Opened whole(Item::kGroupHeader, { { L"%Name", L"a" } });
    VorHeaderFooterSortingStruct noHeader;
    Item bare(Item::kGroupHeader);
    VorHeaderFooterSortingStruct noRow;
    noRow.m_pHeaderItem = &bare;
    AssertLog log;

    EXPECT_EQ(0, Access::compareEvaluatedItems(nullptr, &whole.pair));
    EXPECT_EQ(0, Access::compareEvaluatedItems(&whole.pair, &noHeader));
    EXPECT_EQ(0, Access::compareEvaluatedItems(&noRow, &whole.pair));
    EXPECT_EQ(1, log.count(L"NULL != pFirstSortStruct", kSourcePath));
    EXPECT_EQ(0, log.count(L"NULL != pSecondSortStruct", kSourcePath));
    EXPECT_EQ(1, log.count(L"NULL != pFirstItem", kSourcePath));
    EXPECT_EQ(1, log.count(L"NULL != pSecondItem", kSourcePath));
    EXPECT_EQ(2, log.count(L"NULL != pFirstItemData", kSourcePath));
    EXPECT_EQ(1, log.count(L"NULL != pSecondItemData", kSourcePath));
}

namespace
{
// A report of materials with marks under them, evaluated in the order of the data.
void buildUnsortedReport(Report& report)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"Title", L"" } });
    Item* pGroup =
        report.addSection(pReport, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" }, { L"%Material", L"" } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Quantity", 0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" } });
    report.addRow({ { L"%Material", L"b" }, { L"%Num", L"2" }, { L"%Quantity", 1 } });
    report.addRow({ { L"%Material", L"b" }, { L"%Num", L"1" }, { L"%Quantity", 1 } });
    report.addRow({ { L"%Material", L"a" }, { L"%Num", L"3" }, { L"%Quantity", 1 } });
    report.evaluate();
    // Sorting is asked for only now, on the levels whose children are to be sorted.
    report.tmpl().child()->child()->addData(VorBomDataTuple(L"%SortAscBy:%Material", VorString()));
    report.tmpl().child()->child()->child()->addData(VorBomDataTuple(L"%SortAscBy:%Num", VorString()));
    static_cast<Item*>(report.tmpl().child()->child())->findSortingTokens();
    static_cast<Item*>(report.tmpl().child()->child()->child())->findSortingTokens();
}
}

TEST(VorBomEvaluator2SortingTest, EvaluatedSectionsAreSortedLevelByLevel)
{
    Report report;
    buildUnsortedReport(report);
    VorBomEngineStateArray stack = Access::getTemplateStack(&report.tmpl());

    EXPECT_EQ(1, Access::sortSubGroupsOnLevels(&report.result(), stack, 0));

    EXPECT_EQ(VorString(L"[ kReportHeader][Title:]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:][%Material:a]\n"
                        L"  [ kDetails     ][%Num:3]\n"
                        L" [ kGroupFooter ][%SumBy:%Quantity:1]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:][%Material:b]\n"
                        L"  [ kDetails     ][%Num:1]\n"
                        L"  [ kDetails     ][%Num:2]\n"
                        L" [ kGroupFooter ][%SumBy:%Quantity:2]"),
              report.resultText());
    const VorBomItemBase* pReport = report.result().child();
    EXPECT_EQ(nullptr, pReport->lastChild()->next());
}

TEST(VorBomEvaluator2SortingTest, SectionsOfOtherTypesAndNullAreNotSorted)
{
    Report report;
    buildUnsortedReport(report);
    const VorString before = report.resultText();
    VorBomEngineStateArray stack = Access::getTemplateStack(&report.tmpl());
    Item details(Item::kDetails);

    EXPECT_EQ(1, Access::sortSubGroupsOnLevels(nullptr, stack, 0));
    EXPECT_EQ(1, Access::sortSubGroupsOnLevels(&details, stack, 0));
    EXPECT_EQ(1, Access::sortSubGroupsOnLevels(&report.result(), stack, 99)) << "no such levels";
    EXPECT_EQ(before, report.resultText());
}

namespace
{
// The phases of rows that are sorted by them, "-" for a row without one.
VorString sortedPhases(std::initializer_list<const wchar_t*> order, const wchar_t* request = L"%SortAscBy:%Phase",
                       int numEqual = 1)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { request, L"" } });
    for (int i = 0; i < numEqual; ++i)
        for (const wchar_t* phase : { L"roof", L"cellar", L"annex", L"ground" })
            report.addRow({ { L"%Phase", phase } });
    report.addRow({ { L"%Num", L"P1" } });
    VorStringArray phases;
    for (const wchar_t* phase : order)
        phases.append(VorString(phase));
    report.tmpl().setSortOrder(L"%Phase", phases);
    report.evaluate();
    return report.rowTexts(L"%Phase");
}
}

TEST(VorBomEvaluator2SortingTest, HostsOwnOrderStandsBeforeAllOtherValues)
{
    const AssertLog log;

    EXPECT_EQ(VorString(L"- ground roof annex cellar"), sortedPhases({ L"ground", L"roof" }));
    EXPECT_EQ(VorString(L"cellar annex roof ground -"), sortedPhases({ L"ground", L"roof" }, L"%SortDescBy:%Phase"));
    EXPECT_EQ(VorString(L"- roof roof ground ground annex annex cellar cellar"),
              sortedPhases({ L"roof", L"ground", L"roof", L"attic" }, L"%SortAscBy:%Phase", 2))
        << "the first of two equal texts counts, and one that no row has is none the worse";
    EXPECT_TRUE(log.isEmpty()) << "a token that is in no catalogue, but in order";
}

TEST(VorBomEvaluator2SortingTest, OrderOfNoValuesIsThatOfTheSortType)
{
    EXPECT_EQ(VorString(L"- annex cellar ground roof"), sortedPhases({}));
}

TEST(VorBomEvaluator2SortingTest, TheLastOrderOfATokenCounts)
{
    VorBomTemplate reportTemplate;
    VorStringArray phases;
    phases.append(VorString(L"roof"));
    reportTemplate.setSortOrder(L"%Phase", phases);
    phases.append(VorString(L"ground"));
    reportTemplate.setSortOrder(L"%Phase", phases);

    EXPECT_EQ(2, reportTemplate.sortOrder(L"%Phase").length());
    EXPECT_EQ(0, reportTemplate.sortOrder(L"%Zone").length());
    reportTemplate.setSortOrder(L"%Phase", VorStringArray());
    EXPECT_EQ(0, reportTemplate.sortOrder(L"%Phase").length());
}

// Rows of the next evaluation on the thread are not sorted by the order of the last.
TEST(VorBomEvaluator2SortingTest, OrderOfOneTemplateIsNotThatOfTheNext)
{
    sortedPhases({ L"roof" });

    EXPECT_EQ(VorString(L"- annex cellar ground roof"), sortedPhases({}));
}
