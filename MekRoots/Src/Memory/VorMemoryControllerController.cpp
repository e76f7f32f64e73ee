// Most calls find a heap and a size that the pool serves, and are done here in a few instructions. VorMemoryThread
// takes the others: the first block of a thread, large ones, and those of a thread that has ended.
#include "VorMemoryControllerController.h"

#include "VorMemoryThread.h"

// The limit stands in both headers, since the public one does not include that of the heap.
static_assert(VorMemoryHeap::kLargestBlock == VorMemoryControllerController::kLargestPooledBlock, "one limit");

void* VorMemoryControllerController::allocate(std::size_t size, bool isAlignedTo16)
{
    VorMemoryHeap* pHeap = VorMemoryThread::heap();
    if (pHeap == nullptr || !VorMemoryThread::isPooled(size))
        return VorMemoryThread::allocate(size, isAlignedTo16);
    return pHeap->allocate(size, isAlignedTo16);
}

// One piece is cut off the run for all of them. The heap has counted it as one live block, so the others are added.
void* VorMemoryControllerController::allocateNeighbours(std::size_t numBlocks, std::size_t blockSize)
{
    VorMemoryHeap* pHeap = VorMemoryThread::heap();
    if (pHeap == nullptr || numBlocks == 0 || !VorMemoryThread::isPooled(blockSize) ||
        numBlocks > kLargestNeighbourhood / blockSize)
        return nullptr;
    void* pBlocks = pHeap->allocate(numBlocks * blockSize, false);
    pHeap->addLive(static_cast<long long>(numBlocks) - 1);
    return pBlocks;
}

// Neighbours come back here one by one, each with its own size and its own place in the count of live blocks.
void VorMemoryControllerController::release(void* pBlock, std::size_t size)
{
    VorMemoryHeap* pHeap = VorMemoryThread::heap();
    if (pHeap == nullptr || !VorMemoryThread::isPooled(size))
        VorMemoryThread::release(pBlock, size);
    else
        pHeap->release(pBlock, size);
}

long long VorMemoryControllerController::liveBlocks()
{
    return VorMemoryHeap::numLive();
}
