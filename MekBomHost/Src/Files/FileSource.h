// The bytes of a file, or of standard input.
#pragma once

#include "ByteSource.h"

#include <cstdio>
#include <memory>
#include <string>

namespace mekbom
{
class FileSource : public ByteSource
{
public:
    // Throws a Fault of status kInvalidInput when there is no such file or it cannot be opened.
    explicit FileSource(const std::string& path);

    // Reads standard input to its end.
    FileSource();

    const std::string& name() const override { return m_name; }
    std::size_t read(char* pBytes, std::size_t size) override;

private:
    struct Closer
    {
        void operator()(std::FILE* pFile) const;
    };

    [[noreturn]] void failToRead(int error) const;

    std::string m_name;
    std::unique_ptr<std::FILE, Closer> m_pFile;
};
}
