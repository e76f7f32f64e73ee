#include "TableRecords.h"

#include "Support/FakeSource.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(TableRecordsTest, TheHeadingsComeFirstAndThenTheRows)
{
    RowTable table("model", { "Name", "Length" });
    table.add({ textCell("HEA200"), RecordCell(6000.0) });
    TableRecords records(table);

    const Record* pRecord = records.next();
    ASSERT_NE(nullptr, pRecord);
    EXPECT_EQ("Name", (*pRecord)[0].text());
    EXPECT_EQ("Length", (*pRecord)[1].text());
    pRecord = records.next();
    ASSERT_NE(nullptr, pRecord);
    EXPECT_EQ("HEA200", (*pRecord)[0].text());
    EXPECT_EQ(6000.0, (*pRecord)[1].number());
    EXPECT_EQ(nullptr, records.next());
    EXPECT_EQ(nullptr, records.next());
}

TEST(TableRecordsTest, MessagesCountItsRows)
{
    RowTable table("model", { "Name" });
    table.add({ textCell("A") });
    table.add({ textCell("B") });
    TableRecords records(table);

    Finding finding;
    records.next();
    records.placeRecord(finding);
    EXPECT_EQ("model", finding.source);
    EXPECT_EQ("", finding.path) << "of the headings";
    records.next();
    records.next();
    records.placeCell(0, finding);
    EXPECT_EQ("row 2", finding.path);
}
}
