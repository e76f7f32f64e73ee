// Tells the processor what memory will be read soon, so that whoever reads it then need not wait for it.
//
//   for (const Row* pRow = pFirst; pRow != nullptr; pRow = pRow->pNext)
//   {
//       VorMemoryHint::willRead(pRow->pNext);
//       work(*pRow);
//   }
//
// A hint changes nothing but time: any address will do, null and freed memory too. It is none where the compiler does
// not know how to give it.
#pragma once

namespace VorMemoryHint
{
// `pMemory` is anywhere in a line of the cache, mostly 64 bytes.
#if defined(__GNUC__)
// Always inlined: g++ takes a function that only gives hints for one without effect and drops calls of it.
[[gnu::always_inline]] inline void willRead(const void* pMemory)
{
    __builtin_prefetch(pMemory);
}
#else
inline void willRead(const void*) {}
#endif
}
