#include "OutputFile.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

std::ptrdiff_t numFilesIn(const ScratchFolder& folder)
{
    return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
}

void writeThrough(const std::string& path, const std::string& text)
{
    OutputFile file(path);
    file.write(text);
    file.finish();
}
}

TEST(OutputFileTest, TheFileIsThereOnceFinished)
{
    const ScratchFolder folder;
    OutputFile file((folder / "list.txt").string());
    file.write("one\n");
    file.write("two\n");
    EXPECT_FALSE(fs::exists(folder / "list.txt"));

    file.finish();

    EXPECT_EQ("one\ntwo\n", readFile(folder / "list.txt"));
    EXPECT_EQ(1, numFilesIn(folder));
}

TEST(OutputFileTest, WithoutFinishNothingHasHappened)
{
    const ScratchFolder folder;
    const std::string path = folder.file("list.txt", "old");
    {
        OutputFile file(path);
        file.write("new");
        EXPECT_EQ("old", readFile(path));
    }

    EXPECT_EQ("old", readFile(path));
    EXPECT_EQ(1, numFilesIn(folder));
}

TEST(OutputFileTest, AnExistingFileIsReplacedAndKeepsItsRights)
{
    const ScratchFolder folder;
    const std::string path = folder.file("list.txt", "old and longer");
    const fs::perms rights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(path, rights);

    writeThrough(path, "new");

    EXPECT_EQ("new", readFile(path));
    EXPECT_EQ(rights, fs::status(path).permissions());
}

TEST(OutputFileTest, ASymbolicLinkStaysOne)
{
    const ScratchFolder folder;
    const std::string path = folder.file("list.txt", "old");
    fs::create_symlink("list.txt", folder / "latest.txt");

    writeThrough((folder / "latest.txt").string(), "new");

    EXPECT_TRUE(fs::is_symlink(folder / "latest.txt"));
    EXPECT_EQ("new", readFile(path));
}

TEST(OutputFileTest, LeftoversOfAbortedRunsAreNotTouched)
{
    const ScratchFolder folder;
    folder.file("list.txt.mekbom0.tmp", "leftover");

    writeThrough((folder / "list.txt").string(), "new");

    EXPECT_EQ("new", readFile(folder / "list.txt"));
    EXPECT_EQ("leftover", readFile(folder / "list.txt.mekbom0.tmp"));
    EXPECT_EQ(2, numFilesIn(folder));
}

TEST(OutputFileTest, WhatCannotBeWrittenIsNamed)
{
    const ScratchFolder folder;
    const std::string missing = (folder / "missing" / "list.txt").string();

    EXPECT_EQ("4 " + missing + ": cannot be written: No such file or directory\n",
              faultOf([&] { OutputFile file(missing); }));
    EXPECT_EQ("4 " + folder.path().string() + ": cannot be written: is a directory\n",
              faultOf([&] { OutputFile file(folder.path().string()); }));
    EXPECT_NE("", faultOf([] { OutputFile file(""); }));
}

TEST(OutputFileTest, AFullDeviceIsAFault)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";

    EXPECT_EQ("4 /dev/full: cannot be written: No space left on device\n",
              faultOf([] { writeThrough("/dev/full", "new"); }));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(OutputFileTest, ADeviceIsWrittenToAndNotReplaced)
{
    if (!fs::exists("/dev/null"))
        GTEST_SKIP() << "no /dev/null here";

    writeThrough("/dev/null", "new");

    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(OutputFileTest, AReplacementThatFailsLeavesNothingBehind)
{
    const ScratchFolder folder;
    const std::string path = (folder / "list.txt").string();
    {
        OutputFile file(path);
        file.write("new");
        fs::create_directories(folder / "list.txt" / "inside"); // in the way of the renaming

        EXPECT_NE("", faultOf([&file] { file.finish(); }));
    }

    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_EQ(1, numFilesIn(folder));
}
}
