#include "DescribeVerb.h"

#include "DataFile.h"
#include "DescriptionText.h"
#include "FindingList.h"
#include "PartsDescriber.h"
#include "PartsFormats.h"
#include "ShippedFiles.h"
#include "StandardOutput.h"
#include "TemplateChoice.h"
#include "TemplateFile.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <set>

namespace mekbom
{
namespace
{
const char* const kNotes =
    R"(Prints a line for each column: its token, what it holds, in which unit, how many rows fill
it, how many different values there are (up to 100000), the smallest and the largest, and
what they add up to: over the rows as they stand and, for lengths, weights and areas of a
file with a column of pieces, over the pieces. Below it stands what is odd: cells that a
list would refuse, texts among numbers, blanks around texts, zeros in front, handles that
stand twice, units that are missing, headings in doubt. Last come the shipped lists, those
first that suit best, with the data that each would find and lack.

A file that no list could be made of is described all the same, if it can be read at all.

Examples
  mekbom describe parts.csv
  mekbom describe hall
  mekbom describe parts.xlsx --sheet Prices
  mekbom describe export.csv --map "Cost code=%UserAttr1")";

std::vector<NamedText> shippedLists()
{
    std::vector<NamedText> lists;
    for (const std::string& name : ShippedFiles::templateNames())
        lists.push_back({ name, TemplateFile::open(name, "")->readAll() });
    return lists;
}
}

CLI::App& DescribeVerb::declareOn(CLI::App& parent)
{
    CLI::App& describe = *parent.add_subcommand("describe", "Print what stands in the columns of a parts list");
    describe
        .add_option("data", m_data,
                    "Parts lists, each described by itself; - reads standard input, hall takes the "
                    "shipped one")
        ->required()
        ->type_name("FILE");
    m_input.declareOn(describe);
    describe.footer(kNotes);
    return describe;
}

ExitStatus DescribeVerb::run(FindingList& findings)
{
    const std::vector<NamedText> lists = shippedLists();
    for (const std::string& name : m_data)
        StandardOutput::print((&name == m_data.data() ? "" : "\n") + textOf(name, lists, findings));
    return kDone;
}

std::string DescribeVerb::textOf(const std::string& name, const std::vector<NamedText>& lists,
                                 FindingList& findings) const
{
    const std::unique_ptr<ByteSource> pFile = DataFile::open(name);
    const InputChoices input = m_input.choices();
    const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(*pFile, input, findings);
    PartsDescriber describer(*pRecords, { input.headings, {} });
    for (const Finding& note : describer.notes())
        findings.add(note);
    const PartsDescription description = describer.describe();
    std::set<std::string> tokens;
    for (const ColumnDescription& column : description.columns)
        tokens.insert(column.token);
    return DescriptionText::of(description, TemplateChoice::coversOf(lists, [&tokens](const std::string& token)
                                                                     { return tokens.count(token) > 0; }));
}
}
