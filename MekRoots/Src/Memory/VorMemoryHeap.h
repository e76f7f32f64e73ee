// The pooled memory of one thread: a run of free memory, from which blocks of all sizes are cut one after the other.
//
//   void* pItem = heap.allocate(40, false);   // the next 40 bytes of the run
//   heap.release(pItem, 40);                  // back to its page, whatever thread its heap belongs to
//
// The runs are stretches of the heap's pages, and this is the life of a page:
//
//            enterNextPage()               holds no run that is long enough
//   empty ------------------> current ----------------------------------------> left
//     ^                          ^                                                |
//     |                          | enterNextPage()                                | an eighth of it came back
//     |                          +------------------- offered <------------------+
//     |                                                  |                        |
//     +--------------------------------------------------+------------------------+
//                                  its last block came back
//
//   empty     in the list that all heaps share; holds nothing and belongs to nobody
//   current   one for each heap: its runs are cut, in the order of their addresses
//   offered   its turn comes when the current page is left, the latest one's first
//   left      full of blocks, or of blocks and of stretches between them too short to be worth a look
//
// A heap is used by one thread at a time. When the thread ends, the heap stays as it is, with the blocks that others
// still hold, and goes to the next thread that begins. Blocks that other threads freed come back when the heap is next
// short of memory: a thread that sleeps keeps them. Heaps and their memory are never given back to the system: a
// process that made one report is about to make the next.
#pragma once

#include "VorMemoryPage.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

class VorMemoryHeap
{
public:
    static constexpr std::size_t kLargestBlock = 1024; // 32 tuples of at most 32 bytes: a wide report

    // The heap of a thread that begins, and its return when the thread ends.
    static VorMemoryHeap& takeOne();
    static void handBack(VorMemoryHeap& heap);

    // `size` bytes, 1 to kLargestBlock, aligned to 8 or to 16. Throws std::bad_alloc.
    void* allocate(std::size_t size, bool isAlignedTo16)
    {
        size = rounded(size);
        const bool skips = isAlignedTo16 && reinterpret_cast<std::uintptr_t>(m_pNext) % 16 != 0;
        if (skips || static_cast<std::size_t>(m_pEnd - m_pNext) < size)
            return allocateSlowly(size, isAlignedTo16);
        addLive(1);
        return cut(size);
    }

    // Takes back a block of `size` bytes, whatever thread's heap it came from.
    void release(void* pBlock, std::size_t size)
    {
        size = rounded(size);
        addLive(-1);
        if (static_cast<char*>(pBlock) + size == m_pNext)
        {
            m_pNext = static_cast<char*>(pBlock); // the latest one, or a neighbour: the run grows backwards
            return;
        }
        VorMemoryPage& page = VorMemoryPage::of(pBlock);
        if (&page.owner() != this)
            page.owner().takeFromElsewhere(pBlock, size);
        else
            putBack(page, pBlock, size);
    }

    // Counts blocks that this heap's thread allocates, or with -1 frees, outside the heap. Those of the heap are
    // counted already.
    void addLive(long long change)
    {
        m_nNumLive.store(m_nNumLive.load(std::memory_order_relaxed) + change, std::memory_order_relaxed);
    }

    // The sum over all heaps; exact while the other threads are idle.
    static long long numLive();

private:
    // A block that another thread freed. Stands in that very block.
    struct ForeignBlock
    {
        ForeignBlock* pNext;
    };
    struct LargeForeignBlock // of more than a granule, so that there is room for its size
    {
        LargeForeignBlock* pNext;
        std::size_t size;
    };

    struct Shared;
    static Shared& shared();

    static std::size_t rounded(std::size_t size)
    {
        return (size + VorMemoryPage::kGranule - 1) / VorMemoryPage::kGranule * VorMemoryPage::kGranule;
    }
    void* cut(std::size_t size)
    {
        char* pBlock = m_pNext;
        m_pNext = pBlock + size;
        return pBlock;
    }
    void* allocateSlowly(std::size_t size, bool isAlignedTo16);
    void takeNextRun(std::size_t size);
    void enterNextPage();
    void leavePage();
    static void* takeMemory();

    // Most blocks come back to a page in use and are done here; a page that was left is looked at again with each of
    // its blocks.
    void putBack(VorMemoryPage& page, void* pBlock, std::size_t size)
    {
        page.putBack(pBlock, size);
        if (page.isEmpty() || !page.isInUse)
            review(page);
    }
    void review(VorMemoryPage& page);

    bool hasBlocksFromElsewhere() const
    {
        return m_pFromElsewhere.load(std::memory_order_relaxed) != nullptr ||
               m_pLargeFromElsewhere.load(std::memory_order_relaxed) != nullptr;
    }
    void takeFromElsewhere(void* pBlock, std::size_t size);
    void collectFromElsewhere();

    char* m_pNext = nullptr; // the run is [m_pNext, m_pEnd), in *m_pPage
    char* m_pEnd = nullptr;
    VorMemoryPage* m_pPage = nullptr; // the current page; null before the first
    VorMemoryPageLink m_offered;      // the head of the list of offered pages
    std::atomic<ForeignBlock*> m_pFromElsewhere{ nullptr };
    std::atomic<LargeForeignBlock*> m_pLargeFromElsewhere{ nullptr };
    std::atomic<long long> m_nNumLive{ 0 }; // written by the heap's thread alone, read by all
    VorMemoryHeap* m_pNextHeap = nullptr;   // in the list of all heaps there are
    bool m_isIdle = false;                  // true while no thread uses this heap
};
