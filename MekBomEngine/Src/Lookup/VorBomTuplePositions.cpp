// Told on rows that are asked for %Name and %Weight, the numbers 1 and 2:
//   first row, %Num %Name %Weight     %Num is met for the first time and found among the tokens asked for by its
//                                     characters, in vain: its address stands for kNotAsked from now on. Likewise the
//                                     two others, for 1 and 2. Positions: none, 1, 2
//   second row, the same tokens       has the pattern of the first, and so its positions
//   third row, %Weight %Num           has not; both addresses are known. Positions: none, none, 0
//   third row, asked again            it is remembered and has two tuples still: no token is looked at
//   third row, grown                  a formula's result was appended: only that third token is looked at
#include "VorBomTuplePositions.h"

#include <algorithm>
#include <utility>

int VorBomTuplePositions::ask(const VorString& token)
{
    bool isNew = false;
    const int number = m_numbers.findOrInsert(token, m_nNumNumbers, isNew)->value;
    if (isNew)
    {
        // What is known of texts and rows did not take this token into account.
        ++m_nNumNumbers;
        m_known.assign(m_known.size(), Known());
        m_nNumKnown = 0;
        m_patternTexts.clear();
        m_patternPositions.assign(static_cast<std::size_t>(m_nNumNumbers), kNone);
        for (Row& row : m_rows)
            row.pRow = nullptr;
    }
    return number;
}

const int* VorBomTuplePositions::lookAt(const VorBomItemBase& row)
{
    if (m_rows[m_nLatest].pRow != &row)
        m_nLatest = 1 - m_nLatest;
    Row& latest = m_rows[m_nLatest];
    const VorBomDataTupleArray& tuples = row.getData();
    const bool hasGrown = latest.pRow == &row && latest.numTuples < tuples.length();
    const int numKnown = hasGrown ? latest.numTuples : 0;
    latest.pRow = &row;
    latest.numTuples = tuples.length();
    if (!hasGrown && hasPattern(tuples))
    {
        latest.positions = m_patternPositions;
        return latest.positions.data();
    }
    if (!hasGrown)
        latest.positions.assign(static_cast<std::size_t>(m_nNumNumbers), kNone);
    int* const pPositions = latest.positions.data();
    for (int i = numKnown; i < tuples.length(); ++i)
    {
        const int number = numberOf(tuples.begin()[i].token().token());
        if (number != kNotAsked && pPositions[number] == kNone) // a later tuple with the same token is not found
            pPositions[number] = i;
    }
    if (!hasGrown)
        keepAsPattern(tuples, latest.positions);
    return pPositions;
}

bool VorBomTuplePositions::hasPattern(const VorBomDataTupleArray& tuples) const
{
    return static_cast<std::size_t>(tuples.length()) == m_patternTexts.size() &&
           std::equal(tuples.begin(), tuples.end(), m_patternTexts.begin(),
                      [](const VorBomDataTuple& tuple, const void* pText)
                      { return tuple.token().token().memory() == pText; });
}

// Only of texts that are all known, which are kept: at the address of another a new text may come to lie.
void VorBomTuplePositions::keepAsPattern(const VorBomDataTupleArray& tuples, const std::vector<int>& positions)
{
    m_patternTexts.clear();
    m_patternPositions = positions;
    if (m_nNumKnown == kMostKnown)
        return;
    for (const VorBomDataTuple& tuple : tuples)
        m_patternTexts.push_back(tuple.token().token().memory());
}

inline std::size_t VorBomTuplePositions::placeFor(const VorString& token) const
{
    const auto address = reinterpret_cast<std::uintptr_t>(token.memory());
    std::size_t place = VorFibonacciHash::placeOf(address, m_nKnownBits);
    while (m_known[place].number != kFree && !m_known[place].text.sharesTextWith(token))
        place = (place + 1) % m_known.size();
    return place;
}

inline int VorBomTuplePositions::numberOf(const VorString& token)
{
    const int number = m_known[placeFor(token)].number;
    return number != kFree ? number : learn(token);
}

int VorBomTuplePositions::learn(const VorString& token)
{
    const auto* pNode = m_numbers.find(token);
    const int number = pNode != nullptr ? pNode->value : kNotAsked;
    if (m_nNumKnown == kMostKnown)
        return number;
    if (++m_nNumKnown * 2 > m_known.size())
        growKnown();
    m_known[placeFor(token)] = { token, number };
    return number;
}

void VorBomTuplePositions::growKnown()
{
    std::vector<Known> known(m_known.size() * 2);
    known.swap(m_known);
    ++m_nKnownBits;
    for (Known& text : known)
        if (text.number != kFree)
            m_known[placeFor(text.text)] = std::move(text);
}
