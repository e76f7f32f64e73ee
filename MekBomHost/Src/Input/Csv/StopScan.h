// Finds the bytes of a text that a reader of lines and fields has to look at, the stops: all up to the comma, which are
// quotes, line ends, zeros and few others, all beyond ASCII, and the delimiter, if that is another one. Nearly all bytes
// are letters and digits, which it passes over 64 at a time.
//
//   StopScan scan;
//   scan.begin(pBytes, pBytes + 8);       // "S355,12\n"
//   scan.next();                          // pBytes + 4, then pBytes + 7, then pBytes + 8 for good
//
// Eight bytes are looked at as one number, here the first eight of "S355,12\n", the lowest on the left:
//
//   bytes                  'S'  '3'  '5'  '5'  ','  '1'  '2'  '\n'
//                           53   33   35   35   2C   31   32   0A
//   each plus 7F - 2C       A6   86   88   88   7F   84   85   5D      below 80 where the byte is at most a comma
//   the bits that stop       0    0    0    0    1    0    0    1      their highest bits inverted, brought together
#pragma once

#include "ByteWord.h"

#include "MekRoots/Exp/VorBits.h"

#include <cstddef>
#include <cstdint>

namespace mekbom
{
class StopScan
{
public:
    // So many bytes behind the end must be readable, whatever they are: bytes are looked at by whole blocks.
    static constexpr std::size_t kBlockSize = 64;

    // `delimiter` is ASCII.
    explicit StopScan(char delimiter = kLastStop)
        : m_delimiters(delimiter > kLastStop ? ByteWord::kEachByte * static_cast<unsigned char>(delimiter) : 0)
    {
    }

    void begin(const char* pBytes, const char* pEnd)
    {
        m_pNextBlock = pBytes;
        m_pEnd = pEnd;
        m_stops = 0;
    }

    // The next stop; the end, however often it is asked for, when there is none left.
    const char* next()
    {
        while (m_stops == 0)
        {
            if (m_pNextBlock >= m_pEnd)
                return m_pEnd;
            takeBlock();
        }
        const char* const pStop = m_pBlock + VorBits::lowestBit(m_stops);
        m_stops &= m_stops - 1;
        return pStop;
    }

private:
    static constexpr char kLastStop = ',';

    void takeBlock()
    {
        m_pBlock = m_pNextBlock;
        m_pNextBlock += kBlockSize;
        std::uint64_t stops = 0;
        for (std::size_t i = 0; i < kBlockSize; i += ByteWord::kSize)
            stops |= stopsOf(ByteWord::load<std::uint64_t>(m_pBlock + i)) << i;
        if (m_delimiters != 0)
            stops |= delimitersOfBlock();
        if (m_pNextBlock > m_pEnd)
            stops &= ~std::uint64_t{ 0 } >> (m_pNextBlock - m_pEnd);
        m_stops = stops;
    }

    // A delimiter is zero in the difference to a word of delimiters, and zeros are stops. Apart from the other stops, so
    // that files with commas pay one question per block for it.
    std::uint64_t delimitersOfBlock() const
    {
        std::uint64_t stops = 0;
        for (std::size_t i = 0; i < kBlockSize; i += ByteWord::kSize)
            stops |= zerosOf(ByteWord::load<std::uint64_t>(m_pBlock + i) ^ m_delimiters) << i;
        return stops;
    }

    // Eight bits, one for each byte of `word`. Without its highest bit, a byte plus 127 reaches that bit unless it is
    // zero.
    static std::uint64_t zerosOf(std::uint64_t word)
    {
        const std::uint64_t highBits = ByteWord::kEachByte * 0x80;
        const std::uint64_t reached = (word & ~highBits) + ByteWord::kEachByte * 0x7F;
        return gathered(~(reached | word) & highBits);
    }

    // Eight bits, one for each byte of `word`. Without its highest bit a byte plus 127 - ',' reaches that bit unless it
    // is a stop.
    static std::uint64_t stopsOf(std::uint64_t word)
    {
        const std::uint64_t highBits = ByteWord::kEachByte * 0x80;
        const std::uint64_t passed = (word & ~highBits) + ByteWord::kEachByte * (0x7F - kLastStop);
        return gathered((~passed | word) & highBits);
    }

    // The highest bits of eight bytes, whose other bits are zero, brought together.
    static std::uint64_t gathered(std::uint64_t highBits) { return highBits / 0x80 * 0x0102040810204080 >> 56; }

    std::uint64_t m_delimiters;     // eight of them; 0 where they are stops already
    const char* m_pBlock = nullptr; // the block that the stops are in
    const char* m_pNextBlock = nullptr;
    const char* m_pEnd = nullptr;
    std::uint64_t m_stops = 0; // a bit for each stop of the block that is still to come, the first one lowest
};
}
