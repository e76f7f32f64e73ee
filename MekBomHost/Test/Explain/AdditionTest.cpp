#include "Addition.h"

#include "TemplateLevels.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
const char* const kRounded = " (the numbers are rounded for the list; the total is the sum of those behind them)";

class AdditionTest : public testing::Test
{
protected:
    const ExplainedParts m_parts{ partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts };
    const TemplateLevels m_levels{ *m_parts.explained().reportTemplate.pTemplate };
    const ListNumbers m_weights{ m_parts.explained(), *m_levels.section({ 2, false }), 2, m_parts.line(2).values[3],
                                 m_parts.report().columns()[3] };
    Addition m_addition{ m_weights };
};
}

TEST_F(AdditionTest, SummandsAreWrittenOut)
{
    for (const double weight : { 250.0, 250.0, 14.0 })
        m_addition.add(weight);

    EXPECT_EQ("250 + 250 + 14 = 514 kg", m_addition.text("514"));
}

TEST_F(AdditionTest, OfManySummandsTheRestIsOneNumber)
{
    for (int i = 0; i < 117; ++i)
        m_addition.add(1.5);

    const std::string text = m_addition.text("175.5");

    EXPECT_EQ("1.5 + 1.5 + ... 97 more (145.5) = 175.5 kg", text.substr(text.size() - 42));
    EXPECT_EQ(0U, text.find("1.5 + 1.5 + 1.5"));
}

TEST_F(AdditionTest, NumbersThatDoNotAddUpAsTheyReadAreToldToBeRounded)
{
    for (int i = 0; i < 3; ++i)
        m_addition.add(100.0 / 3);

    EXPECT_EQ(std::string("33.33 + 33.33 + 33.33 = 100 kg") + kRounded, m_addition.text("100"));
}

TEST_F(AdditionTest, NothingIsAddedUpOfNoRows)
{
    EXPECT_EQ("0 kg, of no rows", m_addition.text("0"));
}
}
