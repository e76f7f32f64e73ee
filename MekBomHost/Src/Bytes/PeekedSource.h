// A source whose first bytes may be looked at before anybody reads them, to tell of what format they are.
//
//   PeekedSource peeked(source, 4);
//   peeked.head()      ->  "PK\3\4": a packed file; fewer bytes where the source has no more
//   peeked.readAll()   ->  all bytes of the source, these first
#pragma once

#include "ByteSource.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom
{
class PeekedSource : public ByteSource
{
public:
    // Reads up to `headSize` bytes at once. `source` is not owned and outlives this one; throws as its read() does.
    PeekedSource(ByteSource& source, std::size_t headSize);

    // Good for as long as this source, also once they have been read.
    std::string_view head() const { return m_head; }

    const std::string& name() const override { return m_source.name(); }
    std::size_t read(char* pBytes, std::size_t size) override;

private:
    ByteSource& m_source;
    std::string m_head;
    std::size_t m_numRead = 0; // of the head
};
}
