#include "BatchesAhead.h"

#include "RowBuilder.h"
#include "Utf8.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

namespace mekbom
{
namespace
{
// Numbers its records and hands each over as a name and a length; throws in place of one of them if it is told to. Knows
// how many were asked for on another thread than the one it was made on.
class NumberedSource : public RecordSource
{
public:
    explicit NumberedSource(int numRecords, int badRecord = 0) : m_numRecords(numRecords), m_badRecord(badRecord) {}

    const std::string& name() const override { return m_name; }

    const Record* next() override
    {
        if (m_number == m_numRecords)
            return nullptr;
        ++m_number;
        if (std::this_thread::get_id() != m_maker)
            ++numReadElsewhere;
        if (m_number == m_badRecord)
            throw std::runtime_error("record " + std::to_string(m_number));
        m_text = "a name beyond a word " + std::to_string(m_number);
        m_record = { RecordCell(std::string_view(m_text)), RecordCell(m_number + 0.5) };
        return &m_record;
    }

    void placeRecord(Finding& finding) const override { finding.begin.line = m_number; }
    void placeCell(std::size_t, Finding& finding) const override { placeRecord(finding); }

    int numReadElsewhere = 0;

private:
    std::string m_name = "parts";
    int m_numRecords;
    int m_badRecord;
    int m_number = 0;
    std::string m_text;
    Record m_record;
    std::thread::id m_maker = std::this_thread::get_id();
};

class BatchesAheadTest : public testing::Test
{
protected:
    BatchesAheadTest() : m_columns(2)
    {
        m_columns[0].tupleToken = L"%Name";
        m_columns[0].type = VorBomDataValue::kStringData;
        m_columns[1].tupleToken = L"%Length";
        m_columns[1].type = VorBomDataValue::kDoubleData;
        for (InputColumn& column : m_columns)
            column.isWanted = true;
    }

    // The rows as text; behind those that came before it, what was thrown.
    std::string rowsOf(NumberedSource& source, unsigned numProcessors)
    {
        VorBomData data;
        RowBuilder rows(data, m_columns.size());
        std::string error;
        try
        {
            CellReader cells(m_columns, source);
            BatchesAhead batches(cells, m_columns.size(), numProcessors);
            while (const RowBatch* const pBatch = batches.next())
                rows.build(*pBatch);
            cells.finish(data);
        }
        catch (const std::runtime_error& thrown)
        {
            error = thrown.what();
        }
        VorString text;
        if (data.child() != nullptr)
            data.child()->list(text, 0, 1, 1);
        data.empty();
        return Utf8::toBytes(text) + "\n" + error;
    }

    std::string rowsOf(int numRecords, int badRecord, unsigned numProcessors)
    {
        NumberedSource source(numRecords, badRecord);
        return rowsOf(source, numProcessors);
    }

    std::vector<InputColumn> m_columns;
};

// More rows than are read before a thread is started and than it can be ahead.
const int kLong = 15'000;
}

TEST_F(BatchesAheadTest, AShortListIsReadOnTheCallersThread)
{
    NumberedSource source(5'000);

    rowsOf(source, 8);

    EXPECT_EQ(0, source.numReadElsewhere);
}

TEST_F(BatchesAheadTest, ALongListIsReadOnAThreadOfItsOwnWhereThereIsAProcessorForIt)
{
    NumberedSource source(kLong);
    NumberedSource same(kLong);

    const std::string rows = rowsOf(source, 1);

    EXPECT_EQ(0, source.numReadElsewhere);
    EXPECT_EQ(rows, rowsOf(same, 2));
    EXPECT_LT(1'000, same.numReadElsewhere);
}

TEST_F(BatchesAheadTest, AnErrorComesBehindTheRowsBeforeItAtAnyBatchBorder)
{
    const int numRows = RowBatch::kMostRows;
    for (const int numBatches : { 1, 2, 16, 17, 18, 22 })
        for (const int badRecord : { numBatches * numRows, numBatches * numRows + 1 })
            EXPECT_EQ(rowsOf(kLong, badRecord, 1), rowsOf(kLong, badRecord, 2)) << badRecord;
}

TEST_F(BatchesAheadTest, WhoWantsNoMoreNeedNotTakeTheRest)
{
    NumberedSource source(kLong);
    CellReader cells(m_columns, source);
    {
        BatchesAhead batches(cells, m_columns.size(), 2);
        for (int i = 0; i < 18; ++i)
            ASSERT_NE(nullptr, batches.next());
    }
    EXPECT_LT(0, source.numReadElsewhere);
    EXPECT_NE(nullptr, source.next());
}
}
