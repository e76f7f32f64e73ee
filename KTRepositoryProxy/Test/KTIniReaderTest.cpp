#include "KTRepositoryProxy/Src/KTIniReader.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <string>

namespace
{
// "line key=value|" for every entry, then "line! fault" when there is one.
std::wstring entriesOf(const VorString& text)
{
    std::wstring entries;
    KTIniReader reader(text);
    while (reader.next() == 1)
        entries += std::to_wstring(reader.line()) + L" " + reader.key().getStringW() + L"=" +
                   reader.value().getStringW() + L"|";
    if (!reader.fault().isEmpty())
        entries += std::to_wstring(reader.line()) + L"! " + reader.fault().getStringW();
    return entries;
}

TEST(KTIniReaderTest, EntriesComeInTheirOrderWithTheirLines)
{
    EXPECT_EQ(L"1 a=1|2 b=2|", entriesOf(L"a=1\nb=2\n"));
    EXPECT_EQ(L"1 a=1|2 b=2|", entriesOf(L"a=1\r\nb=2"));
    EXPECT_EQ(L"3 length=ft-in/16|", entriesOf(L"\n\nlength=ft-in/16"));
    EXPECT_EQ(L"", entriesOf(L""));
}

TEST(KTIniReaderTest, BlanksAroundKeysAndValuesDoNotCount)
{
    EXPECT_EQ(L"1 a=1|2 b b=2 2|3 c=|", entriesOf(L" \ta = 1 \t\n b b =  2 2\nc ="));
}

TEST(KTIniReaderTest, CommentsSectionsAndBlankLinesAreNoEntries)
{
    EXPECT_EQ(L"5 a=1|", entriesOf(L"; one\n  # two\n[Lists]\n \t \na=1\n;b=2"));
}

TEST(KTIniReaderTest, TheFirstEqualsSignDivides)
{
    EXPECT_EQ(L"1 a=b=c|2 x=; y|", entriesOf(L"a=b=c\nx=; y"));
}

TEST(KTIniReaderTest, AByteOrderMarkIsPassedOver)
{
    EXPECT_EQ(L"1 a=1|", entriesOf(L"\uFEFFa=1"));
}

TEST(KTIniReaderTest, AMalformedLineEndsTheReading)
{
    EXPECT_EQ(L"1 a=1|2! found \"b\", expected a line such as key = value", entriesOf(L"a=1\n b \nc=3"));
    EXPECT_EQ(L"1! found \"=1\", expected a line such as key = value", entriesOf(L"=1"));
    EXPECT_EQ(L"1! found \"[a\", expected a line such as key = value", entriesOf(L"[a"));
}

TEST(KTIniReaderTest, ZeroCharactersAreRefused)
{
    EXPECT_EQ(L"1 a=1|2! found \"b=1\", expected a line without zero characters",
              entriesOf(VorString(L"a=1\nb=1\0x\n", 10)));
}

TEST(KTIniReaderTest, AKeyStandsOnceWhateverItsSection)
{
    EXPECT_EQ(L"2 a=1|4! found \"a\", expected it once, as in line 2", entriesOf(L"[x]\na=1\n[y]\na=1"));
    EXPECT_EQ(L"1 a=1|2 A=1|", entriesOf(L"a=1\nA=1"));
}

TEST(KTIniReaderTest, AFaultStays)
{
    KTIniReader reader(L"b\nc=3");

    EXPECT_EQ(0, reader.next());
    EXPECT_EQ(0, reader.next());
    EXPECT_EQ(1, reader.line());
}

TEST(KTIniReaderTest, AFaultIsKnownInItsParts)
{
    KTIniReader reader(L"a=1\n b\n");

    EXPECT_EQ(1, reader.next());
    EXPECT_EQ(VorString(), reader.found());
    EXPECT_EQ(0, reader.next());
    EXPECT_EQ(VorString(L"b"), reader.found());
    EXPECT_EQ(VorString(L"a line such as key = value"), reader.expected());
}
}
