// A total is asked for in a footer, "%SumBy:" and one token. It starts with the value that the template gives it, or
// with nothing, and takes what each row has under that very text: a blank too many and no row has it. Formulas are
// computed by headers and details, which write the result into the row that they were made of; a footer computes none.
#include "SumRules.h"

#include "Utf8.h"

#include "VorBomDataValue.h"

#include <algorithm>
#include <string>

namespace mekbom
{
namespace
{
const char* const kFormulaPrefix = "%Formula:";

std::string withoutBlanks(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

bool isFormula(const std::string& text)
{
    return startsWith(text, kFormulaPrefix);
}

bool isRequest(const std::string& text)
{
    return TokenRequest::of(text).kind != TokenRequest::kShow && !isFormula(text);
}

double numberIn(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kIntData ? *static_cast<const int*>(value.data())
                                                     : *static_cast<const double*>(value.data());
}

bool isNumber(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kIntData || value.type() == VorBomDataValue::kDoubleData;
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

void SumRules::findSumOutsideFooter(const CheckedTuple& tuple)
{
    if (!tuple.isFooter)
        m_mistakes.add(MistakeCodes::kSumOutsideFooter, tuple,
                       inQuotes(tuple.token) + " stands in a " + typeName(*tuple.pSection) +
                           ", which adds nothing up: its starting value is printed",
                       "move it to the footer of the level whose rows it is to add up");
}

void SumRules::findSumOfTexts(const CheckedTuple& tuple)
{
    if (m_tokens.kindOf(tuple.request.subject) == KnownTokens::kText)
        m_mistakes.add(MistakeCodes::kSumOfTexts, tuple,
                       inQuotes(tuple.token) + " adds up texts: the text of the last row is printed",
                       "sum a number, or say what the data have: \"tokens\": { ... : \"number\" }");
}

// Blanks belong to the text of a formula; those in front of it do not.
void SumRules::findSumOfList(const CheckedTuple& tuple)
{
    const std::string& summed = tuple.request.subject;
    const bool hasBlank = isFormula(summed) ? summed.back() == ' ' : summed.find(' ') != std::string::npos;
    const bool isList = !isFormula(summed) && summed.find(',') != std::string::npos;
    if (!hasBlank && !isList)
        return;
    const std::string first = withoutBlanks(summed.substr(0, summed.find(',')));
    m_mistakes.add(MistakeCodes::kSumOfList, tuple,
                   inQuotes(tuple.token) + " sums a token " + inQuotes(summed) + ", which no row has",
                   (isList ? "give each token a tuple of its own: " : "write ") + inQuotes("%SumBy:" + first));
}

// A text is replaced by the first number, and kinds of numbers are added as they come; both only look like a mistake.
void SumRules::findStartElsewhere(const CheckedTuple& tuple)
{
    const VorBomDataValue& start = tuple.value();
    const std::string shown = Utf8::toBytes(start.asString());
    const std::string help = "take the \"value\" out: a total starts with a zero of its own kind";
    if (isNumber(start) && numberIn(start) != 0)
        m_mistakes.add(MistakeCodes::kSumStartsElsewhere, tuple,
                       inQuotes(tuple.token) + " starts with " + shown + ", which is part of every total", help);
    else if (start.type() == VorBomDataValue::kStringData && !shown.empty())
        m_mistakes.add(MistakeCodes::kSumStartsElsewhere, Finding::kNote, tuple,
                       inQuotes(tuple.token) + " starts with the text " + inQuotes(shown) +
                           ", which is printed where no row has a number",
                       help);
}

// What the footer's own groups have in common is the same in the last row as in all others.
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

bool SumRules::isComputedInHeader(const std::string& formulaToken) const
{
    const std::vector<CheckedTuple>& tuples = m_list.tuples();
    return std::any_of(tuples.begin(), tuples.end(),
                       [&formulaToken](const CheckedTuple& tuple)
                       { return !tuple.isFooter && tuple.token == formulaToken; });
}

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

void SumRules::findSumOfRequest(const CheckedTuple& tuple)
{
    const std::string& summed = tuple.request.subject;
    if (isRequest(summed))
        m_mistakes.add(MistakeCodes::kSumOfRequest, tuple,
                       inQuotes(tuple.token) + " sums a token " + inQuotes(summed) + ", which no row has",
                       suggestion("write ", "%SumBy:" + TokenRequest::of(summed).subject));
}

// A formula may make it the row's own: "%AssemblyWeight*%IsMP" is that of the assembly in one row of it alone.
void SumRules::findSumOfShared(const CheckedTuple& tuple)
{
    const std::vector<std::string> summed = dataTokensOf(tuple.request);
    const auto isShared = [this](const std::string& token) { return m_tokens.isSharedByRows(token); };
    if (!tuple.isFooter || summed.empty() || !std::all_of(summed.begin(), summed.end(), isShared))
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

void SumRules::findFormulaOnlyInFooter(const CheckedTuple& tuple)
{
    if (tuple.isFooter && !isComputedInHeader(tuple.token))
        m_mistakes.add(MistakeCodes::kFormulaOnlyInFooter, tuple,
                       inQuotes(tuple.token) + " stands in a footer alone, and footers compute nothing",
                       "give the details a tuple " + inQuotes(tuple.token) + ", and write " +
                           inQuotes("%SumBy:" + tuple.token) + " here for the total");
}
}
