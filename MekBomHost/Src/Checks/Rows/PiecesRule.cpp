// The engine adds what it finds in each row, once, and a row says that it stands for several pieces in one of two ways:
//
//   %Quantity 4                                   a row of a parts list for four equal parts
//   EqualPartObjectHandles() of three objects     a row of another program for four: its own object and three like it
//
// Either way a weight of 134.4 kg is that of one piece. A row without a weight adds nothing, wrong or right, and is not
// counted among those that are told.
#include "PiecesRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
// What to sum instead: "%Formula:%Weight*1.05*%Quantity", "%Formula:(%Length+%Width)*%Quantity". Products need no
// parentheses, and are better off without: a ')' applies all that is pending on its left.
std::string timesPieces(const std::string& summed)
{
    const TokenRequest request = TokenRequest::of(summed);
    const bool isProduct =
        request.kind != TokenRequest::kFormula || request.subject.find_first_of("+-/^(") == std::string::npos;
    return "%Formula:" + (isProduct ? request.subject : "(" + request.subject + ")") + "*" + KnownTokens::kPieces;
}
}

// A token with a unit is measured on a piece, unless a whole assembly shares it; a whole number among the operands is
// taken for a count, so that "%Weight*%MQuantity" is left alone as well.
bool PiecesRule::isOfOnePiece(const CheckedTuple& total, const KnownTokens& tokens)
{
    const std::vector<std::string> summed = dataTokensOf(total.request);
    const auto isMeasure = [&tokens](const std::string& token)
    { return tokens.kindOf(token) == KnownTokens::kNumber && tokens.hasUnit(token); };
    const auto isOfMore = [&tokens](const std::string& token)
    { return tokens.kindOf(token) == KnownTokens::kWhole || tokens.isSharedByRows(token); };
    return std::any_of(summed.begin(), summed.end(), isMeasure) && std::none_of(summed.begin(), summed.end(), isOfMore);
}

PiecesRule::PiecesRule(const CheckedTuple& total, Finding::eSeverity severity)
    : m_total(total), m_severity(severity), m_pieces(Utf8::toWide(KnownTokens::kPieces))
{
    for (const std::string& token : dataTokensOf(total.request))
        m_summed.emplace_back(Utf8::toWide(token));
}

void PiecesRule::see(const VorBomDataRow& row)
{
    if (standsForSeveral(row) && hasWhatIsSummed(row))
        ++m_numRows;
}

bool PiecesRule::standsForSeveral(const VorBomDataRow& row)
{
    const VorBomDataTuple* const pPieces = m_pieces.findIn(row);
    return (pPieces != nullptr && pPieces->value().type() == VorBomDataValue::kIntData &&
            *static_cast<const int*>(pPieces->value().data()) != 1) ||
           row.EqualPartObjectHandles().length() > 0;
}

bool PiecesRule::hasWhatIsSummed(const VorBomDataRow& row)
{
    return std::any_of(m_summed.begin(), m_summed.end(),
                       [&row](DatumFinder& summed) { return summed.findIn(row) != nullptr; });
}

void PiecesRule::tell(MistakeList& mistakes) const
{
    const std::string formula = timesPieces(m_total.request.subject);
    if (m_numRows > 0)
        mistakes.add(
            MistakeCodes::kPiecesNotCounted, m_severity, m_total,
            inQuotes(m_total.token) + " adds the value of one piece for each row, and " + std::to_string(m_numRows) +
                (m_numRows == 1 ? " row stands" : " rows stand") + " for another number of pieces",
            "give the details a tuple " + inQuotes(formula) + ", and write " + inQuotes("%SumBy:" + formula) + " here");
}
}
