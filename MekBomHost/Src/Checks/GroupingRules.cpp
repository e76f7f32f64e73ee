// Groups are made of rows that follow each other, so rows must be sorted by what they are grouped by. The keys of all
// levels make one key, the outermost first, and groups are whole when it begins with the tokens of their level and of
// those above it, in whatever order, and has no other token among them:
//
//   level 1  "%GroupBy:%Material"   "%SortAscBy:%Class,%Material"    MB201: rows of one material are spread over classes
//   level 1  "%GroupBy:%Material"   "%SortAscBy:%Material"
//   level 2  "%GroupBy:%Name"       "%SortDescBy:%Name,%Length"      right: %Length comes behind both
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

// Texts of the catalogue in which numbers stand as a rule.
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

std::string mendedRequest(const CheckedTuple& tuple)
{
    return tuple.token.substr(0, tuple.token.find(':') + 1) + mendedList(tuple.request.subject);
}

bool saysOrder(const CheckedTemplate& list, const std::string& token)
{
    const ColumnStyle* const pStyle = list.file().columnStyleOf(Utf8::toWide(token));
    return pStyle != nullptr && pStyle->order != ColumnStyle::kByCatalogue;
}
}

void GroupingRules::run(bool hasData)
{
    for (std::size_t i = 0; i < m_list.levels().size(); ++i)
        findUnsortedGroups(i);
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kGroup))
    {
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

// Grouping is read in headers; in the deepest level, where every row is a group of its own, to no effect.
bool GroupingRules::isRead(const CheckedTuple& tuple) const
{
    return !tuple.isFooter && (tuple.request.kind != TokenRequest::kGroup || !m_list.isDeepest(tuple.level));
}

std::vector<std::string> GroupingRules::sortKeys() const
{
    std::vector<std::string> keys;
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kSort))
        for (const Element& element : pTuple->request.elements)
            if (isRead(*pTuple) && element.sort == TokenRequest::kToken)
                keys.push_back(element.token);
    return keys;
}

void GroupingRules::findUnsortedGroups(std::size_t level)
{
    for (const CheckedTuple* const pTuple : m_list.tuplesOf(TokenRequest::kGroup))
        if (pTuple->level == level && isRead(*pTuple))
        {
            findMissingKeys(*pTuple);
            findKeyBefore(*pTuple);
        }
}

void GroupingRules::findMissingKeys(const CheckedTuple& tuple)
{
    const std::vector<std::string> keys = sortKeys();
    std::string missing;
    for (const Element& element : tuple.request.elements)
        if (element.sort == TokenRequest::kToken && !contains(keys, element.token))
            missing += (missing.empty() ? "" : ",") + element.token;
    if (!missing.empty())
        m_mistakes.add(MistakeCodes::kGroupNotSorted, tuple,
                       inQuotes(tuple.token) + " groups rows that are not sorted by " + missing +
                           ": the same group comes several times",
                       inQuotes(tuple.token) + " needs " + inQuotes("%SortAscBy:" + missing) + " beside it");
}

// A key of neither this group nor those around it that comes before one of the group's own.
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

void GroupingRules::findBadElements(const CheckedTuple& tuple)
{
    const bool groups = tuple.request.kind == TokenRequest::kGroup;
    const std::string effect =
        groups ? "no row has it, so all rows are one group" : "no row has it, so nothing is sorted";
    for (const Element& element : tuple.request.elements)
        switch (element.sort)
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

// A group header that is the deepest level is told of as such.
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

void GroupingRules::findSortingWithoutEffect(const CheckedTuple& tuple)
{
    if (tuple.isFooter)
        m_mistakes.add(MistakeCodes::kSortingWithoutEffect, tuple,
                       inQuotes(tuple.token) + " stands in a footer, where no sorting is read",
                       "move it to the " + typeName(*m_list.levels()[tuple.level].pHeader) + " in front of the footer");
}

void GroupingRules::findDescendingThatGoesOn(const CheckedTuple& tuple)
{
    for (const Element& element : tuple.request.elements)
        if (element.isDescending && !element.hasDirection)
            m_mistakes.add(MistakeCodes::kDescendingGoesOn, tuple,
                           inQuotes(tuple.token) + " sorts by " + element.token + " in descending order, too",
                           "write " + inQuotes("%SortAscBy:" + element.token) + " or " +
                               inQuotes("%SortDescBy:" + element.token) + " in the list, to say which is meant");
}

void GroupingRules::findGroupingByFloat(const CheckedTuple& tuple)
{
    std::string numbers;
    for (const Element& element : tuple.request.elements)
        if (element.sort == TokenRequest::kToken && m_tokens.kindOf(element.token) == KnownTokens::kNumber)
            numbers += (numbers.empty() ? "" : " and ") + element.token;
    if (isRead(tuple) && !numbers.empty())
        m_mistakes.add(MistakeCodes::kGroupingByFloat, tuple,
                       inQuotes(tuple.token) + " groups by numbers with decimals, " + numbers +
                           ": values that print alike and differ by a millionth are several groups",
                       "group by a mark or a text, or excuse it where the data are rounded: \"allow\": { \"MB209\": "
                       "\"the data are rounded\" }");
}

void GroupingRules::findPlainOrder(const CheckedTuple& tuple)
{
    for (const Element& element : tuple.request.elements)
        if (isRead(tuple) && isNumberedText(element.token) && !saysOrder(m_list, element.token))
            m_mistakes.add(MistakeCodes::kPlainOrder, tuple,
                           inQuotes(tuple.token) + " sorts " + element.token + " as plain text: \"10\" before \"2\"",
                           "say \"order\": \"natural\" in the column " + inQuotes(element.token));
}

void GroupingRules::findSortingByUnknown(bool hasData)
{
    for (const SortKey& key : sortKeysOfOpenOrder(m_list, m_tokens))
        if (!hasData || !m_tokens.isOfData(key.token))
            m_mistakes.add(MistakeCodes::kSortingByUnknown, *key.pTuple,
                           inQuotes(key.pTuple->token) + " sorts by " + key.token +
                               ", which the catalogue does not know: texts come in plain order, \"10\" before \"2\"",
                           helpForOpenOrder(key.token));
}

void GroupingRules::findGroupedTwice(const CheckedTuple& tuple)
{
    if (!isRead(tuple) || tuple.level == 0)
        return;
    const std::vector<std::string> outer = m_list.groupTokensDownTo(tuple.level - 1);
    for (const Element& element : tuple.request.elements)
        if (element.sort == TokenRequest::kToken && contains(outer, element.token))
            m_mistakes.add(MistakeCodes::kGroupedTwice, tuple,
                           inQuotes(tuple.token) + " groups by " + element.token + " within groups by " +
                               element.token + ", which splits nothing",
                           "take " + element.token + " out of it, or the level");
}

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
            if (!pTuple->isFooter && element.sort == TokenRequest::kToken && !tokens.isInCatalogue(element.token) &&
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
