// A source of records that a test writes down.
#pragma once

#include "RecordSource.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mekbom
{
inline RecordCell textCell(const char* pText)
{
    return RecordCell(std::string_view(pText));
}

// Hands over the records it is made with; each stands on a line of its own and each cell at a path.
class FakeSource : public RecordSource
{
public:
    explicit FakeSource(std::vector<Record> records) : m_records(std::move(records)) {}

    const std::string& name() const override { return m_name; }
    const Record* next() override { return m_next < m_records.size() ? &m_records[m_next++] : nullptr; }

    void placeRecord(Finding& finding) const override
    {
        finding.source = m_name;
        finding.begin.line = static_cast<int>(m_next);
    }

    void placeCell(std::size_t index, Finding& finding) const override
    {
        placeRecord(finding);
        finding.path = "/" + std::to_string(index);
    }

private:
    std::string m_name = "parts.xyz";
    std::vector<Record> m_records;
    std::size_t m_next = 0;
};
}
