#include "PiecesRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
// "%Formula:%Weight*1.05*%Quantity", "%Formula:(%Length+%Width)*%Quantity"
std::string timesPieces(const std::string& summed)
{
    const TokenRequest request = TokenRequest::of(summed);
    const bool isProduct =
        request.kind != TokenRequest::kFormula || request.subject.find_first_of("+-/^(") == std::string::npos;
    return "%Formula:" + (isProduct ? request.subject : "(" + request.subject + ")") + "*" + TokenNames::kPieces;
}
}

bool PiecesRule::isOfOnePiece(const CheckedTuple& total, const KnownTokens& tokens)
{
    const std::vector<std::string> summed = dataTokensOf(total.request);
    const auto isMeasure = [&tokens](const std::string& token)
    { return tokens.kindOf(token) == KnownTokens::kNumber && tokens.hasUnit(token); };
    const auto isOfMore = [&tokens](const std::string& token)
    { return tokens.kindOf(token) == KnownTokens::kWhole || tokens.isSharedByRows(token); };
    return std::any_of(summed.begin(), summed.end(), isMeasure) && std::none_of(summed.begin(), summed.end(), isOfMore);
}

PiecesRule::PiecesRule(const CheckedTuple& total, Finding::eSeverity severity) : m_total(total), m_severity(severity)
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
