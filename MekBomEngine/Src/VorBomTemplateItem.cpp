// What a section asks for (Requests) is shared until somebody asks. Told on a group header of a template and two
// sections of a report made from it:
//   header.findGroupingTokens()       the header has an object of its own, { %PosNum }, and makes one more for copies
//   two sections are made from it     both point to that one; a million would cost no more
//   first.groupingTokens()            the first gets an object of its own, and answers with a reference into that
//   first.findGroupingTokens()        fills it anew, in place: the reference shows it, the other section does not
#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/VorAssert.h"

#include <mutex>
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

// One lock serves all sections: those of a template have requests of their own and need it no more, those of a report
// are seldom asked.
std::mutex requestsMutex;

// Replaces `cache` by what all tokens of `tuples` answer to `request`.
template <class Cache>
void gatherRequests(const VorBomDataTupleArray& tuples, Cache& cache, int (VorBomDataToken::*request)(Cache&) const)
{
    cache.empty();
    for (const VorBomDataTuple& tuple : tuples)
        (tuple.token().*request)(cache);
}
}

// Made for every line of a report, so the tuples, which a line gets anew, are not copied, and what it asks for is
// shared.
VorBomTemplateItem::VorBomTemplateItem(const VorBomTemplateItem& other, eCopyPart)
    : m_nType(other.m_nType), m_pRequests(other.requestsForCopies()), m_pFirstDataRow(other.m_pFirstDataRow)
{
}

VorBomTemplateItem::VorBomTemplateItem(const VorBomTemplateItem& other)
    : VorBomItemBase(other),
      m_nType(other.m_nType),
      m_pRequests(other.requestsForCopies()),
      m_pFirstDataRow(other.m_pFirstDataRow)
{
}

// The requests go into the object that this section has, not by sharing that of the other: references to it were handed
// out, and show the new content.
VorBomTemplateItem& VorBomTemplateItem::operator=(const VorBomTemplateItem& other)
{
    if (this == &other)
        return *this;
    VorBomItemBase::operator=(other);
    m_nType = other.m_nType;
    ownRequests() = other.requests();
    m_pFirstDataRow = other.m_pFirstDataRow;
    return *this;
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

// Takes the lock, since two threads may ask one section of a finished report at once.
void VorBomTemplateItem::makeOwnRequests() const
{
    const std::lock_guard<std::mutex> lock(requestsMutex);
    if (m_ownsRequests.load(std::memory_order_relaxed))
        return;
    auto pOwn = m_pRequests != nullptr ? std::make_shared<Requests>(*m_pRequests) : std::make_shared<Requests>();
    pOwn->pForCopies = std::move(m_pRequests);
    m_pRequests = std::move(pOwn);
    m_ownsRequests.store(true, std::memory_order_release);
}

std::shared_ptr<VorBomTemplateItem::Requests> VorBomTemplateItem::requestsForCopies() const
{
    if (m_ownsRequests.load(std::memory_order_acquire))
        return m_pRequests->pForCopies;
    const std::lock_guard<std::mutex> lock(requestsMutex);
    return m_ownsRequests.load(std::memory_order_relaxed) ? m_pRequests->pForCopies : m_pRequests;
}

// Makes a new object, as the copies that share the present one are to keep it.
void VorBomTemplateItem::renewForCopies(Requests& own)
{
    // Before the copy is made: else each copy would hold the one before it, a chain that every search makes longer.
    own.pForCopies = nullptr;
    if (own.groupingTokens.isEmpty() && own.sortingTokens.isEmpty() && own.filterObjTypes.isEmpty())
        return;
    auto pForCopies = std::make_shared<Requests>(own);
    own.pForCopies = std::move(pForCopies);
}

void VorBomTemplateItem::findOwnGroupingTokens()
{
    gatherRequests(getData(), ownRequests().groupingTokens, &VorBomDataToken::getGroupingRequest);
    renewForCopies(ownRequests());
}

void VorBomTemplateItem::findOwnSortingTokens()
{
    gatherRequests(getData(), ownRequests().sortingTokens, &VorBomDataToken::getSortingRequest);
    renewForCopies(ownRequests());
}

void VorBomTemplateItem::findOwnFilterObjTypes()
{
    gatherRequests(getData(), ownRequests().filterObjTypes, &VorBomDataToken::getFilteringRequest);
    renewForCopies(ownRequests());
}

int VorBomTemplateItem::findDownGroups(void (VorBomTemplateItem::*findOwn)())
{
    for (VorBomTemplateItem* pItem = this; pItem != nullptr; pItem = pItem->getSubItemAt(kGroupHeader))
        (pItem->*findOwn)();
    return 1;
}
