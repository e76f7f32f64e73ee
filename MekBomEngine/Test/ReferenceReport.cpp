#include "ReferenceReport.h"

#include "ReferenceTokens.h"

#include "ExpressionEvaluator/Test/Reference/ReferenceFormula.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace
{
// The total after a row's number. Two integers stay one as long as it has 32 bits; everything else is a double. What
// is no number yet starts from zero of the row's kind.
RefValue sumOf(const RefValue& total, const RefValue& added)
{
    if (added.kind == RefValue::kInt && total.kind != RefValue::kDouble)
    {
        const std::int64_t start = total.kind == RefValue::kInt ? total.integer : 0;
        const std::int64_t sum = start + added.integer;
        if (sum >= std::numeric_limits<std::int32_t>::min() && sum <= std::numeric_limits<std::int32_t>::max())
            return RefValue::ofInt(static_cast<int>(sum));
        return RefValue::ofDouble(static_cast<double>(sum));
    }
    return RefValue::ofDouble((total.isNumber() ? total.asDouble() : 0.0) + added.asDouble());
}

void prepareSection(RefSection& section)
{
    section.groupingTokens.clear();
    section.sortingTokens.clear();
    for (const RefTuple& tuple : section.tuples)
    {
        for (const std::wstring& token : groupingRequest(tuple.token))
            section.groupingTokens.push_back(token);
        for (const std::wstring& token : sortingRequest(tuple.token))
            section.sortingTokens.push_back(token);
    }
    for (const RefReport::SectionPtr& child : section.children)
        prepareSection(*child);
}
}

void RefReport::prepare()
{
    prepareSection(root);
}

std::vector<std::vector<std::wstring>> RefReport::sortingRequests() const
{
    std::vector<std::vector<std::wstring>> requests;
    for (const RefSection* parent = &root; !parent->children.empty(); parent = parent->children[0].get())
        requests.push_back(parent->children[0]->sortingTokens);
    return requests;
}

// The outer levels' keys come first.
std::vector<SortKey> RefReport::sortKeys() const
{
    std::vector<SortKey> keys;
    bool ascending = true;
    for (const std::vector<std::wstring>& requests : sortingRequests())
        addSortKeys(keys, requests, ascending);
    return keys;
}

bool RefReport::hasOneOrder() const
{
    return haveOneOrder(order, sortKeys());
}

void RefReport::sort()
{
    if (sortKeys().empty() || order.size() < 2)
        return;
    lastChild = order.back(); // on purpose: the link keeps naming the row that was last before the sort
    sortRows(order, sortKeys());
}

int RefReport::evaluate(RefSection* result)
{
    m_pResult = result;
    m_levels.clear();
    for (const RefSection* parent = &root; !parent->children.empty(); parent = parent->children[0].get())
    {
        Level level;
        level.header = parent->children[0];
        if (parent->children.size() > 1)
            level.footer = parent->children[1];
        m_levels.push_back(level);
    }
    if (m_levels.empty())
        return 0;
    for (RefRow* row : order)
        evaluateRow(*row);
    for (std::size_t level = m_levels.size(); level > 0; --level)
        close(level - 1);
    return 1;
}

bool RefReport::differ(RefRow& a, RefRow& b, const std::vector<std::wstring>& tokens)
{
    for (const std::wstring& token : tokens)
    {
        const RefTuple* first = findTuple(a.tuples, token);
        const RefTuple* second = findTuple(b.tuples, token);
        if ((first == nullptr) != (second == nullptr))
            return true;
        if (first != nullptr && RefValue::compare(first->value, second->value) != 0)
            return true;
    }
    return false;
}

void RefReport::evaluateRow(RefRow& row)
{
    for (std::size_t level = 0; level < m_levels.size(); ++level)
    {
        Level& current = m_levels[level];
        if (!current.rows.empty() && !differ(row, *current.rows.back(), current.header->groupingTokens))
        {
            if (current.header->type == RefSection::kDetails)
                ++misuses[L"VorBomTemplateItem::kDetails != state.m_pHeader->type()"];
            current.rows.push_back(&row);
            continue;
        }
        if (!current.rows.empty())
            for (std::size_t i = level; i < m_levels.size(); ++i)
                close(i);
        open(level, row);
        if (level + 1 == m_levels.size())
            close(level);
    }
}

void RefReport::open(std::size_t level, RefRow& row)
{
    Level& current = m_levels[level];
    current.isOpen = true;
    current.evaluatedFooter = nullptr;
    current.evaluatedHeader = evaluatedFor(*current.header, row);
    computeFormulas(*current.evaluatedHeader, row);
    current.evaluatedHeader->firstRow = &row;
    current.rows.push_back(&row);
}

void RefReport::close(std::size_t level)
{
    Level& current = m_levels[level];
    if (!current.isOpen)
        return;
    current.isOpen = false;
    if (current.footer)
        current.evaluatedFooter = evaluatedOver(*current.footer, current.rows);
    complete(level);
    current.rows.clear();
}

void RefReport::complete(std::size_t level)
{
    Level& current = m_levels[level];
    applyUnits(*current.evaluatedHeader);
    if (current.evaluatedFooter)
        applyUnits(*current.evaluatedFooter);
    if (level == 0 && m_pResult == nullptr)
    {
        ++misuses[L"NULL != completedGroup.m_pCollector"];
        return;
    }
    if (repeatsLastDetails(level))
        for (RefRow* row : current.rows)
            row->countsInSums = 0;
    else
        hang(level, current.evaluatedHeader);
    if (current.evaluatedFooter)
        hang(level, current.evaluatedFooter);
}

bool RefReport::repeatsLastDetails(std::size_t level) const
{
    const RefSection& details = *m_levels[level].evaluatedHeader;
    if (level == 0 || level + 1 != m_levels.size() || details.type != RefSection::kDetails)
        return false;
    const RefSection& parent = *m_levels[level - 1].evaluatedHeader;
    if (parent.children.empty() || parent.children.back()->tuples.size() != details.tuples.size())
        return false;
    for (std::size_t i = 0; i < details.tuples.size(); ++i)
        if (RefValue::compare(details.tuples[i].value, parent.children.back()->tuples[i].value) != 0)
            return false;
    return true;
}

void RefReport::hang(std::size_t level, const SectionPtr& section)
{
    RefSection* target = level == 0 ? m_pResult : m_levels[level - 1].evaluatedHeader.get();
    target->children.push_back(section);
}

RefReport::SectionPtr RefReport::evaluatedFor(const RefSection& section, RefRow& row)
{
    SectionPtr item = std::make_shared<RefSection>(section);
    item->children.clear();
    for (RefTuple& tuple : item->tuples)
    {
        RefTuple* datum = isFormula(tuple.token) ? nullptr : findTuple(row.tuples, tuple.token);
        if (datum == nullptr)
            continue;
        if (datum->value.kind == RefValue::kUnknown)
        {
            ++misuses[L"false"];
            continue;
        }
        tuple.value = datum->value;
        datum->used = 1;
    }
    return item;
}

RefReport::SectionPtr RefReport::evaluatedOver(const RefSection& section, const std::vector<RefRow*>& groupRows)
{
    SectionPtr item = std::make_shared<RefSection>(section);
    item->children.clear();
    for (RefRow* row : groupRows)
    {
        if (row->countsInSums == 0)
            continue;
        for (RefTuple& tuple : item->tuples)
        {
            const RefTuple* datum = findTuple(row->tuples, without(L"%SumBy:", tuple.token));
            if (datum == nullptr || datum->value.kind == RefValue::kUnknown)
                continue;
            const bool isNumberInSum = isSum(tuple.token) && datum->value.isNumber();
            if (isSum(tuple.token) && !isNumberInSum)
                ++misuses[L"!bIsSummingRequest"];
            tuple.value = isNumberInSum ? sumOf(tuple.value, datum->value) : datum->value;
        }
    }
    return item;
}

void RefReport::computeFormulas(RefSection& item, RefRow& row)
{
    for (std::size_t place = 0; place < item.tuples.size(); ++place)
    {
        const std::wstring token = item.tuples[place].token;
        double result = 0.0;
        if (!isFormula(token) || !computeFormula(item, place, without(L"%Formula:", token), row, result))
            continue;
        item.tuples[place].value = RefValue::ofDouble(result);
        row.tuples.push_back(RefTuple{ token, RefValue::ofDouble(result), 0 });
    }
}

bool RefReport::computeFormula(const RefSection& item, std::size_t place, const std::wstring& formula, RefRow& row,
                               double& result)
{
    if (formula.size() <= 3 || formula.find_first_of(L"*/+-=()") == std::wstring::npos)
        return false;
    std::vector<FormulaVariable> variables;
    for (std::size_t i = 0; i < item.tuples.size(); ++i)
        if (i != place && item.tuples[i].value.isNumber())
            variables.push_back({ item.tuples[i].token, FormulaValue::real(item.tuples[i].value.asDouble()) });
    for (const std::wstring& token : tokensOfFormula(formula))
    {
        const RefTuple* datum = findTuple(row.tuples, token);
        if (datum != nullptr && datum->value.isNumber())
            variables.push_back({ token, FormulaValue::real(datum->value.asDouble()) });
    }
    return ReferenceFormula::evaluateFormula(formula, variables, result) != 0;
}

void RefReport::applyUnits(RefSection& item)
{
    for (RefTuple& tuple : item.tuples)
    {
        if (tuple.value.kind == RefValue::kInt)
            tuple.value = RefValue::ofText(tuple.value.asText());
        if (tuple.value.kind != RefValue::kDouble)
            continue;
        std::wstring name = without(L"%SumBy:", tuple.token);
        if (isFormula(name))
        {
            name = without(L"%Formula:", name);
            findUnitOfFormula(name);
        }
        tuple.value = RefValue::ofText(units.display(name, tuple.value.number));
    }
}

// A formula is shown in the unit of the first of its tokens that has one.
void RefReport::findUnitOfFormula(const std::wstring& formula)
{
    if (units.typeOf(formula) != RefUnits::kNoUnit)
        return;
    for (const std::wstring& token : tokensOfFormula(formula))
        if (units.typeOf(token) != RefUnits::kNoUnit)
        {
            units.add(formula, units.typeOf(token));
            return;
        }
}
