// The sorting operations of VorBomEvaluator2. Input rows are put in order by VorBomSortedRows; evaluated sections are
// sorted here, each header together with the footer that follows it:
//   sections under one parent     H1 F1 H2 F2, opened by rows named "B" and "A"
//   pairs, sorted by %Name        (H2, F2) (H1, F1): a section sorts by the data of the row that opened it
//   linked again                  H2 F2 H1 F1
#include "VorBomEvaluator2.h"

#include "VorBomSortedRows.h"
#include "VorStableMergeSort.h"

#include "MekRoots/Exp/VorAssert.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

thread_local VorStringArray VorBomEvaluator2::m_arrTokensToSortDataRow;
thread_local VorArray<int> VorBomEvaluator2::m_arrSortOrderForDataRow;
thread_local VorArray<int> VorBomEvaluator2::m_arrSortTypeForDataRow;
thread_local VorStringArray VorBomEvaluator2::m_arrTokensToSortEvaluatedItems;
thread_local VorArray<int> VorBomEvaluator2::m_arrSortOrderForEvaluatedItems;

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // named in assertion reports

// Sections sorted at once are counted in thousands.
constexpr int kSortingPairsGrowBy = 5000;

void reportUnless(bool holds, const wchar_t* expression, int line)
{
    if (!holds)
        VorAssert::vorAssert(expression, kSourcePath, line);
}

// Appends what `sortingTokens` ask for to the parallel arrays. A token without a prefix sorts in the direction of the
// one before it, which `ascending` carries.
void appendSortKeys(const VorStringArray& sortingTokens, int& ascending, VorStringArray& tokens, VorArray<int>& orders)
{
    for (const VorString& sortingToken : sortingTokens)
    {
        VorString token = sortingToken;
        VorBomDataToken::removeSortingPrefix(token, ascending);
        tokens.append(std::move(token));
        orders.append(ascending);
    }
}

// For each token the sort type that a host has set for it, or VorBomSortKeys::kByCatalogue.
void findSortTypes(const VorStringArray& tokens, const VorBomDataToken::SortTypes& sortTypes, VorArray<int>& found)
{
    found.empty();
    for (const VorString& token : tokens)
    {
        const auto* pNode = sortTypes.find(token);
        found.append(pNode != nullptr ? static_cast<int>(pNode->value) : VorBomSortKeys::kByCatalogue);
    }
}

// For each token to sort rows by the order of values that a host has set for it; beside the arrays of VorBomEvaluator2,
// refilled with them, and like them one for each thread.
thread_local std::vector<VorBomValueOrder> t_valueOrders;

void findValueOrders(const VorStringArray& tokens, const VorBomTemplate& reportTemplate)
{
    t_valueOrders.clear();
    for (const VorString& token : tokens)
        t_valueOrders.emplace_back(reportTemplate.sortOrder(token));
}

VorBomSortKeys keysOf(const VorStringArray& tokens, const VorArray<int>& orders, const VorArray<int>& sortTypes)
{
    VorBomSortKeys keys(tokens, orders, sortTypes);
    for (std::size_t key = 0; key < keys.count() && key < t_valueOrders.size(); ++key)
        keys.setValueOrder(key, t_valueOrders[key]);
    return keys;
}

VorBomTemplateItem* nextSection(const VorBomTemplateItem* pItem)
{
    return static_cast<VorBomTemplateItem*>(pItem->next());
}

bool opensGroup(const VorBomTemplateItem* pItem)
{
    const VorBomTemplateItem::eTemplateItemType type = pItem->type();
    return type == VorBomTemplateItem::kReportHeader || type == VorBomTemplateItem::kGroupHeader ||
           type == VorBomTemplateItem::kDetails;
}

bool closesGroup(const VorBomTemplateItem* pItem)
{
    return pItem->type() == VorBomTemplateItem::kGroupFooter || pItem->type() == VorBomTemplateItem::kReportFooter;
}

bool mayHoldSortedSections(const VorBomTemplateItem* pItem)
{
    const VorBomTemplateItem::eTemplateItemType type = pItem->type();
    return type == VorBomTemplateItem::kBomTemplate || type == VorBomTemplateItem::kReportHeader ||
           type == VorBomTemplateItem::kGroupHeader;
}

// H1 F1 H2 H3 F3 is three pairs, the second without a footer. A footer where a header should be, such as the first of
// F0 H1 F1, is reported and makes a pair of its own as if it were one, so that no section is lost.
// Splits a chain of sections into headers with the footers that follow them.
VorHeaderFooterSortingArray pairSections(VorBomTemplateItem* pItem)
{
    VorHeaderFooterSortingArray pairs(kSortingPairsGrowBy);
    while (pItem != nullptr)
    {
        reportUnless(opensGroup(pItem),
                     L"( VorBomTemplateItem::kReportHeader == pCurrItem->type()) ||"
                     L"( VorBomTemplateItem::kGroupHeader == pCurrItem->type()) ||"
                     L"( VorBomTemplateItem::kDetails == pCurrItem->type())",
                     __LINE__);
        VorHeaderFooterSortingStruct pair;
        pair.m_pHeaderItem = pItem;
        pItem = nextSection(pItem);
        if (pItem != nullptr && closesGroup(pItem))
        {
            pair.m_pFooterItem = pItem;
            pItem = nextSection(pItem);
        }
        pairs.append(pair);
    }
    return pairs;
}

// Chains the sections in the order of `pairs`.
void relinkSections(const VorHeaderFooterSortingArray& pairs)
{
    VorBomItemBase* pLast = nullptr;
    const auto appendToChain = [&pLast](VorBomItemBase* pItem)
    {
        if (pItem == nullptr)
            return;
        if (pLast != nullptr)
            pLast->setNext(pItem);
        pLast = pItem;
    };
    for (const VorHeaderFooterSortingStruct& pair : pairs)
    {
        appendToChain(pair.m_pHeaderItem);
        appendToChain(pair.m_pFooterItem);
    }
    if (pLast != nullptr)
        pLast->setNext(nullptr);
}
}

int VorBomEvaluator2::sortInpuDataBySortingTokens(VorBomData* pData, VorBomEngineStateArray& stack,
                                                  const VorBomTemplate& reportTemplate)
{
    m_arrTokensToSortDataRow.empty();
    m_arrSortOrderForDataRow.empty();
    // One direction for all levels: a level whose first token has no prefix goes on in that of the level around it.
    int ascending = 1;
    for (const VorBomEngineState& state : stack)
        if (state.m_pHeader != nullptr)
            appendSortKeys(state.m_pHeader->sortingTokens(), ascending, m_arrTokensToSortDataRow,
                           m_arrSortOrderForDataRow);
    findSortTypes(m_arrTokensToSortDataRow, reportTemplate.sortTypes(), m_arrSortTypeForDataRow);
    findValueOrders(m_arrTokensToSortDataRow, reportTemplate);
    // A single row is not compared, so a token that nobody knows is not reported for it.
    const bool hasTwoRows = pData->child() != nullptr && pData->child()->next() != nullptr;
    if (m_arrTokensToSortDataRow.isEmpty() || !hasTwoRows)
        return 1;

    VorBomSortedRows sortedRows(*pData,
                                keysOf(m_arrTokensToSortDataRow, m_arrSortOrderForDataRow, m_arrSortTypeForDataRow));
    VorBomItemBase* pLastBefore = sortedRows.lastInList();
    const std::vector<VorBomItemBase*> rows = sortedRows.sorted();
    // On purpose lastChild() goes on naming the row that was last before sorting.
    // Pinned by VorBomEvaluator2SortingTest.LastChildKeepsNamingTheRowThatWasLast.
    pData->setChildren(rows.front(), pLastBefore);
    for (std::size_t i = 0; i + 1 < rows.size(); ++i)
        rows[i]->setNext(rows[i + 1]);
    rows.back()->setNext(nullptr);
    return 1;
}

// One pair of rows, by the keys of the last input sort: what VorBomSortedRows asks where ranks give no order.
int VorBomEvaluator2::compareDataRow(const void* pFirst, const void* pSecond)
{
    const VorBomDataRow* pFirstItemData = *static_cast<VorBomDataRow* const*>(pFirst);
    const VorBomDataRow* pSecondItemData = *static_cast<VorBomDataRow* const*>(pSecond);
    reportUnless(pFirstItemData != nullptr, L"NULL != pFirstItemData", __LINE__);
    reportUnless(pSecondItemData != nullptr, L"NULL != pSecondItemData", __LINE__);
    if (pFirstItemData == nullptr || pSecondItemData == nullptr)
        return 0;
    VorBomSortKeys keys = keysOf(m_arrTokensToSortDataRow, m_arrSortOrderForDataRow, m_arrSortTypeForDataRow);
    return keys.compare([&](std::size_t key) { return pFirstItemData->getTupleAt(keys.token(key)); },
                        [&](std::size_t key) { return pSecondItemData->getTupleAt(keys.token(key)); });
}

// An evaluation sorts its rows, so its sections come in order by themselves. This is for those of a finished report
// that are to stand in another order: level by level, by what the template's sections ask for now. A list of what is
// still to be done instead of recursion: groups may nest as deep as a template does.
int VorBomEvaluator2::sortSubGroupsOnLevels(VorBomTemplateItem* pItem, VorBomEngineStateArray& stack, int level)
{
    struct Place
    {
        VorBomTemplateItem* pItem;
        int level;
    };
    std::vector<Place> pending{ { pItem, level } };
    while (!pending.empty())
    {
        const Place place = pending.back();
        pending.pop_back();
        if (place.pItem == nullptr || !mayHoldSortedSections(place.pItem))
            continue;
        const VorBomTemplateItem* pHeader = stack.isValid(place.level) ? stack[place.level].m_pHeader : nullptr;
        if (pHeader != nullptr && !pHeader->sortingTokens().isEmpty())
        {
            auto* pFirst = static_cast<VorBomTemplateItem*>(place.pItem->child());
            sortItemList(pFirst, pHeader->sortingTokens());
            place.pItem->setChild(pFirst);
        }
        for (VorBomItemBase* pChild = place.pItem->child(); pChild != nullptr; pChild = pChild->next())
            pending.push_back({ static_cast<VorBomTemplateItem*>(pChild), place.level + 1 });
    }
    return 1;
}

// The first section of the chain may be another one afterwards, which `pFirst` then is. Without tokens nothing is
// compared, but the chain is checked all the same.
int VorBomEvaluator2::sortItemList(VorBomTemplateItem*& pFirst, const VorStringArray& sortingTokens)
{
    if (pFirst == nullptr)
    {
        reportUnless(false, L"false", __LINE__);
        return 1;
    }
    VorHeaderFooterSortingArray pairs = pairSections(pFirst);
    if (!sortingTokens.isEmpty())
    {
        m_arrTokensToSortEvaluatedItems.empty();
        m_arrSortOrderForEvaluatedItems.empty();
        int ascending = 1;
        appendSortKeys(sortingTokens, ascending, m_arrTokensToSortEvaluatedItems, m_arrSortOrderForEvaluatedItems);

        const std::vector<VorHeaderFooterSortingStruct> unsorted(pairs.begin(), pairs.end());
        const std::vector<std::uint32_t> places =
            vorStableMergeSort(unsorted.size(), [&unsorted](std::uint32_t a, std::uint32_t b)
                               { return compareEvaluatedItems(&unsorted[a], &unsorted[b]) <= 0; });
        std::transform(places.begin(), places.end(), pairs.begin(),
                       [&](std::uint32_t place) { return unsorted[place]; });
    }
    relinkSections(pairs);
    pFirst = pairs.first().m_pHeaderItem;
    return 1;
}

// Whatever is missing of a pair is reported, from the pair itself down to the row of its header, and each thing that
// this makes missing after it as well. Sections without a row compare equal.
int VorBomEvaluator2::compareEvaluatedItems(const void* pFirst, const void* pSecond)
{
    const auto* pFirstSortStruct = static_cast<const VorHeaderFooterSortingStruct*>(pFirst);
    const auto* pSecondSortStruct = static_cast<const VorHeaderFooterSortingStruct*>(pSecond);
    reportUnless(pFirstSortStruct != nullptr, L"NULL != pFirstSortStruct", __LINE__);
    reportUnless(pSecondSortStruct != nullptr, L"NULL != pSecondSortStruct", __LINE__);
    const VorBomTemplateItem* pFirstItem = pFirstSortStruct == nullptr ? nullptr : pFirstSortStruct->m_pHeaderItem;
    const VorBomTemplateItem* pSecondItem = pSecondSortStruct == nullptr ? nullptr : pSecondSortStruct->m_pHeaderItem;
    reportUnless(pFirstItem != nullptr, L"NULL != pFirstItem", __LINE__);
    reportUnless(pSecondItem != nullptr, L"NULL != pSecondItem", __LINE__);
    const VorBomDataRow* pFirstItemData = pFirstItem == nullptr ? nullptr : pFirstItem->getFirstDataRow();
    const VorBomDataRow* pSecondItemData = pSecondItem == nullptr ? nullptr : pSecondItem->getFirstDataRow();
    reportUnless(pFirstItemData != nullptr, L"NULL != pFirstItemData", __LINE__);
    reportUnless(pSecondItemData != nullptr, L"NULL != pSecondItemData", __LINE__);
    if (pFirstItemData == nullptr || pSecondItemData == nullptr)
        return 0;

    for (int i = 0; i < m_arrTokensToSortEvaluatedItems.length(); ++i)
    {
        const VorString& token = m_arrTokensToSortEvaluatedItems[i];
        const VorBomDataTuple* pFirstTupleToCompare = pFirstItemData->getTupleAt(token);
        const VorBomDataTuple* pSecondTupleToCompare = pSecondItemData->getTupleAt(token);
        reportUnless(pFirstTupleToCompare != nullptr, L"NULL != pFirstTupleToCompare", __LINE__);
        reportUnless(pSecondTupleToCompare != nullptr, L"NULL != pSecondTupleToCompare", __LINE__);
        // Never in natural order, unlike the rows of the input.
        if (const int order = VorBomDataTuple::compareValues(pFirstTupleToCompare, pSecondTupleToCompare))
            return m_arrSortOrderForEvaluatedItems[i] == 1 ? order : -order;
    }
    return 0;
}

// Tokens and types are not looked at: the section before may be the footer of a line, too.
int VorBomEvaluator2::isEqualAsEvaluated(const VorBomTemplateItem* pFirst, const VorBomTemplateItem* pSecond)
{
    const VorBomDataTupleArray& first = pFirst->getData();
    const VorBomDataTupleArray& second = pSecond->getData();
    if (first.length() != second.length())
        return 0;
    for (int i = 0; i < first.length(); ++i)
        if (first[i].value().compare(second[i].value()) != 0)
            return 0;
    return 1;
}
