#include "RowBatch.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const VorString kHandle(L"%Handle");
const VorString kName(L"%Name");
const VorString kLength(L"%Length");
const VorString kQuantity(L"%Quantity");

std::string textOf(const RowBatch& batch, std::uint64_t text)
{
    char bytes[ByteWord::kSize];
    return std::string(RowBatch::isLong(text) ? batch.longText(text) : ByteWord::write(text, bytes));
}

// "1A7: %Name HEA200, %Length 12.5"
std::string rowText(const RowBatch& batch, std::size_t row)
{
    std::string text = textOf(batch, batch.handleOf(row)) + ":";
    for (const RowBatch::Datum* pDatum = batch.dataOf(row); pDatum != batch.dataOf(row + 1); ++pDatum)
        switch (pDatum->kind)
        {
            case RowBatch::kWhole: text += " i " + std::to_string(pDatum->whole); break;
            case RowBatch::kNumber: text += " d " + std::to_string(pDatum->number); break;
            case RowBatch::kText:
                text += " t" + std::to_string(pDatum->column) + " " + textOf(batch, pDatum->text);
                break;
            case RowBatch::kHandle: text += " handle"; break;
        }
    return text;
}

std::size_t numRowsWhenFull(std::size_t numColumns, const std::string& name)
{
    RowBatch batch(numColumns);
    while (!batch.isFull())
    {
        batch.beginRow();
        batch.addText(kName, 0, name);
    }
    return batch.numRows();
}
}

TEST(RowBatchTest, HoldsTheValuesOfItsRowsInTheirOrder)
{
    RowBatch batch(4);
    batch.beginRow();
    batch.setHandle("1A7");
    batch.addHandle(kHandle);
    batch.addText(kName, 1, "HEA200-S355");
    batch.add(kLength, 2.5);
    batch.beginRow();
    batch.beginRow();
    batch.setHandle("a long handle");
    batch.addText(kName, 3, "12345678");
    batch.add(kQuantity, -4);

    EXPECT_EQ(3u, batch.numRows());
    EXPECT_EQ("1A7: handle t1 HEA200-S355 d 2.500000", rowText(batch, 0));
    EXPECT_EQ(":", rowText(batch, 1));
    EXPECT_EQ("a long handle: t3 12345678 i -4", rowText(batch, 2));
    EXPECT_EQ(&kName, batch.dataOf(2)->pToken);
}

TEST(RowBatchTest, ClearedItIsAsNew)
{
    RowBatch batch(4);
    batch.beginRow();
    batch.addText(kName, 1, "HEA200-S355");

    batch.clear();
    batch.beginRow();
    batch.addText(kName, 1, "IPE360-S235");

    EXPECT_EQ(1u, batch.numRows());
    EXPECT_EQ(": t1 IPE360-S235", rowText(batch, 0));
}

TEST(RowBatchTest, ItIsFullSoonerWithWideRowsAndLongTexts)
{
    const std::size_t numRows = numRowsWhenFull(14, "HEA200");

    EXPECT_LT(100u, numRows);
    EXPECT_GT(numRows, numRowsWhenFull(100, "HEA200"));
    EXPECT_EQ(1u, numRowsWhenFull(1'000'000, "HEA200"));
    EXPECT_EQ(1u, numRowsWhenFull(14, std::string(1'000'000, 'x')));
}
}
