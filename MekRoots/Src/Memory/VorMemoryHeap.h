// The pooled memory of one thread: a run of free memory, from which blocks of all sizes are cut one after the other.
//
//   heap.allocate(40, false)   the next 40 bytes of the run
//   heap.release(pBlock, 40)   back to its page; to the heap it came from when that is another thread's
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

    // Blocks up to this are tried in what larger ones passed over, so that one large block does not hide from all
    // others the holes that were too small for it. Arbitrary: holds most texts and every payload.
    static constexpr std::size_t kLargestSmallBlock = 128;

    // The heap of a thread that begins, and its return when the thread ends.
    static VorMemoryHeap& takeOne();
    static void handBack(VorMemoryHeap& heap);

    // `size` bytes, 1 to kLargestBlock, aligned to 8 at least. Throws std::bad_alloc.
    void* allocate(std::size_t size, bool isAlignedTo16)
    {
        size = rounded(size);
        const bool skips = isAlignedTo16 && reinterpret_cast<std::uintptr_t>(m_pNext) % 16 != 0;
        if (skips || static_cast<std::size_t>(m_pEnd - m_pNext) < size)
            return allocateSlowly(size, isAlignedTo16);
        addLive(1);
        return cut(size);
    }

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

    // Counts blocks that are allocated, or with -1 freed, by this heap's thread outside the heap; its own count already.
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
    void enterNextPage(std::size_t size);
    void leavePage(std::size_t size);
    static void* takeMemory();

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

    char* m_pNext = nullptr; // the run [m_pNext, m_pEnd), in *m_pPage
    char* m_pEnd = nullptr;
    VorMemoryPage* m_pPage = nullptr;
    VorMemoryPageLink m_offered;        // pages with memory to be had, the latest first
    VorMemoryPageLink m_offeredToSmall; // pages that a block larger than kLargestSmallBlock left with short stretches
    std::atomic<ForeignBlock*> m_pFromElsewhere{ nullptr };
    std::atomic<LargeForeignBlock*> m_pLargeFromElsewhere{ nullptr };
    std::atomic<long long> m_nNumLive{ 0 }; // written by the heap's thread alone, read by all
    VorMemoryHeap* m_pNextHeap = nullptr;   // of all heaps there are
    bool m_isIdle = false;                  // no thread uses it
};
