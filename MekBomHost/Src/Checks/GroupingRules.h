// The rules about grouping, sorting and filtering requests, MB201 to MB214 without MB212, which is about data.
#pragma once

#include "TemplateRules.h"

#include <string>
#include <vector>

namespace mekbom
{
class GroupingRules : private TemplateRules
{
public:
    using TemplateRules::TemplateRules;

    // `hasData` leaves sorting by a column of the data to PlainOrderRule, which sees whether its cells are texts.
    void run(bool hasData);

private:
    void findUnsortedGroups(const CheckedTuple& tuple);
    void findMissingKeys(const CheckedTuple& tuple);
    void findKeyBefore(const CheckedTuple& tuple);
    void findBadElements(const CheckedTuple& tuple);
    void findGroupingWithoutEffect(const CheckedTuple& tuple);
    void findSortingWithoutEffect(const CheckedTuple& tuple);
    void findDescendingThatGoesOn(const CheckedTuple& tuple);
    void findGroupingByFloat(const CheckedTuple& tuple);
    void findPlainOrder(const CheckedTuple& tuple);
    void findSortingByUnknown(bool hasData);
    void findGroupedTwice(const CheckedTuple& tuple);
    void findFilters();

    bool isRead(const CheckedTuple& tuple) const;
    std::vector<std::string> sortKeys() const;
};

// One token that rows are sorted by, and the tuple that asks for it, which outlives the key.
struct SortKey
{
    const CheckedTuple* pTuple;
    std::string token;
};

// The keys of which neither the catalogue nor the template says how they are sorted: "%SortAscBy:%PosNum", unless the
// template has "tokens": { "%PosNum": "number" } or a column with an "order". Numbers are sorted by value, whatever a
// column says, and %Handle is left out, as nobody minds in what order handles come.
std::vector<SortKey> sortKeysOfOpenOrder(const CheckedTemplate& list, const KnownTokens& tokens);

// What the author is told to write so that the order is said.
std::string helpForOpenOrder(const std::string& token);
}
