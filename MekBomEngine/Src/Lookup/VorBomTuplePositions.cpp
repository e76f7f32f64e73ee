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
        m_hasPattern = false;
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
    if (hasGrown)
        findFrom(numKnown, tuples, latest.positions.data());
    else if (hasPattern(tuples))
        latest.positions = m_patternPositions;
    else
    {
        latest.positions.assign(static_cast<std::size_t>(m_nNumNumbers), kNone);
        findAll(tuples, latest.positions.data());
        keepAsPattern(tuples, latest.positions);
    }
    return latest.positions.data();
}

// From the last tuple to the first, so that of equal tokens the first stays. What nobody asks for has a place as well:
// in rows of many tokens in any order nobody could foresee which of them are asked for, a processor neither.
void VorBomTuplePositions::findAll(const VorBomDataTupleArray& tuples, int* pPositions)
{
    const VorBomDataTuple* const pTuples = tuples.begin();
    for (int i = tuples.length(); i-- > 0;)
        pPositions[numberOf(pTuples[i].token().token())] = i;
    pPositions[kNotAsked] = kNone;
}

// Among the tuples from `first` on, those of tokens that the row had none of before.
void VorBomTuplePositions::findFrom(int first, const VorBomDataTupleArray& tuples, int* pPositions)
{
    for (int i = first; i < tuples.length(); ++i)
    {
        const int number = numberOf(tuples.begin()[i].token().token());
        if (number != kNotAsked && pPositions[number] == kNone)
            pPositions[number] = i;
    }
}

bool VorBomTuplePositions::hasPattern(const VorBomDataTupleArray& tuples) const
{
    const auto numTexts = static_cast<int>(m_patternTexts.size());
    return m_hasPattern && (m_isPatternWhole ? tuples.length() == numTexts : tuples.length() >= numTexts) &&
           std::equal(m_patternTexts.begin(), m_patternTexts.end(), tuples.begin(),
                      [](const void* pText, const VorBomDataTuple& tuple)
                      { return tuple.token().token().memory() == pText; });
}

// Only of texts that are all known, which are kept: at the address of another a new text may come to lie. Where all
// tokens were found, those behind them make no difference: rows are sorted by a few tokens, which mostly stand in front.
void VorBomTuplePositions::keepAsPattern(const VorBomDataTupleArray& tuples, const std::vector<int>& positions)
{
    m_patternPositions = positions;
    m_hasPattern = m_nNumKnown < kMostKnown;
    m_isPatternWhole = std::find(positions.begin() + 1, positions.end(), kNone) != positions.end();
    const int numTexts = m_isPatternWhole ? tuples.length() : *std::max_element(positions.begin(), positions.end()) + 1;
    m_patternTexts.resize(static_cast<std::size_t>(numTexts));
    std::transform(tuples.begin(), tuples.begin() + numTexts, m_patternTexts.begin(),
                   [](const VorBomDataTuple& tuple) { return tuple.token().token().memory(); });
}

inline std::size_t VorBomTuplePositions::firstPlaceFor(const VorString& token) const
{
    return VorFibonacciHash::placeOf(reinterpret_cast<std::uintptr_t>(token.memory()), m_nKnownBits);
}

// Nearly every text is found at its first place, in few instructions: wide rows have many that nobody asks for.
inline int VorBomTuplePositions::numberOf(const VorString& token)
{
    const Known& known = m_known.data()[firstPlaceFor(token)];
    if (known.text.sharesTextWith(token) && known.number != kFree)
        return known.number;
    const int number = m_known[placeFor(token)].number;
    return number != kFree ? number : learn(token);
}

std::size_t VorBomTuplePositions::placeFor(const VorString& token) const
{
    std::size_t place = firstPlaceFor(token);
    while (m_known[place].number != kFree && !m_known[place].text.sharesTextWith(token))
        place = (place + 1) % m_known.size();
    return place;
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
