// The files that are packed into one, in memory.
//
//   const ZipArchive archive("parts.xlsx", bytes);
//   archive.has("xl/workbook.xml")     ->  true
//   const std::unique_ptr<ByteSource> pBook = archive.open("xl/workbook.xml", 1 << 20);
//   pBook->name()                      ->  "xl/workbook.xml"
//
// Files are unpacked while they are read, so that one of gigabytes takes no memory; several may be open at once. What is
// packed wrong, with a password, or in a way that nobody knows ends in a Fault of status kInvalidInput.
#pragma once

#include "ByteSource.h"

#include <cstddef>
#include <memory>
#include <string>

struct zip;

namespace mekbom
{
class ZipArchive
{
public:
    // `name` is what messages call it. Throws where the bytes are no archive.
    ZipArchive(std::string name, std::string bytes);

    const std::string& name() const { return m_name; }

    // Names are compared without regard to case, as those of the parts of a workbook are.
    bool has(const std::string& path) const;

    // The file `path`, good for as long as the archive. Throws where there is none; its read() does once it has given
    // `mostBytes` and there are more.
    std::unique_ptr<ByteSource> open(const std::string& path, std::size_t mostBytes) const;

private:
    struct Closer
    {
        void operator()(zip* pArchive) const;
    };

    std::string m_name;
    std::string m_bytes; // read by the archive below
    std::unique_ptr<zip, Closer> m_pArchive;
};
}
