#include "ListNumbers.h"

#include "TemplateLevels.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
// Of the weights of the details, in column 3.
ListNumbers weightsOf(const ExplainedParts& parts)
{
    const TemplateLevels levels(*parts.explained().reportTemplate.pTemplate);
    return ListNumbers(parts.explained(), *levels.section({ 2, false }), 2, parts.line(2).values[3],
                       parts.report().columns()[3]);
}
}

TEST(ListNumbersTest, NumbersReadAsTheListShowsThem)
{
    const ExplainedParts metric(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);
    const ExplainedParts imperial(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts, "imperial");

    EXPECT_EQ("366.59", weightsOf(metric).textOf(366.59));
    EXPECT_EQ("808.2", weightsOf(imperial).textOf(366.59));
    EXPECT_EQ(metric.line(2).texts[3].view(), weightsOf(metric).textOf(366.59));
    EXPECT_EQ(imperial.line(2).texts[3].view(), weightsOf(imperial).textOf(366.59));
}

TEST(ListNumbersTest, TheUnitStandsBehindOnce)
{
    const ExplainedParts imperial(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts, "imperial");

    EXPECT_EQ("808.2 lb", weightsOf(imperial).withUnit("808.2"));
    EXPECT_EQ("808.2 lb", weightsOf(imperial).withUnit("808.2 lb"));
}

TEST(ListNumbersTest, TextsAreReadBackInTheUnitOfTheList)
{
    const ExplainedParts imperial(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts, "imperial");

    EXPECT_DOUBLE_EQ(0.45359237 * 1808.2, weightsOf(imperial).valueOf("1 808.2").value());
    EXPECT_FALSE(weightsOf(imperial).valueOf("heavy").has_value());
}

TEST(ListNumbersTest, WholeNumbersHaveNoUnit)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts, "imperial");
    const TemplateLevels levels(*parts.explained().reportTemplate.pTemplate);
    const ListNumbers pieces(parts.explained(), *levels.section({ 2, false }), 1, parts.line(2).values[2],
                             parts.report().columns()[2]);

    EXPECT_EQ("12", pieces.textOf(12));
    EXPECT_EQ("12", pieces.withUnit("12"));
    EXPECT_EQ(12, pieces.valueOf("12").value());
}
}
