#include "VorBomRowLayouts.h"

#include <utility>

namespace
{
bool hasLayout(const VorBomDataTupleArray& tuples, const std::vector<VorString>& layout)
{
    if (static_cast<std::size_t>(tuples.length()) != layout.size())
        return false;
    const VorString* pToken = layout.data();
    for (const VorBomDataTuple& tuple : tuples)
        if (!tuple.token().token().sharesTextWith(*pToken++))
            return false;
    return true;
}

// Over the addresses of the tokens' texts.
std::size_t hashOf(const VorBomDataTupleArray& tuples)
{
    std::size_t hash = 0;
    for (const VorBomDataTuple& tuple : tuples)
        hash = hash * 31 + std::hash<const wchar_t*>()(tuple.token().token().getStringW());
    return hash;
}
}

int VorBomRowLayouts::layoutOf(const VorBomItemBase& row)
{
    const VorBomDataTupleArray& tuples = row.getData();
    for (const Remembered& remembered : m_remembered)
        if (remembered.pRow == &row && remembered.numTuples == tuples.length())
            return remembered.layout;
    if (m_remembered[0].pRow != &row)
        m_remembered[1] = m_remembered[0];
    m_remembered[0] = { &row, tuples.length(), findLayout(tuples) };
    return m_remembered[0].layout;
}

int VorBomRowLayouts::findLayout(const VorBomDataTupleArray& tuples)
{
    const bool isAsBefore = m_nLatest != kNoLayout && hasLayout(tuples, m_layouts[static_cast<std::size_t>(m_nLatest)]);
    if (!isAsBefore)
        m_nLatest = findOrAddLayout(tuples);
    return m_nLatest;
}

int VorBomRowLayouts::findOrAddLayout(const VorBomDataTupleArray& tuples)
{
    const std::size_t hash = hashOf(tuples);
    const auto [first, end] = m_byHash.equal_range(hash);
    for (auto it = first; it != end; ++it)
        if (hasLayout(tuples, m_layouts[static_cast<std::size_t>(it->second)]))
            return it->second;
    if (m_layouts.size() == kMostLayouts)
        return kNoLayout;
    const int number = static_cast<int>(m_layouts.size());
    m_layouts.emplace_back();
    for (const VorBomDataTuple& tuple : tuples)
        m_layouts.back().push_back(tuple.token().token());
    m_byHash.emplace(hash, number);
    return number;
}
