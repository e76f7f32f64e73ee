// Files are named here and read by the job, so that this verb and a program that has its texts in memory differ in
// their sources alone:
//
//   --data -             a FileSource of standard input      --template default     no source and no candidates
//   --data hall          a FileSource of the shipped hall    --template bolt-list   a FileSource of the shipped list
//   --data sample        no source: the built-in rows        no --template          a source for each shipped list
//                                                            --units house.ini      a source, if there is such a file
//
// A word wins over a file of the same name, so that a command means the same in every folder; "./hall" is the file.
// The list is written only once all of it has been evaluated.
#include "ReportVerb.h"

#include "DataFile.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "ReportOutputs.h"
#include "RunProgress.h"
#include "ShippedFiles.h"
#include "TemplateFile.h"

#include <CLI/CLI.hpp>

#include <thread>
#include <utility>

namespace mekbom
{
namespace
{
const char* const kSampleData = "sample";

// Ends the run with a finding about an option, which stands in front of it in the message.
[[noreturn]] void failAt(const std::string& option, Finding finding)
{
    finding.source = option;
    throw Fault(kWrongUsage, finding);
}
}

const char* const ReportVerb::kNotes = R"(Data
  A parts list is CSV, a workbook (.xlsx) or JSON. What divides the columns of CSV, its
  decimal sign and its encoding are found in the file, and said where they are not commas,
  points and UTF-8. The header row names tokens, with or without the leading %, or what
  the trade calls them: Mark, Werkstoff, Aantal (mekbom tokens --headings); --map
  "Cost code=%UserAttr1" says what else a heading means. It may give a unit: Length [ft],
  Length mm. Lengths, weights and angles without a unit are in mm, kg and rad; areas,
  densities and values per length need one: Paint [m2], or --input-unit %Paint=m2. A cell
  may carry a unit of its own: 7'-6 1/2", 7.5 ft. Empty cells are no data. Handle is the
  identity of the object, Quantity how many of them a row stands for (1 where it does not
  say). Other values are those of one piece, or of all in the columns that --row-totals
  names. Rows that name others as their Parent are parts of these: --flatten multiplies
  their pieces, --sets 10 those of all rows. mekbom describe prints what stands in the
  columns of a file, and what is odd.

Template
  The shipped lists go by name: cutting-list, assembly-list, bolt-list, parts-list.
  Without --template the one is taken that finds the greatest part of its data among the
  columns; of equals the first. Data that suit none are printed as they are. The sample
  data go with the default template.

Units
  KIND is length, angle, weight, area, weight-per-length, area-per-length or density. UNIT
  is a symbol with a precision behind a slash: decimals (lb/1, kg/m/2), or for ft-in the
  finest fraction of an inch (ft-in/16). ft-in/.2 shows decimals of an inch, in/1/16
  fractions. A file of units has lines such as length = ft-in/16, and base = imperial or
  metric for what it does not name. mekbom units lists the catalogue.

Output
  -o names a file, several times for several, all of them from one evaluation. Its ending
  tells the format, such as .txt, .csv, .html or .json; --to is that of outputs whose names
  tell none, and of standard output. Files are replaced when all outputs are complete. CSV has
  a record for each line, with what its groups show and without totals, so that a column
  adds up to its total; --values plain gives numbers in full, in feet where the list shows
  feet and inches. A text that a spreadsheet would run gets an apostrophe in front. What
  the list is made of is told on standard error then, or with --foot behind the records.

Configuration
  What is the same for many lists may stand in a file: ~/.config/mekbom/config.ini is for
  all lists of its user, and mekbom.ini in the folder of a template file for those of the
  templates there, over the user's. Options win over both. Lines are such as
  units = imperial, length = ft-in/16, C40_SuppressZeroFeet = 0, output-delimiter = ;,
  output-decimal = ,, output-encoding = utf-8-bom and paper = letter. Units that a list has
  from such a file are told on standard error; units = metric leaves nothing of those that
  the user's file names, and --units nothing of both. --no-config reads neither.

Settings
  C0_BOMSuppressLastZeros          0 keeps trailing zeros: 2.50
  C40_SuppressZeroFeet             0 shows 0' 6" instead of 6"
  C40_SuppressZeroInch             0 shows 7' 0" instead of 7'
  C40_ShowMinusBetweenFeetAndInch  1 shows 7'-6" instead of 7' 6"
  Environment variables of these names count too; a settings file, whose lines are such as
  C40_SuppressZeroFeet = 0, comes over them, and --setting over both. A configuration file
  comes below all of them.

Files
  ~/.config/mekbom/config.ini  configuration of the user
  mekbom.ini                   in the folder of a template file: configuration of its lists

Environment
  XDG_CONFIG_HOME  the folder that stands in place of ~/.config
  TMPDIR           the folder for temporary files of workbooks [/tmp]

Examples
  mekbom demo
  mekbom report --data parts.csv
  mekbom report --data parts.csv --template cutting-list
  mekbom report --data parts.csv --template list.json --units imperial -o list.txt
  mekbom report --data parts.csv -o list.txt -o list.csv --values plain
  mekbom report --data hall --unit length=ft-in/32 --setting C40_SuppressZeroFeet=0
  mekbom report --data frame.csv --input-unit %Paint=m2
  mekbom report --data export.csv --map "Cost code=%UserAttr1"
  mekbom report --data nested.csv --flatten --sets 2
  sed 1d export.csv | mekbom report --data -
  mekbom report --data sample --template default
  mekbom units convert 2286 mm ft-in/16

Exit status
   0  done
   1  mistakes in the template, or in what the data make of it; see mekbom check --help
   2  wrong usage
   3  input unreadable or invalid
   4  output not written; what stood there before still does
  70  internal fault)";

CLI::App& ReportVerb::declareOn(CLI::App& parent)
{
    CLI::App& report = *parent.add_subcommand("report", "Print a list from a parts list and a template");
    report.footer(kNotes);
    m_data.declareOn(report, "Parts list, several times for several; - reads standard input, hall takes the shipped "
                             "one, sample built-in rows");
    declareOptionsOn(report);
    return report;
}

void ReportVerb::declareOptionsOn(CLI::App& command)
{
    m_template.declareOn(command,
                         "Template file, a shipped list by its name, or default [the list that suits the data]");
    m_list.declareOn(command);
    m_outputs.declareOn(command);
    command.add_flag("--summary", m_isSummary, "Print groups and totals without the lines below them");
    command.add_flag("--check-totals", m_checksTotals, "Add up every total a second time, from the rows");
}

// The outputs are opened only once there is a report: a run that fails leaves the lists of the run before as they were.
// That they may be written is asked before, since a user should not wait a minute for a report to be told of a slip in
// a name.
ExitStatus ReportVerb::run(FindingList& findings)
{
    const Configuration configuration = m_list.configurationFor(m_template.name());
    ReportRequest wanted = request(configuration);
    const ReportOutputs outputs(m_outputs.wanted(), m_outputs.choicesOver(configuration.output()));
    m_outputs.refuseInputs(inputNames());
    m_outputs.refuseInputs(configuration.files());
    wanted.contents = outputs.contents();
    RunProgress progress;
    wanted.pProgress = progress.ofRows();
    m_pJob = std::make_unique<ReportJob>(std::move(wanted));
    const ExitStatus status = m_pJob->run();
    findings.addAll(m_pJob->findings().all(), m_pJob->findings().numErrors());
    if (status != kDone)
        return status;
    outputs.write(m_pJob->report(), &progress);
    if (const auto note = m_list.noteOfUnits(configuration))
        findings.add(*note);
    for (const Finding& note : outputs.footNotes(m_pJob->report()))
        findings.add(note);
    return kDone;
}

ReportRequest ReportVerb::request(const Configuration& configuration) const
{
    ReportRequest request;
    m_list.fillIn(request, configuration);
    request.isSummary = m_isSummary;
    request.checksTotals = m_checksTotals;
    request.parts = parts();
    request.numProcessors = std::thread::hardware_concurrency();
    addTemplates(request);
    return request;
}

std::vector<std::string> ReportVerb::dataNames() const
{
    std::vector<std::string> names = m_data.names();
    if (!names.empty())
        return names;
    Finding finding = Finding::of(FindingCodes::kWrongArguments, "no --data", "a parts list");
    finding.remedy = "mekbom report --data FILE lists its parts, mekbom demo those of the shipped hall";
    failAt("report", finding);
}

std::vector<std::unique_ptr<ByteSource>> ReportVerb::parts() const
{
    return isSample() ? std::vector<std::unique_ptr<ByteSource>>() : DataFile::openAll(dataNames());
}

// The sample data go with the default template, unless another one is named.
void ReportVerb::addTemplates(ReportRequest& request) const
{
    const std::string name = m_template.name();
    if (name == TemplateFile::kDefault)
        return;
    if (!name.empty())
        request.pTemplate = TemplateFile::open(name, m_template.option());
    else if (!isSample())
        for (const std::string& shipped : ShippedFiles::templateNames())
            request.candidates.push_back(TemplateFile::open(shipped, m_template.option()));
}

// All that is read, as the command line names it.
std::vector<std::string> ReportVerb::inputNames() const
{
    std::vector<std::string> inputs = m_list.inputNames();
    for (const std::string& name : dataNames())
        inputs.push_back(name);
    inputs.push_back(m_template.name());
    return inputs;
}

bool ReportVerb::isSample() const
{
    return dataNames() == std::vector<std::string>{ kSampleData };
}
}
