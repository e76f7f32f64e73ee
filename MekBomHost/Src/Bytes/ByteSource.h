// Where input bytes come from: a file, standard input, a text in memory.
//
//   char bytes[4096];
//   while (const std::size_t numRead = source.read(bytes, sizeof(bytes)))
//       take(std::string_view(bytes, numRead));      a piece of the input, cut anywhere, even within a character
//
// A source is read once, from its begin to its end, and by one thread at a time. Readers do not know of what kind it
// is: files and standard input are FileSource's, texts in memory MemorySource's.
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

    // What messages call it: the file's name as the user wrote it, or "standard input". Good for as long as the source.
    virtual const std::string& name() const = 0;

    // Reads up to `size` bytes, at least one, to `pBytes` and returns their number; 0 at the end, and from then on.
    // Throws a Fault of status kInvalidInput when they cannot be read.
    virtual std::size_t read(char* pBytes, std::size_t size) = 0;

    // Everything that is left, in one text. Throws as read() does.
    std::string readAll();
};
}
