// The bytes of a source, some hundred thousand at a time, for a reader that uses them up record by record.
//
//   bytes.readMore();                 "Name,Length\nHEA200,6000\nHEB3"    one record is there in part only
//   bytes.dropTo(pThirdRecord);
//   bytes.readMore();                 "HEB300,5500\n"                     it has moved to the front, more stands behind
//
// Behind the end stands a line end that is not the source's, so that a scan for line ends needs no look at where the
// bytes end, and StopScan::kBlockSize bytes may be read there.
#pragma once

#include "ByteSource.h"

#include <cstddef>
#include <vector>

namespace mekbom
{
class SourceBytes
{
public:
    // The size of the buffer at first.
    static constexpr std::size_t kFirstSize = 1 << 18; // measured: no faster beyond

    // `source` is not owned and outlives this object. Nothing is read before the first readMore().
    explicit SourceBytes(ByteSource& source);

    const char* begin() const { return m_buffer.data() + m_begin; }
    const char* end() const { return m_buffer.data() + m_end; }

    // Whether nothing follows end().
    bool areLast() const { return m_sourceIsAtEnd; }

    // Says that the bytes before `pBytes`, which lies among them, are used up: the next readMore() overwrites them.
    void dropTo(const char* pBytes) { m_begin = static_cast<std::size_t>(pBytes - m_buffer.data()); }

    // Reads until the buffer is full or the source at its end. Where nothing was dropped, the buffer first becomes
    // twice as large, so that who looks at all bytes anew after each call looks at each about twice. Bytes may move.
    void readMore();

private:
    void makeRoom();

    ByteSource& m_source;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    bool m_sourceIsAtEnd = false;
};
}
