// A byte that is the delimiter is zero in the difference of its word to a word of delimiters. Without its highest bit, a
// byte plus 127 reaches that bit unless it is zero:
//
//   bytes                        'B'  '1'  ';'  '4'
//   difference to ";;;;"          79   0A   00   0F
//   each plus 7F                  F8   89   7F   8E     below 80 where the byte is the delimiter
#include "StopScan.h"

namespace mekbom
{
std::uint64_t StopScan::delimitersIn(const char* pBlock, std::uint64_t delimiters)
{
    const std::uint64_t highBits = ByteWord::kEachByte * 0x80;
    std::uint64_t found = 0;
    for (std::size_t i = 0; i < kBlockSize; i += ByteWord::kSize)
    {
        const std::uint64_t difference = ByteWord::load<std::uint64_t>(pBlock + i) ^ delimiters;
        const std::uint64_t reached = (difference & ~highBits) + ByteWord::kEachByte * 0x7F;
        found |= gathered(~(reached | difference) & highBits) << i;
    }
    return found;
}
}
