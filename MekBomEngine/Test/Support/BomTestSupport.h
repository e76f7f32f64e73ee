// Builders that keep noise out of the engine's tests: tuples, rows, sections, and trees that are emptied at the end.
//
//   BomTree<VorBomData> data;
//   data.addChild(newRow({ tuple(L"%Name", L"HEA200"), tuple(L"%Weight", 126.9) }));
#pragma once

#include "VorBomDataRow.h"
#include "VorBomTemplate.h"
#include "VorBomTemplateItem.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <initializer_list>
#include <utility>
#include <vector>

// Stands for the value of tuples that have none.
struct NoValue
{
};

inline VorBomDataTuple tuple(const wchar_t* token, int value)
{
    return VorBomDataTuple(token, value);
}

inline VorBomDataTuple tuple(const wchar_t* token, double value)
{
    return VorBomDataTuple(token, value);
}

inline VorBomDataTuple tuple(const wchar_t* token, const wchar_t* value)
{
    return VorBomDataTuple(token, VorString(value));
}

inline VorBomDataTuple tuple(const wchar_t* token, NoValue)
{
    return VorBomDataTuple(token, VorBomDataValue());
}

inline VorBomDataTuple usedTuple(const wchar_t* token, int used)
{
    VorBomDataTuple marked(token, 0);
    marked.setUsed(used);
    return marked;
}

using Tuples = std::initializer_list<VorBomDataTuple>;

inline void addTuples(VorBomItemBase& item, Tuples tuples)
{
    for (const VorBomDataTuple& added : tuples)
        item.addData(added);
}

inline VorBomItemBase* newItem(Tuples tuples)
{
    auto* pItem = new VorBomItemBase;
    addTuples(*pItem, tuples);
    return pItem;
}

inline VorBomDataRow* newRow(Tuples tuples)
{
    auto* pRow = new VorBomDataRow;
    addTuples(*pRow, tuples);
    return pRow;
}

inline VorBomTemplateItem* newSection(VorBomTemplateItem::eTemplateItemType type, Tuples tuples = {})
{
    auto* pSection = new VorBomTemplateItem(type);
    addTuples(*pSection, tuples);
    return pSection;
}

// An item on the stack that destroys what hangs below it.
template <class Item>
class BomTree : public Item
{
public:
    using Item::Item;
    BomTree(const BomTree&) = delete;
    BomTree& operator=(const BomTree&) = delete;
    ~BomTree() override { this->empty(); }
};

// The listing of an item with everything below and beside it.
inline VorString listOf(VorBomItemBase& item)
{
    VorString text;
    EXPECT_EQ(1, item.list(text, 0, 1, 1));
    return text;
}

// Arrays as vectors, which tests compare and print.
template <class T>
std::vector<T> elementsOf(const VorArray<T>& array)
{
    return std::vector<T>(array.begin(), array.end());
}

using Texts = std::vector<VorString>;
using Ints = std::vector<int>;

inline VorStringArray arrayOf(std::initializer_list<const wchar_t*> texts)
{
    VorStringArray array;
    for (const wchar_t* text : texts)
        array.append(VorString(text));
    return array;
}

// Reaches what a template owns, for states that only damage brings about.
struct VorBomTemplateAccess
{
    static VorBomData*& data(VorBomTemplate& bomTemplate) { return bomTemplate.m_pData; }
    static VorBomTemplateUnits*& units(VorBomTemplate& bomTemplate) { return bomTemplate.m_pUnits; }

    // Makes a copy forget what it shares, so that it may be destroyed beside its source.
    static void forgetSharedParts(VorBomTemplate& copy)
    {
        copy.m_pData = nullptr;
        copy.m_pUnits = nullptr;
        copy.setChild(nullptr);
    }
};
