// Files are named here and read by the job, so that this verb and a program that has its texts in memory differ in
// their sources alone:
//
//   --data -             a FileSource of standard input        --template default   no source and no candidates
//   --data sample        no source: the built-in rows          no --template        a source for each shipped template
//   no --data            a FileSource of the shipped hall      --units house.ini    a source, if there is such a file
//
// The list is written only once all of it has been evaluated.
#include "ReportVerb.h"

#include "DisplaySettings.h"
#include "Fault.h"
#include "FileSource.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "OutputFile.h"
#include "ReportFormats.h"
#include "ShippedFiles.h"
#include "StandardOutput.h"
#include "UnitChoice.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace mekbom
{
namespace
{
const char* const kStandardStream = "-"; // as data or output
const char* const kSampleData = "sample";
const char* const kDefaultTemplate = "default";

void addFile(CLI::App& command, const std::string& name, std::string& file, const std::string& help)
{
    command.add_option(name, file, help)->type_name("FILE");
}

// The variables of the process that are named like a setting, with what they hold.
ReportRequest::Pairs environment()
{
    ReportRequest::Pairs variables;
    for (const std::string& name : DisplaySettings::names())
        if (const char* const pValue = std::getenv(name.c_str())) // NOLINT(concurrency-mt-unsafe): nobody changes it
            variables.emplace_back(name, pValue);
    return variables;
}
}

const char* const ReportVerb::kNotes = R"(Data
  A parts list is comma-separated text in UTF-8. Its header row names tokens, with or
  without the leading %, and may give a unit in brackets: Length [ft]. Numbers without a
  unit are in mm, kg, rad and what follows from them (mm2, kg/mm ...). A cell may carry
  a unit of its own: 7'-6 1/2", 7.5 ft. Empty cells are no data. Handle is the identity of
  the object.

Template
  Without --template the shipped template is taken that finds the greatest part of its
  data among the columns; of equals the first of cutting-list, assembly-list, bolt-list,
  parts-list. The sample data go with the default template.

Units
  KIND is length, angle, weight, area, weight-per-length, area-per-length or density. UNIT
  is a symbol with a precision behind a slash: decimals (lb/1, kg/m/2), or for ft-in the
  finest fraction of an inch (ft-in/16). ft-in/.2 shows decimals of an inch, in/1/16
  fractions. A file of units has lines such as length = ft-in/16, and base = imperial or
  metric for what it does not name. mekbom units lists the catalogue.

Settings
  C0_BOMSuppressLastZeros          0 keeps trailing zeros: 2.50
  C40_SuppressZeroFeet             0 shows 0' 6" instead of 6"
  C40_SuppressZeroInch             0 shows 7' 0" instead of 7'
  C40_ShowMinusBetweenFeetAndInch  1 shows 7'-6" instead of 7' 6"
  Environment variables of these names count too; a settings file, whose lines are such as
  C40_SuppressZeroFeet = 0, comes over them, and --setting over both.

Examples
  mekbom report
  mekbom report --data parts.csv
  mekbom report --data parts.csv --template list.json --units imperial -o list.txt
  mekbom report --unit length=ft-in/32 --setting C40_ShowMinusBetweenFeetAndInch=1
  mekbom report --data frame.csv --input-unit %Paint=m2
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
    addFile(report, "--data", m_data,
            "Parts list; - reads standard input, sample takes built-in rows [the shipped hall]");
    addFile(report, "--template", m_templateName,
            "Template file, or default for the built-in one [a shipped one that suits the data]");
    report.add_option("--units", m_units, "Units to print in: metric, imperial or a file of units [metric]")
        ->type_name("UNITS");
    m_unitChoices.declareOn(report, "Unit and precision of one kind, such as length=ft-in/16");
    addFile(report, "--settings", m_settingsFile, "INI file that says how numbers are shown");
    m_settings.declareOn(report, "One of the settings below");
    addFile(report, "-o,--output", m_output, "File to write, - for standard output [-]");
    m_inputUnits.declareOn(report, "Unit of a column whose header names none");
    report.add_option("--where", m_where, "Which rows to list, such as \"%Material = 'S355' and %Length > 6 m\"")
        ->type_name("CONDITION");
    report.add_option("--row-totals", m_rowTotals, "Columns whose values are those of all pieces of a row")
        ->type_name("TOKEN,...")
        ->delimiter(',');
    report.add_option("--allow", m_allowed, "Mistakes that stop no report, such as MB105")
        ->type_name("CODE,...")
        ->delimiter(',');
    report.add_flag("--check-totals", m_checksTotals, "Add up every total a second time, from the rows");
    return report;
}

// The output is opened only once there is a report: a run that fails leaves the list of the run before as it was.
ExitStatus ReportVerb::run(FindingList& findings)
{
    const std::unique_ptr<ReportWriter> pWriter = ReportFormats::createWriter(ReportFormats::kText);
    ReportRequest wanted = request();
    wanted.contents = pWriter->contents();
    m_pJob = std::make_unique<ReportJob>(std::move(wanted));
    checkOutput();
    const ExitStatus status = m_pJob->run();
    findings.addAll(m_pJob->findings().all(), m_pJob->findings().numErrors());
    if (status == kDone)
        write(*pWriter);
    return status;
}

ReportRequest ReportVerb::request() const
{
    ReportRequest request;
    request.inputUnits = m_inputUnits.pairs();
    request.unitChoices = m_unitChoices.pairs();
    request.settings = m_settings.pairs();
    request.where = m_where;
    request.rowTotals = m_rowTotals;
    request.allowed = m_allowed;
    request.checksTotals = m_checksTotals;
    request.pParts = parts();
    addTemplates(request);
    request.environment = environment();
    if (!m_settingsFile.empty())
        request.pSettings = std::make_unique<FileSource>(m_settingsFile);
    addUnits(request);
    return request;
}

std::unique_ptr<ByteSource> ReportVerb::parts() const
{
    if (isSample())
        return nullptr;
    if (m_data == kStandardStream)
        return std::make_unique<FileSource>();
    return std::make_unique<FileSource>(m_data.empty() ? ShippedFiles::find(ShippedFiles::kPartsList) : m_data);
}

// The sample data go with the default template, unless another one is named.
void ReportVerb::addTemplates(ReportRequest& request) const
{
    if (m_templateName == kDefaultTemplate)
        return;
    if (!m_templateName.empty())
        request.pTemplate = std::make_unique<FileSource>(m_templateName);
    else if (!isSample())
        for (const std::string& file : ShippedFiles::templates())
            request.candidates.push_back(std::make_unique<FileSource>(ShippedFiles::find(file)));
}

// A word that is neither metric nor imperial is a file, if there is one of that name.
void ReportVerb::addUnits(ReportRequest& request) const
{
    std::error_code error;
    if (!UnitChoice::isBase(m_units) && std::filesystem::exists(m_units, error))
        request.pUnits = std::make_unique<FileSource>(m_units);
    else
        request.units = m_units;
}

// A slip such as `-o parts.csv` must not cost the parts list.
void ReportVerb::checkOutput() const
{
    if (m_output == kStandardStream)
        return;
    std::error_code error;
    for (const std::string& input : { m_data, m_templateName, m_units, m_settingsFile })
        if (std::filesystem::equivalent(input, m_output, error))
        {
            Finding finding = Finding::stating(FindingCodes::kOutputIsInput, "is the same file as the input " + input);
            finding.source = "--output " + m_output;
            throw Fault(kWrongUsage, finding);
        }
}

void ReportVerb::write(const ReportWriter& writer) const
{
    if (m_output == kStandardStream)
    {
        StandardOutput sink;
        writer.write(m_pJob->report(), sink);
    }
    else
    {
        OutputFile sink(m_output);
        writer.write(m_pJob->report(), sink);
    }
}

bool ReportVerb::isSample() const
{
    return m_data == kSampleData;
}
}
