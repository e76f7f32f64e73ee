#include "GroupWeights.h"

#include "Support/EvaluatedList.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// "S235: 2 (2); S355: none": each group with its total as shown and, in kg, as it is.
std::string weightsOf(const std::string& templateText, const std::string& partsText,
                      const VorUnitsManager& units = VorUnitsManager::metric())
{
    const EvaluatedList list(templateText, partsText, units);
    const ListSurvey survey(list.report());
    const GroupWeights weights(list.report(), survey);
    if (weights.column() == nullptr)
        return "no weights";
    std::string text = weights.column()->heading();
    for (const GroupWeight& group : weights.groups())
        text += "; " + group.name + ": " +
                (group.isKnown ? group.text + " (" + std::to_string(group.weight) + ")" : "none");
    return text;
}
}

TEST(GroupWeightsTest, EachGroupHasItsTotal)
{
    EXPECT_EQ(
        "Weight [kg]; S235: 2 (2.000000); S355: 110.5 (110.500000)",
        weightsOf(weightsByMaterial(), "%Name,%Material,%Weight\nHEA200,S355,10.5\nIPE360,S235,2\nIPE450,S355,100\n"));
}

TEST(GroupWeightsTest, TotalsMayBeNothingLessOrMissing)
{
    EXPECT_EQ("Weight [kg]; A: -4 (-4.000000); B: 0 (0.000000); C: none",
              weightsOf(weightsByMaterial(), "%Name,%Material,%Weight\nx,A,-4\nx,B,0\nx,C,\n"));
}

TEST(GroupWeightsTest, WeightsAreComparedInKilograms)
{
    EXPECT_EQ("Weight [lb]; A: 2.2 (1.000000); B: 4.4 (2.000000)",
              weightsOf(weightsByMaterial(), "%Name,%Material,%Weight\nx,A,1\nx,B,2\n", VorUnitsManager::imperial()));
}

TEST(GroupWeightsTest, OneGroupIsNotCompared)
{
    EXPECT_EQ("no weights", weightsOf(weightsByMaterial(), "%Name,%Material,%Weight\nx,A,1\n"));
    EXPECT_EQ("no weights", weightsOf(weightsByMaterial(), "%Name,%Material,%Weight\n"));
}

TEST(GroupWeightsTest, AValueThatIsNoTotalIsNone)
{
    std::string values = weightsByMaterial();
    for (std::size_t at = values.find("%SumBy:"); at != std::string::npos; at = values.find("%SumBy:"))
        values.erase(at, 7);

    EXPECT_EQ("no weights", weightsOf(values, "%Name,%Material,%Weight\nx,A,1\nx,B,2\n"));
}

TEST(GroupWeightsTest, NumbersNameNoGroup)
{
    const char* const assemblies = R"({ "equalLines": "keep", "sections": [
        { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%MNum" }, { "token": "%SortAscBy:%MNum" },
            { "token": "%MNum" }, { "token": "%MQuantity" }, { "token": "%MName" } ],
          "children": [ { "type": "kDetails", "tuples": [ { "token": "%Weight" } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";

    EXPECT_EQ("Weight [kg]; B2 Rafter: 7 (7.000000); B10: 1 (1.000000)",
              weightsOf(assemblies, "%MNum,%MQuantity,%MName,%Weight\nB10,1,,1\nB2,2,Rafter,7\n"));
}
}
