#include "VerbList.h"

#include "FindingList.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace mekbom
{
namespace
{
// Notes the word it was called with.
class EchoVerb : public Verb
{
public:
    explicit EchoVerb(std::string name) : m_name(std::move(name)) {}

    CLI::App& declareOn(CLI::App& parent) override
    {
        CLI::App& echo = *parent.add_subcommand(m_name, "Say " + m_name);
        echo.add_option("word", m_word);
        return echo;
    }

    ExitStatus run(FindingList& findings) override
    {
        Finding finding;
        finding.severity = Finding::kNote;
        finding.statement = m_name + " " + m_word;
        findings.add(finding);
        return kDone;
    }

private:
    std::string m_name;
    std::string m_word;
};

class VerbListTest : public testing::Test
{
protected:
    VerbListTest()
    {
        m_verbs.add(std::make_unique<EchoVerb>("hum"));
        m_verbs.add(std::make_unique<EchoVerb>("sing"));
        m_verbs.declareOn(m_app);
    }

    CLI::App m_app;
    VerbList m_verbs;
};
}

TEST_F(VerbListTest, TheVerbThatWasCalledRunsWithItsOptions)
{
    m_app.parse("sing la");

    FindingList findings;
    ASSERT_NE(nullptr, m_verbs.called());
    EXPECT_EQ(kDone, m_verbs.called()->run(findings));
    ASSERT_EQ(1u, findings.all().size());
    EXPECT_EQ("sing la", findings.all()[0].statement);
}

TEST_F(VerbListTest, WithoutACallThereIsNone)
{
    EXPECT_EQ(nullptr, m_verbs.called());
    m_app.parse("");
    EXPECT_EQ(nullptr, m_verbs.called());
}

TEST_F(VerbListTest, HelpListsTheVerbsInTheirOrder)
{
    const std::string help = m_app.help();

    EXPECT_LT(help.find("Say hum"), help.find("Say sing"));
    EXPECT_NE(std::string::npos, help.find("Say sing"));
}
}
