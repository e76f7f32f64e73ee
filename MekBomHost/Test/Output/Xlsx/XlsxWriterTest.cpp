#include "XlsxWriter.h"

#include "Support/EvaluatedParts.h"
#include "Support/HostTestSupport.h"
#include "Support/ReportTestSupport.h"
#include "Support/UnpackedWorkbook.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <clocale>
#include <csignal>
#include <string>
#include <thread>
#include <vector>

namespace mekbom
{
namespace
{
const std::vector<Part> kParts = { { L"HEA200", L"S355", 10.5 }, { L"L50", L"S235", 2 }, { L"L60", L"S235", 3.25 } };

std::string workbookOf(const EvaluatedReport& report, const XlsxSettings& settings = XlsxSettings())
{
    StringSink sink;
    XlsxWriter(settings).write(report, sink);
    EXPECT_TRUE(sink.isFinished);
    return sink.text;
}

std::string workbookOf(const std::string& templateText, const std::vector<Part>& parts,
                       const VorUnitsManager& units = VorUnitsManager::metric(),
                       const XlsxSettings& settings = XlsxSettings())
{
    const EvaluatedParts evaluated(templateText, parts, XlsxWriter().contents(), units);
    return workbookOf(evaluated.report(), settings);
}

// Details of a parts list, with what it is made of.
std::string workbookOfRows(const std::string& templateText, const std::string& rows,
                           const XlsxSettings& settings = XlsxSettings())
{
    Report report(TemplateReader::read("list.json", templateText), VorUnitsManager::metric(), DisplaySettings(),
                  XlsxWriter().contents());
    MemorySource source("parts.csv", rows);
    CsvReader records(source);
    PartsList(records).readRows(report.engineTemplate(), report.filterTokens());
    report.evaluate();
    return workbookOf(report.evaluated(), settings);
}

const char* const kDetailsOnly = R"({ "sections": [ { "type": "kReportHeader", "children": [
  { "type": "kDetails", "tuples": [ { "token": "%MNum" }, { "token": "%Name" }, { "token": "%Quantity" } ] } ] } ] })";

const char* const kLengths = R"({ "sections": [ { "type": "kReportHeader", "children": [
  { "type": "kDetails", "tuples": [ { "token": "%MNum" }, { "token": "%Length" } ] } ] } ] })";

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// The bound of the system for the size of files, until the end of the test.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_pHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_pHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before = {};
    void (*m_pHandler)(int) = nullptr;
};
}

TEST(XlsxWriterTest, GroupsAreLevelsOfTheOutline)
{
    const std::string sheet = sheetOf(workbookOf(kPartsByMaterial, kParts), 1);

    EXPECT_EQ("0 A1=\"Weights\"\n"
              "0 A2=\"Material\" B2=\"Name\" C2=\"Weight [kg]\"\n"
              "0 A3=\"S235\"\n"
              "1 B4=\"L50\" C4=2\n"
              "1 B5=\"L60\" C5=3.25\n"
              "0 C6=5.25\n"
              "0 A7=\"S355\"\n"
              "1 B8=\"HEA200\" C8=10.5\n"
              "0 C9=10.5\n"
              "0 A10=\"Total\" C10=15.75\n",
              rowsOf(sheet));
    EXPECT_FALSE(contains(sheet, "summaryBelow=\"0\""));
}

TEST(XlsxWriterTest, GroupsWithoutDetailsAreTheList)
{
    EXPECT_EQ("0 A1=\"Material\" B1=\"Weight [kg]\"\n"
              "0 A2=\"S235\" B2=5.25\n"
              "0 A3=\"S355\" B3=10.5\n"
              "0 B4=15.75\n",
              rowsOf(sheetOf(workbookOf(kMaterials, kParts), 1)));
}

TEST(XlsxWriterTest, TheHeadingRowStaysInSight)
{
    const std::string workbook = workbookOf(kPartsByMaterial, kParts);

    EXPECT_TRUE(contains(sheetOf(workbook, 1), "<pane ySplit=\"2\" topLeftCell=\"A3\""));
    EXPECT_TRUE(contains(partOf(workbook, "xl/workbook.xml"),
                         "<definedName name=\"_xlnm.Print_Titles\" localSheetId=\"0\">Weights!$2:$2</definedName>"));
}

TEST(XlsxWriterTest, PagesAreNumbered)
{
    const std::string sheet = sheetOf(workbookOf(kPartsByMaterial, kParts), 1);

    EXPECT_TRUE(contains(sheet, "<oddFooter>&amp;LWeights&amp;RPage &amp;P of &amp;N</oddFooter>")) << sheet;
    EXPECT_TRUE(contains(sheet, "paperSize=\"9\""));
    EXPECT_TRUE(contains(sheet, "fitToHeight=\"0\""));
    EXPECT_TRUE(contains(sheet, "orientation=\"portrait\""));
}

TEST(XlsxWriterTest, ThePaperOfAllSheetsCanBeChosen)
{
    OutputChoices choices;
    choices.paper = kLetterPaper;
    const EvaluatedParts evaluated(kPartsByMaterial, kParts, XlsxWriter().contents());
    StringSink sink;

    XlsxWriter(choices).write(evaluated.report(), sink);

    for (const int sheet : { 1, 2 })
        EXPECT_TRUE(contains(sheetOf(sink.text, sheet), "paperSize=\"1\"")) << sheet;
}

TEST(XlsxWriterTest, AWideListIsPrintedInLandscape)
{
    const std::vector<Part> parts = { { L"a long name of a part, longer than those of steel profiles are", L"S355", 1 },
                                      { L"a part", L"a material that is called by its full name, too, as it were",
                                        2 } };

    EXPECT_TRUE(contains(sheetOf(workbookOf(kPartsByMaterial, parts), 1), "orientation=\"landscape\""));
}

TEST(XlsxWriterTest, MarksAreTexts)
{
    const std::string rows = rowsOf(sheetOf(workbookOfRows(kDetailsOnly, "MNum,Name,Quantity\n"
                                                                         "0417,3-5,1\n"
                                                                         "1E5,=1+1,2\n"
                                                                         "007,http://parts.test,3\n"
                                                                         "-5,@SUM(A1),4\n"
                                                                         "12.50,_x0041_,5\n"),
                                            1));

    EXPECT_TRUE(contains(rows, "0 A2=\"MNum\" B2=\"Name\" C2=\"Quantity\"\n"
                               "0 A3=\"0417\" B3=\"3-5\" C3=1\n"
                               "0 A4=\"1E5\" B4=\"=1+1\" C4=2\n"
                               "0 A5=\"007\" B5=\"http://parts.test\" C5=3\n"
                               "0 A6=\"-5\" B6=\"@SUM(A1)\" C6=4\n"
                               "0 A7=\"12.50\" B7=\"_x005F_x0041_\" C7=5\n"))
        << rows;
}

TEST(XlsxWriterTest, FeetAndInchesAreTexts)
{
    Report report(TemplateReader::read("list.json", kLengths), VorUnitsManager::imperial(), DisplaySettings(),
                  XlsxWriter().contents());
    MemorySource source("parts.csv", "MNum,Length [in]\nP1,90\nP2,90.0625\nP3,12\n");
    CsvReader records(source);
    PartsList(records).readRows(report.engineTemplate(), report.filterTokens());
    report.evaluate();
    XlsxSettings settings;

    EXPECT_TRUE(contains(rowsOf(sheetOf(workbookOf(report.evaluated(), settings), 1)),
                         "A2=\"MNum\" B2=\"Length [ft-in]\"\n"
                         "0 A3=\"P1\" B3=\"7' 6\"\"\n"
                         "0 A4=\"P2\" B4=\"7' 6 1/16\"\"\n"
                         "0 A5=\"P3\" B5=\"1'\"\n"));
    settings.hasNumbersBeside = true;
    EXPECT_TRUE(contains(rowsOf(sheetOf(workbookOf(report.evaluated(), settings), 1)),
                         "A2=\"MNum\" B2=\"Length [ft-in]\" C2=\"Length [ft]\"\n"
                         "0 A3=\"P1\" B3=\"7' 6\"\" C3=7.5\n"
                         "0 A4=\"P2\" B4=\"7' 6 1/16\"\" C4=7.505208333333333\n"
                         "0 A5=\"P3\" B5=\"1'\" C5=1\n"));
}

// Seven inches beside seven and a half would be the only number among texts, and all that a sum adds up.
TEST(XlsxWriterTest, AColumnOfFractionsHasNoNumbers)
{
    VorUnitsManager units;
    units.setUnit(VorUnitsTransformArray::kDistance, L"in/1/16");
    Report report(TemplateReader::read("list.json", kLengths), units, DisplaySettings(), XlsxWriter().contents());
    MemorySource source("parts.csv", "MNum,Length [in]\nP1,7.5\nP2,7\n");
    CsvReader records(source);
    PartsList(records).readRows(report.engineTemplate(), report.filterTokens());
    report.evaluate();

    const std::string rows = rowsOf(sheetOf(workbookOf(report.evaluated()), 1));

    EXPECT_TRUE(contains(rows, "0 A3=\"P1\" B3=\"7 1/2\"\n0 A4=\"P2\" B4=\"7\"\n")) << rows;
}

TEST(XlsxWriterTest, NumbersAreInTheUnitOfTheirHeading)
{
    const std::string rows = rowsOf(sheetOf(workbookOf(kPartsByMaterial, kParts, VorUnitsManager::imperial()), 1));

    EXPECT_TRUE(contains(rows, "C2=\"Weight [lb]\"")) << rows;
    EXPECT_TRUE(contains(rows, "B4=\"L50\" C4=4.40924524")) << rows;
}

TEST(XlsxWriterTest, WhatIsNoNumberIsText)
{
    const std::string rows =
        rowsOf(sheetOf(workbookOf(kPartsByMaterial, { { L"HEA200", L"S355", 1e300 }, { L"L50", L"S355", 1e20 } }), 1));

    EXPECT_TRUE(contains(rows, "\"1e+300\"")) << rows;
    EXPECT_TRUE(contains(rows, "\"1e+20\"")) << rows;
}

TEST(XlsxWriterTest, ASheetTellsWhatTheListIsMadeOf)
{
    const std::string workbook = workbookOfRows(kDetailsOnly, "MNum,Name,Quantity\nP1,L50,2\nP2,L60,3\n");

    EXPECT_TRUE(contains(rowsOf(sheetOf(workbook, 1)), "0 A1=\"2 rows read, 2 listed\"\n"));
    EXPECT_TRUE(contains(partOf(workbook, "xl/workbook.xml"), "<sheet name=\"List\" sheetId=\"1\""));
    EXPECT_TRUE(contains(partOf(workbook, "xl/workbook.xml"), "<sheet name=\"About\" sheetId=\"2\""));
    const std::string about = rowsOf(sheetOf(workbook, 2));
    EXPECT_TRUE(contains(about, "0 A2=\"Rows read\" B2=2\n0 A3=\"Rows listed\" B3=2\n0 A4=\"Lines\" B4=2\n")) << about;
}

TEST(XlsxWriterTest, ALongListGoesOnInAFurtherSheet)
{
    XlsxSettings settings;
    settings.mostRows = 8;
    const std::string workbook = workbookOf(kPartsByMaterial, kParts, VorUnitsManager::metric(), settings);

    EXPECT_EQ("0 A1=\"Weights\"\n"
              "0 A2=\"Material\" B2=\"Name\" C2=\"Weight [kg]\"\n"
              "0 A3=\"S235\"\n"
              "1 B4=\"L50\" C4=2\n"
              "1 B5=\"L60\" C5=3.25\n"
              "0 C6=5.25\n"
              "0 A7=\"S355\"\n"
              "0 A8=\"Continued on the sheet \"Weights 2\"\"\n",
              rowsOf(sheetOf(workbook, 1)));
    EXPECT_EQ("0 A1=\"Weights\"\n"
              "0 A2=\"Continued from the sheet \"Weights\"\"\n"
              "0 A3=\"Material\" B3=\"Name\" C3=\"Weight [kg]\"\n"
              "1 B4=\"HEA200\" C4=10.5\n"
              "0 C5=10.5\n"
              "0 A6=\"Total\" C6=15.75\n",
              rowsOf(sheetOf(workbook, 2)));
    EXPECT_TRUE(contains(partOf(workbook, "xl/workbook.xml"), "<sheet name=\"About\" sheetId=\"3\""));
}

TEST(XlsxWriterTest, ALongTextIsRefusedAndNotCut)
{
    const std::wstring longest(32767, L'x');
    const std::wstring tooLong(32768, L'x');

    EXPECT_TRUE(contains(sheetOf(workbookOf(kPartsByMaterial, { { longest.c_str(), L"S355", 1 } }), 1),
                         std::string(32767, 'x')));
    const EvaluatedParts parts(kPartsByMaterial, { { tooLong.c_str(), L"S355", 1 } }, XlsxWriter().contents());
    StringSink sink;
    EXPECT_EQ(
        "4 Weights!B4: found a text of 32768 characters, expected at most 32767, which a cell of a workbook holds: "
        "shorten it, or write the list in another format\n",
        faultOf([&] { XlsxWriter().write(parts.report(), sink); }));
    EXPECT_FALSE(sink.isFinished);
    EXPECT_EQ("", sink.text);
}

TEST(XlsxWriterTest, TheSameListGivesTheSameBytes)
{
    const std::string workbook = workbookOf(kPartsByMaterial, kParts);

    EXPECT_TRUE(workbook == workbookOf(kPartsByMaterial, kParts));
    EXPECT_TRUE(contains(partOf(workbook, "docProps/core.xml"), ">1980-01-01T00:00:00Z</dcterms:created>"));
    EXPECT_TRUE(contains(partOf(workbook, "docProps/core.xml"), ">1980-01-01T00:00:00Z</dcterms:modified>"));
}

TEST(XlsxWriterTest, TheLocaleOfTheProcessChangesNothing)
{
    const std::string workbook = workbookOf(kPartsByMaterial, kParts);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "no locale de_DE.UTF-8 on this machine";

    const std::string german = workbookOf(kPartsByMaterial, kParts);
    std::setlocale(LC_ALL, "C");

    EXPECT_TRUE(workbook == german) << rowsOf(sheetOf(german, 1));
}

TEST(XlsxWriterTest, ListsAreWrittenSideBySide)
{
    const EvaluatedParts parts(kPartsByMaterial, kParts, XlsxWriter().contents());
    const XlsxWriter writer;
    std::vector<StringSink> sinks(4);
    std::vector<std::thread> threads;
    for (StringSink& sink : sinks)
        threads.emplace_back([&] { writer.write(parts.report(), sink); });
    for (std::thread& thread : threads)
        thread.join();

    for (const StringSink& sink : sinks)
        EXPECT_TRUE(sinks.front().text == sink.text);
}

TEST(XlsxWriterTest, AFullDiskIsAFault)
{
    std::string rows = "MNum,Name,Quantity\n";
    for (int i = 0; i < 20000; ++i)
        rows += "P" + std::to_string(i) + ",L50,2\n";
    for (const rlim_t bytes : { rlim_t{ 0 }, rlim_t{ 1 } << 16, rlim_t{ 1 } << 20 })
    {
        std::string fault;
        {
            const FileSizeLimit limit(bytes);
            fault = faultOf([&] { workbookOfRows(kDetailsOnly, rows); });
        }
        EXPECT_TRUE(contains(fault, "4 ")) << bytes << fault;
    }
}
}
