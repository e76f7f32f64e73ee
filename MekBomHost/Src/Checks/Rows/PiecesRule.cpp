#include "PiecesRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

namespace mekbom
{
namespace
{
bool standsForSeveral(const VorBomDataRow& row)
{
    const VorBomDataTuple* const pPieces = row.getTupleAt(PiecesRule::kPieces);
    return (pPieces != nullptr && pPieces->value().type() == VorBomDataValue::kIntData &&
            *static_cast<const int*>(pPieces->value().data()) != 1) ||
           row.EqualPartObjectHandles().length() > 0;
}
}

const VorString PiecesRule::kPieces(L"%Quantity");

bool PiecesRule::isOfOnePiece(const std::string& token, const KnownTokens& tokens)
{
    const bool isOfMore = token.find("Assembly") != std::string::npos || token.find("InPhase") != std::string::npos ||
                          token.find("InModel") != std::string::npos;
    return tokens.kindOf(token) == KnownTokens::kNumber && tokens.hasUnit(token) && !isOfMore;
}

PiecesRule::PiecesRule(const CheckedTuple& total) : m_total(total), m_token(Utf8::toWide(total.request.subject)) {}

void PiecesRule::see(const VorBomDataRow& row)
{
    if (standsForSeveral(row) && row.getTupleAt(m_token) != nullptr)
        ++m_numRows;
}

void PiecesRule::tell(MistakeList& mistakes) const
{
    const std::string formula = "%Formula:" + m_total.request.subject + "*%Quantity";
    if (m_numRows > 0)
        mistakes.add(
            MistakeCodes::kPiecesNotCounted, m_total,
            inQuotes(m_total.token) + " adds the value of one piece for each row, and " + std::to_string(m_numRows) +
                (m_numRows == 1 ? " row stands" : " rows stand") + " for another number of pieces",
            "give the details a tuple " + inQuotes(formula) + ", and write " + inQuotes("%SumBy:" + formula) + " here");
}
}
