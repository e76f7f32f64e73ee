#include "VorBomColumns.h"

#include <utility>

VorBomColumns::VorBomColumns(std::shared_ptr<VorBomRowLayouts> pLayouts, std::vector<VorString> tokens)
    : m_pLayouts(std::move(pLayouts)), m_tokens(std::move(tokens)), m_found(m_tokens.size())
{
}

void VorBomColumns::find(VorBomItemBase& row)
{
    if (m_tokens.empty())
        return;
    const int layout = m_pLayouts->layoutOf(row);
    if (layout == VorBomRowLayouts::kNoLayout)
    {
        for (std::size_t i = 0; i < m_tokens.size(); ++i)
            m_found[i] = row.getTupleAt(m_tokens[i]);
        return;
    }
    VorBomDataTupleArray& tuples = row.getData();
    if (layout != m_nLatestLayout)
    {
        m_pLatestPositions = positionsFor(layout, tuples).data();
        m_nLatestLayout = layout;
    }
    VorBomDataTuple* pFirst = tuples.begin();
    for (std::size_t i = 0; i < m_found.size(); ++i)
        m_found[i] = m_pLatestPositions[i] == kNone ? nullptr : pFirst + m_pLatestPositions[i];
}

const VorBomColumns::Positions& VorBomColumns::positionsFor(int layout, const VorBomDataTupleArray& tuples)
{
    const auto index = static_cast<std::size_t>(layout);
    if (index >= m_positions.size())
        m_positions.resize(index + 1);
    Positions& positions = m_positions[index];
    if (!positions.empty())
        return positions;
    for (const VorString& token : m_tokens)
    {
        int position = 0;
        while (position < tuples.length() && tuples[position].token().token() != token)
            ++position;
        positions.push_back(position < tuples.length() ? position : kNone);
    }
    return positions;
}
