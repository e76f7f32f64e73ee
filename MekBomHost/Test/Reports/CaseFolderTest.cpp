#include "CsvReader.h"
#include "FileSource.h"
#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"
#include "UnitChoice.h"

#include "Support/HostTestSupport.h"
#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// Whole reports as folders of plain text, each named after the rule that it shows:
//
//   data.csv             the parts list
//   template.json        the template, with the rule told on top
//   arguments.txt        options of `mekbom report`, if there are any
//   expected.list.txt    the evaluated sections
//   expected.table.txt   the printed table
//
// With MEK_REWRITE_CASES=1 in the environment the expected files are written anew. Read the difference before you
// believe it.

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

std::vector<std::string> caseNames()
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(MEK_CASES_DIR))
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// "footer-skips-duplicate-details" -> "FooterSkipsDuplicateDetails"
std::string testName(const testing::TestParamInfo<std::string>& info)
{
    std::string name;
    bool startsWord = true;
    for (const char c : info.param)
    {
        if (c != '-')
            name += startsWord ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        startsWord = c == '-';
    }
    return name;
}

// Of the options of `mekbom report` those that cases use.
struct CaseOptions
{
    std::string units = "metric";
    std::vector<std::pair<std::string, std::string>> inputUnits;
};

//   --units imperial
//   --input-unit %Paint=m2
CaseOptions optionsOf(const fs::path& folder)
{
    CaseOptions options;
    std::istringstream text(readFile(folder / "arguments.txt"));
    for (std::string option, value; text >> option >> value;)
    {
        const std::size_t equals = value.find('=');
        if (option == "--units")
            options.units = value;
        else if (option == "--input-unit" && equals != std::string::npos)
            options.inputUnits.emplace_back(value.substr(0, equals), value.substr(equals + 1));
        else
            ADD_FAILURE() << "no case has used " << option << " so far";
    }
    return options;
}

void hold(const fs::path& file, const std::string& text)
{
    const char* const pRewrite = std::getenv("MEK_REWRITE_CASES");
    if (pRewrite != nullptr && std::string(pRewrite) == "1")
        writeFile(file, text);
    EXPECT_EQ(readFile(file), text) << file;
}

// The report that the folder describes, not evaluated yet.
std::unique_ptr<Report> readReport(const fs::path& folder)
{
    const CaseOptions options = optionsOf(folder);
    auto pReport = std::make_unique<Report>(TemplateReader::read("template.json", readFile(folder / "template.json")),
                                            UnitChoice::unitsOf(options.units, {}));
    FileSource file((folder / "data.csv").string());
    CsvReader records(file);
    PartsList parts(records);
    for (const auto& [token, unit] : options.inputUnits)
        parts.setInputUnit(token, unit);
    parts.readRows(pReport->engineTemplate(), pReport->filterTokens());
    return pReport;
}

class CaseFolderTest : public testing::TestWithParam<std::string>
{
};
}

TEST_P(CaseFolderTest, GivesTheExpectedTexts)
{
    const fs::path folder = fs::path(MEK_CASES_DIR) / GetParam();
    const std::unique_ptr<Report> pReport = readReport(folder);

    pReport->checkTotals();
    pReport->evaluate();

    hold(folder / "expected.list.txt", listOf(*readReport(folder)));
    hold(folder / "expected.table.txt", withoutFoot(tableOf(*pReport))); // a rule shows in the table
}

INSTANTIATE_TEST_SUITE_P(Folders, CaseFolderTest, testing::ValuesIn(caseNames()), testName);
}
