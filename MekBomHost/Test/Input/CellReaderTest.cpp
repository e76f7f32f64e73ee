#include "CellReader.h"

#include "RowBuilder.h"
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
        m_columns[1].isPieces = true;
    }
    ~CellReaderTest() override { m_data.empty(); }

    void read(std::vector<Record> records)
    {
        FakeSource source(std::move(records));
        CellReader cells(m_columns, source);
        RowBatch batch(m_columns.size());
        RowBuilder rows(m_data, m_columns.size());
        cells.setNotation(m_notation);
        if (m_numbersRows)
            cells.numberRows(L"%Handle");
        if (m_countsPieces)
            cells.countPieces(L"%Quantity");
        while (cells.read(batch))
            rows.build(batch);
        m_facts = cells.finish(m_data);
        m_findings = cells.findings();
    }

    std::string rows() const
    {
        VorString text;
        m_data.child()->list(text, 0, 1, 1);
        return Utf8::toBytes(text);
    }

    std::vector<InputColumn> m_columns;
    VorBomData m_data;
    bool m_numbersRows = false;
    bool m_countsPieces = false;
    NumberNotation m_notation;
    PartsFacts m_facts;
    std::vector<Finding> m_findings;
};
}

TEST_F(CellReaderTest, ACellBecomesATupleOfItsColumnsTypeAndNothingBecomesNone)
{
    read({ { textCell("HEA200"), textCell("4"), textCell("2.5"), textCell("x") },
           { RecordCell(), RecordCell(4.0), RecordCell(2.5), RecordCell(7.0) } });

    EXPECT_EQ("[%Name:HEA200][%Quantity:4][%Weight:2.5][%Other:x]\n[%Quantity:4][%Weight:2.5][%Other:7]", rows());
}

TEST_F(CellReaderTest, ARefusedValueIsAMistakeInAColumnThatSomebodyWants)
{
    Finding refusal;
    refusal.found = "a date";
    refusal.expected = "a number";
    const std::vector<Record> records = { { RecordCell(refusal), RecordCell(refusal), RecordCell(refusal),
                                            RecordCell(refusal) } };
    const auto messageOn = [](int column, const std::string& name)
    {
        return "3 parts.xyz:1: /" + std::to_string(column) + ": column \"" + name +
               "\": found a date, expected a number\n";
    };

    EXPECT_EQ(messageOn(0, "Name") + messageOn(1, "Quantity") + messageOn(2, "Weight") + messageOn(3, "Other"),
              faultOf([&] { read(records); }));
    for (const std::size_t column : { 0u, 1u, 2u })
        m_columns[column].isWanted = false;
    EXPECT_EQ(messageOn(3, "Other"), faultOf([&] { read(records); }));
    m_columns[3].isWanted = false;
    EXPECT_EQ("", faultOf([&] { read(records); }));
}

TEST_F(CellReaderTest, ColumnsOfOpenTypeGetTheOneThatFitsAllCells)
{
    read({ { RecordCell(), RecordCell(), RecordCell(), textCell("4") },
           { RecordCell(), RecordCell(), RecordCell(), textCell("0.5") } });

    EXPECT_EQ(VorBomDataValue::kDoubleData, m_data.child()->getData()[0].value().type());
}

TEST_F(CellReaderTest, CellsThatNobodyWantsAreNeitherKeptNorCheckedNorCounted)
{
    m_columns[2].isWanted = false;

    read({ { textCell("a"), RecordCell(), textCell("x"), RecordCell() } });

    EXPECT_EQ("[%Name:a]", rows());
    EXPECT_EQ(3u, m_facts.columns.size());
    EXPECT_EQ(nullptr, m_facts.find("%Weight"));
}

TEST_F(CellReaderTest, WholeNumbersMayHaveZerosBehindTheirPoint)
{
    read({ { RecordCell(), textCell("4.0"), RecordCell(), RecordCell() },
           { RecordCell(), textCell("-4.000"), RecordCell(), RecordCell() } });

    EXPECT_EQ("[%Quantity:4]\n[%Quantity:-4]", rows());
    EXPECT_EQ(
        "3 parts.xyz:1: /1: column \"Quantity\": found \"4.5\", expected a whole number\n"
        "3 parts.xyz:2: /1: column \"Quantity\": found \"3000000000.0\", expected a whole number from -2147483648 "
        "to 2147483647\n",
        faultOf(
            [this]
            {
                read({ { RecordCell(), textCell("4.5"), RecordCell(), RecordCell() },
                       { RecordCell(), textCell("3000000000.0"), RecordCell(), RecordCell() } });
            }));
}

TEST_F(CellReaderTest, NumbersAreReadInTheNotationOfTheirTexts)
{
    m_columns[3].whyNumbers = "the list computes with it";
    m_notation = NumberNotation(NumberNotation::kComma, NumberNotation::kShown, "");

    read({ { textCell("1,5"), textCell("1.200"), textCell("1.234,5"), textCell("2.000,5") },
           { textCell("1.234"), RecordCell(4.0), RecordCell(1.234), RecordCell() } });

    EXPECT_EQ("[%Name:1,5][%Quantity:1200][%Weight:1234.5][%Other:2000.5]\n"
              "[%Name:1.234][%Quantity:4][%Weight:1.234]",
              rows());
    ASSERT_EQ(1U, m_findings.size());
    EXPECT_EQ("parts.xyz:1: /1: column \"Quantity\": \"1.200\" is read as 1200", messageOf(m_findings[0]));
}

TEST_F(CellReaderTest, RowsThatDoNotSayHowManyPiecesTheyAreAreOne)
{
    m_countsPieces = true;

    read({ { textCell("a"), textCell("4"), RecordCell(), RecordCell() },
           { textCell("b"), RecordCell(), RecordCell(), RecordCell() } });

    EXPECT_EQ("[%Name:a][%Quantity:4]\n[%Name:b][%Quantity:1]", rows());
    EXPECT_EQ(1, m_facts.find("%Quantity")->numFilled);
}

TEST_F(CellReaderTest, PiecesAreCountedWithoutAColumnOfThem)
{
    m_countsPieces = true;
    m_columns.erase(m_columns.begin() + 1);

    read({ { textCell("a"), textCell("2.5"), textCell("x") } });

    EXPECT_EQ("[%Name:a][%Weight:2.5][%Other:x][%Quantity:1]", rows());
}

TEST_F(CellReaderTest, RowTotalsAreDividedByThePiecesOfTheirRow)
{
    m_columns[2].isRowTotal = true;

    read({ { RecordCell(), textCell("4"), textCell("10"), RecordCell() },
           { RecordCell(), RecordCell(), textCell("10"), RecordCell() },
           { RecordCell(), textCell("0"), textCell("0"), RecordCell() },
           { RecordCell(), textCell("-2.0"), textCell("-5"), RecordCell() } });

    EXPECT_EQ("[%Quantity:4][%Weight:2.5]\n[%Weight:10]\n[%Quantity:0][%Weight:0]\n[%Quantity:-2][%Weight:2.5]",
              rows());
}

TEST_F(CellReaderTest, ARowTotalOfNoPiecesIsRefused)
{
    m_columns[2].isRowTotal = true;

    EXPECT_EQ("3 parts.xyz:1: /2: column \"Weight\": found \"10\", expected 0 in a row of 0 pieces\n",
              faultOf(
                  [this] {
                      read({ { RecordCell(), textCell("0"), textCell("10"), RecordCell() } });
                  }));
}

TEST_F(CellReaderTest, PlainNumbersWithoutAUnitAreRefusedOnce)
{
    m_columns[2].lackingUnit = "m2";

    EXPECT_EQ("3 parts.xyz:2: /2: column \"Weight\": found \"2\", expected a number with its unit: write the heading "
              "\"Weight [m2]\", or give --input-unit %Weight=m2\n",
              faultOf(
                  [this]
                  {
                      read({ { RecordCell(), RecordCell(), RecordCell(), RecordCell() },
                             { RecordCell(), RecordCell(), textCell("2"), RecordCell() },
                             { RecordCell(), RecordCell(), textCell("3"), RecordCell() } });
                  }));
}

TEST_F(CellReaderTest, AColumnThatMustBeNumbersRefusesOtherCells)
{
    m_columns[3].whyNumbers = "the list computes with %Other";

    read({ { RecordCell(), RecordCell(), RecordCell(), textCell("0012") },
           { textCell("A"), RecordCell(), RecordCell(), RecordCell() },
           { RecordCell(), RecordCell(), RecordCell(), textCell("1e2") } });
    EXPECT_EQ("[%Other:12]\n[%Name:A]\n[%Other:100]", rows());
    EXPECT_EQ(VorBomDataValue::kDoubleData, m_facts.find("%Other")->type);

    for (const char* const text : { "n/a", "100,5,5", "NaN", "inf", "1e999", "-" })
        EXPECT_EQ("3 parts.xyz:1: error " + std::string(text == std::string("NaN") ? "MB604" : "MB601") +
                      ": column \"Other\": found \"" + text +
                      "\", expected a number; help: the list computes with %Other\n",
                  faultOf(
                      [this, text] {
                          read({ { RecordCell(), RecordCell(), RecordCell(), textCell(text) } });
                      }));
}

TEST_F(CellReaderTest, KindsThatMixAndWhatIsNotANumberHaveCodesOfTheirOwn)
{
    m_columns[3].whyNumbers = "the list computes with %Other";
    const auto codeOf = [this](const Record& record)
    {
        try
        {
            read({ record });
        }
        catch (const Fault& fault)
        {
            return fault.findings().front().code;
        }
        return std::string();
    };

    EXPECT_EQ("MB601", codeOf({ RecordCell(), RecordCell(), RecordCell(), textCell("n/a") }));
    EXPECT_EQ("MB604", codeOf({ RecordCell(), RecordCell(), RecordCell(), textCell("-nan") }));
    EXPECT_EQ("MB604", codeOf({ RecordCell(), RecordCell(), textCell("NaN"), RecordCell() }));
    EXPECT_EQ("MB604", codeOf({ RecordCell(), textCell("NaN"), RecordCell(), RecordCell() }));
    EXPECT_EQ("MB710", codeOf({ RecordCell(), RecordCell(), textCell("inf"), RecordCell() }));
    EXPECT_EQ("MB709", codeOf({ RecordCell(), textCell("Nam"), RecordCell(), RecordCell() }));
}

TEST_F(CellReaderTest, FactsSayHowFarAndHowFinelyColumnsAreFilled)
{
    read({ { textCell("a"), textCell("4"), textCell("2.50"), textCell("7") },
           { textCell("b"), RecordCell(), RecordCell(0.125), textCell("7.5") },
           { textCell("c"), RecordCell(), RecordCell(), RecordCell() } });

    EXPECT_EQ(3, m_facts.numRows);
    ASSERT_EQ(4u, m_facts.columns.size());
    const auto isColumn = [this](const char* token, VorBomDataValue::eBomDataValueType type, int filled, int decimals)
    {
        const ColumnFacts& facts = *m_facts.find(token);
        return facts.type == type && facts.numFilled == filled && facts.numDecimals == decimals;
    };
    EXPECT_EQ("Weight", m_facts.find("%Weight")->heading);
    EXPECT_TRUE(isColumn("%Name", VorBomDataValue::kStringData, 3, 0));
    EXPECT_TRUE(isColumn("%Quantity", VorBomDataValue::kIntData, 1, 0));
    EXPECT_TRUE(isColumn("%Weight", VorBomDataValue::kDoubleData, 2, 3));
    EXPECT_TRUE(isColumn("%Other", VorBomDataValue::kDoubleData, 2, 1));
}

TEST_F(CellReaderTest, HandlesThatComeAgainAreFound)
{
    m_columns[0].isHandle = true;
    m_columns[0].isWanted = false;

    read({ { textCell("2A0"), RecordCell(), RecordCell(), RecordCell() },
           { RecordCell(7.0), RecordCell(), RecordCell(), RecordCell() },
           { RecordCell(), RecordCell(), RecordCell(), RecordCell(1.0) },
           { textCell("7"), RecordCell(), RecordCell(), RecordCell() } });

    ASSERT_EQ(2u, m_findings.size());
    EXPECT_EQ("MB606", m_findings[0].code);
    EXPECT_EQ("handle \"7\" stands in rows 2 and 4", m_findings[0].statement);
    EXPECT_EQ("row 3 has no handle", m_findings[1].statement);
    EXPECT_EQ("parts.xyz", m_findings[1].source);
}

TEST_F(CellReaderTest, RowsAreNumberedOnRequest)
{
    m_numbersRows = true;

    read({ { textCell("a"), RecordCell(), RecordCell(), RecordCell() },
           { textCell("b"), RecordCell(), RecordCell(), RecordCell() } });

    EXPECT_EQ("[%Handle:1][%Name:a]\n[%Handle:2][%Name:b]", rows());
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
}
}
