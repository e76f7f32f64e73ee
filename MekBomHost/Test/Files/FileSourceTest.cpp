#include "FileSource.h"

#include "FindingCodes.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(FileSourceTest, AllBytesAreRead)
{
    const ScratchFolder folder;
    const std::string bytes("a\r\nb\0c", 6);
    const std::string path = folder.file("a.txt", bytes);
    FileSource file(path);

    EXPECT_EQ(path, file.name());
    EXPECT_EQ(bytes, file.readAll());
    EXPECT_EQ("", file.readAll());
}

TEST(FileSourceTest, AFileMayHaveANameOfItsOwn)
{
    const ScratchFolder folder;
    FileSource file(folder.file("a.txt", "text"), "list");

    EXPECT_EQ("list", file.name());
    EXPECT_EQ("text", file.readAll());
    EXPECT_EQ("3 list: cannot be read: No such file or directory\n",
              faultOf([] { FileSource("missing.txt", "list").readAll(); }));
}

TEST(FileSourceTest, TheFileIsOpenedWhenItIsRead)
{
    const ScratchFolder folder;
    FileSource file((folder / "later.txt").string());
    folder.file("later.txt", "text");

    EXPECT_EQ("text", file.readAll());
}

TEST(FileSourceTest, WhatCannotBeReadIsAFinding)
{
    FileSource missing("missing.txt");
    const ScratchFolder folder;
    FileSource directory(folder.path().string());

    EXPECT_EQ("3 missing.txt: cannot be read: No such file or directory\n", faultOf([&] { missing.readAll(); }));
    EXPECT_EQ("3 " + directory.name() + ": cannot be read: Is a directory\n", faultOf([&] { directory.readAll(); }));
    try
    {
        missing.readAll();
        FAIL() << "nothing was thrown";
    }
    catch (const Fault& fault)
    {
        EXPECT_EQ(FindingCodes::kFileUnreadable.name, fault.findings()[0].code);
        EXPECT_EQ("missing.txt", fault.findings()[0].source);
    }
}
}
