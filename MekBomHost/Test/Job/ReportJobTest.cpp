#include "ReportJob.h"

#include "FindingCodes.h"
#include "TextTableWriter.h"

#include "Support/HostTestSupport.h"

#include "VorBomData.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

// Reports from texts alone: no test here touches a file, a stream or the settings of the process.

namespace mekbom
{
namespace
{
const char* const kParts = "%Name,%Length\nHEA200,2286\nIPE360,152.4\n";
const char* const kDetails = R"({ "sections": [ { "type": "kDetails", "tuples": [
    { "token": "%Name" }, { "token": "%Length" } ] } ] })";

// What the texts of a request view outlives the job.
std::unique_ptr<ByteSource> text(const std::string& name, std::string_view content)
{
    return std::make_unique<MemorySource>(name, content);
}

ReportRequest requestFor(std::string_view parts, std::string_view templateText)
{
    ReportRequest request;
    request.parts.push_back(text("parts.csv", parts));
    request.pTemplate = text("list.json", templateText);
    request.checksTotals = true;
    return request;
}

ReportRequest imperialRequest()
{
    ReportRequest request = requestFor(kParts, kDetails);
    request.units = "imperial";
    request.settings = { { "C40_ShowMinusBetweenFeetAndInch", "1" } };
    return request;
}

ReportRequest metreRequest()
{
    ReportRequest request = requestFor(kParts, kDetails);
    request.pUnits = text("shop.ini", "length = m/2\n");
    request.pSettings = text("settings.ini", "C0_BOMSuppressLastZeros = 0\n");
    return request;
}

const char* const kImperialTable = "Name    Length [ft-in]\n"
                                   "------  --------------\n"
                                   "HEA200           7'-6\"\n"
                                   "IPE360              6\"\n";

const char* const kMetreTable = "Name    Length [m]\n"
                                "------  ----------\n"
                                "HEA200        2.29\n"
                                "IPE360        0.15\n";

std::string tableOf(ReportJob& job)
{
    StringSink sink;
    TextTableWriter().write(job.report(), sink);
    return sink.text;
}

// The table, or what stands in its way: the status, then a message for each finding.
std::string outcomeOf(ReportRequest request)
{
    ReportJob job(std::move(request));
    const ExitStatus status = job.run();
    if (status == kDone)
        return withoutFoot(tableOf(job));
    std::string messages = std::to_string(status);
    for (const Finding& finding : job.findings().all())
        messages += " " + messageOf(finding) + "\n";
    return messages;
}
}

TEST(ReportJobTest, TextsBecomeATable)
{
    EXPECT_EQ("Name    Length [mm]\n------  -----------\nHEA200       2286\nIPE360        152.4\n",
              outcomeOf(requestFor(kParts, kDetails)));
}

TEST(ReportJobTest, AFormulaWhoseResultNobodySaysIsAnErrorUnlessItIsAllowed)
{
    const std::string rest = R"("sections": [ { "type": "kDetails", "tuples": [
        { "token": "%Name" }, { "token": "%Formula:%Length/1000" } ] } ] })";
    const std::string allowing = R"({ "allow": { "MB421": "bars" }, )" + rest;
    const std::string details = "{ " + rest;
    const char* const kTable =
        "Name    %Length/1000\n------  ------------\nHEA200        2.286\nIPE360        0.1524\n";
    ReportRequest request = requestFor(kParts, details);
    request.allowed = { "MB421" };

    const std::string refused = outcomeOf(requestFor(kParts, details));

    EXPECT_NE(std::string::npos, refused.find("list.json:2:42: error MB421: \"%Length/1000\": "
                                              "the constant 1000 hides a unit of length"))
        << refused;
    EXPECT_NE(std::string::npos, refused.find("\"result\""));
    EXPECT_EQ(kTable, outcomeOf(std::move(request)));
    EXPECT_EQ(kTable, outcomeOf(requestFor(kParts, allowing)));
}

TEST(ReportJobTest, AColumnWithAUnitOfAnotherKindIsAnError)
{
    EXPECT_EQ(
        "3 list.json:1:16: /columns/0/unit: found \"kg\", expected a unit of distance such as mm, m, in or ft, and "
        "after a slash a precision if need be: lb/1, ft-in/16\n",
        outcomeOf(requestFor(kParts, R"({ "columns": [ { "token": "%Length", "unit": "kg" } ], "sections": [
                  { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] })")));
}

TEST(ReportJobTest, ReportsOfDifferentUnitsAndSettingsAreMadeStepByStepBesideEachOther)
{
    ReportJob imperial(imperialRequest());
    ReportJob metre(metreRequest());

    ASSERT_EQ(kDone, imperial.run());
    ASSERT_EQ(kDone, metre.run());

    EXPECT_EQ(kImperialTable, withoutFoot(tableOf(imperial)));
    EXPECT_EQ(kMetreTable, withoutFoot(tableOf(metre)));
    EXPECT_EQ(kImperialTable, withoutFoot(tableOf(imperial))); // the lines may be read again
}

TEST(ReportJobTest, ReportsOfDifferentUnitsAndSettingsAreMadeOnTwoThreads)
{
    const auto repeat = [](ReportRequest (*request)(), const char* expected)
    {
        for (int i = 0; i < 200; ++i)
            EXPECT_EQ(expected, outcomeOf(request()));
    };

    std::thread imperial(repeat, imperialRequest, kImperialTable);
    std::thread metre(repeat, metreRequest, kMetreTable);
    imperial.join();
    metre.join();
}

TEST(ReportJobTest, TheSettingsOfTheProcessAreLeftAlone)
{
    KTRepositoryProxy::setDefault(L"C0_BOMSuppressLastZeros", 0);

    const std::string table = outcomeOf(requestFor(kParts, kDetails));
    ReportJob(imperialRequest()).run();

    int showsMinus = 42;
    vor_odbc_getDefault(L"C40_ShowMinusBetweenFeetAndInch", showsMinus);
    KTRepositoryProxy::clear();
    EXPECT_NE(std::string::npos, table.find("  2286\n")) << table;
    EXPECT_EQ(42, showsMinus);
}

TEST(ReportJobTest, SettingsOfTheEnvironmentHaveTheLowestRank)
{
    // The length of half a foot; an empty text sets nothing.
    const auto lengthWith = [](const std::string& environment, const std::string& file, const std::string& option)
    {
        const std::string name = "C40_SuppressZeroFeet";
        const std::string settings = name + "=" + file;
        ReportRequest request = requestFor(
            "%Length\n152.4\n", R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] })");
        request.units = "imperial";
        request.environment = { { name, environment } };
        if (!file.empty())
            request.pSettings = text("a.ini", settings);
        if (!option.empty())
            request.settings = { { name, option } };
        const std::string table = outcomeOf(std::move(request));
        return table.substr(table.find_first_not_of(' ', table.rfind('\n', table.size() - 2) + 1));
    };

    EXPECT_EQ("6\"\n", lengthWith("1", "", ""));
    EXPECT_EQ("0' 6\"\n", lengthWith("0", "", ""));
    EXPECT_EQ("6\"\n", lengthWith("0", "1", ""));
    EXPECT_EQ("0' 6\"\n", lengthWith("1", "0", ""));
    EXPECT_EQ("6\"\n", lengthWith("0", "0", "1"));
}

TEST(ReportJobTest, AMistakeInATemplateIsData)
{
    ReportJob job(requestFor(kParts, "{ \"sections\": [ { \"type\": \"kNone\" } ] }"));

    EXPECT_EQ(kInvalidInput, job.run());

    ASSERT_EQ(1u, job.findings().numErrors());
    const Finding& finding = job.findings().all()[0];
    EXPECT_EQ(Finding::kError, finding.severity);
    EXPECT_EQ(FindingCodes::kNameUnknown.name, finding.code);
    EXPECT_EQ("list.json", finding.source);
    EXPECT_EQ(1, finding.begin.line);
    EXPECT_EQ(27, finding.begin.column);
    EXPECT_EQ("/sections/0/type", finding.path);
    EXPECT_EQ("\"kNone\"", finding.found);
}

TEST(ReportJobTest, MistakesInAPartsListAreData)
{
    ReportJob job(requestFor("%Name,%Length\nA,long\nB,2\nC,wide\n", kDetails));

    EXPECT_EQ(kInvalidInput, job.run());

    ASSERT_EQ(2u, job.findings().numErrors());
    const Finding& finding = job.findings().all()[1];
    EXPECT_EQ(Finding::kError, finding.severity);
    EXPECT_EQ(FindingCodes::kCellIsNoNumber.name, finding.code);
    EXPECT_EQ("parts.csv", finding.source);
    EXPECT_EQ(4, finding.begin.line);
    EXPECT_EQ("%Length", finding.field);
    EXPECT_EQ("\"wide\"", finding.found);
}

TEST(ReportJobTest, ANoteLetsTheReportBeMade)
{
    ReportJob job(requestFor("%Name\nA\nA\n", R"({ "equalLines": "merge", "sections": [
        { "type": "kReportHeader", "children": [
            { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Length" } ] } ] },
        { "type": "kReportFooter" } ] })"));

    EXPECT_EQ(kDone, job.run());

    EXPECT_EQ(0u, tableOf(job).find("Name  Length"));
    std::vector<std::string> codes;
    for (const Finding& finding : job.findings().all())
    {
        EXPECT_EQ(Finding::kNote, finding.severity);
        codes.push_back(finding.code);
    }
    EXPECT_EQ((std::vector<std::string>{ FindingCodes::kColumnMissing.name }), codes);
    EXPECT_EQ("parts.csv", job.findings().all()[0].source);
}

namespace
{
const char* const kEqualParts = "%Name,%Weight,%Quantity\nA,2.5,1\nA,2.5,3\nB,1,1\n";

ReportRequest totalling(const std::string& templateText)
{
    return requestFor(kEqualParts, templateText);
}

// `members` of the template, and what its footer sums.
std::string totalsOf(const std::string& members, const std::string& sums)
{
    return "{ " + members + R"( "sections": [
  { "type": "kReportHeader", "children": [
    { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] },
  { "type": "kReportFooter", "tuples": [ )" +
           sums + " ] } ] }";
}

const char* const kSumOfWeights = R"({ "token": "%SumBy:%Weight", "value": 0.0 })";
const char* const kSumOfPieces = R"({ "token": "%SumBy:%Quantity", "value": 0 })";
}

TEST(ReportJobTest, TotalsThatWouldLoseRowsAreAnErrorThatOffersTheWays)
{
    const std::string list = totalsOf("", std::string(kSumOfWeights) + ", " + kSumOfPieces);
    ReportJob job(totalling(list));

    EXPECT_EQ(kMistakes, job.run());

    ASSERT_EQ(1u, job.findings().numErrors());
    const Finding& finding = job.findings().all().back();
    EXPECT_EQ("MB307", finding.code);
    EXPECT_EQ(Finding::kError, finding.severity);
    EXPECT_EQ("list.json", finding.source);
    EXPECT_EQ(3, finding.begin.line);
    EXPECT_EQ("/sections/0/children/0", finding.path);
    EXPECT_EQ("1 row reads like the one before it, is merged into its line and is in no total: Weight 2.5 kg, "
              "Quantity 3",
              finding.statement);
    for (const char* const way : { "\"count\"", "\"keep\"", "\"merge\"" })
        EXPECT_NE(std::string::npos, finding.remedy.find(way)) << finding.remedy;
}

TEST(ReportJobTest, WhoSaysWhatBecomesOfEqualLinesGetsIt)
{
    const auto footOf = [](const std::string& members)
    {
        const std::string list = totalsOf(members, kSumOfWeights);
        ReportJob job(totalling(list));
        EXPECT_EQ(kDone, job.run());
        const std::string table = tableOf(job);
        const std::string foot = table.substr(withoutFoot(table).size() + 1);
        return foot.substr(0, foot.find("Lengths and weights"));
    };

    EXPECT_EQ("3 rows read, 3 listed in 2 lines\n",
              footOf(R"("equalLines": "count", "allow": { "MB308": "of one piece" },)"));
    EXPECT_EQ("3 rows read, 3 listed\n", footOf("\"equalLines\": \"keep\","));
    const char* const lost = "3 rows read, 1 merged into equal lines, 2 listed\n"
                             "Merged rows are in no total: Weight 2.5 kg\n";
    EXPECT_EQ(lost, footOf("\"equalLines\": \"merge\","));
    EXPECT_EQ(lost, footOf("\"allow\": { \"MB307\": \"one of each is wanted\" },"));
}

TEST(ReportJobTest, RowsThatNoTotalMissesAreMergedWithoutAWord)
{
    const std::string list = totalsOf("", R"({ "token": "%SumBy:%Paint", "value": 0.0 })");
    ReportJob job(totalling(list));

    EXPECT_EQ(kDone, job.run());
    EXPECT_NE(std::string::npos, tableOf(job).find("\n3 rows read, 1 merged into equal lines, 2 listed\n"));
}

TEST(ReportJobTest, TheBuiltInTemplateMergesAsEver)
{
    ReportRequest request;
    request.parts.push_back(text("parts.csv", "%PosNum,%Weight\nA,2.5\nA,2.5\n"));

    ReportJob job(std::move(request));

    EXPECT_EQ(kDone, job.run());
}

TEST(ReportJobTest, OfTheCandidatesTheOneIsTakenThatSuitsTheParts)
{
    const auto listOf = [](const std::string& token)
    { return "{ \"sections\": [ { \"type\": \"kDetails\", \"tuples\": [ { \"token\": \"" + token + "\" } ] } ] }"; };
    const std::string lists[] = { listOf("%Name"), listOf("%BoltName"), listOf("%Role") };
    const auto request = [&lists]
    {
        ReportRequest choice;
        choice.parts.push_back(text("parts.csv", "%BoltName\nM16\n"));
        for (const std::string& list : lists)
            choice.candidates.push_back(text("list.json", list));
        return choice;
    };

    EXPECT_EQ("BoltName\n--------\nM16\n", outcomeOf(request()));
    ReportRequest unsuitable = request();
    unsuitable.parts.front() = text("parts.csv", "Note,%Weight\nx,2\n");
    EXPECT_EQ("Note   Weight [kg]\n-----  -----------\nx                2\n-----  -----------\nTotal            2\n",
              outcomeOf(std::move(unsuitable)));
}

TEST(ReportJobTest, WithoutPartsAndTemplateTheBuiltInOnesAreTaken)
{
    EXPECT_EQ(0u, outcomeOf(ReportRequest()).find("PosNum  Material  posNum  "));
    ReportRequest request;
    request.inputUnits = { { "Length", "m" } };
    EXPECT_EQ("2 --input-unit: the sample data are no parts list\n", outcomeOf(std::move(request)));
}

TEST(ReportJobTest, OptionsThatCannotBeTakenAreWrongUsage)
{
    ReportRequest request = requestFor(kParts, kDetails);
    request.unitChoices = { { "length", "kg" } };
    EXPECT_EQ(0u, outcomeOf(std::move(request)).find("2 --unit length=kg: found \"kg\", expected a unit of distance"));
    request = requestFor(kParts, kDetails);
    request.inputUnits = { { "Name", "mm" } };
    EXPECT_EQ("2 --input-unit %Name=mm: found unit \"mm\", expected none: %Name is a text\n",
              outcomeOf(std::move(request)));
}

TEST(ReportJobTest, RowsWithoutPiecesAreOneAndAFileWithoutThemIsNoted)
{
    const char* const list = R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Quantity" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 } ] } ] })";
    ReportJob job(requestFor("Name,Q\nA,4\nB,2\n", list));

    ASSERT_EQ(kDone, job.run());

    std::string note;
    for (const Finding& finding : job.findings().all())
        if (finding.code == FindingCodes::kColumnMissing.name)
            note = messageOf(finding);
    EXPECT_EQ("parts.csv has no column for %Quantity, which the template asks for; each row counts as one piece", note);
    EXPECT_EQ(2, job.partsFacts().numRows);
    EXPECT_NE(std::string::npos, tableOf(job).find("\nB            1\n")) << tableOf(job);
}

TEST(ReportJobTest, MisspelledColumnsAreGuessed)
{
    const char* const list = R"({ "sections": [ { "type": "kDetails", "tuples": [
        { "token": "%Name" }, { "token": "%Length" }, { "token": "%Weight" }, { "token": "%Role" } ] } ] })";
    const auto noteFor = [list](const char* pParts)
    {
        ReportJob job(requestFor(pParts, list));
        EXPECT_EQ(kDone, job.run());
        return job.findings().all().empty() ? std::string() : messageOf(job.findings().all()[0]);
    };

    EXPECT_EQ(
        "parts.csv has no column for %Length, %Name, %Role, %Weight, which the template asks for: did you mean its "
        "columns \"lenght\", \"Wieght [kg]\"?",
        noteFor("MName,lenght,Wieght [kg],Remark\nA,1,2,x\n"));
    // Nearer to a column that is there, or to another token.
    EXPECT_EQ("parts.csv has no column for %Weight, which the template asks for",
              noteFor("Name,Length,Lenght,Role,Widht\nA,1,2,x,3\n"));
}

TEST(ReportJobTest, SampleRowsAreOnePieceEach)
{
    ReportRequest request;
    request.pTemplate =
        text("list.json", R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Quantity" } ] } ] })");
    const std::unique_ptr<VorBomData> pSample(VorBomData::createDefaultData());
    std::string expected = "Quantity\n--------\n";
    for (const VorBomItemBase* pRow = pSample->child(); pRow != nullptr; pRow = pRow->next())
        expected += "       1\n";
    pSample->empty();

    EXPECT_EQ(expected, outcomeOf(std::move(request)));
}

TEST(ReportJobTest, RowTotalsAreDividedByThePieces)
{
    ReportRequest request = requestFor("%Name,%Length,%Quantity\nHEA200,2286,2\n", kDetails);
    request.rowTotals = { "Length" };
    EXPECT_NE(std::string::npos, outcomeOf(std::move(request)).find("HEA200         1143\n"));

    ReportRequest sample;
    sample.rowTotals = { "Length" };
    EXPECT_EQ("2 --row-totals: the sample data are no parts list\n", outcomeOf(std::move(sample)));
    ReportRequest sampleWithSheet;
    sampleWithSheet.input.sheet = "Parts";
    EXPECT_EQ("2 --sheet: the sample data are no parts list\n", outcomeOf(std::move(sampleWithSheet)));
}

TEST(ReportJobTest, HeadingsOfTheTradeAreReadAndNoted)
{
    ReportJob job(requestFor("Profil,L\u00E4nge (m),Colour\nHEA200,2.286,red\n", kDetails));

    ASSERT_EQ(kDone, job.run());

    EXPECT_EQ("Name    Length [mm]\n------  -----------\nHEA200         2286\n", withoutFoot(tableOf(job)));
    ASSERT_EQ(1u, job.findings().all().size());
    EXPECT_EQ("parts.csv: \"Profil\" -> %Name, \"L\u00E4nge (m)\" -> %Length", messageOf(job.findings().all()[0]));
}

TEST(ReportJobTest, TheTemplateMayNameHeadings)
{
    const std::string list = R"({ "headings": { "Stange": "%Name", "Nicht da": "%Role" }, "sections": [
        { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] })";
    EXPECT_EQ("Name\n------\nHEA200\n", outcomeOf(requestFor("Stange\nHEA200\n", list)));

    ReportRequest request = requestFor("Stange,Profilname\nHEA200,IPE360\n", list);
    request.input.headings = { { "Profilname", "%Name", true }, { "Stange", "%Bar", true } };
    EXPECT_EQ("Name\n------\nIPE360\n", outcomeOf(std::move(request)));
}

TEST(ReportJobTest, ATokenOfTheTemplatesOwnStaysWhatItWas)
{
    const char* const list = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Mark" } ] } ] })";

    EXPECT_EQ("Mark\n----\nB1\n", outcomeOf(requestFor("Mark\nB1\n", list)));
}

TEST(ReportJobTest, HeadingsInDoubtAreRefusedWithoutANoteThatTheyAreMissing)
{
    const char* const list = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] })";

    EXPECT_EQ("3 parts.csv:1: column \"Position\": may be %PNum or %Num: say which, as in --map \"Position=%PNum\"\n",
              outcomeOf(requestFor("Position\n1\n", list)));
}

TEST(ReportJobTest, HeadingsAreNothingToTheSampleData)
{
    ReportRequest sample;
    sample.input.headings = { { "Cost code", "%UserAttr1", true } };

    EXPECT_EQ("2 --map: the sample data are no parts list\n", outcomeOf(std::move(sample)));
}

TEST(ReportJobTest, ASourceThatFailsIsAFinding)
{
    class BrokenSource : public MemorySource
    {
    public:
        BrokenSource() : MemorySource("parts.csv", "") {}
        std::size_t read(char*, std::size_t) override { throw std::runtime_error("torn"); }
    };
    ReportRequest request = requestFor(kParts, kDetails);
    request.parts.push_back(std::make_unique<BrokenSource>());

    EXPECT_EQ("70 internal fault: torn\n", outcomeOf(std::move(request)));
}

TEST(ReportJobTest, NothingIsLeaked)
{
    outcomeOf(imperialRequest()); // the engine keeps what it sorted by last
    const LeakCheck leakCheck;

    outcomeOf(imperialRequest());
    outcomeOf(requestFor(kParts, "{"));
}
}
