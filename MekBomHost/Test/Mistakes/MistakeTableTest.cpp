#include "MistakeTable.h"

#include "MemorySource.h"
#include "MistakeCodes.h"
#include "MistakePage.h"
#include "ReportJob.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// What is found in a template and, where there are some, in data: all that a report or a check would tell.
std::vector<Finding> findingsIn(const std::string& templateText, const std::string& rows)
{
    ReportRequest request;
    request.pTemplate = std::make_unique<MemorySource>("list.json", templateText);
    if (!rows.empty())
        request.parts.push_back(std::make_unique<MemorySource>("parts.csv", rows));
    ReportJob job(std::move(request));
    job.check();
    return job.findings().all();
}

bool trips(const std::string& templateText, const std::string& rows, const std::string& code)
{
    const std::vector<Finding> findings = findingsIn(templateText, rows);
    return std::any_of(findings.begin(), findings.end(),
                       [&code](const Finding& finding) { return finding.code == code; });
}

std::string messagesOf(const std::vector<Finding>& findings)
{
    std::string messages;
    for (const Finding& finding : findings)
        messages += messageOf(finding) + "\n";
    return messages;
}
}

TEST(MistakeTableTest, EveryCodeIsInTheTableOnce)
{
    std::vector<std::string> expected;
    for (const FindingCode& code : MistakeCodes::all())
        expected.push_back(code.name);
    std::vector<std::string> found;
    for (const Mistake& mistake : MistakeTable::all())
        found.push_back(mistake.pCode->name);
    EXPECT_EQ(expected, found);
}

TEST(MistakeTableTest, EveryMistakeIsToldInFull)
{
    for (const Mistake& mistake : MistakeTable::all())
    {
        EXPECT_FALSE(mistake.writes.empty()) << mistake.pCode->name;
        EXPECT_EQ('.', mistake.happens.back()) << mistake.pCode->name;
        EXPECT_EQ('.', mistake.fix.back()) << mistake.pCode->name;
        EXPECT_TRUE(mistake.bad != mistake.good || mistake.badRows != mistake.goodRows || mistake.needsForeignRows)
            << mistake.pCode->name;
    }
}

TEST(MistakeTableTest, TheBadTemplateTripsItsRule)
{
    for (const Mistake& mistake : MistakeTable::all())
        if (!mistake.needsForeignRows)
        {
            EXPECT_TRUE(trips(mistake.bad, mistake.badRows, mistake.pCode->name))
                << mistake.pCode->name << "\n"
                << messagesOf(findingsIn(mistake.bad, mistake.badRows));
        }
}

TEST(MistakeTableTest, TheGoodTemplateTripsNoRuleAtAll)
{
    for (const Mistake& mistake : MistakeTable::all())
        EXPECT_EQ("", messagesOf(findingsIn(mistake.good, mistake.goodRows))) << mistake.pCode->name;
}

TEST(MistakeTableTest, EveryFindingSaysWhatToWriteInstead)
{
    for (const Mistake& mistake : MistakeTable::all())
        for (const Finding& finding : findingsIn(mistake.bad, mistake.badRows))
            if (MistakeCodes::has(finding.code))
            {
                EXPECT_FALSE(finding.remedy.empty()) << messageOf(finding);
                EXPECT_TRUE(finding.begin.line > 0 || finding.source == "parts.csv") << messageOf(finding);
                EXPECT_TRUE(finding.source == "list.json" || finding.source == "parts.csv") << messageOf(finding);
            }
}

TEST(MistakePageTest, TheDocumentIsThePageOfAllMistakes)
{
    const std::string file = MEK_EXAMPLES_DIR "/../Docs/MISTAKES.md";
    const char* const pRewrite = std::getenv("MEK_REWRITE_CASES");
    if (pRewrite != nullptr && std::string(pRewrite) == "1")
        writeFile(file, MistakePage::ofAll());
    EXPECT_EQ(readFile(file), MistakePage::ofAll()) << "mekbom check --explain all > Docs/MISTAKES.md";
}

TEST(MistakePageTest, OneRuleIsItsPartOfThePage)
{
    const std::string page = MistakePage::of("MB105");

    EXPECT_EQ(0u, page.find("# MB105: A details section shows nothing"));
    EXPECT_NE(std::string::npos, MistakePage::ofAll().find("##" + page));
    EXPECT_EQ("", MistakePage::of("MB999"));
}
}
