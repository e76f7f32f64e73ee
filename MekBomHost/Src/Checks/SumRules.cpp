// A total is asked for in a footer, "%SumBy:" and one token. It starts with the value that the template gives it, or
// with nothing, and takes what each row has under that very text: a blank too many and no row has it. Formulas are
// computed by headers and details, which write the result into the row that they were made of; a footer computes none:
//
//   details   %Formula:%Weight*2              rows of 10 and 12 kg get 20 and 24 under "%Formula:%Weight*2"
//   footer    %SumBy:%Formula:%Weight*2       44
//             %SumBy:%Formula:%Weight * 2     nothing: no row has a datum of that name
//             %Formula:%Weight*2              24, found in the last row
#include "SumRules.h"

#include "NumberInValue.h"
#include "Utf8.h"

#include "VorBomDataValue.h"

#include <algorithm>
#include <string>

namespace mekbom
{
namespace
{
std::string withoutBlanks(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

bool isFormula(const std::string& text)
{
    return startsWith(text, TokenRequest::kFormulaPrefix);
}

// A formula is none: it is what the details have computed, and may be summed.
bool isRequest(const std::string& text)
{
    return TokenRequest::of(text).kind != TokenRequest::kShow && !isFormula(text);
}
}

void SumRules::run()
{
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kSum))
    {
        findSumOutsideFooter(*pTuple);
        findSumOfTexts(*pTuple);
        findSumOfList(*pTuple);
        findStartElsewhere(*pTuple);
        findSumOfMissingFormula(*pTuple);
        findSumOfRequest(*pTuple);
        findSumOfShared(*pTuple);
    }
    for (const CheckedTuple& tuple : m_list.tuples())
        findFooterWithoutSum(tuple);
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kFormula))
        findFormulaOnlyInFooter(*pTuple);
}

// MB301 trips on "%SumBy:%Weight" in the details and does not in the kGroupFooter.
void SumRules::findSumOutsideFooter(const CheckedTuple& tuple)
{
    if (!tuple.isFooter)
        m_mistakes.add(MistakeCodes::kSumOutsideFooter, tuple,
                       inQuotes(tuple.token) + " stands in a " + typeName(*tuple.pSection) +
                           ", which adds nothing up: its starting value is printed",
                       "move it to the footer of the level whose rows it is to add up");
}

// MB302 trips on "%SumBy:%Name" and does not on "%SumBy:%Weight", nor on a token of which nobody knows the kind, nor where
// texts are merely counted.
void SumRules::findSumOfTexts(const CheckedTuple& tuple)
{
    if (m_tokens.kindOf(tuple.request.subject) == KnownTokens::kText && !m_list.isCount(tuple))
        m_mistakes.add(MistakeCodes::kSumOfTexts, tuple,
                       inQuotes(tuple.token) + " adds up texts: the text of the last row is printed",
                       "sum a number, or say what the data have: \"tokens\": { ... : \"number\" }");
}

// MB303 trips on "%SumBy: %Weight" and "%SumBy:%Weight,%Length", and does not on "%SumBy:%Formula:%Weight * 2": blanks
// in a formula and behind it belong to its text, and whether the details have the same is asked as MB306.
void SumRules::findSumOfList(const CheckedTuple& tuple)
{
    const std::string& summed = tuple.request.subject;
    const bool isList = summed.find(',') != std::string::npos;
    if (isFormula(summed) || (summed.find(' ') == std::string::npos && !isList))
        return;
    const std::string first = withoutBlanks(summed.substr(0, summed.find(',')));
    m_mistakes.add(MistakeCodes::kSumOfList, tuple,
                   inQuotes(tuple.token) + " sums a token " + inQuotes(summed) + ", which no row has",
                   (isList ? "give each token a tuple of its own: " : "write ") + inQuotes("%SumBy:" + first));
}

// MB304 trips on a "value" of 100, which makes 122 of 10 and 12 kg, and does not on 0, be it that of a whole number
// under a weight. A text such as "none" is a note: the first number replaces it, so that it shows only where there is
// none.
void SumRules::findStartElsewhere(const CheckedTuple& tuple)
{
    const VorBomDataValue& start = tuple.value();
    const std::string shown = Utf8::toBytes(start.asString());
    const std::string help = "take the \"value\" out: a total starts with a zero of its own kind";
    if (numberIn(start).value_or(0) != 0)
        m_mistakes.add(MistakeCodes::kSumStartsElsewhere, tuple,
                       inQuotes(tuple.token) + " starts with " + shown + ", which is part of every total", help);
    else if (start.type() == VorBomDataValue::kStringData && !shown.empty())
        m_mistakes.add(MistakeCodes::kSumStartsElsewhere, Finding::kNote, tuple,
                       inQuotes(tuple.token) + " starts with the text " + inQuotes(shown) +
                           ", which is printed where no row has a number",
                       help);
}

// MB305 trips on %Weight in the footer of groups by %Material, and does not in that of groups by %Weight, whose last
// row has what all others have. A formula counts as a number if the details compute it; one that stands in footers
// alone is MB403. The deepest level's footer is for one row, whose weight is no surprise.
void SumRules::findFooterWithoutSum(const CheckedTuple& tuple)
{
    const bool isComputed = tuple.request.kind == TokenRequest::kFormula && isComputedForEveryRow(tuple.token);
    const bool isNumeric = tuple.request.kind == TokenRequest::kShow && m_tokens.isNumeric(tuple.token);
    if (!tuple.isFooter || m_list.isDeepest(tuple.level) || !(isComputed || isNumeric) ||
        contains(m_list.groupTokensDownTo(tuple.level), tuple.token))
        return;
    m_mistakes.add(MistakeCodes::kFooterWithoutSum, tuple,
                   inQuotes(tuple.token) + " in a footer shows the value of the last row that counts",
                   "write " + inQuotes("%SumBy:" + tuple.token) + " for the total");
}

// Whether any header computes it, the details among them: then some rows at least have it.
bool SumRules::isComputedInHeader(const std::string& formulaToken) const
{
    const std::vector<CheckedTuple>& tuples = m_list.tuples();
    return std::any_of(tuples.begin(), tuples.end(),
                       [&formulaToken](const CheckedTuple& tuple)
                       { return !tuple.isFooter && tuple.token == formulaToken; });
}

// Whether the deepest level computes it, which opens for each row; a header around it opens for the first one alone.
bool SumRules::isComputedForEveryRow(const std::string& formulaToken) const
{
    const std::vector<CheckedTuple>& tuples = m_list.tuples();
    return std::any_of(tuples.begin(), tuples.end(),
                       [&](const CheckedTuple& tuple)
                       { return !tuple.isFooter && m_list.isDeepest(tuple.level) && tuple.token == formulaToken; });
}

// The formula of the deepest level that is the same but for its blanks; empty when there is none.
std::string SumRules::sameFormulaOfDetails(const std::string& formulaToken) const
{
    for (const CheckedTuple& tuple : m_list.tuples())
        if (!tuple.isFooter && m_list.isDeepest(tuple.level) &&
            withoutBlanks(tuple.token) == withoutBlanks(formulaToken))
            return tuple.token;
    return std::string();
}

// MB306 trips on "%SumBy:%Formula:%Weight*2" when the details have "%Formula:%Weight * 2", or a kGroupHeader alone has
// the formula, and does not when the details have it letter by letter.
void SumRules::findSumOfMissingFormula(const CheckedTuple& tuple)
{
    const std::string& formula = tuple.request.subject;
    if (!isFormula(formula) || isComputedForEveryRow(formula))
        return;
    const std::string other = sameFormulaOfDetails(formula);
    if (!other.empty())
        m_mistakes.add(MistakeCodes::kSumOfMissingFormula, tuple,
                       inQuotes(tuple.token) + " sums a formula with other blanks than that of the details: nothing is "
                                               "added up",
                       "write " + inQuotes("%SumBy:" + other));
    else
        m_mistakes.add(MistakeCodes::kSumOfMissingFormula, tuple,
                       inQuotes(tuple.token) + (isComputedInHeader(formula)
                                                    ? " sums a formula that a header alone computes: only the rows "
                                                      "that opened a group are added up"
                                                    : " sums a formula that nothing computes: nothing is added up"),
                       "give the details a tuple " + inQuotes(formula));
}

// MB309 trips on "%SumBy:%SumBy:%Weight" and does not on "%SumBy:%Formula:%Weight*2".
void SumRules::findSumOfRequest(const CheckedTuple& tuple)
{
    const std::string& summed = tuple.request.subject;
    if (isRequest(summed))
        m_mistakes.add(MistakeCodes::kSumOfRequest, tuple,
                       inQuotes(tuple.token) + " sums a token " + inQuotes(summed) + ", which no row has",
                       suggestion("write ", "%SumBy:" + TokenRequest::of(summed).subject));
}

// MB308 trips on "%SumBy:%AssemblyWeight": an assembly of 500 kg in three rows adds 1500. It does not on
// "%SumBy:%Weight", and not on a formula with a datum of the row: "%AssemblyWeight*%IsMP" is that of the assembly in
// its main part alone.
void SumRules::findSumOfShared(const CheckedTuple& tuple)
{
    const std::vector<std::string> summed = dataTokensOf(tuple.request);
    const auto isShared = [this](const std::string& token) { return m_tokens.isSharedByRows(token); };
    if (!tuple.isFooter || !m_list.usesSum(tuple) || summed.empty() ||
        !std::all_of(summed.begin(), summed.end(), isShared))
        return;
    const std::string own = ownOfRow(summed.front());
    m_mistakes.add(MistakeCodes::kPiecesNotCounted, tuple,
                   inQuotes(tuple.token) + " adds " + summed.front() +
                       " once for each row, though rows of one assembly, phase or model share it",
                   "show " + inQuotes(tuple.request.subject) + " in the header of its group instead" +
                       suggestion(", or sum what is the row's own: ", own.empty() ? "" : "%SumBy:" + own));
}

// Of "%AssemblyWeight" and "%WeightInPhase" alike "%Formula:%Weight*%Quantity": what a row adds to them. Whole numbers are
// counted already. Empty where the catalogue has none such.
std::string SumRules::ownOfRow(const std::string& shared) const
{
    const std::string ofAssembly = "%Assembly";
    if (startsWith(shared, "%MQuantity"))
        return "%Formula:%IsMP*%Quantity"; // the main part stands for its assembly
    std::string own = shared;
    for (const char* const whole : { "InAssembly", "InAllAssembly", "InPhase", "InModel" })
        own = own.substr(0, own.find(whole));
    if (startsWith(own, ofAssembly))
        own = "%" + own.substr(ofAssembly.size());
    if (own == shared || !m_tokens.isInCatalogue(own))
        return std::string();
    return m_tokens.kindOf(own) == KnownTokens::kWhole ? own : "%Formula:" + own + "*%Quantity";
}

// MB403 trips on "%Formula:%Weight*2" in a footer alone, and does not when a header or the details have it, too.
void SumRules::findFormulaOnlyInFooter(const CheckedTuple& tuple)
{
    if (tuple.isFooter && !isComputedInHeader(tuple.token))
        m_mistakes.add(MistakeCodes::kFormulaOnlyInFooter, tuple,
                       inQuotes(tuple.token) + " stands in a footer alone, and footers compute nothing",
                       "give the details a tuple " + inQuotes(tuple.token) + ", and write " +
                           inQuotes("%SumBy:" + tuple.token) + " here for the total");
}
}
