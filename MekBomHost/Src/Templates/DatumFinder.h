// Finds one datum in row after row. Rows of one parts list share the characters of their tokens and mostly have them at
// the same places, so the place of the row before is looked at first: a tenth of what looking through each row takes.
//
//   DatumFinder weights(L"%Weight");
//   if (const VorBomDataTuple* const pWeight = weights.findIn(row))
//       use(pWeight->value());
#pragma once

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorString.h"

#include <utility>

namespace mekbom
{
class DatumFinder
{
public:
    explicit DatumFinder(VorString token) : m_token(std::move(token)) {}

    const VorString& token() const { return m_token; }

    // The row's tuple with the token, owned by the row; null when it has none.
    const VorBomDataTuple* findIn(const VorBomDataRow& row)
    {
        const auto& tuples = row.getData();
        if (m_place < tuples.length() && isFound(tuples.begin()[m_place]))
            return tuples.begin() + m_place;
        for (const VorBomDataTuple& tuple : tuples)
            if (isFound(tuple) || tuple.token().token() == m_token)
            {
                m_found = tuple.token().token();
                m_place = static_cast<int>(&tuple - tuples.begin());
                return &tuple;
            }
        return nullptr;
    }

private:
    // Whether the tuple has the very characters that were found in an earlier row: two addresses are compared, no
    // texts.
    bool isFound(const VorBomDataTuple& tuple) const
    {
        return m_found.isEmpty() == 0 && m_found.sharesTextWith(tuple.token().token());
    }

    VorString m_token;
    VorString m_found; // the token as the rows have it
    int m_place = 0;   // where it stood last
};
}
