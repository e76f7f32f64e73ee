#include "ByteSource.h"

namespace mekbom
{
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
