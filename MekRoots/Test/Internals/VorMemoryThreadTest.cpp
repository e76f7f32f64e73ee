#include "VorMemoryThread.h"

#include "MekRoots/Test/Support/SanitizerSupport.h"

#include <gtest/gtest.h>

#include <thread>

TEST(VorMemoryThreadTest, AThreadHasAHeapFromItsFirstBlockOn)
{
    std::thread(
        []
        {
            EXPECT_EQ(nullptr, VorMemoryThread::heap());

            void* const pBlock = VorMemoryThread::allocate(40, false);
            VorMemoryHeap* const pHeap = VorMemoryThread::heap();
            EXPECT_NE(nullptr, pHeap);

            VorMemoryThread::release(pBlock, 40);
            EXPECT_EQ(pHeap, VorMemoryThread::heap());
        })
        .join();
}

TEST(VorMemoryThreadTest, TheHeapOfAThreadThatEndedGoesToTheNext)
{
    VorMemoryHeap* heaps[2] = {};
    for (VorMemoryHeap*& pHeap : heaps)
        std::thread(
            [&pHeap]
            {
                VorMemoryThread::release(VorMemoryThread::allocate(40, false), 40);
                pHeap = VorMemoryThread::heap();
            })
            .join();

    EXPECT_EQ(heaps[0], heaps[1]);
}

TEST(VorMemoryThreadTest, BlocksTooLargeForThePoolAreCountedAllTheSame)
{
    const long long numBefore = VorMemoryHeap::numLive();

    void* const pBlock = VorMemoryThread::allocate(VorMemoryHeap::kLargestBlock + 1, false);
    EXPECT_EQ(numBefore + 1, VorMemoryHeap::numLive());

    VorMemoryThread::release(pBlock, VorMemoryHeap::kLargestBlock + 1);
    EXPECT_EQ(numBefore, VorMemoryHeap::numLive());
}

TEST(VorMemoryThreadTest, ThePoolServesFromOneByteToItsLargestBlock)
{
    EXPECT_FALSE(VorMemoryThread::isPooled(0));
    EXPECT_EQ(!kPoolIsBypassed, VorMemoryThread::isPooled(1));
    EXPECT_EQ(!kPoolIsBypassed, VorMemoryThread::isPooled(VorMemoryHeap::kLargestBlock));
    EXPECT_FALSE(VorMemoryThread::isPooled(VorMemoryHeap::kLargestBlock + 1));
    EXPECT_EQ(nullptr, VorMemoryThread::allocate(0, false));
}
