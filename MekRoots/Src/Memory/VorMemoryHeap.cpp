// A block's life, for 40 bytes asked for on thread A and given back on thread B: A cuts 40 bytes off its run. When the
// run is too short, say 32 bytes are left of it, A puts these back and takes the next run of the same page, then of a
// page to which enough has come back, then of an empty page. B sees that the page is A's and pushes the block onto one
// of A's lists of blocks from elsewhere; A puts those back when its run is next too short, or, once A has ended,
// whoever needs memory does.
//
// The size of a block stands nowhere: whoever frees it knows it. A block that waits in a list from elsewhere holds its
// size itself, unless it is a single granule and has no room for it.
#include "VorMemoryHeap.h"

#include <mutex>
#include <new>
#include <utility>
#include <vector>

namespace
{
// How much is taken from the system at once. Arbitrary: large against a page, small against a report.
constexpr std::size_t kPagesPerChunk = 16;
constexpr std::align_val_t kPageAlignment{ VorMemoryPage::kSize };

// Memory of a page that no heap has. Stands in that very page.
struct EmptyPage
{
    EmptyPage* pNext;
};

// Puts a block at the head of a list that many threads add to and one empties. Nobody takes a single block off, only
// the whole list at once, so a head that is the same again after it was read is still the right one to link to. The
// release lets whoever takes the list see what was written into the block.
template <class Block>
void push(std::atomic<Block*>& head, Block* pBlock)
{
    pBlock->pNext = head.load(std::memory_order_relaxed);
    while (!head.compare_exchange_weak(pBlock->pNext, pBlock, std::memory_order_release, std::memory_order_relaxed))
    {
    }
}
}

// What threads share, all of it under the mutex. Never destroyed: blocks are freed until the very end of the process.
struct VorMemoryHeap::Shared
{
    std::mutex mutex;
    EmptyPage* pEmptyPages = nullptr;
    VorMemoryHeap* pHeaps = nullptr;
    std::vector<void*> chunks; // looked at by nobody; leak checkers find the memory by it

    void addEmptyPage(void* pMemory) { pEmptyPages = ::new (pMemory) EmptyPage{ pEmptyPages }; }
    void addChunk();
    void* takeEmptyPage();

    // A heap that no thread uses, and if asked for one with blocks from elsewhere; busy from now on. Null for none.
    VorMemoryHeap* takeIdle(bool withBlocksFromElsewhere);
};

// The last page is added first, so that pages are taken in the order of their addresses.
void VorMemoryHeap::Shared::addChunk()
{
    chunks.push_back(nullptr); // before there is a chunk to lose
    chunks.back() = ::operator new(kPagesPerChunk* VorMemoryPage::kSize, kPageAlignment);
    for (std::size_t i = kPagesPerChunk; i-- > 0;)
        addEmptyPage(static_cast<char*>(chunks.back()) + i * VorMemoryPage::kSize);
}

void* VorMemoryHeap::Shared::takeEmptyPage()
{
    if (pEmptyPages == nullptr)
        addChunk();
    EmptyPage* pPage = pEmptyPages;
    pEmptyPages = pPage->pNext;
    return pPage;
}

// Walks all heaps, of which there are as many as threads had one at the same time: threads that follow one another
// share one.
VorMemoryHeap* VorMemoryHeap::Shared::takeIdle(bool withBlocksFromElsewhere)
{
    for (VorMemoryHeap* pHeap = pHeaps; pHeap != nullptr; pHeap = pHeap->m_pNextHeap)
    {
        if (!pHeap->m_isIdle || (withBlocksFromElsewhere && !pHeap->hasBlocksFromElsewhere()))
            continue;
        pHeap->m_isIdle = false;
        return pHeap;
    }
    return nullptr;
}

VorMemoryHeap::Shared& VorMemoryHeap::shared()
{
    static Shared* pShared = new Shared;
    return *pShared;
}

// An idle heap comes first: it brings the pages with it that its last thread left.
VorMemoryHeap& VorMemoryHeap::takeOne()
{
    Shared& all = shared();
    const std::lock_guard<std::mutex> lock(all.mutex);
    if (VorMemoryHeap* pIdle = all.takeIdle(false))
        return *pIdle;
    auto* pHeap = new VorMemoryHeap;
    pHeap->m_pNextHeap = all.pHeaps;
    all.pHeaps = pHeap;
    return *pHeap;
}

void VorMemoryHeap::handBack(VorMemoryHeap& heap)
{
    const std::lock_guard<std::mutex> lock(shared().mutex);
    heap.m_isIdle = true;
}

// The count of a single heap may be below zero, since a block is counted up where it is made and down where it is
// freed. Only the sum has a meaning.
long long VorMemoryHeap::numLive()
{
    Shared& all = shared();
    const std::lock_guard<std::mutex> lock(all.mutex);
    long long numLive = 0;
    for (const VorMemoryHeap* pHeap = all.pHeaps; pHeap != nullptr; pHeap = pHeap->m_pNextHeap)
        numLive += pHeap->m_nNumLive.load(std::memory_order_relaxed);
    return numLive;
}

// Comes here when the run is too short, or does not stand at a multiple of 16 where the block must. The gap is asked
// for in either case: where the next run stands is known only once there is one. Blocks from elsewhere are put back
// first, since the next run may be made of them.
void* VorMemoryHeap::allocateSlowly(std::size_t size, bool isAlignedTo16)
{
    if (hasBlocksFromElsewhere())
        collectFromElsewhere();
    const std::size_t sizeWithGap = size + (isAlignedTo16 ? VorMemoryPage::kGranule : 0);
    if (static_cast<std::size_t>(m_pEnd - m_pNext) < sizeWithGap)
        takeNextRun(sizeWithGap);
    if (isAlignedTo16 && reinterpret_cast<std::uintptr_t>(m_pNext) % 16 != 0)
    {
        char* pGap = m_pNext;
        m_pNext += VorMemoryPage::kGranule;
        m_pPage->putBackGap(pGap, m_pNext);
    }
    addLive(1);
    return cut(size);
}

// Makes the run one of at least `size` bytes. Its rest goes back first, so that the next run may be the present one
// with what has come back behind it. There is no run while the next one is looked for: should there be no memory for
// another page, nothing of the present one is cut twice.
void VorMemoryHeap::takeNextRun(std::size_t size)
{
    if (m_pPage != nullptr)
    {
        m_pPage->putBackRest(m_pNext, m_pEnd);
        m_pNext = nullptr;
        m_pEnd = nullptr;
    }
    while (m_pPage == nullptr || !m_pPage->takeRun(size, m_pNext, m_pEnd))
    {
        leavePage();
        enterNextPage();
    }
}

// From current to left; at once from there to empty, or to offered if much came back while it was the current one.
void VorMemoryHeap::leavePage()
{
    VorMemoryPage* pPage = m_pPage;
    if (pPage == nullptr)
        return;
    m_pPage = nullptr;
    pPage->isInUse = false;
    review(*pPage);
}

// Makes an offered page the current one, or an empty one where none is offered.
void VorMemoryHeap::enterNextPage()
{
    VorMemoryPage* pPage =
        m_offered.isAlone() ? VorMemoryPage::create(takeMemory(), *this) : static_cast<VorMemoryPage*>(m_offered.pNext);
    pPage->remove();
    pPage->rewind();
    pPage->isInUse = true;
    m_pPage = pPage;
}

// Memory for a page: an empty one, if need be one that is empty only once the blocks are put back that other threads
// freed for heaps now idle. The lock is not held while they are put back, as review() takes it for every page that
// becomes empty.
void* VorMemoryHeap::takeMemory()
{
    Shared& all = shared();
    for (;;)
    {
        VorMemoryHeap* pIdle = nullptr;
        {
            const std::lock_guard<std::mutex> lock(all.mutex);
            if (all.pEmptyPages == nullptr)
                pIdle = all.takeIdle(true);
            if (pIdle == nullptr)
                return all.takeEmptyPage();
        }
        pIdle->collectFromElsewhere();
        handBack(*pIdle);
    }
}

// Moves a page on after memory came back to it: to the empty ones if all of it did, and from left to offered if enough
// did. The current page stays what it is, even when all of it came back.
void VorMemoryHeap::review(VorMemoryPage& page)
{
    if (&page == m_pPage || (!page.isEmpty() && !page.isWorthOffering()))
        return;
    page.remove();
    if (!page.isEmpty())
    {
        page.isInUse = true;
        page.insertBehind(m_offered);
        return;
    }
    Shared& all = shared();
    const std::lock_guard<std::mutex> lock(all.mutex);
    all.addEmptyPage(&page);
}

// Runs on the thread that frees, while the thread of this heap may be at work: nothing but the two lists may be
// touched. What is too small to hold its size is one granule, as sizes are rounded up to granules.
void VorMemoryHeap::takeFromElsewhere(void* pBlock, std::size_t size)
{
    if (size < sizeof(LargeForeignBlock))
        push(m_pFromElsewhere, ::new (pBlock) ForeignBlock{ nullptr });
    else
        push(m_pLargeFromElsewhere, ::new (pBlock) LargeForeignBlock{ nullptr, size });
}

// A link is read before its block is put back: that may be the last one of its page, which is anybody's then.
void VorMemoryHeap::collectFromElsewhere()
{
    ForeignBlock* pSmall = m_pFromElsewhere.exchange(nullptr, std::memory_order_acquire);
    while (pSmall != nullptr)
    {
        void* pBlock = std::exchange(pSmall, pSmall->pNext);
        putBack(VorMemoryPage::of(pBlock), pBlock, VorMemoryPage::kGranule);
    }
    LargeForeignBlock* pLarge = m_pLargeFromElsewhere.exchange(nullptr, std::memory_order_acquire);
    while (pLarge != nullptr)
    {
        const std::size_t size = pLarge->size;
        void* pBlock = std::exchange(pLarge, pLarge->pNext);
        putBack(VorMemoryPage::of(pBlock), pBlock, size);
    }
}
