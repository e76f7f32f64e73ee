#include "NamelessFile.h"

#include "Support/EnvironmentVariable.h"
#include "Support/HostTestSupport.h"
#include "Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>

namespace mekbom
{
namespace
{
std::size_t numFilesIn(const std::filesystem::path& folder)
{
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()));
}

void writeTo(const std::string& path, const std::string& text)
{
    std::FILE* const pFile = std::fopen(path.c_str(), "wb");
    ASSERT_NE(nullptr, pFile);
    std::fputs(text.c_str(), pFile);
    std::fclose(pFile);
}
}

TEST(NamelessFileTest, WhatIsWrittenToItsPathIsCopied)
{
    const std::string text = std::string(200000, 'x') + "end";
    const NamelessFile file;
    StringSink sink;

    writeTo(file.path(), "what was there before");
    writeTo(file.path(), text);
    file.copyTo(sink);

    EXPECT_TRUE(text == sink.text);
    EXPECT_FALSE(sink.isFinished);
}

TEST(NamelessFileTest, AFileThatNobodyWroteToIsEmpty)
{
    StringSink sink;

    NamelessFile().copyTo(sink);

    EXPECT_EQ("", sink.text);
}

TEST(NamelessFileTest, NoFolderShowsIt)
{
    const ScratchFolder scratch;
    const EnvironmentVariable temporary("TMPDIR", scratch.path().string());

    const NamelessFile file;
    writeTo(file.path(), "text");

    EXPECT_EQ(scratch.path().string(), NamelessFile::folder());
    EXPECT_EQ(0U, numFilesIn(scratch.path()));
}

TEST(NamelessFileTest, TwoAreApart)
{
    const NamelessFile one;
    const NamelessFile other;
    StringSink sink;

    writeTo(one.path(), "one");
    writeTo(other.path(), "other");
    one.copyTo(sink);

    EXPECT_EQ("one", sink.text);
}
}
