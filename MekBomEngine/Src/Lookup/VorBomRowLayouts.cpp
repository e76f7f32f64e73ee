// A row is looked at as little as possible. Told on rows that carry %Num and %Weight:
//   first row                   no layout is known: number 0 is made of its tokens, to be found by their hash
//   second row                  its tokens are those of the layout met last: 0 again, and nothing is hashed
//   second row, asked again     it is remembered and has two tuples still: 0, and no token is looked at
//   second row, grown           a formula's result was appended. Only that third token is compared, with the layout
//                               that a row of layout 0 had when one last grew
#include "VorBomRowLayouts.h"

#include <utility>

namespace
{
// The first `numKnown` tuples are known to agree.
bool hasLayout(const VorBomDataTupleArray& tuples, const std::vector<VorString>& layout, int numKnown = 0)
{
    if (static_cast<std::size_t>(tuples.length()) != layout.size())
        return false;
    const VorString* pToken = layout.data() + numKnown;
    for (const VorBomDataTuple* pTuple = tuples.begin() + numKnown; pTuple != tuples.end(); ++pTuple)
        if (!pTuple->token().token().sharesTextWith(*pToken++))
            return false;
    return true;
}

// Hashes the addresses of the tokens' texts, not their characters: a layout is told by the former.
std::size_t hashOf(const VorBomDataTupleArray& tuples)
{
    std::size_t hash = 0;
    for (const VorBomDataTuple& tuple : tuples)
        hash = hash * 31 + std::hash<const wchar_t*>()(tuple.token().token().getStringW());
    return hash;
}
}

int VorBomRowLayouts::findLayout(const VorBomItemBase& row)
{
    const VorBomDataTupleArray& tuples = row.getData();
    Remembered& latest = m_remembered[0];
    if (latest.pRow == &row && latest.layout != kNoLayout && latest.numTuples < tuples.length())
    {
        latest = { &row, tuples.length(), findLonger(latest, tuples) };
        return latest.layout;
    }
    if (m_nLatest == kNoLayout || !hasLayout(tuples, layoutAt(m_nLatest).tokens))
        m_nLatest = findOrAddLayout(tuples);
    if (latest.pRow != &row)
        m_remembered[1] = latest;
    latest = { &row, tuples.length(), m_nLatest };
    return m_nLatest;
}

// The layout of a row that got further tuples since it was remembered.
int VorBomRowLayouts::findLonger(const Remembered& shorter, const VorBomDataTupleArray& tuples)
{
    const int latest = layoutAt(shorter.layout).latestLonger;
    if (latest != kNoLayout && hasLayout(tuples, layoutAt(latest).tokens, shorter.numTuples))
        return latest;
    const int longer = findOrAddLayout(tuples);
    layoutAt(shorter.layout).latestLonger = longer;
    return longer;
}

int VorBomRowLayouts::findOrAddLayout(const VorBomDataTupleArray& tuples)
{
    const std::size_t hash = hashOf(tuples);
    const auto [first, end] = m_byHash.equal_range(hash);
    for (auto it = first; it != end; ++it)
        if (hasLayout(tuples, layoutAt(it->second).tokens))
            return it->second;
    if (m_layouts.size() == kMostLayouts)
        return kNoLayout;
    const int number = static_cast<int>(m_layouts.size());
    m_layouts.emplace_back();
    for (const VorBomDataTuple& tuple : tuples)
        m_layouts.back().tokens.push_back(tuple.token().token());
    m_byHash.emplace(hash, number);
    return number;
}
