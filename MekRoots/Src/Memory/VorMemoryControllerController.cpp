#include "VorMemoryControllerController.h"

#include "VorMemoryThread.h"

static_assert(VorMemoryHeap::kLargestBlock == VorMemoryControllerController::kLargestPooledBlock, "one limit");

void* VorMemoryControllerController::allocate(std::size_t size, bool isAlignedTo16)
{
    VorMemoryHeap* pHeap = VorMemoryThread::heap();
    if (pHeap == nullptr || !VorMemoryThread::isPooled(size))
        return VorMemoryThread::allocate(size, isAlignedTo16);
    return pHeap->allocate(size, isAlignedTo16);
}

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
