#include "ConfigurationFiles.h"

#include "Support/EnvironmentVariable.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Paths = std::vector<std::string>;

// A user's folder with a configuration of its own, and one for templates.
class ConfigurationFilesTest : public testing::Test
{
protected:
    ConfigurationFilesTest() : m_home("XDG_CONFIG_HOME", m_folder.path().string())
    {
        std::filesystem::create_directories(m_folder / "mekbom");
        std::filesystem::create_directories(m_folder / "lists");
    }

    void configureUser(const std::string& text) const { writeFile(m_folder / "mekbom" / "config.ini", text); }
    void configureFolder(const std::string& text) const { writeFile(m_folder / "lists" / "mekbom.ini", text); }
    std::string templateFile() const { return (m_folder / "lists" / "list.json").string(); }

    ScratchFolder m_folder;
    EnvironmentVariable m_home;
};
}

TEST_F(ConfigurationFilesTest, TheFolderOfTheTemplateComesBehindThatOfTheUser)
{
    const std::string ofUser = (m_folder / "mekbom" / "config.ini").string();

    EXPECT_EQ(Paths({ ofUser, (m_folder / "lists" / "mekbom.ini").string() }),
              ConfigurationFiles::pathsFor(templateFile()));
    EXPECT_EQ(Paths({ ofUser, "mekbom.ini" }), ConfigurationFiles::pathsFor("list.json"));
    EXPECT_EQ(Paths({ ofUser, "./mekbom.ini" }), ConfigurationFiles::pathsFor("./bolt-list"));
}

TEST_F(ConfigurationFilesTest, ListsThatAreNoFilesOfTheUserHaveNone)
{
    for (const char* const name : { "", "default", "bolt-list" })
        EXPECT_EQ(1U, ConfigurationFiles::pathsFor(name).size()) << name;
}

TEST_F(ConfigurationFilesTest, WithoutTheVariableTheHomeIsTaken)
{
    const EnvironmentVariable home("HOME", "/home/ann");
    for (const char* const value : { "", "relative/folder" })
    {
        const EnvironmentVariable configured("XDG_CONFIG_HOME", value);
        EXPECT_EQ(Paths({ "/home/ann/.config/mekbom/config.ini" }), ConfigurationFiles::pathsFor("")) << value;
    }
    const EnvironmentVariable configured("XDG_CONFIG_HOME", "");
    const EnvironmentVariable none("HOME", "");
    EXPECT_EQ(Paths(), ConfigurationFiles::pathsFor(""));
}

TEST_F(ConfigurationFilesTest, FilesThatAreMissingSayNothing)
{
    EXPECT_TRUE(ConfigurationFiles::readFor(templateFile()).files().empty());
    EXPECT_TRUE(ConfigurationFiles::readFor("/no/such/folder/list.json").files().empty());
}

TEST_F(ConfigurationFilesTest, TheNearerFileWins)
{
    configureUser("units = imperial\npaper = letter\n");
    configureFolder("units = metric\n");

    EXPECT_EQ("imperial", ConfigurationFiles::readFor("bolt-list").units());
    EXPECT_EQ("metric", ConfigurationFiles::readFor(templateFile()).units());
    EXPECT_EQ(kLetterPaper, ConfigurationFiles::readFor(templateFile()).output().paper);
}

TEST_F(ConfigurationFilesTest, FilesThatCannotBeReadAreAnError)
{
    const std::string path = (m_folder / "lists" / "mekbom.ini").string();
    std::filesystem::create_directory(path);

    EXPECT_EQ("3 " + path + ": cannot be read: Is a directory\n",
              faultOf([this] { ConfigurationFiles::readFor(templateFile()); }));
}

TEST_F(ConfigurationFilesTest, MistakesNameTheirFile)
{
    configureUser("\npaper = a3\n");

    EXPECT_EQ("3 " + (m_folder / "mekbom" / "config.ini").string() +
                  ":2: found \"a3\" for paper, expected one of a4 letter\n",
              faultOf([] { ConfigurationFiles::readFor(""); }));
}
}
