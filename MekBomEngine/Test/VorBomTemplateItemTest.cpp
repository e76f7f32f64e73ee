#include "VorBomTemplateItem.h"

#include "Support/BomTestSupport.h"
#include "Support/ReportBuilders.h"

#include <gtest/gtest.h>

namespace
{
using Item = VorBomTemplateItem;

const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomTemplateItem";
const int kTypeAlreadySetLine = 31;

// A header with one request of each kind, each naming `name`.
VorBomTemplateItem* newRequests(Item::eTemplateItemType type, const wchar_t* group, const wchar_t* sort,
                                const wchar_t* filter)
{
    return newSection(type, { tuple(group, L""), tuple(sort, L""), tuple(filter, L"") });
}

int findAll(VorBomTemplateItem& item)
{
    return item.findGroupingTokens() + item.findSortingTokens() + item.findFilterObjTypes();
}

void expectCaches(const VorBomTemplateItem& item, const Texts& grouping, const Texts& sorting, const Ints& filter)
{
    EXPECT_EQ(grouping, elementsOf(item.groupingTokens()));
    EXPECT_EQ(sorting, elementsOf(item.sortingTokens()));
    EXPECT_EQ(filter, elementsOf(item.filterObjTypes()));
}
}

TEST(VorBomTemplateItemTest, TypesHaveTheirNumbers)
{
    EXPECT_EQ(0, Item::kUnkTemplateItemType);
    EXPECT_EQ(1, Item::kBomTemplate);
    EXPECT_EQ(2, Item::kReportHeader);
    EXPECT_EQ(3, Item::kPageHeader);
    EXPECT_EQ(4, Item::kGroupHeader);
    EXPECT_EQ(5, Item::kDetails);
    EXPECT_EQ(6, Item::kGroupFooter);
    EXPECT_EQ(7, Item::kPageFooter);
    EXPECT_EQ(8, Item::kReportFooter);
}

TEST(VorBomTemplateItemTest, StartsWithoutTypeCachesAndRow)
{
    const Item item;

    EXPECT_EQ(Item::kUnkTemplateItemType, item.type());
    expectCaches(item, {}, {}, {});
    EXPECT_EQ(8, item.groupingTokens().growBy());
    EXPECT_EQ(8, item.sortingTokens().growBy());
    EXPECT_EQ(8, item.filterObjTypes().growBy());
    EXPECT_EQ(nullptr, item.getFirstDataRow());
}

TEST(VorBomTemplateItemTest, TypeIsSetOnce)
{
    AssertLog log;
    Item item;

    item.setType(Item::kDetails);
    EXPECT_EQ(Item::kDetails, item.type());
    EXPECT_TRUE(log.isEmpty());

    Item group(Item::kGroupHeader);
    EXPECT_TRUE(log.isEmpty());
    group.setType(Item::kDetails);
    EXPECT_EQ(Item::kDetails, group.type()); // reported, yet set
    EXPECT_TRUE(log.holdsOnly(L"kUnkTemplateItemType == m_nType", kSourcePath));
    EXPECT_EQ(1, log.count(L"kUnkTemplateItemType == m_nType", kSourcePath, kTypeAlreadySetLine));
}

TEST(VorBomTemplateItemTest, SettingTheUnknownTypeLeavesItToBeSet)
{
    const AssertLog log;
    Item item;

    item.setType(Item::kUnkTemplateItemType);
    item.setType(Item::kDetails);

    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomTemplateItemTest, FirstChildOfATypeIsFound)
{
    BomTree<Item> item;
    Item* pDetails = newSection(Item::kDetails);
    Item* pFirstGroup = newSection(Item::kGroupHeader);
    item.addChild(pDetails);
    item.addChild(pFirstGroup);
    item.addChild(newSection(Item::kGroupHeader));
    pFirstGroup->addChild(newSection(Item::kReportFooter));

    EXPECT_EQ(pDetails, item.getSubItemAt(Item::kDetails));
    EXPECT_EQ(pFirstGroup, item.getSubItemAt(Item::kGroupHeader));
    EXPECT_EQ(nullptr, item.getSubItemAt(Item::kReportFooter)); // a grandchild
    EXPECT_EQ(nullptr, item.getSubItemAt(Item::kUnkTemplateItemType));
    EXPECT_EQ(nullptr, pDetails->getSubItemAt(Item::kGroupHeader)); // its sibling
}

TEST(VorBomTemplateItemTest, RequestsOfAllTuplesAreGathered)
{
    Item item(Item::kGroupHeader);
    addTuples(item, { tuple(L"%GroupBy:%A,%B", L""), tuple(L"%Weight", 0), tuple(L"%SortDescBy:%C,%D", L""),
                      tuple(L"%GroupBy:%A", L""), tuple(L"%FilterBy:3,7", L""), tuple(L"%SortAscBy:%C", L""),
                      tuple(L"%FilterBy:3", L"") });

    EXPECT_EQ(3, findAll(item));

    expectCaches(item, { L"%A", L"%B", L"%A" }, { L"%SortDescBy:%C", L"%D", L"%SortAscBy:%C" }, { 3, 7, 3 });
}

TEST(VorBomTemplateItemTest, ASectionWithoutTuplesGathersNothing)
{
    Item item;

    EXPECT_EQ(1, item.findGroupingTokens());
    EXPECT_EQ(1, item.findSortingTokens());
    EXPECT_EQ(1, item.findFilterObjTypes());

    expectCaches(item, {}, {}, {});
}

TEST(VorBomTemplateItemTest, GatheringTwiceGathersOnce)
{
    BomTree<Item> item(Item::kGroupHeader);
    addTuples(item, { tuple(L"%GroupBy:%A", L""), tuple(L"%SortAscBy:%B", L""), tuple(L"%FilterBy:3", L"") });

    findAll(item);
    findAll(item);

    expectCaches(item, { L"%A" }, { L"%SortAscBy:%B" }, { 3 });
}

TEST(VorBomTemplateItemTest, NothingIsComputedOnAccess)
{
    Item item(Item::kGroupHeader);
    item.addData(tuple(L"%GroupBy:%A", L""));
    expectCaches(item, {}, {}, {});

    item.findGroupingTokens();
    item.setData(VorBomDataTupleArray());

    expectCaches(item, { L"%A" }, {}, {});
}

TEST(VorBomTemplateItemTest, OnlyTheFirstNestedGroupHeaderIsVisited)
{
    BomTree<Item> item(Item::kReportHeader);
    Item* pDetails = newRequests(Item::kDetails, L"%GroupBy:%D", L"%SortAscBy:%D", L"%FilterBy:4");
    Item* pA = newRequests(Item::kGroupHeader, L"%GroupBy:%A", L"%SortAscBy:%A", L"%FilterBy:1");
    Item* pB = newRequests(Item::kGroupHeader, L"%GroupBy:%B", L"%SortAscBy:%B", L"%FilterBy:2");
    Item* pInner = newRequests(Item::kGroupHeader, L"%GroupBy:%I", L"%SortAscBy:%I", L"%FilterBy:3");
    item.addChild(pDetails);
    item.addChild(pA);
    item.addChild(pB);
    pA->addChild(newSection(Item::kPageHeader));
    pA->addChild(pInner);

    findAll(item);

    expectCaches(item, {}, {}, {}); // nothing comes up from below
    expectCaches(*pDetails, {}, {}, {});
    expectCaches(*pA, { L"%A" }, { L"%SortAscBy:%A" }, { 1 });
    expectCaches(*pInner, { L"%I" }, { L"%SortAscBy:%I" }, { 3 });
    expectCaches(*pB, {}, {}, {});
}

TEST(VorBomTemplateItemTest, AHundredThousandNestedGroupHeadersAreVisited)
{
    BomTree<Item> item(Item::kGroupHeader);
    Item* pLast = &item;
    for (int i = 0; i < 100000; ++i)
    {
        pLast->addChild(newSection(Item::kGroupHeader, { tuple(L"%GroupBy:%A", L"") }));
        pLast = static_cast<Item*>(pLast->child());
    }

    EXPECT_EQ(1, item.findGroupingTokens());

    EXPECT_EQ(1, pLast->groupingTokens().length());
}

TEST(VorBomTemplateItemTest, CopiesShareChildrenAndRowAndOwnTheRest)
{
    const LeakCheck leaks;
    VorBomDataRow row;
    Item child(Item::kDetails);
    Item sibling(Item::kGroupFooter);
    Item source(Item::kGroupHeader);
    addTuples(source, { tuple(L"%GroupBy:%A", L""), tuple(L"%SortAscBy:%B", L""), tuple(L"%FilterBy:3", L""),
                        tuple(L"%Odd", NoValue()) });
    findAll(source);
    source.setFirstDataRow(&row);
    source.addChild(&child);
    source.setNext(&sibling);
    Item target(Item::kDetails);
    addTuples(target, { tuple(L"%W", 1), tuple(L"%X", 2), tuple(L"%Y", 3), tuple(L"%Z", 4) });

    const Item copy(source);
    target = source;
    source.setData(VorBomDataTupleArray());
    findAll(source);

    for (const Item* pItem : { &copy, const_cast<const Item*>(&target) })
    {
        EXPECT_EQ(Item::kGroupHeader, pItem->type());
        expectCaches(*pItem, { L"%A" }, { L"%SortAscBy:%B" }, { 3 });
        EXPECT_EQ(&row, pItem->getFirstDataRow());
        EXPECT_EQ(&child, pItem->child());
        EXPECT_EQ(&child, pItem->lastChild());
        EXPECT_EQ(&sibling, pItem->next());
        EXPECT_EQ(4, pItem->getData().length());
        EXPECT_EQ(VorBomDataValue::kUnknownData, pItem->getData().last().value().type());
    }
}

TEST(VorBomTemplateItemTest, CachesOfCopiesAreFilledEachOnItsOwn)
{
    const LeakCheck leaks;
    Item source(Item::kGroupHeader);
    addTuples(source, { tuple(L"%GroupBy:%A", L""), tuple(L"%SortAscBy:%B", L""), tuple(L"%FilterBy:3", L"") });
    findAll(source);
    Item first(source);
    Item second(first);
    Item third;
    third = source;

    first.addData(tuple(L"%GroupBy:%First", L""));
    first.findGroupingTokens();
    second.addData(tuple(L"%SortDescBy:%Second", L""));
    second.findSortingTokens();
    source.addData(tuple(L"%FilterBy:7", L""));
    source.findFilterObjTypes();

    expectCaches(source, { L"%A" }, { L"%SortAscBy:%B" }, { 3, 7 });
    expectCaches(first, { L"%A", L"%First" }, { L"%SortAscBy:%B" }, { 3 });
    expectCaches(second, { L"%A" }, { L"%SortAscBy:%B", L"%SortDescBy:%Second" }, { 3 });
    expectCaches(third, { L"%A" }, { L"%SortAscBy:%B" }, { 3 });
}

TEST(VorBomTemplateItemTest, CachesFilledOnceTheCopiesAreGoneAreTheItemsOwn)
{
    const LeakCheck leaks;
    Item item(Item::kGroupHeader);
    item.addData(tuple(L"%GroupBy:%A", L""));
    findAll(item);
    for (int i = 0; i < 3; ++i)
    {
        const Item copy(item);
        expectCaches(copy, { L"%A" }, {}, {});
    }

    item.setData(VorBomDataTupleArray());
    findAll(item);

    expectCaches(item, {}, {}, {});
}

TEST(VorBomTemplateItemTest, CopiesOfItemsWithoutCachesFillTheirOwn)
{
    Item source(Item::kGroupHeader);
    source.addData(tuple(L"%GroupBy:%A", L""));
    Item copy(source);

    copy.findGroupingTokens();

    expectCaches(source, {}, {}, {});
    expectCaches(copy, { L"%A" }, {}, {});
    EXPECT_TRUE(Item().groupingTokens().isEmpty()) << "what items without caches share stays empty";
}

TEST(VorBomTemplateItemTest, AnEvaluatedSectionKeepsWhatItsTemplateAskedForThen)
{
    const LeakCheck leaks;
    Report report;
    Item* pHeader = report.addSection(nullptr, Item::kGroupHeader, { tuple(L"%GroupBy:%A", L""), tuple(L"%A", L"") });
    report.addRow({ tuple(L"%A", L"x") });
    report.evaluate();
    auto* pEvaluated = static_cast<Item*>(report.result().child());
    ASSERT_NE(nullptr, pEvaluated);
    expectCaches(*pEvaluated, { L"%A" }, {}, {});

    pHeader->setData(VorBomDataTupleArray());
    pHeader->addData(tuple(L"%GroupBy:%B", L""));
    pHeader->findGroupingTokens();

    expectCaches(*pHeader, { L"%B" }, {}, {});
    expectCaches(*pEvaluated, { L"%A" }, {}, {});
    pEvaluated->findGroupingTokens();
    expectCaches(*pHeader, { L"%B" }, {}, {});
}

TEST(VorBomTemplateItemTest, AssigningToItselfChangesNothing)
{
    Item item(Item::kGroupHeader);
    item.addData(tuple(L"%GroupBy:%A", L""));
    findAll(item);
    Item& same = item;

    item = same;

    EXPECT_EQ(Item::kGroupHeader, item.type());
    expectCaches(item, { L"%A" }, {}, {});
    EXPECT_EQ(1, item.getData().length());
}

TEST(VorBomTemplateItemTest, EveryTypeHasItsLabel)
{
    const wchar_t* const kLabels[] = { L"[ kUnkTemplateItemType ]", L"[ kBomTemplate ]", L"[ kReportHeader]",
                                       L"[ kPageHeader  ]",         L"[ kGroupHeader ]", L"[ kDetails     ]",
                                       L"[ kGroupFooter ]",         L"[ kPageFooter  ]", L"[ kReportFooter]" };
    for (int type = 0; type < 9; ++type)
    {
        Item item(static_cast<Item::eTemplateItemType>(type));
        EXPECT_EQ(VorString(kLabels[type]), listOf(item));
    }
}

TEST(VorBomTemplateItemTest, OtherTypesHaveNoLabel)
{
    for (const int type : { -1, 9, 1000 })
    {
        Item item(static_cast<Item::eTemplateItemType>(type));
        item.addData(tuple(L"%A", 1));
        EXPECT_EQ(VorString(L"[%A:1]"), listOf(item));
    }
}

TEST(VorBomTemplateItemTest, ListLeadsEveryLineWithItsLabel)
{
    BomTree<Item> item(Item::kGroupHeader);
    item.addData(tuple(L"%PosNum", 12));
    VorString line;
    EXPECT_EQ(1, item.list(line, 0, 0, 0));
    EXPECT_EQ(VorString(L"[ kGroupHeader ][%PosNum:12]"), line);

    item.addChild(newSection(Item::kDetails, { tuple(L"%Weight", 2.5) }));
    item.addChild(newSection(Item::kGroupFooter));
    Item footer(Item::kReportFooter);
    item.setNext(&footer);

    EXPECT_EQ(VorString(L"[ kGroupHeader ][%PosNum:12]\n"
                        L" [ kDetails     ][%Weight:2.5]\n"
                        L" [ kGroupFooter ]\n"
                        L"[ kReportFooter]"),
              listOf(item));
}

TEST(VorBomTemplateItemTest, ReferencesShowWhatTheSectionHasAtTheTime)
{
    const LeakCheck leaks;
    VorBomTemplateItem section(VorBomTemplateItem::kGroupHeader);
    const VorStringArray& grouping = section.groupingTokens(); // before anything was found
    const VorStringArray& sorting = section.sortingTokens();
    const VorArray<int>& filters = section.filterObjTypes();
    addTuples(section, { tuple(L"%GroupBy:%A", L""), tuple(L"%SortAscBy:%B", L""), tuple(L"%FilterBy:3", L"") });

    section.findGroupingTokens();
    section.findSortingTokens();
    section.findFilterObjTypes();
    EXPECT_EQ(Texts{ L"%A" }, elementsOf(grouping));
    EXPECT_EQ(Texts{ L"%SortAscBy:%B" }, elementsOf(sorting));
    EXPECT_EQ(Ints{ 3 }, elementsOf(filters));

    section.addData(tuple(L"%GroupBy:%C", L""));
    section.findGroupingTokens();
    EXPECT_EQ((Texts{ L"%A", L"%C" }), elementsOf(grouping));
    section = VorBomTemplateItem(VorBomTemplateItem::kDetails);
    EXPECT_EQ(Texts(), elementsOf(grouping));
    EXPECT_EQ(&grouping, &section.groupingTokens());
}

TEST(VorBomTemplateItemTest, ReferencesOfCopiesShowTheirOwn)
{
    const LeakCheck leaks;
    VorBomTemplateItem section(VorBomTemplateItem::kGroupHeader);
    section.addData(tuple(L"%GroupBy:%A", L""));
    section.findGroupingTokens();
    VorBomTemplateItem copy(section);
    const VorBomTemplateItem evaluated(section, VorBomTemplateItem::kWithoutLinksAndTuples);
    const VorBomTemplateItem copyOfCopy(copy);
    const VorStringArray& ofCopy = copy.groupingTokens();

    copy.addData(tuple(L"%GroupBy:%B", L""));
    copy.findGroupingTokens();
    section.addData(tuple(L"%GroupBy:%C", L""));
    section.findGroupingTokens();

    EXPECT_EQ((Texts{ L"%A", L"%B" }), elementsOf(ofCopy));
    EXPECT_EQ((Texts{ L"%A", L"%C" }), elementsOf(section.groupingTokens()));
    EXPECT_EQ(Texts{ L"%A" }, elementsOf(evaluated.groupingTokens()));
    EXPECT_EQ(Texts{ L"%A" }, elementsOf(copyOfCopy.groupingTokens()));
}
