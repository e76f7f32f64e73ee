// The rows' indices in the order of the report: by material ascending, mark in natural order, length descending; rows
// equal in all three keep their order. Lengths closer than 1e-6 mm are equal. A group with a chain of those, such as
// 2.0, 2.0000008 and 2.0000016, has no one order: the engine has a rule for it and the limit has not, as generated rows
// have no such group.
//
// Every key is built once. Material and mark together choose a place by counting: a material has a number, first by
// first appearance, then by its rank among the materials, and a mark its own number. The few rows that share a place
// are put in order of their lengths by insertion.
#pragma once

#include "LimitRow.h"

#include <cstdint>
#include <memory>
#include <vector>

class LimitOrder
{
public:
    struct Entry
    {
        double length;
        std::uint32_t row;
        std::uint32_t group; // the material's number by first appearance and the mark's own, later the place
    };

    explicit LimitOrder(const std::vector<LimitRow>& rows);

    // Rows of one group lie together: entries [begin(), end()) in the order of the report.
    const Entry* begin() const { return m_sorted.get(); }
    const Entry* end() const { return m_sorted.get() + m_nRows; }

private:
    static constexpr std::uint32_t kMostMaterials = 256;
    static constexpr int kMarkBits = 24;
    static constexpr std::uint32_t kMarkMask = (1U << kMarkBits) - 1;

    void buildKeys(const std::vector<LimitRow>& rows);
    std::uint32_t materialNumber(const LimitText& material);
    void rankMaterials(std::uint32_t* rankOfMaterial) const;
    void putInGroups();
    void sortGroups();

    std::size_t m_nRows;
    std::unique_ptr<Entry[]> m_keys;
    std::unique_ptr<Entry[]> m_sorted;
    LimitText m_materials[kMostMaterials];
    std::uint32_t m_nMaterials = 0;
    std::uint32_t m_nMarks = 0; // the largest mark and one
};
