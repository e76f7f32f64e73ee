#include "Excuses.h"

#include "MistakeCodes.h"
#include "TemplateCheck.h"

#include "Support/CheckedText.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace mekbom
{
TEST(ExcusesTest, TheTemplateAndTheCallerExcuse)
{
    const Excuses excuses({ { "MB209", "rounded" } }, { "MB105" });
    const std::vector<Finding> findings = { Finding::stating(MistakeCodes::kGroupingByFloat, "one"),
                                            Finding::stating(MistakeCodes::kDetailsEmpty, "two"),
                                            Finding::stating(MistakeCodes::kThirdSection, "three") };

    EXPECT_TRUE(excuses.cover("MB209"));
    EXPECT_FALSE(excuses.cover("MB102"));
    EXPECT_EQ("error MB102: three\n", linesOf(excuses.without(findings)));
}

TEST(ExcusesTest, WhatIsNoCodeIsNamed)
{
    EXPECT_EQ("2 --allow: found \"MB999\", expected the code of a mistake, such as \"MB105\"\n",
              faultOf(
                  [] {
                      Excuses({}, { "MB105", "MB999" });
                  }));
    EXPECT_NE("", faultOf([] { Excuses({}, { "MB805" }); }));
}

// Frozen: a rule that trips on the built-in template, or no longer does, is to be looked at.
TEST(ExcusesTest, TheBuiltInTemplateTripsWhatItExcusesAndNothingElse)
{
    ReportTemplate builtIn;
    builtIn.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    std::set<std::string> tripped;
    for (const Finding& finding : TemplateCheck::run(builtIn, KnownTokens(builtIn, {}), false))
        tripped.insert(finding.code);

    std::set<std::string> excused;
    for (const auto& [code, reason] : excusesOfBuiltInTemplate())
        excused.insert(code);
    EXPECT_EQ(excused, tripped);
}

TEST(ExcusesTest, TheFileOfTheBuiltInTemplateExcusesTheSame)
{
    const std::string text = readFile(MEK_EXAMPLES_DIR "/Templates/default.json");

    EXPECT_EQ(excusesOfBuiltInTemplate(), TemplateReader::read("default.json", text).allowed);
}
}
