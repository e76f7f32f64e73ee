// Whether a row has a token twice takes putting its tokens in order, and a look into each for a formula: too much for each
// of a million rows that all have the same tokens. So the tokens of a row that was found right are kept, and a row is
// right, too, if it has them at the same places:
//
//   row 1   %PNum %Material %Weight            is looked at: nothing twice, no formula
//   row 2   %PNum %Material %Weight            as before: three addresses are compared
//   row 3   %PNum %Weight %Material %Weight    is looked at: %Weight stands there twice
//   row 4   %PNum %Material %Weight            is looked at again, as the tokens of row 3 are no measure
#include "RowOriginRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorStringOrder.h"

#include <algorithm>
#include <vector>

namespace mekbom
{
namespace
{
// A token that comes again, the first in their order; null when none does. Rows may have thousands of tuples.
const VorString* tokenTwiceIn(const VorBomDataRow& row)
{
    std::vector<const VorString*> tokens;
    for (const VorBomDataTuple& tuple : row.getData())
        tokens.push_back(&tuple.token().token());
    std::sort(tokens.begin(), tokens.end(),
              [](const VorString* pFirst, const VorString* pSecond) { return VorStringLess()(*pFirst, *pSecond); });
    const auto twice =
        std::adjacent_find(tokens.begin(), tokens.end(),
                           [](const VorString* pFirst, const VorString* pSecond) { return *pFirst == *pSecond; });
    return twice == tokens.end() ? nullptr : *twice;
}

// The engine writes "%Formula:%Weight*2" into a row once it has computed it, and finds it there the next time.
bool hasFormula(const VorBomDataRow& row)
{
    for (const VorBomDataTuple& tuple : row.getData())
        if (VorBomDataToken::isFormula(tuple.token().token()) == 1)
            return true;
    return false;
}

std::string rows(long long number, long long all)
{
    return std::to_string(number) + " of " + std::to_string(all) + " rows ";
}
}

// A row as before has no formula in it; that it may be left out of sums is no matter of its tokens.
void RowOriginRule::see(const VorBomDataRow& row)
{
    ++m_numRows;
    if (row.child() != nullptr)
        ++m_numWithSubRows;
    if (isAsBefore(row))
    {
        m_numMarked += row.getUseThisDataForSums() == 0 ? 1 : 0;
        return;
    }
    const VorString* const pTwice = tokenTwiceIn(row);
    const bool isMarked = row.getUseThisDataForSums() == 0 || hasFormula(row);
    if (pTwice != nullptr && m_twice.empty())
        m_twice = Utf8::toBytes(*pTwice);
    m_numWithTokenTwice += pTwice != nullptr ? 1 : 0;
    m_numMarked += isMarked ? 1 : 0;
    m_tokens.clear();
    if (pTwice == nullptr && !isMarked)
        for (const VorBomDataTuple& tuple : row.getData())
            m_tokens.push_back(tuple.token().token());
}

// Rows of one parts list share the characters of their tokens, so no text is compared.
bool RowOriginRule::isAsBefore(const VorBomDataRow& row) const
{
    const auto& tuples = row.getData();
    return !m_tokens.empty() && tuples.length() == static_cast<int>(m_tokens.size()) &&
           std::equal(m_tokens.begin(), m_tokens.end(), tuples.begin(),
                      [](const VorString& token, const VorBomDataTuple& tuple)
                      { return token.sharesTextWith(tuple.token().token()); });
}

void RowOriginRule::tell(MistakeList& mistakes) const
{
    const TemplatePlace nowhere;
    if (m_numWithTokenTwice > 0)
        mistakes.add(MistakeCodes::kTokenTwiceInRow, nowhere,
                     rows(m_numWithTokenTwice, m_numRows) + "have a token twice, such as " + inQuotes(m_twice) +
                         ": the first value counts",
                     "give each row every token once");
    if (m_numWithSubRows > 0)
        mistakes.add(MistakeCodes::kSubRows, nowhere,
                     rows(m_numWithSubRows, m_numRows) + "have rows below them, which are in no list",
                     "put all rows side by side");
    if (m_numMarked > 0)
        mistakes.add(MistakeCodes::kMarksOfEarlierReport, nowhere,
                     rows(m_numMarked, m_numRows) +
                         "carry the marks of an earlier report: they are in no total, or show old results of formulas",
                     "build the data anew for each report");
}
}
