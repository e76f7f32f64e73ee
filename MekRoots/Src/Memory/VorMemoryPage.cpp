// A search for runs, told on a page with granules 203, 210 to 214 and 500 to 900 free, for 5 granules, or 40 bytes:
//   findFree(200) is 203, findUsed(203) is 204     one granule is too short and stays free
//   findFree(204) is 210, findUsed(210) is 215     five will do: the first run
//   findFree(215) is 500, findUsed(500) is 884     the second: kRunSize, 384 granules, although more is free
// A word of bits stands for 512 bytes, so whatever is looked for is found in 128 steps at most.
#include "VorMemoryPage.h"

#include "VorBits.h"

#include <algorithm>
#include <new>

// Stands here because the size of a class is not known within it.
const std::size_t VorMemoryPage::kFirstGranule = (sizeof(VorMemoryPage) + kGranule - 1) / kGranule;

VorMemoryPage* VorMemoryPage::create(void* pMemory, VorMemoryHeap& owner)
{
    return ::new (pMemory) VorMemoryPage(owner);
}

VorMemoryPage::VorMemoryPage(VorMemoryHeap& owner) : m_pOwner(&owner)
{
    m_freeBits.fill(0);
    markFree(kFirstGranule, kNumGranules - kFirstGranule);
}

// Stretches that are too short stay free; they are found again when the search has gone back to the start. Every round
// moves m_nNext on, past what it takes and past what is too short, and without a free granule to the end of the page.
bool VorMemoryPage::takeRun(std::size_t size, char*& pFirst, char*& pEnd)
{
    if (m_nNumReturned * kGranule >= kRunSize)
        goBackToStart();
    const std::size_t numWanted = size / kGranule;
    const std::size_t longest = std::max(numWanted, kRunSize / kGranule);
    for (;;)
    {
        const std::size_t first = findFree(m_nNext);
        const std::size_t end = findUsed(first, std::min(first + longest, kNumGranules));
        m_nNext = end;
        if (first == kNumGranules)
            return false;
        if (end - first < numWanted)
            continue;
        markUsed(first, end - first);
        m_nNumTaken += end - first;
        ++m_nNumRuns;
        pFirst = addressOf(first);
        pEnd = addressOf(end);
        return true;
    }
}

void VorMemoryPage::rewind()
{
    m_nStart = 0;
    m_nNext = 0;
    beginSearch();
}

// A list whose lines are freed as soon as they are read leaves a few blocks behind for each, such as texts that a
// column remembers. Going back to these again and again would give a search for every few blocks. Runs are short when
// they had less than kShortRun bytes on average.
void VorMemoryPage::goBackToStart()
{
    const bool wereRunsShort = m_nNumRuns >= kFewestRuns && m_nNumTaken * kGranule < m_nNumRuns * kShortRun;
    if (wereRunsShort)
        m_nStart = m_nNext;
    m_nNext = m_nStart;
    beginSearch();
}

void VorMemoryPage::beginSearch()
{
    m_nNumReturned = 0;
    m_nNumTaken = 0;
    m_nNumRuns = 0;
}

// The rest is free but has not come back: it was no block, and brings the next search from the start no nearer.
void VorMemoryPage::putBackRest(char* pFirst, char* pEnd)
{
    m_nNext = granuleAt(pFirst);
    putBackGap(pFirst, pEnd);
}

// Word by word: granules 60 to 69 are the bits 60 to 63 of the first word and 0 to 5 of the second.
void VorMemoryPage::markUsed(std::size_t granule, std::size_t numGranules)
{
    m_nNumFree -= numGranules;
    while (numGranules > 0)
    {
        const std::size_t bit = granule % kBitsPerWord;
        const std::size_t numHere = std::min(numGranules, kBitsPerWord - bit);
        m_freeBits[granule / kBitsPerWord] &= ~((kAllFree >> (kBitsPerWord - numHere)) << bit);
        granule += numHere;
        numGranules -= numHere;
    }
}

// The first free granule from `granule` on, or kNumGranules. The shift brings in zeros from above, so that nothing is
// found past the end of a word; the same holds for findUsed.
std::size_t VorMemoryPage::findFree(std::size_t granule) const
{
    while (granule < kNumGranules)
    {
        const Word rest = m_freeBits[granule / kBitsPerWord] >> granule % kBitsPerWord;
        if (rest != 0)
            return granule + static_cast<std::size_t>(VorBits::lowestBit(rest));
        granule = (granule / kBitsPerWord + 1) * kBitsPerWord;
    }
    return kNumGranules;
}

// The first granule from `granule` on that is not free, at most `end`.
std::size_t VorMemoryPage::findUsed(std::size_t granule, std::size_t end) const
{
    while (granule < end)
    {
        const Word rest = ~m_freeBits[granule / kBitsPerWord] >> granule % kBitsPerWord;
        if (rest != 0)
            return std::min(granule + static_cast<std::size_t>(VorBits::lowestBit(rest)), end);
        granule = (granule / kBitsPerWord + 1) * kBitsPerWord;
    }
    return end;
}
