// "%Weight, !%BoltName" is two conditions. A row that carries %Weight 2.5 and %Name "HEA200" meets both; one that
// carries %Weight 0.1 and %BoltName "M16" fails the second. Only whether a row has the datum counts, not its value.
#include "QueryFilter.h"

#include "Utf8.h"

#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
const std::string_view kBlank = " ";

// condition := [ '!' ] token
bool parseCondition(std::string_view text, QueryFilter::Condition& condition)
{
    text = VorCharacters::trimmed(text, kBlank);
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
// A text of nothing but blanks is the filter without conditions, but "%Weight," is none: a comma is followed by one.
int QueryFilter::parse(std::string_view text, QueryFilter& filter)
{
    QueryFilter parsed;
    if (VorCharacters::trimmed(text, kBlank).empty())
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

// Takes the rows off and puts those back that stay, so that no row has to know the one before it. A row goes with what
// is below it: empty() frees that, without recursion over siblings.
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
