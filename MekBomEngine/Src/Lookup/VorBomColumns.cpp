#include "VorBomColumns.h"

#include <utility>

VorBomColumns::VorBomColumns(std::shared_ptr<VorBomTuplePositions> pPositions, const std::vector<VorString>& tokens)
    : m_pAsked(std::move(pPositions))
{
    m_numbers.reserve(tokens.size());
    for (const VorString& token : tokens)
        m_numbers.push_back(m_pAsked->ask(token));
}
