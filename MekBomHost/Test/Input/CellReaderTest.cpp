#include "CellReader.h"

#include "Utf8.h"

#include "Support/FakeSource.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
InputColumn columnOf(const char* pName, VorBomDataValue::eBomDataValueType type)
{
    InputColumn column;
    column.name = pName;
    column.token = std::string("%") + pName;
    column.tupleToken = Utf8::toWide(column.token);
    column.type = type;
    column.isWanted = true;
    return column;
}

class CellReaderTest : public testing::Test
{
protected:
    CellReaderTest()
        : m_columns{ columnOf("Name", VorBomDataValue::kStringData), columnOf("Quantity", VorBomDataValue::kIntData),
                     columnOf("Weight", VorBomDataValue::kDoubleData),
                     columnOf("Other", VorBomDataValue::kUnknownData) }
    {
    }
    ~CellReaderTest() override { m_data.empty(); }

    void read(std::vector<Record> records)
    {
        FakeSource source(std::move(records));
        CellReader cells(m_columns, source, m_data);
        cells.reserveTuples(m_numReserved);
        if (m_numbersRows)
            cells.numberRows(L"%Handle");
        while (const Record* const pRecord = source.next())
            cells.read(*pRecord);
        cells.finish();
    }

    std::string rows() const
    {
        VorString text;
        m_data.child()->list(text, 0, 1, 1);
        return Utf8::toBytes(text);
    }

    std::vector<InputColumn> m_columns;
    VorBomData m_data;
    int m_numReserved = 0;
    bool m_numbersRows = false;
};
}

TEST_F(CellReaderTest, ACellBecomesATupleOfItsColumnsTypeAndNothingBecomesNone)
{
    read({ { textCell("HEA200"), textCell("4"), textCell("2.5"), textCell("x") },
           { RecordCell(), RecordCell(4.0), RecordCell(2.5), RecordCell(7.0) } });

    EXPECT_EQ("[%Name:HEA200][%Quantity:4][%Weight:2.5][%Other:x]\n[%Quantity:4][%Weight:2.5][%Other:7]", rows());
}

TEST_F(CellReaderTest, ColumnsOfOpenTypeGetTheOneThatFitsAllCells)
{
    read({ { RecordCell(), RecordCell(), RecordCell(), textCell("4") },
           { RecordCell(), RecordCell(), RecordCell(), textCell("0.5") } });

    EXPECT_EQ(VorBomDataValue::kDoubleData, m_data.child()->getData()[0].value().type());
}

TEST_F(CellReaderTest, CellsThatNobodyWantsAreCheckedAndNotKept)
{
    m_columns[2].isWanted = false;

    EXPECT_EQ("3 parts.xyz:1: /2: column \"Weight\": found \"x\", expected a number\n",
              faultOf(
                  [this] {
                      read({ { RecordCell(), RecordCell(), textCell("x"), RecordCell() } });
                  }));
    read({ { textCell("a"), RecordCell(), textCell("1"), RecordCell() } });

    EXPECT_EQ("[%Name:a]", rows());
}

TEST_F(CellReaderTest, RowsAreNumberedOnRequest)
{
    m_numbersRows = true;

    read({ { textCell("a"), RecordCell(), RecordCell(), RecordCell() },
           { textCell("b"), RecordCell(), RecordCell(), RecordCell() } });

    EXPECT_EQ("[%Handle:1][%Name:a]\n[%Handle:2][%Name:b]", rows());
}

TEST_F(CellReaderTest, RowsGetRoomForWhatTheEvaluationAdds)
{
    m_numReserved = 3;

    read({ { textCell("a"), RecordCell(), RecordCell(), RecordCell() } });

    EXPECT_EQ(4, m_data.child()->getData().physicalLength());
}

TEST_F(CellReaderTest, EverythingThatIsWrongIsNoted)
{
    EXPECT_EQ("3 parts.xyz:1: found 1 field, expected 4 as in the header row\n"
              "3 parts.xyz:2: /1: column \"Quantity\": found \"2.5\", expected a whole number\n"
              "3 parts.xyz:2: /2: column \"Weight\": found \"y\", expected a number\n",
              faultOf(
                  [this] {
                      read({ { textCell("a") }, { RecordCell(), textCell("2.5"), textCell("y"), RecordCell() } });
                  }));
    EXPECT_EQ(nullptr, m_data.child());
}
}
