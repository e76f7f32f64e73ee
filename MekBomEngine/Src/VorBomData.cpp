// The sample rows, and questions about all rows of a list. Told on two rows of the samples:
//   row "1"    PosNum 1, Weight 200.2, Material "Mat1": it stands in the table, and is the same in every run
//   row "13"   PosNum 1 to 4, Weight 100 to 400, Material "Mat1" to "Mat4": drawn anew in every run
// Four choices each make 64 different rows, so that some of the hundred drawn are always equal.
#include "VorBomData.h"

#include "VorBomInputRows.h"
#include "VorBomItemWalk.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace
{
struct SampleRow
{
    int posNum;
    double weight;
    const wchar_t* material;
};

// Rows "1" to "12", with repeated and with unique values to group and sum.
const SampleRow kSampleRows[] = {
    { 1, 200.2, L"Mat1" }, { 1, 100.1, L"Mat1" }, { 3, 300.2, L"Mat3" }, { 4, 400.3, L"Mat4" },
    { 1, 123.4, L"Mat1" }, { 2, 200.1, L"Mat2" }, { 3, 300.2, L"Mat3" }, { 4, 400.3, L"Mat4" },
    { 1, 300.2, L"Mat1" }, { 1, 400.3, L"Mat1" }, { 1, 300.2, L"Mat2" }, { 1, 400.3, L"Mat1" },
};
// One hundred rows after the fixed ones.
const int kFirstRandomHandle = 13;
const int kLastRandomHandle = 112;
const int kNumChoices = 4; // of each random value

VorString numbered(const wchar_t* pattern, int number)
{
    VorString text;
    text.format(pattern, number);
    return text;
}

void appendRow(VorBomData& data, int handle, int posNum, double weight, const VorString& material)
{
    auto* pRow = new VorBomDataRow;
    pRow->setObjectHandle(numbered(L"%d", handle));
    pRow->addData(VorBomDataTuple(L"PosNum", posNum));
    pRow->addData(VorBomDataTuple(L"Weight", weight));
    pRow->addData(VorBomDataTuple(L"Material", material));
    data.addChild(pRow);
}

void appendFixedRows(VorBomData& data)
{
    int handle = 0;
    for (const SampleRow& row : kSampleRows)
        appendRow(data, ++handle, row.posNum, row.weight, row.material);
}

void appendRandomRows(VorBomData& data)
{
    for (int handle = kFirstRandomHandle; handle <= kLastRandomHandle; ++handle)
    {
        // Drawn in this order, in statements of their own: arguments of a call are evaluated in any.
        const int position = std::rand() % kNumChoices;
        const int weight = std::rand() % kNumChoices;
        const int material = std::rand() % kNumChoices;
        appendRow(data, handle, position + 1, (weight + 1) * 100.0, numbered(L"Mat%d", material + 1));
    }
}
}

VorBomData* VorBomData::createDefaultData()
{
    auto* pData = new VorBomData;
    appendFixedRows(*pData);
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    appendRandomRows(*pData);
    return pData;
}

// A row without parts makes 1, a row with parts 2, and one of whose parts has parts 3.
int VorBomData::depthLevel()
{
    int depth = 1;
    for (VorBomItemWalk walk(child(), 1); walk.item() != nullptr; walk.advance(true, true))
        depth = std::max(depth, walk.level());
    return depth;
}

// Along the rows alone: an evaluation reads nothing of sub-rows, so it has marked nothing in them.
int VorBomData::getUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens)
{
    for (VorBomItemBase* pItem = child(); pItem != nullptr; pItem = pItem->next())
        static_cast<VorBomDataRow*>(pItem)->appendUsedHandlesAndTokens(handles, tokens);
    return 1;
}

void VorBomData::rememberRows()
{
    m_pInputRows = std::make_shared<VorBomInputRows>(*this);
}

int VorBomData::restoreRows()
{
    return m_pInputRows != nullptr ? m_pInputRows->restore(*this) : 0;
}
