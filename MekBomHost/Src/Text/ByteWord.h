// Up to eight bytes of text as one number, so that short cells are read, compared and told apart without a loop over
// their bytes, whose end no processor foresees.
//
//   ByteWord::of("S355")                 ->  0x35353353: the first byte is the lowest
//   char bytes[ByteWord::kSize];
//   ByteWord::write(0x35353353, bytes)   ->  "S355"
//
// A text of more bytes has a hash in place of its word, which is the word of no shorter text.
#pragma once

#include "MekRoots/Exp/VorFibonacciHash.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace mekbom::ByteWord
{
constexpr std::size_t kSize = 8;
constexpr std::uint64_t kEachByte = 0x0101010101010101; // times a byte: that byte eight times

// The bytes of an integer, the first one lowest.
template <class Integer>
inline std::uint64_t load(const char* pBytes)
{
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < sizeof(Integer); ++i)
        word |= std::uint64_t{ static_cast<unsigned char>(pBytes[i]) } << 8 * i;
    return word;
#else
    Integer word = 0;
    std::memcpy(&word, pBytes, sizeof(word));
    return word;
#endif
}

// Up to kSize bytes, the first one lowest, zeros above the last. Reads none beyond the end: where that is not known to
// be allowed, two loads that overlap do the same.
inline std::uint64_t of(std::string_view bytes)
{
    const std::size_t size = bytes.size();
    const char* const p = bytes.data();
    if (size >= 4)
        return load<std::uint32_t>(p) | load<std::uint32_t>(p + size - 4) << 8 * (size - 4);
    if (size >= 2)
        return load<std::uint16_t>(p) | load<std::uint16_t>(p + size - 2) << 8 * (size - 2);
    return size == 0 ? 0 : load<std::uint8_t>(p);
}

// What `of` made a word of; written to `bytes`, which it refers to.
inline std::string_view write(std::uint64_t word, char (&bytes)[kSize])
{
    std::size_t size = 0;
    for (; size < kSize && word != 0; word >>= 8)
        bytes[size++] = static_cast<char>(word & 0xFF);
    return std::string_view(bytes, size);
}

// Stands for a text of more than kSize bytes in a table where shorter ones stand as `of` gives them. Its lowest byte is
// zero, as no text's first byte is, so that it is the word of no shorter text; its highest bit is set, so that it is
// never zero. Different texts may have the same.
// It is made of words of eight bytes, of which the last ends with the text and may overlap the one before: of 20 bytes
// these are bytes 12 to 19, then 0 to 7 and 8 to 15.
inline std::uint64_t hashOf(std::string_view bytes)
{
    std::uint64_t hash = load<std::uint64_t>(bytes.data() + bytes.size() - kSize);
    for (std::size_t i = 0; i + kSize < bytes.size(); i += kSize)
    {
        hash = (hash ^ load<std::uint64_t>(bytes.data() + i)) * VorFibonacciHash::kFactor;
        hash ^= hash >> 32;
    }
    return hash << 8 | std::uint64_t{ 1 } << 63;
}
}
