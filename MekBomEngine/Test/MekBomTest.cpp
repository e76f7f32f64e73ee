#include "MekBom.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

namespace
{
namespace fs = std::filesystem;

std::string textOf(const fs::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}
}

// Of the libraries below the engine it has what hosts use; of the engine, everything.
TEST(MekBomTest, HasEveryHeaderOfTheEngine)
{
    const std::string header = textOf(fs::path(MEK_ENGINE_DIR) / "Exp" / "MekBom.h");

    for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(MEK_ENGINE_DIR) / "Src"))
        if (entry.path().extension() == ".h")
        {
            const std::string name = entry.path().filename().string();
            EXPECT_NE(std::string::npos, header.find("#include \"MekBomEngine/Src/" + name + "\"\n")) << name;
        }
}

TEST(MekBomTest, IsEnoughForAHost)
{
    const std::unique_ptr<VorBomTemplate> pReport(VorBomTemplate::createDefaultTemplate());
    pReport->setUnitsForTokens(nullptr);
    pReport->findUsedTokens();
    VorBomTemplate result;
    const wchar_t* const names[] = { L"%Weight" };
    const double values[] = { 2.5 };
    double weight = 0;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(pReport.get(), &result));
    EXPECT_EQ(1, evaluateFormula(L"%Weight*4", names, values, 1, &weight));
    EXPECT_EQ(10, weight);
}
