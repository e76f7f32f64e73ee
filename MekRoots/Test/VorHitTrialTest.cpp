#include "VorHitTrial.h"

#include <gtest/gtest.h>

namespace
{
VorHitTrial trialOf(int numFound, int numMissed)
{
    VorHitTrial trial(256, 4);
    for (int i = 0; i < numFound; ++i)
        trial.countFind();
    for (int i = 0; i < numMissed; ++i)
        trial.countMiss();
    return trial;
}
}

TEST(VorHitTrialTest, NothingIsDecidedBeforeTheTrialIsOver)
{
    EXPECT_FALSE(trialOf(0, 255).isOver());
    EXPECT_FALSE(trialOf(0, 255).hasFailed());
    EXPECT_TRUE(trialOf(0, 256).hasFailed());
}

TEST(VorHitTrialTest, OneFindAmongSoManyLooksIsEnough)
{
    EXPECT_TRUE(trialOf(63, 193).hasFailed());
    EXPECT_TRUE(trialOf(64, 192).isOver());
    EXPECT_FALSE(trialOf(64, 192).hasFailed());
    EXPECT_FALSE(trialOf(256, 0).hasFailed());
}

TEST(VorHitTrialTest, TrialMayBeginAnew)
{
    VorHitTrial trial = trialOf(3, 253);
    EXPECT_EQ(3, trial.numFound());
    EXPECT_EQ(253, trial.numMissed());

    trial.begin();

    EXPECT_FALSE(trial.isOver());
    EXPECT_FALSE(trial.hasFailed());
}
