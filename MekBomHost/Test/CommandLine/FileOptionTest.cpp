#include "FileOption.h"

#include "Support/HostTestSupport.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
class FileOptionTest : public testing::Test
{
protected:
    FileOptionTest() { m_output.declareOn(m_app, "File to write"); }

    CLI::App m_app;
    FileOption m_output{ "-o,--output", "FILE" };
};
}

TEST_F(FileOptionTest, TheFileIsNamedUnderEitherName)
{
    EXPECT_EQ("", m_output.name());
    for (const char* const arguments : { "-o list.txt", "--output list.txt", "--output=list.txt" })
    {
        m_app.parse(arguments);
        EXPECT_EQ("list.txt", m_output.name()) << arguments;
    }
    EXPECT_EQ("--output", m_output.option());
}

TEST_F(FileOptionTest, ASecondFileIsRefused)
{
    m_app.parse("-o a.txt --output b.txt");

    EXPECT_EQ("2 --output: found \"b.txt\" beside \"a.txt\", expected one file\n",
              faultOf([this] { m_output.name(); }));
}

TEST_F(FileOptionTest, SeveralFilesAreNamedInTheirOrder)
{
    EXPECT_TRUE(m_output.names().empty());
    m_app.parse("-o b.txt --output a.txt -o b.txt");

    EXPECT_EQ(std::vector<std::string>({ "b.txt", "a.txt", "b.txt" }), m_output.names());
}

TEST_F(FileOptionTest, AFurtherWordIsNone)
{
    EXPECT_THROW(m_app.parse("-o a.txt b.txt"), CLI::ExtrasError);
    EXPECT_THROW(m_app.parse("-o"), CLI::ArgumentMismatch);
}

TEST_F(FileOptionTest, HelpShowsOneFile)
{
    EXPECT_NE(std::string::npos, m_app.help().find("--output FILE  "));
}
}
