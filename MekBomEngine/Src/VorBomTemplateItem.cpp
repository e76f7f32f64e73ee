#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/VorAssert.h"

#include <utility>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomTemplateItem";
const int kTypeAlreadySetLine = 31; // under which callers know the report

// Indexed by type. On purpose: not every label has blanks to the same width, and lists are compared as text.
// Pinned by VorBomTemplateItemTest.EveryTypeHasItsLabel.
const wchar_t* const kLabels[] = {
    L"[ kUnkTemplateItemType ]", L"[ kBomTemplate ]", L"[ kReportHeader]", L"[ kPageHeader  ]", L"[ kGroupHeader ]",
    L"[ kDetails     ]",         L"[ kGroupFooter ]", L"[ kPageFooter  ]", L"[ kReportFooter]",
};
static_assert(sizeof kLabels / sizeof *kLabels == VorBomTemplateItem::kReportFooter + 1, "one label per type");

// Replaces `cache` by what all tokens of `tuples` answer to `request`.
template <class Cache>
void gatherRequests(const VorBomDataTupleArray& tuples, Cache& cache, int (VorBomDataToken::*request)(Cache&) const)
{
    cache.empty();
    for (const VorBomDataTuple& tuple : tuples)
        (tuple.token().*request)(cache);
}
}

const VorBomTemplateItem::Requests VorBomTemplateItem::kNoRequests;

VorBomTemplateItem::VorBomTemplateItem(const VorBomTemplateItem& other, eCopyPart)
    : m_nType(other.m_nType), m_pRequests(other.m_pRequests), m_pFirstDataRow(other.m_pFirstDataRow)
{
}

void VorBomTemplateItem::setType(eTemplateItemType type)
{
    if (m_nType != kUnkTemplateItemType)
        VorAssert::vorAssert(L"kUnkTemplateItemType == m_nType", kSourcePath, kTypeAlreadySetLine);
    m_nType = type;
}

VorBomTemplateItem* VorBomTemplateItem::getSubItemAt(eTemplateItemType type) const
{
    for (VorBomItemBase* pItem = child(); pItem != nullptr; pItem = pItem->next())
        if (static_cast<VorBomTemplateItem*>(pItem)->m_nType == type)
            return static_cast<VorBomTemplateItem*>(pItem);
    return nullptr;
}

int VorBomTemplateItem::findGroupingTokens()
{
    return findDownGroups(&VorBomTemplateItem::findOwnGroupingTokens);
}

int VorBomTemplateItem::findSortingTokens()
{
    return findDownGroups(&VorBomTemplateItem::findOwnSortingTokens);
}

int VorBomTemplateItem::findFilterObjTypes()
{
    return findDownGroups(&VorBomTemplateItem::findOwnFilterObjTypes);
}

int VorBomTemplateItem::list(VorString& out, int level, int withChildren, int withNext)
{
    if (m_nType >= kUnkTemplateItemType && m_nType <= kReportFooter)
        out += kLabels[m_nType];
    return VorBomItemBase::list(out, level, withChildren, withNext);
}

// To be written to. New each time: that no copy shares the present ones now does not say that one on another thread,
// just destroyed, has been read to its end.
VorBomTemplateItem::Requests& VorBomTemplateItem::ownRequests()
{
    auto pRequests = std::make_shared<Requests>(requests());
    Requests& own = *pRequests;
    m_pRequests = std::move(pRequests);
    return own;
}

void VorBomTemplateItem::findOwnGroupingTokens()
{
    gatherRequests(getData(), ownRequests().groupingTokens, &VorBomDataToken::getGroupingRequest);
}

void VorBomTemplateItem::findOwnSortingTokens()
{
    gatherRequests(getData(), ownRequests().sortingTokens, &VorBomDataToken::getSortingRequest);
}

void VorBomTemplateItem::findOwnFilterObjTypes()
{
    gatherRequests(getData(), ownRequests().filterObjTypes, &VorBomDataToken::getFilteringRequest);
}

int VorBomTemplateItem::findDownGroups(void (VorBomTemplateItem::*findOwn)())
{
    for (VorBomTemplateItem* pItem = this; pItem != nullptr; pItem = pItem->getSubItemAt(kGroupHeader))
        (pItem->*findOwn)();
    return 1;
}
