// What does a block cost, from the pool and from malloc?
//   Pool/size/n, Malloc/size/n      n blocks of a size are allocated and then freed, as when a report is built and dropped
//   PoolShuffled/n, MallocShuffled  the same in random order and sizes, which leaves the free lists out of order
//   PoolThreads, MallocThreads      two threads at once, each with its own blocks
//   PoolHandedOver                  what one thread allocates another frees
#include "MekRoots/Exp/VorMemoryControllerController.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <thread>
#include <utility>
#include <vector>

namespace
{
struct Pool
{
    static void* allocate(std::size_t size) { return VorMemoryControllerController::allocateArray(size, 1); }
    static void release(void* pBlock, std::size_t size)
    {
        VorMemoryControllerController::deallocateArray(pBlock, size, 1);
    }
};

struct Malloc
{
    static void* allocate(std::size_t size) { return std::malloc(size); }
    static void release(void* pBlock, std::size_t) { std::free(pBlock); }
};

template <class Source>
void buildAndDrop(benchmark::State& state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    std::vector<void*> blocks(static_cast<std::size_t>(state.range(1)));
    for (auto _ : state)
    {
        for (void*& pBlock : blocks)
            pBlock = Source::allocate(size);
        benchmark::DoNotOptimize(blocks.data());
        for (void* pBlock : blocks)
            Source::release(pBlock, size);
    }
    state.SetItemsProcessed(state.iterations() * state.range(1));
}

template <class Source>
void shuffled(benchmark::State& state)
{
    std::mt19937 random(1);
    std::vector<std::pair<void*, std::size_t>> blocks(static_cast<std::size_t>(state.range(0)));
    for (auto& block : blocks)
        block.second = 8 * (1 + random() % 16);
    std::vector<std::size_t> order(blocks.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::shuffle(order.begin(), order.end(), random);
    for (auto _ : state)
    {
        for (auto& block : blocks)
            block.first = Source::allocate(block.second);
        for (const std::size_t i : order)
            Source::release(blocks[i].first, blocks[i].second);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
}

static void BM_Pool(benchmark::State& state)
{
    buildAndDrop<Pool>(state);
}
BENCHMARK(BM_Pool)->ArgsProduct({ { 8, 48, 400 }, { 10, 1000, 100000 } });

static void BM_Malloc(benchmark::State& state)
{
    buildAndDrop<Malloc>(state);
}
BENCHMARK(BM_Malloc)->ArgsProduct({ { 8, 48, 400 }, { 10, 1000, 100000 } });

static void BM_PoolShuffled(benchmark::State& state)
{
    shuffled<Pool>(state);
}
BENCHMARK(BM_PoolShuffled)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_MallocShuffled(benchmark::State& state)
{
    shuffled<Malloc>(state);
}
BENCHMARK(BM_MallocShuffled)->Arg(10)->Arg(1000)->Arg(100000);

static void BM_PoolThreads(benchmark::State& state)
{
    buildAndDrop<Pool>(state);
}
BENCHMARK(BM_PoolThreads)->Args({ 48, 1000 })->Threads(2);

static void BM_MallocThreads(benchmark::State& state)
{
    buildAndDrop<Malloc>(state);
}
BENCHMARK(BM_MallocThreads)->Args({ 48, 1000 })->Threads(2);

static void BM_PoolHandedOver(benchmark::State& state)
{
    std::vector<void*> blocks(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
    {
        for (void*& pBlock : blocks)
            pBlock = Pool::allocate(48);
        std::thread(
            [&blocks]
            {
                for (void* pBlock : blocks)
                    Pool::release(pBlock, 48);
            })
            .join();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_PoolHandedOver)->Arg(1000)->Arg(100000)->UseRealTime();
