// Told on the columns %Weight and %Name, with two layouts of rows: 0 is %Num %Name %Weight, 1 is %Num %Weight.
//   first row of layout 0    its positions { 2, 1 } are found and kept
//   next row of layout 0     nothing to do but to take the row's tuples
//   first row of layout 1    positions { 1, kNone } are found and kept beside those of layout 0
//   row without a layout     positions are found for this row alone
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
