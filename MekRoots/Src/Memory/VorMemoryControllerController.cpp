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
