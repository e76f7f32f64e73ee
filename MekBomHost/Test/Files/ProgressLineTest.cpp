#include "ProgressLine.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>

namespace mekbom
{
namespace
{
using std::chrono::milliseconds;

// A terminal whose clock goes as the test says.
class ProgressLineTest : public testing::Test
{
protected:
    ProgressLine::Terminal terminal(bool isThere = true)
    {
        return { isThere, [this] { return m_now; }, [this](std::string_view text) { m_written += text; } };
    }

    void wait(milliseconds time) { m_now += time; }

    // What has been written since it was asked for last.
    std::string written()
    {
        std::string text;
        text.swap(m_written);
        return text;
    }

private:
    ProgressLine::Clock::time_point m_now;
    std::string m_written;
};
}

TEST_F(ProgressLineTest, NothingIsDueInTheFirstTwoSeconds)
{
    const ProgressLine line(terminal());

    EXPECT_TRUE(line.isThere());
    EXPECT_FALSE(line.isDue());
    wait(milliseconds(1999));
    EXPECT_FALSE(line.isDue());
    wait(milliseconds(1));
    EXPECT_TRUE(line.isDue());
}

TEST_F(ProgressLineTest, ATextIsDueFiveTimesASecond)
{
    ProgressLine line(terminal());
    wait(ProgressLine::kWait);

    line.show("10 rows");
    EXPECT_FALSE(line.isDue());
    wait(milliseconds(199));
    EXPECT_FALSE(line.isDue());
    wait(milliseconds(1));
    EXPECT_TRUE(line.isDue());
}

TEST_F(ProgressLineTest, ATextStandsInThePlaceOfTheOneBefore)
{
    ProgressLine line(terminal());

    line.show("100 rows");
    line.show("99");

    EXPECT_EQ("\r100 rows\033[K\r99\033[K", written());
}

TEST_F(ProgressLineTest, NothingRemains)
{
    {
        ProgressLine line(terminal());
        line.show("10 rows");
        written();
        line.erase();
        EXPECT_EQ("\r\033[K", written());
        line.erase();
        EXPECT_EQ("", written()) << "what stands there now is not its own";
        line.show("20 rows");
        written();
    }
    EXPECT_EQ("\r\033[K", written());
}

TEST_F(ProgressLineTest, WithoutATextNothingIsWritten)
{
    {
        const ProgressLine line(terminal());
        wait(ProgressLine::kWait);
    }
    EXPECT_EQ("", written());
}

TEST_F(ProgressLineTest, NothingIsShownWhereThereIsNoTerminal)
{
    ProgressLine line(terminal(false));
    wait(ProgressLine::kWait);

    EXPECT_FALSE(line.isThere());
    EXPECT_FALSE(line.isDue());
    line.show("10 rows");
    line.erase();
    EXPECT_EQ("", written());
}
}
