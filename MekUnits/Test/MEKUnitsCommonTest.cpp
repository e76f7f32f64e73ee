#include "MekRoots/Exp/MEKUnitsCommon.h"

#include "MekRoots/Exp/VorUnitsManager.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <atomic>
#include <thread>
#include <vector>

namespace
{
// Leaves the process with the units it starts with.
class MEKUnitsCommonTest : public testing::Test
{
protected:
    ~MEKUnitsCommonTest() override { MEKUnitsCommon::setCurrentUnits(VorUnitsManager::metric()); }
};
using MEKUnitsCommonThreadTest = MEKUnitsCommonTest;

using Query = int (*)(MEKUnit&);
struct QueryCase
{
    Query query;
    VorUnitsTransformArray::eSystems system;
};
const QueryCase kQueries[] = {
    { MEKUnitsCommon::getUnitOfDistance, VorUnitsTransformArray::kDistance },
    { MEKUnitsCommon::getUnitOfWeight, VorUnitsTransformArray::kWeight },
    { MEKUnitsCommon::getUnitOfArea, VorUnitsTransformArray::kArea },
    { MEKUnitsCommon::getUnitOfAngle, VorUnitsTransformArray::kAngle },
    { MEKUnitsCommon::getUnitOfWeightPerDistance, VorUnitsTransformArray::kWeightPerDistance },
    { MEKUnitsCommon::getUnitOfAreaPerDistance, VorUnitsTransformArray::kAreaPerDistance },
    { MEKUnitsCommon::getUnitOfDensity, VorUnitsTransformArray::kDensity },
};

void expectCurrent(const VorUnitsManager& units)
{
    for (const QueryCase& c : kQueries)
    {
        MEKUnit unit(2000, 2000, 9); // radians, in neither preset
        EXPECT_EQ(1, c.query(unit));
        EXPECT_EQ(units.getUnit(c.system).unit(), unit.unit());
        EXPECT_EQ(units.getUnit(c.system).inputUnit(), unit.inputUnit());
        EXPECT_EQ(units.getUnit(c.system).format(), unit.format());
    }
}

TEST_F(MEKUnitsCommonTest, UnitsStartAsMetric)
{
    expectCurrent(VorUnitsManager::metric());
}

TEST_F(MEKUnitsCommonTest, EveryKindFollowsTheUnitsThatAreSet)
{
    MEKUnitsCommon::setCurrentUnits(VorUnitsManager::imperial());

    expectCurrent(VorUnitsManager::imperial());
}

TEST_F(MEKUnitsCommonTest, ACopyIsTaken)
{
    VorUnitsManager units = VorUnitsManager::imperial();
    MEKUnitsCommon::setCurrentUnits(units);

    units.setUnit(VorUnitsTransformArray::kDistance, MEKUnit(3, 3, 0));

    expectCurrent(VorUnitsManager::imperial());
}

// Readers see the old unit or the new one, never a mixture of both.
TEST_F(MEKUnitsCommonThreadTest, ReadersSeeWholeUnitsWhileTheyAreSet)
{
    std::atomic<bool> isDone{ false };
    std::atomic<int> numWrong{ 0 };
    std::vector<std::thread> readers;
    for (int t = 0; t < 3; ++t)
        readers.emplace_back(
            [&]
            {
                MEKUnit unit(3, 3, 2);
                while (!isDone)
                {
                    MEKUnitsCommon::getUnitOfDistance(unit);
                    const VorString text = unit.getVorUnitTransform().formatValue(2286.0, 1, 0, 1, 1, L'-');
                    if (text != VorString(unit.unit() == 3 ? L"2286" : L"7'-6\""))
                        ++numWrong;
                }
            });
    for (int i = 0; i < 2000; ++i)
        MEKUnitsCommon::setCurrentUnits(i % 2 == 0 ? VorUnitsManager::imperial() : VorUnitsManager::metric());
    isDone = true;
    for (std::thread& reader : readers)
        reader.join();

    EXPECT_EQ(0, numWrong.load());
    expectCurrent(VorUnitsManager::metric());
}
}
