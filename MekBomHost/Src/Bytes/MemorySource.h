// The bytes of a text in memory, for a program that has its input there.
//
//   MemorySource source("parts.csv", "Name,Length\nHEA200,6000\n");
//   CsvReader records(source);
#pragma once

#include "ByteSource.h"

#include <string>
#include <string_view>
#include <utility>

namespace mekbom
{
class MemorySource : public ByteSource
{
public:
    // `name` is what messages call it. The bytes are not owned and must outlive the source.
    MemorySource(std::string name, std::string_view bytes) : m_name(std::move(name)), m_rest(bytes) {}

    const std::string& name() const override { return m_name; }
    std::size_t read(char* pBytes, std::size_t size) override;

private:
    std::string m_name;
    std::string_view m_rest; // still to be read
};
}
