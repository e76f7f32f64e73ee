#include "FormulaWalk.h"

#include "EngineReading.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// Writes what it is asked for, in the order in which it is asked.
struct Recorder
{
    std::string ofNothing() { return record("nothing"); }
    std::string ofNumber(const FormulaNode& node) { return record(std::to_string(static_cast<int>(node.number))); }
    std::string ofName(const VorString& name) { return record(std::string(1, static_cast<char>(*name.getStringW()))); }
    std::string combine(const FormulaNode& node, const std::string& left, const std::string& right)
    {
        return record(left + static_cast<char>(node.operation) + right);
    }

    std::string record(const std::string& text)
    {
        asked += text + " ";
        return text;
    }

    std::string asked;
};

// What the walk gives, behind what it asked for.
std::string walk(const wchar_t* formula)
{
    Recorder recorder;
    const std::string result = FormulaWalk<std::string, Recorder>(recorder).run(EngineReading::read(formula).tree);
    return recorder.asked + "-> " + result;
}
}

TEST(FormulaWalkTest, BothSidesComeBeforeTheirOperator)
{
    EXPECT_EQ("nothing 2 3 a 3+a 2*3+a -> 2*3+a", walk(L"2*(3+a)"));
    EXPECT_EQ("nothing nothing a nothing-a -> nothing-a", walk(L"-a"));
}

TEST(FormulaWalkTest, AMissingSideIsNothing)
{
    EXPECT_EQ("nothing 5 nothing nothing*5 -> nothing*5", walk(L"5*"));
    EXPECT_EQ("nothing -> nothing", walk(L"()"));
}

TEST(FormulaWalkTest, AssignedNamesAreNotAskedFor)
{
    EXPECT_EQ("nothing 4 2 4*2 -> 4*2", walk(L"a=4;a*2"));
    EXPECT_EQ("nothing 4 -> 4", walk(L"a=4;"));
}

TEST(FormulaWalkTest, TheNameAssignedLastCounts)
{
    EXPECT_EQ("nothing 4 5 1 5+1 -> 5+1", walk(L"a=4;a=5;a+1"));
    EXPECT_EQ("nothing a 2 a*2 1 a*2+1 -> a*2+1", walk(L"a=a*2;a+1"));
}
}
