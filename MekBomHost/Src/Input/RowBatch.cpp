#include "RowBatch.h"

#include <algorithm>

namespace mekbom
{
RowBatch::RowBatch(std::size_t numColumns) : m_mostRows(std::min(kMostRows, kMostCells / (numColumns + 1) + 1)) {}

void RowBatch::clear()
{
    m_rows.clear();
    m_data.clear();
    m_bytes.clear();
    m_bounds.resize(1);
}

void RowBatch::addText(const VorString& token, std::size_t column, std::string_view text)
{
    Datum& datum = addDatum(token, kText);
    datum.column = static_cast<std::uint32_t>(column);
    datum.text = keep(text);
}

std::uint64_t RowBatch::keep(std::string_view text)
{
    if (text.size() <= ByteWord::kSize)
        return ByteWord::of(text);
    const std::uint64_t number = m_bounds.size();
    m_bytes += text;
    m_bounds.push_back(m_bytes.size());
    return number << 8;
}

std::string_view RowBatch::longText(std::uint64_t text) const
{
    const auto number = static_cast<std::size_t>(text >> 8);
    return std::string_view(m_bytes).substr(m_bounds[number - 1], m_bounds[number] - m_bounds[number - 1]);
}
}
