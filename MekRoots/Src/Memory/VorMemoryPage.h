// A page of the pool: 64 KB in which blocks of all sizes lie side by side, and one bit for each 8 bytes, a granule,
// that says whether it is free.
//
//   0 ------------------------- page ------------------------- kSize
//   | head, bits | item | tuples ... | 8 | 8 | 8 | text | item | ...
//
//   page.takeRun(40, pFirst, pEnd);    // a stretch of at least 40 free bytes, 3072 if so many are free: [pFirst, pEnd)
//   page.putBack(pFirst, 40);          // the first block of the run is free again
//
// Memory is handed out in runs of free granules and in the order of their addresses, whatever the order in which they
// came back: what is allocated one after the other lies side by side and is met again in that order. Freeing a block
// on its thread writes to the page's head alone, not to the block, which may long have left the caches.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

class VorMemoryHeap;

// A page's place in a list of pages. A list is a ring with one place more, its head, which is no page's; a page that is
// in no list is a ring of its own.
struct VorMemoryPageLink
{
    VorMemoryPageLink() = default;
    VorMemoryPageLink(const VorMemoryPageLink&) = delete;
    VorMemoryPageLink& operator=(const VorMemoryPageLink&) = delete;

    bool isAlone() const { return pNext == this; }

    void remove()
    {
        pPrevious->pNext = pNext;
        pNext->pPrevious = pPrevious;
        pPrevious = this;
        pNext = this;
    }

    // Puts this link, which is alone, behind `head`.
    void insertBehind(VorMemoryPageLink& head)
    {
        pPrevious = &head;
        pNext = head.pNext;
        pNext->pPrevious = this;
        head.pNext = this;
    }

    VorMemoryPageLink* pPrevious = this;
    VorMemoryPageLink* pNext = this;
};

class VorMemoryPage : public VorMemoryPageLink
{
public:
    // In bytes; pages start at multiples of it, so that a block tells its page. Arbitrary: large against blocks, small
    // against a report.
    static constexpr std::size_t kSize = std::size_t{ 64 } * 1024;
    static constexpr std::size_t kGranule = 8;

    // A run ends after so many bytes even if more are free, and this many must come back before memory at the start of
    // the page is looked at again: a search costs less than freeing them did.
    static constexpr std::size_t kRunSize = 3072;

    // The page in which a block lies.
    static VorMemoryPage& of(void* pBlock)
    {
        const auto address = reinterpret_cast<std::uintptr_t>(pBlock);
        return *reinterpret_cast<VorMemoryPage*>(static_cast<char*>(pBlock) - address % kSize);
    }

    // Lays a page out, all of it free, in kSize bytes of raw memory.
    static VorMemoryPage* create(void* pMemory, VorMemoryHeap& owner);

    VorMemoryPage(const VorMemoryPage&) = delete;
    VorMemoryPage& operator=(const VorMemoryPage&) = delete;

    VorMemoryHeap& owner() const { return *m_pOwner; }

    // Takes a run of at least `size` free bytes, a multiple of kGranule: [pFirst, pEnd). False with both untouched when
    // the end of the page is reached. Goes on from where the last run was taken, and from the start again once kRunSize
    // bytes have come back. Where the runs were short, too much that stays lies between what comes and goes: the start
    // is behind them then, until the next rewind().
    bool takeRun(std::size_t size, char*& pFirst, char*& pEnd);

    // Lets takeRun() go on from the start of the page.
    void rewind();

    // Makes the rest of a run free again; takeRun() goes on from there.
    void putBackRest(char* pFirst, char* pEnd);

    // Makes a piece free that was cut off a run to align the next block.
    void putBackGap(char* pFirst, char* pEnd)
    {
        markFree(granuleAt(pFirst), static_cast<std::size_t>(pEnd - pFirst) / kGranule);
    }

    // Makes a block of this page free.
    void putBack(void* pBlock, std::size_t size)
    {
        const std::size_t numGranules = size / kGranule;
        markFree(granuleAt(pBlock), numGranules);
        m_nNumReturned += numGranules;
    }

    bool isEmpty() const { return m_nNumFree == kNumGranules - kFirstGranule; }

    // Whether a search for runs is worth while: an eighth of the page has come back since the last one began.
    // Arbitrary.
    bool isWorthOffering() const { return m_nNumReturned >= kNumGranules / 8; }

    bool isInUse = false; // kept by the heap: true for its current page and for offered ones

private:
    using Word = std::uint64_t;
    static constexpr std::size_t kBitsPerWord = 64;
    static constexpr std::size_t kNumGranules = kSize / kGranule;
    static constexpr Word kAllFree = ~Word{ 0 };
    static const std::size_t kFirstGranule; // the first past the head

    // Fewer runs tell nothing; shorter ones hold little more than the tuples of a line. Both arbitrary.
    static constexpr std::size_t kFewestRuns = 4;
    static constexpr std::size_t kShortRun = kRunSize / 8;

    explicit VorMemoryPage(VorMemoryHeap& owner);

    char* addressOf(std::size_t granule) { return reinterpret_cast<char*>(this) + granule * kGranule; }
    std::size_t granuleAt(void* pBlock)
    {
        return static_cast<std::size_t>(static_cast<char*>(pBlock) - reinterpret_cast<char*>(this)) / kGranule;
    }
    void goBackToStart();
    void beginSearch();
    void markFree(std::size_t granule, std::size_t numGranules);
    void markUsed(std::size_t granule, std::size_t numGranules);
    std::size_t findFree(std::size_t granule) const;
    std::size_t findUsed(std::size_t granule, std::size_t end) const;

    VorMemoryHeap* m_pOwner;
    std::size_t m_nNumFree = 0;     // in granules, as the next three
    std::size_t m_nNumReturned = 0; // since takeRun() last was at the start, as the next two
    std::size_t m_nNumTaken = 0;    // in runs
    std::size_t m_nNumRuns = 0;
    std::size_t m_nStart = 0; // the granule to which takeRun() goes back
    std::size_t m_nNext = 0;  // the granule from which it goes on
    std::array<Word, kNumGranules / kBitsPerWord> m_freeBits;
};

inline void VorMemoryPage::markFree(std::size_t granule, std::size_t numGranules)
{
    m_nNumFree += numGranules;
    while (numGranules > 0)
    {
        const std::size_t bit = granule % kBitsPerWord;
        const std::size_t numHere = numGranules < kBitsPerWord - bit ? numGranules : kBitsPerWord - bit;
        m_freeBits[granule / kBitsPerWord] |= (kAllFree >> (kBitsPerWord - numHere)) << bit;
        granule += numHere;
        numGranules -= numHere;
    }
}
