// The texts that the cells of a workbook share: a cell of texts names one by its number.
//
//   WorkbookTexts texts;
//   texts.add("HEA200");
//   texts.add("S355J2");
//   texts.find(1)         ->  "S355J2"
//   texts.find(2)         ->  nothing
//
// They are one text with the places where they end: a million texts are two allocations that grow.
#pragma once

#include "ByteSource.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class WorkbookTexts
{
public:
    // Adds those of `part`, which belongs to `workbook`. Throws a Fault of status kInvalidInput where they are damaged,
    // or too many to be kept.
    void read(ByteSource& part, const std::string& workbook);

    void add(std::string_view text);

    // The text of that number, from 0; good until the next one is added.
    std::optional<std::string_view> find(std::size_t number) const;

private:
    std::size_t numBytes() const { return m_bytes.size() + m_ends.size() * sizeof(std::size_t); }

    std::string m_bytes;
    std::vector<std::size_t> m_ends;
};
}
