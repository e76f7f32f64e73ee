// Groups are made of rows that follow each other, so rows must be sorted by what they are grouped by. The keys of all
// levels make one key, the outermost first, and groups are whole when it begins with the tokens of their level and of
// those above it, in whatever order, and has no other token among them:
//
//   level 1  "%GroupBy:%Material"   "%SortAscBy:%Class,%Material"   MB201: rows of one material are spread over classes
//   level 1  "%GroupBy:%Material"   "%SortAscBy:%Material"
//   level 2  "%GroupBy:%Name"       "%SortDescBy:%Name,%Length"     right: %Length comes behind both
#include "GroupingRules.h"

#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
using Element = TokenRequest::Element;

// "%A,%B" of the elements of a grouping request.
std::string listOf(const CheckedTuple& tuple)
{
    std::string list;
    for (const Element& element : tuple.request.elements)
        list += (list.empty() ? "" : ",") + element.token;
    return list;
}

// Texts of the catalogue in which numbers stand as a rule, though the catalogue sorts them as plain texts.
bool isNumberedText(const std::string& token)
{
    static const std::vector<std::string> tokens = { "%Phase",    "%Level",     "%HeatNumber",       "%LoadNumber",
                                                     "%PONumber", "%ElementID", "%RequisitionNumber" };
    return contains(tokens, token) || startsWith(token, "%UserAttr") || startsWith(token, "%External");
}

// The pieces that a list was meant to have, without what is none of a token: "%A,,%B" and "%A;%B" mean "%A" and "%B".
std::string mendedList(const std::string& list)
{
    std::string mended;
    const char* const separators = ",; \t\r\n";
    for (std::size_t begin = list.find_first_not_of(separators); begin != std::string::npos;)
    {
        const std::size_t end = std::min(list.find_first_of(separators, begin), list.size());
        mended += (mended.empty() ? "" : ",") + list.substr(begin, end - begin);
        begin = list.find_first_not_of(separators, end);
    }
    return mended;
}

// The prefix stays: "%SortDescBy:%A;%B" becomes "%SortDescBy:%A,%B".
std::string mendedRequest(const CheckedTuple& tuple)
{
    return tuple.token.substr(0, tuple.token.find(':') + 1) + mendedList(tuple.request.subject);
}

// Whether a column of the template says "order": "natural" or "plain" for the token.
bool saysOrder(const CheckedTemplate& list, const std::string& token)
{
    const ColumnStyle* const pStyle = list.file().columnStyleOf(Utf8::toWide(token));
    return pStyle != nullptr && pStyle->order != ColumnStyle::kByCatalogue;
}
}

void GroupingRules::run(bool hasData)
{
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kGroup))
    {
        findUnsortedGroups(*pTuple);
        findBadElements(*pTuple);
        findGroupingWithoutEffect(*pTuple);
        findGroupingByFloat(*pTuple);
        findGroupedTwice(*pTuple);
    }
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kSort))
    {
        findBadElements(*pTuple);
        findSortingWithoutEffect(*pTuple);
        findDescendingThatGoesOn(*pTuple);
        findPlainOrder(*pTuple);
    }
    findSortingByUnknown(hasData);
    findFilters();
}

// Requests are read in headers alone. In that of the deepest level a sorting request works, but a grouping request does
// not: every row is a group of its own there.
bool GroupingRules::isRead(const CheckedTuple& tuple) const
{
    return !tuple.isFooter && (tuple.request.kind != TokenRequest::kGroup || !m_list.isDeepest(tuple.level));
}

// The engine sorts once, by the requests of all levels one behind the other, before it makes any group. What is no
// token is left out, as no row has it.
std::vector<std::string> GroupingRules::sortKeys() const
{
    std::vector<std::string> keys;
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kSort))
        for (const Element& element : pTuple->request.elements)
            if (isRead(*pTuple) && element.kind == TokenRequest::kToken)
                keys.push_back(element.token);
    return keys;
}

void GroupingRules::findUnsortedGroups(const CheckedTuple& tuple)
{
    if (!isRead(tuple))
        return;
    findMissingKeys(tuple);
    findKeyBefore(tuple);
}

// MB201 trips on "%GroupBy:%Material" without a sorting request for %Material, and does not when the request stands on
// another level: "%SortAscBy:%Material" in the details sorts the rows as well.
void GroupingRules::findMissingKeys(const CheckedTuple& tuple)
{
    const std::vector<std::string> keys = sortKeys();
    std::string missing;
    for (const Element& element : tuple.request.elements)
        if (element.kind == TokenRequest::kToken && !contains(keys, element.token))
            missing += (missing.empty() ? "" : ",") + element.token;
    if (!missing.empty())
        m_mistakes.add(MistakeCodes::kGroupNotSorted, tuple,
                       inQuotes(tuple.token) + " groups rows that are not sorted by " + missing +
                           ": the same group comes several times",
                       inQuotes(tuple.token) + " needs " + inQuotes("%SortAscBy:" + missing) + " beside it");
}

// MB201 trips on "%GroupBy:%Material" with "%SortAscBy:%Name,%Material", since rows of S235 stand under each name, and
// does not with "%SortAscBy:%Material,%Name", nor where a level around it groups by %Name. `other` is the first key
// that belongs neither to this group nor to those around it; one key of the group's own behind it is enough.
void GroupingRules::findKeyBefore(const CheckedTuple& tuple)
{
    const std::vector<std::string> keys = sortKeys();
    const std::vector<std::string> groups = m_list.groupTokensDownTo(tuple.level);
    const auto other =
        std::find_if_not(keys.begin(), keys.end(), [&groups](const std::string& key) { return contains(groups, key); });
    for (const Element& element : tuple.request.elements)
    {
        const auto own = std::find(keys.begin(), keys.end(), element.token);
        if (own == keys.end() || own < other)
            continue;
        m_mistakes.add(MistakeCodes::kGroupNotSorted, tuple,
                       "rows are sorted by " + *other + " before " + element.token + ": " + inQuotes(tuple.token) +
                           " heads the same group several times",
                       inQuotes(tuple.token) + " needs " + inQuotes("%SortAscBy:" + element.token) + " in front of " +
                           *other + ", or is to be " + inQuotes("%GroupBy:" + *other + "," + listOf(tuple)));
        return;
    }
}

// "%GroupBy:%Material,%Name" is right. One letter off, it is one of four mistakes, each with another remedy:
//
//   MB205   "%GroupBy:%Material;%Name"            one element with a semicolon in it
//   MB202   "%GroupBy:Material"                   no percent sign
//   MB206   "%GroupBy:%SortAscBy:%Material"       a request in place of a token
//   MB207   "%GroupBy:%Formula:%Length*2"         a formula, which is computed only when its group is open
void GroupingRules::findBadElements(const CheckedTuple& tuple)
{
    const bool groups = tuple.request.kind == TokenRequest::kGroup;
    const std::string effect =
        groups ? "no row has it, so all rows are one group" : "no row has it, so nothing is sorted";
    for (const Element& element : tuple.request.elements)
        switch (element.kind)
        {
            case TokenRequest::kToken: break;
            case TokenRequest::kMalformed:
                m_mistakes.add(MistakeCodes::kListMalformed, tuple,
                               inQuotes(tuple.token) + " names " + inQuotes(element.token) + ": " + effect,
                               suggestion("write ", mendedRequest(tuple)));
                break;
            case TokenRequest::kWithoutPercent:
                m_mistakes.add(MistakeCodes::kRequestWithoutPercent, tuple,
                               inQuotes(tuple.token) + " names " + inQuotes(element.token) + " without %: " + effect,
                               "write " + inQuotes("%" + element.token));
                break;
            case TokenRequest::kRequest:
                m_mistakes.add(MistakeCodes::kRequestWithinRequest, tuple,
                               inQuotes(tuple.token) + " looks for a token " + inQuotes(element.token) + ": " + effect,
                               "give " + inQuotes(element.token) + " a tuple of its own");
                break;
            case TokenRequest::kComputed:
                m_mistakes.add(MistakeCodes::kGroupingByFormula, tuple,
                               inQuotes(tuple.token) + (groups ? " groups by what is computed only once the group is "
                                                                 "open: every row is its own group"
                                                               : " sorts by what is computed only after sorting: "
                                                                 "nothing is sorted"),
                               "use tokens of the data, such as those that the formula is made of");
                break;
        }
}

// MB203 trips on "%GroupBy:%Name" in the details and in any footer, and does not in the kGroupHeader around them. In a
// kGroupHeader that is the deepest level MB104 is told alone: once that has its details, the grouping works.
void GroupingRules::findGroupingWithoutEffect(const CheckedTuple& tuple)
{
    const bool isInDetails =
        m_list.isDeepest(tuple.level) && tuple.pSection->type() != VorBomTemplateItem::kGroupHeader;
    if (tuple.isFooter || isInDetails)
        m_mistakes.add(MistakeCodes::kGroupingWithoutEffect, tuple,
                       inQuotes(tuple.token) + " stands in a " + typeName(*tuple.pSection) +
                           (tuple.isFooter ? ", where no grouping is read" : ", where every row is a group of its own"),
                       "move it to the kGroupHeader whose groups it is to make");
}

// MB204 trips on "%SortDescBy:%Weight" in the kGroupFooter, and does not in the details, which sort within the groups.
void GroupingRules::findSortingWithoutEffect(const CheckedTuple& tuple)
{
    if (tuple.isFooter)
        m_mistakes.add(MistakeCodes::kSortingWithoutEffect, tuple,
                       inQuotes(tuple.token) + " stands in a footer, where no sorting is read",
                       "move it to the " + typeName(*m_list.levels()[tuple.level].pHeader) + " in front of the footer");
}

// MB208 is a note: it trips on "%SortDescBy:%Weight,%Name", where %Name goes from Z to A as well, and does not on
// "%SortDescBy:%Weight,%SortAscBy:%Name", nor on "%SortAscBy:%Weight,%Name", since upwards is what everybody expects.
void GroupingRules::findDescendingThatGoesOn(const CheckedTuple& tuple)
{
    for (const Element& element : tuple.request.elements)
        if (element.isDescending && !element.hasDirection)
            m_mistakes.add(MistakeCodes::kDescendingGoesOn, tuple,
                           inQuotes(tuple.token) + " sorts by " + element.token + " in descending order, too",
                           "write " + inQuotes("%SortAscBy:" + element.token) + " or " +
                               inQuotes("%SortDescBy:" + element.token) + " in the list, to say which is meant");
}

// MB209 trips on "%GroupBy:%Length" and does not on "%GroupBy:%Quantity": 6000.000 and 6000.004 mm print alike and are
// two groups all the same, since the engine takes numbers for equal that are less than 1e-6 apart.
void GroupingRules::findGroupingByFloat(const CheckedTuple& tuple)
{
    std::string numbers;
    for (const Element& element : tuple.request.elements)
        if (element.kind == TokenRequest::kToken && m_tokens.kindOf(element.token) == KnownTokens::kNumber)
            numbers += (numbers.empty() ? "" : " and ") + element.token;
    if (isRead(tuple) && !numbers.empty())
        m_mistakes.add(MistakeCodes::kGroupingByFloat, tuple,
                       inQuotes(tuple.token) + " groups by numbers with decimals, " + numbers +
                           ": values that print alike and differ by a millionth are several groups",
                       "group by a mark or a text, or excuse it where the data are rounded: \"allow\": { \"MB209\": "
                       "\"the data are rounded\" }");
}

// MB210 is a note: it trips on "%SortAscBy:%Phase", where phase 10 comes before phase 2, and does not once a column of
// the template says "order" for %Phase, be it "plain".
void GroupingRules::findPlainOrder(const CheckedTuple& tuple)
{
    for (const Element& element : tuple.request.elements)
        if (isRead(tuple) && isNumberedText(element.token) && !saysOrder(m_list, element.token))
            m_mistakes.add(MistakeCodes::kPlainOrder, tuple,
                           inQuotes(tuple.token) + " sorts " + element.token + " as plain text: \"10\" before \"2\"",
                           "say \"order\": \"natural\" in the column " + inQuotes(element.token));
}

// MB211 trips on "%SortAscBy:%PosNum", and does not when "tokens" says that %PosNum is a number. Where it is a column
// of the data, PlainOrderRule tells it if the cells are texts.
void GroupingRules::findSortingByUnknown(bool hasData)
{
    for (const SortKey& key : sortKeysOfOpenOrder(m_list, m_tokens))
        if (!hasData || !m_tokens.isOfData(key.token))
            m_mistakes.add(MistakeCodes::kSortingByUnknown, *key.pTuple,
                           inQuotes(key.pTuple->token) + " sorts by " + key.token +
                               ", which the catalogue does not know: texts come in plain order, \"10\" before \"2\"",
                           helpForOpenOrder(key.token));
}

// MB213 trips on "%GroupBy:%Material" within groups by %Material, and does not on "%GroupBy:%Material,%Name" around
// groups by other tokens.
void GroupingRules::findGroupedTwice(const CheckedTuple& tuple)
{
    if (!isRead(tuple) || tuple.level == 0)
        return;
    const std::vector<std::string> outer = m_list.groupTokensDownTo(tuple.level - 1);
    for (const Element& element : tuple.request.elements)
        if (element.kind == TokenRequest::kToken && contains(outer, element.token))
            m_mistakes.add(MistakeCodes::kGroupedTwice, tuple,
                           inQuotes(tuple.token) + " groups by " + element.token + " within groups by " +
                               element.token + ", which splits nothing",
                           "take " + element.token + " out of it, or the level");
}

// MB214 trips on any "%FilterBy:", wherever it stands: the engine hands the numbers behind it to whoever gathers the
// data, and leaves out no row itself.
void GroupingRules::findFilters()
{
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kFilter))
        m_mistakes.add(MistakeCodes::kFilterWithoutEffect, *pTuple, inQuotes(pTuple->token) + " filters no row",
                       "write the condition into \"queryFilter\" of the template, and take the tuple out");
}

std::vector<SortKey> sortKeysOfOpenOrder(const CheckedTemplate& list, const KnownTokens& tokens)
{
    std::vector<SortKey> keys;
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kSort))
        for (const Element& element : pTuple->request.elements)
            if (!pTuple->isFooter && element.kind == TokenRequest::kToken && !tokens.isInCatalogue(element.token) &&
                !tokens.isNumeric(element.token) && !saysOrder(list, element.token))
                keys.push_back({ pTuple, element.token });
    return keys;
}

std::string helpForOpenOrder(const std::string& token)
{
    return "say \"order\": \"natural\" or \"plain\" in the column " + inQuotes(token) +
           ", or that it is a number: \"tokens\": { " + inQuotes(token) + ": \"number\" }";
}
}
