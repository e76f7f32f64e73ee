// A rule of a template that asks for nothing of the kind is not even made: a list without formulas pays for no
// OperandRule. What a rule is about decides how many there are of it:
//
//   VaryingRule       one for each level that shows what may vary in its groups
//   PiecesRule        one for each total of values of one piece
//   OperandRule       one for each formula of a header or of the details
//   MarkRule          one for each token that rows are sorted by in natural order
//   BlankRule         one for each token that rows are grouped by and that may be a text
//   PlainOrderRule    one for each token of which nobody says how rows are sorted by it
//   WholeNumberRule   one for each tuple that shows a token with a unit
//   RowOriginRule     one: it is about the rows alone
#include "RowsCheck.h"

#include "BlankRule.h"
#include "CheckedTemplate.h"
#include "GroupingRules.h"
#include "MarkRule.h"
#include "MistakeCodes.h"
#include "OperandRule.h"
#include "PiecesRule.h"
#include "PlainOrderRule.h"
#include "RowOriginRule.h"
#include "RowRule.h"
#include "TokenNames.h"
#include "TokenRules.h"
#include "VaryingRule.h"
#include "WholeNumberRule.h"

#include <memory>
#include <utility>

namespace mekbom::RowsCheck
{
namespace
{
using Rules = std::vector<std::unique_ptr<RowRule>>;

// Each level has groups of its own, and so a rule of its own for what varies in them.
void addVaryingRules(Rules& rules, const CheckedTemplate& list, const KnownTokens& tokens)
{
    for (std::size_t level = 0; level < list.levels().size(); ++level)
    {
        std::vector<const CheckedTuple*> tuples;
        for (const CheckedTuple* const pTuple : tuplesThatMayVary(list, tokens))
            if (pTuple->level == level)
                tuples.push_back(pTuple);
        if (!tuples.empty())
            rules.push_back(std::make_unique<VaryingRule>(list.groupTokensDownTo(level), tuples, tokens));
    }
}

// The totals in footers that add up values of one piece; elsewhere nothing is added up.
std::vector<const CheckedTuple*> totalsOfPieces(const CheckedTemplate& list, const KnownTokens& tokens)
{
    std::vector<const CheckedTuple*> totals;
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kSum))
        if (pTuple->isFooter && list.usesSum(*pTuple) && PiecesRule::isOfOnePiece(*pTuple, tokens))
            totals.push_back(pTuple);
    return totals;
}

void addPiecesRules(Rules& rules, const CheckedTemplate& list, const KnownTokens& tokens)
{
    // A line of several rows shows such a total itself, and there it is wrong whatever is meant.
    const bool countsEqualLines = list.file().equalLines == kCountEqualLines;
    const Finding::eSeverity severity = countsEqualLines ? Finding::kError : MistakeCodes::kPiecesNotCounted.severity;
    for (const CheckedTuple* const pTuple : totalsOfPieces(list, tokens))
        rules.push_back(std::make_unique<PiecesRule>(*pTuple, severity));
}

void addOperandRules(Rules& rules, const CheckedTemplate& list)
{
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kFormula))
        if (!pTuple->isFooter)
            rules.push_back(std::make_unique<OperandRule>(*pTuple));
}

void addMarkRules(Rules& rules, const CheckedTemplate& list, const KnownTokens& tokens)
{
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kSort))
        for (const TokenRequest::Element& element : pTuple->request.elements)
            if (!pTuple->isFooter && tokens.isNatural(element.token))
                rules.push_back(std::make_unique<MarkRule>(*pTuple, element.token));
}

void addBlankRules(Rules& rules, const CheckedTemplate& list, const KnownTokens& tokens)
{
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kGroup))
        for (const TokenRequest::Element& element : pTuple->request.elements)
            if (!pTuple->isFooter && !list.isDeepest(pTuple->level) && !tokens.isNumeric(element.token))
                rules.push_back(std::make_unique<BlankRule>(*pTuple, element.token));
}

void addPlainOrderRules(Rules& rules, const CheckedTemplate& list, const KnownTokens& tokens)
{
    for (const SortKey& key : sortKeysOfOpenOrder(list, tokens))
        rules.push_back(std::make_unique<PlainOrderRule>(key));
}

void addWholeNumberRules(Rules& rules, const CheckedTemplate& list, const KnownTokens& tokens)
{
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kShow))
        if (tokens.hasUnit(pTuple->token))
            rules.push_back(std::make_unique<WholeNumberRule>(*pTuple));
}
}

std::vector<VorString> neededTokens(const ReportTemplate& reportTemplate, const KnownTokens& tokens)
{
    const CheckedTemplate list(reportTemplate);
    return totalsOfPieces(list, tokens).empty() ? std::vector<VorString>()
                                                : std::vector<VorString>{ TokenNames::kWidePieces };
}

std::vector<Finding> run(const ReportTemplate& reportTemplate, const KnownTokens& tokens, const VorBomData& data)
{
    const CheckedTemplate list(reportTemplate);
    Rules rules;
    addVaryingRules(rules, list, tokens);
    addPiecesRules(rules, list, tokens);
    addOperandRules(rules, list);
    addMarkRules(rules, list, tokens);
    addBlankRules(rules, list, tokens);
    addPlainOrderRules(rules, list, tokens);
    addWholeNumberRules(rules, list, tokens);
    rules.push_back(std::make_unique<RowOriginRule>());

    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        for (const std::unique_ptr<RowRule>& pRule : rules)
            pRule->see(static_cast<const VorBomDataRow&>(*pRow)); // all below the data are rows

    MistakeList mistakes(reportTemplate);
    for (const std::unique_ptr<RowRule>& pRule : rules)
        pRule->tell(mistakes);
    return mistakes.findings();
}
}
