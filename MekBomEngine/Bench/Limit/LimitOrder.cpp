#include "LimitOrder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace
{
// Up to here insertion is faster than a merge.
constexpr std::ptrdiff_t kSmallGroup = 40;

// As the engine's doubles are compared.
constexpr double kEqualTolerance = 1e-6;

std::uint32_t markNumber(const LimitText& mark)
{
    std::uint32_t number = 0;
    for (const char digit : mark.view().substr(1))
        number = number * 10 + static_cast<std::uint32_t>(digit - '0');
    return number;
}

bool isLonger(const LimitOrder::Entry& a, const LimitOrder::Entry& b)
{
    return a.length - b.length >= kEqualTolerance;
}

void sortByInsertion(LimitOrder::Entry* pFirst, LimitOrder::Entry* pEnd)
{
    for (LimitOrder::Entry* p = pFirst + 1; p < pEnd; ++p)
    {
        const LimitOrder::Entry entry = *p;
        LimitOrder::Entry* pPlace = p;
        for (; pPlace > pFirst && isLonger(entry, pPlace[-1]); --pPlace)
            *pPlace = pPlace[-1];
        *pPlace = entry;
    }
}
}

LimitOrder::LimitOrder(const std::vector<LimitRow>& rows)
    : m_nRows(rows.size()), m_keys(new Entry[m_nRows]), m_sorted(new Entry[m_nRows])
{
    buildKeys(rows);
    putInGroups();
    sortGroups();
}

void LimitOrder::buildKeys(const std::vector<LimitRow>& rows)
{
    for (std::uint32_t i = 0; i < m_nRows; ++i)
    {
        const std::uint32_t mark = markNumber(rows[i].mark);
        m_nMarks = std::max(m_nMarks, mark + 1);
        m_keys[i] = { rows[i].length, i, materialNumber(rows[i].material) << kMarkBits | mark };
    }
}

std::uint32_t LimitOrder::materialNumber(const LimitText& material)
{
    const std::uint64_t bits = material.bits();
    for (std::uint32_t i = 0; i < m_nMaterials; ++i)
        if (m_materials[i].bits() == bits)
            return i;
    if (m_nMaterials == kMostMaterials)
    {
        std::fprintf(stderr, "limit: more than %u materials\n", kMostMaterials);
        std::exit(1);
    }
    m_materials[m_nMaterials] = material;
    return m_nMaterials++;
}

void LimitOrder::rankMaterials(std::uint32_t* rankOfMaterial) const
{
    for (std::uint32_t i = 0; i < m_nMaterials; ++i)
    {
        rankOfMaterial[i] = 0;
        for (std::uint32_t j = 0; j < m_nMaterials; ++j)
            rankOfMaterial[i] += m_materials[j].view() < m_materials[i].view() ? 1 : 0;
    }
}

void LimitOrder::putInGroups()
{
    std::uint32_t rankOfMaterial[kMostMaterials];
    rankMaterials(rankOfMaterial);
    const std::size_t numPlaces = static_cast<std::size_t>(m_nMaterials) * m_nMarks;
    const std::unique_ptr<std::uint32_t[]> next(new std::uint32_t[numPlaces + 1]());
    for (std::size_t i = 0; i < m_nRows; ++i)
    {
        std::uint32_t& group = m_keys[i].group;
        group = rankOfMaterial[group >> kMarkBits] * m_nMarks + (group & kMarkMask);
        ++next[group + 1];
    }
    for (std::size_t place = 0; place < numPlaces; ++place)
        next[place + 1] += next[place];
    for (std::size_t i = 0; i < m_nRows; ++i)
        m_sorted[next[m_keys[i].group]++] = m_keys[i];
}

void LimitOrder::sortGroups()
{
    Entry* const pEnd = m_sorted.get() + m_nRows;
    for (Entry* pFirst = m_sorted.get(); pFirst < pEnd;)
    {
        Entry* pNext = pFirst + 1;
        while (pNext < pEnd && pNext->group == pFirst->group)
            ++pNext;
        if (pNext - pFirst <= kSmallGroup)
            sortByInsertion(pFirst, pNext);
        else
            std::stable_sort(pFirst, pNext, isLonger);
        pFirst = pNext;
    }
}
