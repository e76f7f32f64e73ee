#include "RowBuilder.h"

#include "Utf8.h"

#include "MekRoots/Test/Support/TestSupport.h"

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

VorString nameOf(const VorBomItemBase& row)
{
    return row.getTupleAt(kName)->value().asString();
}

class RowBuilderTest : public testing::Test
{
protected:
    RowBuilderTest() : m_batch(4), m_builder(m_data, 4) {}
    ~RowBuilderTest() override { m_data.empty(); }

    void addRow(const std::string& handle, const std::string& name, double length, int quantity)
    {
        m_batch.beginRow();
        m_batch.setHandle(handle);
        m_batch.addHandle(kHandle);
        m_batch.addText(kName, 1, name);
        m_batch.add(kLength, length);
        m_batch.add(kQuantity, quantity);
        if (m_batch.isFull())
            build();
    }

    void build()
    {
        m_builder.build(m_batch);
        m_batch.clear();
    }

    std::string rows()
    {
        VorString text;
        if (m_data.child() != nullptr)
            m_data.child()->list(text, 0, 1, 1);
        return Utf8::toBytes(text);
    }

    VorBomData m_data;
    RowBatch m_batch;
    RowBuilder m_builder;
};
}

TEST_F(RowBuilderTest, RowsHaveTheirDataInTheOrderInWhichTheyWereAdded)
{
    addRow("1A7", "HEA200", 2286.5, 3);
    addRow("a long handle", "a long name", 1, -2);
    EXPECT_EQ("", rows());

    build();

    EXPECT_EQ("[%Handle:1A7][%Name:HEA200][%Length:2286.5][%Quantity:3]\n"
              "[%Handle:a long handle][%Name:a long name][%Length:1][%Quantity:-2]",
              rows());
    EXPECT_EQ(VorString(L"1A7"), static_cast<VorBomDataRow*>(m_data.child())->objectHandle());
}

TEST_F(RowBuilderTest, RowsMayBeWithoutHandleAndWithoutData)
{
    addRow("1A7", "HEA200", 1, 1);
    m_batch.beginRow();

    build();

    const auto* pRow = static_cast<const VorBomDataRow*>(m_data.child()->next());
    EXPECT_EQ(VorString(), pRow->objectHandle());
    EXPECT_EQ(0, pRow->getData().length());
}

TEST_F(RowBuilderTest, RowsHoldRoomForWhatTheyHaveAndWhatIsReserved)
{
    m_builder.reserveTuples(2);
    addRow("1A7", "HEA200", 1, 1);

    build();

    EXPECT_EQ(6, m_data.child()->getData().physicalLength());
}

TEST_F(RowBuilderTest, RowsOfAllBatchesFollowEachOtherAndShareTheirTexts)
{
    std::string expected;
    for (int i = 0; i < 10'000; ++i)
    {
        const std::string number = std::to_string(i);
        const std::string name = (i % 2 == 0 ? "B" : "a mark beyond a word ") + std::to_string(i % 700);
        addRow(number, name, i + 0.5, i);
        expected += (i == 0 ? "" : "\n");
        expected += "[%Handle:" + number + "][%Name:" + name + "][%Length:" + number + ".5][%Quantity:" + number + "]";
    }

    build();

    EXPECT_EQ(expected, rows());
    const VorBomItemBase* pRow = m_data.child();
    const VorString first = nameOf(*pRow);
    for (int i = 0; i < 7'000; ++i)
        pRow = pRow->next();
    EXPECT_TRUE(first.sharesTextWith(nameOf(*pRow)));
}

TEST_F(RowBuilderTest, TextsThatDoNotComeBackAreKeptAsWell)
{
    for (int i = 0; i < 20'000; ++i)
        addRow("1A7", (i % 2 == 0 ? "B" : "a part by itself, number ") + std::to_string(i), 1, 1);
    build();

    int i = 0;
    for (const VorBomItemBase* pRow = m_data.child(); pRow != nullptr; pRow = pRow->next(), ++i)
        ASSERT_EQ((i % 2 == 0 ? "B" : "a part by itself, number ") + std::to_string(i), Utf8::toBytes(nameOf(*pRow)));
    EXPECT_EQ(20'000, i);
}
}
