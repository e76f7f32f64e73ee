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

    // `hasData` leaves it to the rules on data to say in what order their own columns come.
    void run(bool hasData);

private:
    void findUnsortedGroups(std::size_t level);
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

// The keys of which neither the catalogue nor the template says how they are sorted. The order of numbers is that of
// their values, and sorting by a handle is hardly meant to put it in order.
std::vector<SortKey> sortKeysOfOpenOrder(const CheckedTemplate& list, const KnownTokens& tokens);

// How to say it.
std::string helpForOpenOrder(const std::string& token);
}
