// Where input bytes come from: a file, standard input, a text in a test.
#pragma once

#include <cstddef>
#include <string>

namespace mekbom
{
class ByteSource
{
public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    // What messages call it: the file's name as the user wrote it, or "standard input".
    virtual const std::string& name() const = 0;

    // Reads up to `size` bytes, at least one unless the end is reached; returns their number. Throws a Fault of status
    // kInvalidInput when they cannot be read.
    virtual std::size_t read(char* pBytes, std::size_t size) = 0;

    // Everything that is left.
    std::string readAll();
};
}
