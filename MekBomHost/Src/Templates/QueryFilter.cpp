#include "QueryFilter.h"

#include "Utf8.h"

#include "VorBomDataToken.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// condition := [ '!' ] token
bool parseCondition(std::string_view text, QueryFilter::Condition& condition)
{
    text = trimmed(text);
    condition.mustBeThere = text.empty() || text.front() != '!';
    if (!condition.mustBeThere)
        text.remove_prefix(1);
    condition.token = Utf8::toWide(text);
    return text.size() > 1 && VorBomDataToken::isToken(condition.token) == 1 &&
           text.find_first_of(" !") == std::string_view::npos;
}

void destroy(VorBomItemBase* pRow)
{
    pRow->empty();
    delete pRow;
}
}

// filter := [ condition { ',' condition } ]
int QueryFilter::parse(std::string_view text, QueryFilter& filter)
{
    QueryFilter parsed;
    if (trimmed(text).empty())
    {
        filter = parsed;
        return 1;
    }
    for (bool isLast = false; !isLast;)
    {
        const std::size_t comma = text.find(',');
        Condition condition{};
        if (!parseCondition(text.substr(0, comma), condition))
            return 0;
        parsed.m_conditions.push_back(condition);
        isLast = comma == std::string_view::npos;
        text.remove_prefix(isLast ? text.size() : comma + 1);
    }
    filter = parsed;
    return 1;
}

bool QueryFilter::names(const VorString& token) const
{
    return std::any_of(m_conditions.begin(), m_conditions.end(),
                       [&token](const Condition& condition) { return condition.token == token; });
}

void QueryFilter::apply(VorBomData& data) const
{
    if (m_conditions.empty())
        return;
    VorBomItemBase* pRow = data.child();
    data.setChild(nullptr);
    while (pRow != nullptr)
    {
        VorBomItemBase* const pNext = pRow->next();
        pRow->setNext(nullptr);
        if (accepts(*static_cast<VorBomDataRow*>(pRow)))
            data.addChild(pRow);
        else
            destroy(pRow);
        pRow = pNext;
    }
}

bool QueryFilter::accepts(const VorBomDataRow& row) const
{
    return std::all_of(m_conditions.begin(), m_conditions.end(),
                       [&row](const Condition& condition)
                       { return (row.getTupleAt(condition.token) != nullptr) == condition.mustBeThere; });
}
}
