#include "ProgressRelay.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace mekbom
{
namespace
{
class Steps : public RowProgress
{
public:
    void take(eStep step, std::size_t numRowsDone) override
    {
        EXPECT_EQ(kEvaluating, step);
        rows.push_back(numRowsDone);
    }

    std::vector<std::size_t> rows;
};

class Sink : public VorBomSectionSink
{
public:
    void takeHeader(const VorBomReportSection&) override {}
    void takeFooter(const VorBomReportSection&) override {}
    int takeProgress(int numRowsDone) override { return numRowsDone < 3000 ? 1 : 0; }
};
}

TEST(ProgressRelayTest, ManyRowsAreToldAtOnceAndTheNextSinkMayStop)
{
    Sink sink;
    Steps steps;
    ProgressRelay relay(sink, steps);

    int numRows = 0;
    while (relay.takeProgress(numRows) == 1)
        ++numRows;

    EXPECT_EQ(3000, numRows);
    EXPECT_EQ(std::vector<std::size_t>({ 0, 1024, 2048 }), steps.rows);
}
}
