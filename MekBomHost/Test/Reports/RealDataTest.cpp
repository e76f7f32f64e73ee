#include "CsvReader.h"
#include "FileSource.h"
#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"
#include "Utf8.h"

#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"
#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

// A fabricator's own frame: 965 objects with missing data, odd digits and equal parts. Its folder is named when the
// build is configured (MEK_REAL_DATA_DIR); without it these tests are skipped.

namespace mekbom
{
namespace
{
const std::string kFolder = MEK_REAL_DATA_DIR;

// The sums that the file itself comes with, in its own units.
struct FileSum
{
    const char* token;
    double sum;
    double unit; // in internal units
    double tolerance;
};

const FileSum kFileSums[] = {
    { "%Weight", 7411.585137, 1.0, 1e-6 },
    { "%ExactWeight", 7146.520362, 1.0, 1e-6 },
    { "%Length", 327805.240849, 1.0, 1e-6 },
    { "%Paint", 167.876533, 1e6, 1e-6 },
};

class RealDataTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (kFolder.empty())
            GTEST_SKIP() << "no real data: configure with -DMEK_REAL_DATA_DIR=<folder of steel-frame.csv>";
    }

    static std::unique_ptr<Report> frameReport(const std::string& templatePath)
    {
        auto pReport = std::make_unique<Report>(TemplateReader::read(templatePath, readFile(templatePath)),
                                                VorUnitsManager::metric());
        FileSource file(kFolder + "/steel-frame.csv");
        CsvReader records(file);
        PartsList parts(records);
        parts.setInputUnit("%Paint", "m2");
        parts.readRows(pReport->engineTemplate(), pReport->filterTokens());
        return pReport;
    }

    // Over rows that count or over rows that do not; of the top-level rows as they stand.
    static double sumOf(Report& report, const std::string& token, int use)
    {
        const VorString wideToken = Utf8::toWide(token);
        double sum = 0;
        for (VorBomItemBase* pRow = report.engineTemplate().getBomData()->child(); pRow != nullptr; pRow = pRow->next())
        {
            const VorBomDataTuple* const pTuple = pRow->getTupleAt(wideToken);
            if (pTuple != nullptr && static_cast<VorBomDataRow*>(pRow)->getUseThisDataForSums() == use)
                sum += *static_cast<const double*>(pTuple->value().data());
        }
        return sum;
    }

    static int numRows(Report& report)
    {
        int number = 0;
        for (VorBomItemBase* pRow = report.engineTemplate().getBomData()->child(); pRow != nullptr; pRow = pRow->next())
            ++number;
        return number;
    }
};

// The value after "[%SumBy:<token>:" on the last line of a report's list, which is the report footer.
std::string footerTotal(const std::string& list, const std::string& token)
{
    const std::string tuple = "[%SumBy:" + token + ":";
    const std::size_t begin = list.rfind(tuple) + tuple.size();
    return list.substr(begin, list.find(']', begin) - begin);
}

// The last line of the table, above the foot of the list.
std::string totalLine(const std::string& list)
{
    const std::string text = withoutFoot(list);
    const std::size_t end = text.size() - 1;
    const std::size_t begin = text.rfind('\n', end - 1) + 1;
    return text.substr(begin, end - begin);
}

std::vector<std::string> wordsOf(const std::string& line)
{
    std::istringstream text(line);
    std::vector<std::string> words;
    for (std::string word; text >> word;)
        words.push_back(word);
    return words;
}

const char* const kFrameWeights = MEK_TEST_DIR "/Reports/frame-weights.json";
}

TEST_F(RealDataTest, EveryRowOfTheFrameIsRead)
{
    const std::unique_ptr<Report> pReport = frameReport(kFrameWeights);

    EXPECT_EQ(965, numRows(*pReport));
    for (const FileSum& file : kFileSums)
        EXPECT_NEAR(file.sum, sumOf(*pReport, file.token, 1) / file.unit, file.tolerance) << file.token;
}

TEST_F(RealDataTest, TotalsAndMergedRowsMakeUpTheFilesOwnSums)
{
    const std::unique_ptr<Report> pReport = frameReport(kFrameWeights);

    pReport->evaluate();

    EXPECT_GT(pReport->facts().rows.numMerged, 0);
    const std::string list = listOf(*frameReport(kFrameWeights));
    for (const FileSum& file : kFileSums)
    {
        const double counted = sumOf(*pReport, file.token, 1);
        const double merged = sumOf(*pReport, file.token, 0);
        EXPECT_NEAR(file.sum, (counted + merged) / file.unit, file.tolerance) << file.token;
        EXPECT_GT(merged, 0) << file.token;
        EXPECT_EQ(Utf8::toBytes(pReport->engineTemplate().getBomTemplateUnits()->getDisplayString(
                      Utf8::toWide(file.token), counted)),
                  footerTotal(list, file.token));
    }
}

TEST_F(RealDataTest, AListWithHandlesTotalsTheWholeFrame)
{
    const ProgramRun run = runProgram("report --data \"" + kFolder + "/steel-frame.csv\" --input-unit %Paint=m2");

    EXPECT_EQ(0, run.status);
    EXPECT_EQ(
        "mekbom: note: list cutting-list (Cutting list), which suits these columns; --template NAME takes another\n",
        run.errors); // and nothing else: nothing merged, no column missing
    EXPECT_EQ("Cutting list", run.output.substr(0, run.output.find('\n')));
    // Bolts and others without a profile are left out; they have neither weight nor surface.
    const std::vector<std::string> words = wordsOf(totalLine(run.output));
    ASSERT_EQ(5u, words.size());
    EXPECT_EQ("Total", words[0]);
    EXPECT_EQ("7411.59", words[3]);
    EXPECT_EQ("167.88", words[4]);
}

TEST_F(RealDataTest, AListThatWouldLoseWeightByMergingIsRefused)
{
    const std::string command = "report --data \"" + kFolder +
                                "/steel-frame.csv\" --input-unit %Paint=m2 --template \"" + std::string(kFrameWeights) +
                                "\"";
    const std::unique_ptr<Report> pReport = frameReport(kFrameWeights);
    pReport->evaluate();

    const ProgramRun refused = runProgram(command);
    const ProgramRun allowed = runProgram(command + " --allow MB307");

    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("", refused.output);
    EXPECT_NE(std::string::npos,
              refused.errors.find(std::to_string(pReport->facts().rows.numLosing) + " rows read like the one before"))
        << refused.errors;
    EXPECT_EQ(0, allowed.status) << allowed.errors;
    EXPECT_NE(std::string::npos, allowed.output.find(", " + std::to_string(pReport->facts().rows.numMerged) +
                                                     " merged into equal lines, "))
        << allowed.output;
    // Bolts come in rows of several pieces, and the list adds up their lengths as if it were one.
    EXPECT_NE(std::string::npos, allowed.errors.find("warning MB308: \"%SumBy:%Length\"")) << allowed.errors;
}

TEST_F(RealDataTest, TheFramePrintsInImperialUnits)
{
    const ProgramRun run =
        runProgram("report --data \"" + kFolder + "/steel-frame.csv\" --input-unit %Paint=m2 --units imperial");

    EXPECT_EQ(0, run.status);
    const std::vector<std::string> words = wordsOf(totalLine(run.output));
    ASSERT_GE(words.size(), 2u);
    EXPECT_EQ("16339.7", words[words.size() - 2]); // 7411.585137 kg in lb
    EXPECT_EQ("1807.01", words.back());            // 167.876533 m2 in ft2
}

TEST_F(RealDataTest, TheOtherFilesAreRead)
{
    for (const char* const name : { "/steel-frame-assemblies.csv", "/profiles.csv" })
    {
        FileSource file(kFolder + name);
        CsvReader records(file);
        PartsList parts(records);
        ReportTemplate all;
        all.pTemplate = std::make_unique<VorBomTemplate>();
        auto* const pDetails = new VorBomTemplateItem(VorBomTemplateItem::kDetails);
        all.pTemplate->addChild(pDetails);
        for (const InputColumn& column : parts.columns())
            pDetails->addData(VorBomDataTuple(column.tupleToken, VorString()));
        all.pTemplate->setUnitsForTokens(nullptr);
        all.pTemplate->findUsedTokens();

        EXPECT_EQ("", faultOf([&] { parts.readRows(*all.pTemplate); })) << name;
        EXPECT_NE(nullptr, all.pTemplate->getBomData()->child());
    }
}
}
