// The bytes of a file, or of standard input. The file is opened when the first byte is asked for, so that the sources
// of a job can be named beforehand and a missing one is found when its turn comes.
//
//   FileSource file("parts.csv");
//   const std::string bytes = file.readAll();      throws a Fault of status kInvalidInput when there is no such file
#pragma once

#include "ByteSource.h"

#include <cstdio>
#include <memory>
#include <string>
#include <utility>

namespace mekbom
{
class FileSource : public ByteSource
{
public:
    // Reads the file at `path`, which is also what messages call it.
    explicit FileSource(const std::string& path) : FileSource(path, path) {}

    // Messages call this one by a name that its user knows better: "cutting-list".
    FileSource(std::string path, std::string name) : m_path(std::move(path)), m_name(std::move(name)) {}

    // Reads standard input, which stays open afterwards.
    FileSource();

    const std::string& name() const override { return m_name; }
    std::size_t read(char* pBytes, std::size_t size) override;

private:
    struct Closer
    {
        void operator()(std::FILE* pFile) const;
    };

    void open();
    [[noreturn]] void failToRead(int error) const;

    std::string m_path;
    std::string m_name;
    std::unique_ptr<std::FILE, Closer> m_pFile; // null until it is opened
};
}
