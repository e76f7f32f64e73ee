#include "ByteSource.h"

namespace mekbom
{
// A source may give fewer bytes than it is asked for before it is at its end, as a pipe does; only none at all is the
// end.
std::string ByteSource::readAll()
{
    const std::size_t blockSize = 1 << 16;
    std::string bytes;
    for (std::size_t length = 0;; length = bytes.size())
    {
        bytes.resize(length + blockSize);
        const std::size_t numRead = read(&bytes[length], blockSize);
        bytes.resize(length + numRead);
        if (numRead == 0)
            return bytes;
    }
}
}
