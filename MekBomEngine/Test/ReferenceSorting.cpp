#include "ReferenceSorting.h"

#include "ReferenceTokens.h"

#include <memory>
#include <utility>

namespace
{
enum class Texts
{
    kInTheirOwnOrder,
    kByCharacters
};

int compareRows(RefRow& a, RefRow& b, const std::vector<SortKey>& keys, Texts texts)
{
    for (const SortKey& key : keys)
    {
        const RefTuple* first = findTuple(a.tuples, key.token);
        const RefTuple* second = findTuple(b.tuples, key.token);
        const bool naturally = texts == Texts::kInTheirOwnOrder && isOrderedNaturally(key.token);
        int result = 0;
        if (first != nullptr && second != nullptr)
            result = naturally ? RefValue::compareNaturally(first->value, second->value)
                               : RefValue::compare(first->value, second->value);
        else if (first != nullptr || second != nullptr)
            result = first != nullptr ? 1 : -1;
        if (result != 0)
            return key.ascending ? result : -result;
    }
    return 0;
}

bool haveOneOrder(const std::vector<RefRow*>& rows, const std::vector<SortKey>& keys, Texts texts)
{
    for (const SortKey& key : keys)
    {
        std::vector<RefValue> values;
        for (RefRow* row : rows)
            if (const RefTuple* tuple = findTuple(row->tuples, key.token))
                values.push_back(tuple->value);
        if (!RefValue::areOrdered(values, texts == Texts::kInTheirOwnOrder && isOrderedNaturally(key.token)))
            return false;
    }
    return true;
}

// Sections that stay together: one that opened a group and, perhaps, the footer after it.
using Unit = std::vector<std::shared_ptr<RefSection>>;

bool isFooter(const RefSection& section)
{
    return section.type == RefSection::kGroupFooter || section.type == RefSection::kReportFooter;
}

std::vector<Unit> unitsOf(const RefSection& item)
{
    std::vector<Unit> units;
    for (const std::shared_ptr<RefSection>& child : item.children)
    {
        if (isFooter(*child) && !units.empty() && units.back().size() == 1)
            units.back().push_back(child);
        else
            units.push_back(Unit(1, child));
    }
    return units;
}

bool sortUnits(std::vector<Unit>& units, const std::vector<SortKey>& keys)
{
    std::vector<RefRow*> rows;
    for (const Unit& unit : units)
    {
        if (unit[0]->firstRow == nullptr && units.size() > 1)
            return false; // equal to every other, which are not equal among themselves
        if (unit[0]->firstRow != nullptr)
            rows.push_back(unit[0]->firstRow);
    }
    if (!haveOneOrder(rows, keys, Texts::kByCharacters))
        return false;
    for (std::size_t i = 1; i < units.size(); ++i)
        for (std::size_t j = i;
             j > 0 && compareRows(*units[j - 1][0]->firstRow, *units[j][0]->firstRow, keys, Texts::kByCharacters) > 0;
             --j)
            std::swap(units[j - 1], units[j]);
    return true;
}

bool sortChildren(RefSection& item, const std::vector<std::wstring>& requests)
{
    std::vector<SortKey> keys;
    bool ascending = true;
    addSortKeys(keys, requests, ascending);
    std::vector<Unit> units = unitsOf(item);
    const bool isSorted = sortUnits(units, keys);
    item.children.clear();
    for (const Unit& unit : units)
        item.children.insert(item.children.end(), unit.begin(), unit.end());
    return isSorted;
}
}

void addSortKeys(std::vector<SortKey>& keys, const std::vector<std::wstring>& requests, bool& ascending)
{
    for (const std::wstring& request : requests)
    {
        if (startsWith(request, L"%SortAscBy:"))
            ascending = true;
        else if (startsWith(request, L"%SortDescBy:"))
            ascending = false;
        keys.push_back(SortKey{ without(ascending ? L"%SortAscBy:" : L"%SortDescBy:", request), ascending });
    }
}

void sortRows(std::vector<RefRow*>& rows, const std::vector<SortKey>& keys)
{
    for (std::size_t i = 1; i < rows.size(); ++i)
        for (std::size_t j = i; j > 0 && compareRows(*rows[j - 1], *rows[j], keys, Texts::kInTheirOwnOrder) > 0; --j)
            std::swap(rows[j - 1], rows[j]);
}

bool haveOneOrder(const std::vector<RefRow*>& rows, const std::vector<SortKey>& keys)
{
    return haveOneOrder(rows, keys, Texts::kInTheirOwnOrder);
}

bool sortSections(RefSection& item, const std::vector<std::vector<std::wstring>>& requests, std::size_t level)
{
    if (item.type != RefSection::kBomTemplate && item.type != RefSection::kReportHeader &&
        item.type != RefSection::kGroupHeader)
        return true;
    bool isSorted = true;
    if (level < requests.size() && !requests[level].empty())
        isSorted = sortChildren(item, requests[level]);
    for (const std::shared_ptr<RefSection>& child : item.children)
        isSorted = sortSections(*child, requests, level + 1) && isSorted;
    return isSorted;
}
