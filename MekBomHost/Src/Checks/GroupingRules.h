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

    void run();

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
    void findSortingByUnknown(const CheckedTuple& tuple);
    void findGroupedTwice(const CheckedTuple& tuple);
    void findFilters();

    bool isRead(const CheckedTuple& tuple) const;
    bool saysOrder(const std::string& token) const;
    std::vector<std::string> sortKeys() const;
};
}
