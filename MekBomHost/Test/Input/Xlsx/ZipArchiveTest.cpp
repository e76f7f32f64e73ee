#include "ZipArchive.h"

#include "Support/HostTestSupport.h"
#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace mekbom
{
namespace
{
const std::string kRemedy = ": open it in a spreadsheet program and save it anew\n";

std::string openingFault(const std::string& bytes)
{
    return faultOf([&] { ZipArchive("parts.xlsx", bytes); });
}

std::string readingFault(const std::string& bytes, std::size_t mostBytes = 1 << 20)
{
    return faultOf([&] { ZipArchive("parts.xlsx", bytes).open("a.xml", mostBytes)->readAll(); });
}
}

TEST(ZipArchiveTest, FilesAreReadSideBySide)
{
    const std::string text(100000, 'x');
    const ZipArchive archive("parts.xlsx", packed({ { "a.xml", text }, { "xl/B.xml", "b" }, { "empty", "" } }));
    const auto pFirst = archive.open("a.xml", text.size());
    char byte = 0;
    ASSERT_EQ(1U, pFirst->read(&byte, 1));

    EXPECT_EQ("b", archive.open("XL/b.XML", 10)->readAll());
    EXPECT_EQ("", archive.open("empty", 0)->readAll());
    EXPECT_EQ(text.substr(1), pFirst->readAll());
    EXPECT_EQ("a.xml", pFirst->name());
}

TEST(ZipArchiveTest, FilesThatAreMissingAreNamed)
{
    const std::string bytes = packed({ { "b.xml", "b" } });

    EXPECT_TRUE(ZipArchive("parts.xlsx", bytes).has("B.xml"));
    EXPECT_FALSE(ZipArchive("parts.xlsx", bytes).has("a.xml"));
    EXPECT_EQ("3 parts.xlsx: a.xml: found no such part, expected the one that the workbook refers to" + kRemedy,
              readingFault(bytes));
}

TEST(ZipArchiveTest, BytesThatAreNoArchiveAreRefused)
{
    const std::string bytes = packed({ { "a.xml", "text" } });
    const std::string fault = "3 parts.xlsx: found a packed file that cannot be opened (";

    for (const std::string& broken : { std::string("PK\3\4"), bytes.substr(0, bytes.size() - 1),
                                       bytes.substr(0, bytes.size() / 2), bytes.substr(4) })
        EXPECT_EQ(fault, openingFault(broken).substr(0, fault.size())) << broken.size();
}

TEST(ZipArchiveTest, DamagedFilesAreRefused)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += std::to_string(i * i);
    std::string bytes = packed({ { "a.xml", text } });
    bytes[100] = static_cast<char>(bytes[100] ^ 1);
    const std::string fault = "3 parts.xlsx: a.xml: found a part that cannot be unpacked (";

    EXPECT_EQ(fault, readingFault(bytes).substr(0, fault.size()));
}

TEST(ZipArchiveTest, FilesThatGrowBeyondTheBoundAreGivenUp)
{
    const std::string bytes = packed({ { "a.xml", std::string(std::size_t{ 50 } << 20, ' ') } });

    EXPECT_LT(bytes.size(), 100000U);
    EXPECT_EQ(
        "3 parts.xlsx: a.xml: found a part of more than 2 MB, expected less: a file of parts this large is damaged, "
        "or made to do harm\n",
        readingFault(bytes, 2 << 20));
}
}
