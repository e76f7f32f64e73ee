#include "VorBomColumns.h"

#include "VorBomTupleFinder.h"

#include <utility>

VorBomColumns::VorBomColumns(std::shared_ptr<VorBomRowLayouts> pLayouts, std::vector<VorString> tokens)
    : m_pLayouts(std::move(pLayouts)), m_tokens(std::move(tokens))
{
}

void VorBomColumns::usePositionsOf(int layout, const VorBomDataTupleArray& tuples)
{
    m_nLayout = layout;
    if (layout == VorBomRowLayouts::kNoLayout)
    {
        m_positionsOfRow = positionsIn(tuples);
        m_pPositions = m_positionsOfRow.data();
        return;
    }
    const auto index = static_cast<std::size_t>(layout);
    if (index >= m_positions.size())
        m_positions.resize(index + 1);
    if (m_positions[index].empty())
        m_positions[index] = positionsIn(tuples);
    m_pPositions = m_positions[index].data();
}

VorBomColumns::Positions VorBomColumns::positionsIn(const VorBomDataTupleArray& tuples) const
{
    const VorBomTupleFinder finder(tuples, count());
    Positions positions;
    positions.reserve(m_tokens.size());
    for (const VorString& token : m_tokens)
        positions.push_back(finder.indexOf(token));
    for (const int column : m_leftOut)
        positions[static_cast<std::size_t>(column)] = VorBomTupleFinder::kNone;
    return positions;
}
