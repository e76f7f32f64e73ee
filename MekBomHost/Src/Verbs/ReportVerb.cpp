#include "ReportVerb.h"

#include "ColumnName.h"
#include "CsvReader.h"
#include "DataTokens.h"
#include "DisplaySettings.h"
#include "Fault.h"
#include "FindingList.h"
#include "OutputFile.h"
#include "ShippedFiles.h"
#include "StandardOutput.h"
#include "TemplateChoice.h"
#include "TemplateReader.h"
#include "UnitChoice.h"

#include "VorBomData.h"

#include <CLI/CLI.hpp>

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
    return report;
}

ExitStatus ReportVerb::run(FindingList& findings)
{
    for (const PairOption* const pOption : { &m_inputUnits, &m_unitChoices, &m_settings })
        pOption->pairs();
    checkOutput();
    openParts();
    ReportTemplate reportTemplate = readTemplate();
    m_notes = reportTemplate.notes;
    loadSettings();
    m_pReport =
        std::make_unique<Report>(std::move(reportTemplate), UnitChoice::unitsOf(m_units, m_unitChoices.pairs()));
    readData(*m_pReport);
    m_pReport->evaluate();
    noteMergedRows(*m_pReport);
    write(*m_pReport);
    for (const std::string& note : m_notes)
    {
        Finding finding;
        finding.severity = Finding::kNote;
        finding.statement = note;
        findings.add(finding);
    }
    return kDone;
}

bool ReportVerb::isSample() const
{
    return m_data == kSampleData;
}

// A slip such as `-o parts.csv` must not cost the parts list.
void ReportVerb::checkOutput() const
{
    if (m_output == kStandardStream)
        return;
    std::error_code error;
    for (const std::string& input : { m_data, m_templateName, m_units, m_settingsFile })
        if (std::filesystem::equivalent(input, m_output, error))
            throw Fault(kWrongUsage, "--output " + m_output + ": is the same file as the input " + input);
}

void ReportVerb::openParts()
{
    if (isSample() && !m_inputUnits.pairs().empty())
        throw Fault(kWrongUsage, "--input-unit: the sample data are no parts list");
    if (isSample())
        return;
    if (m_data == kStandardStream)
        m_pFile = std::make_unique<FileSource>();
    else
        m_pFile = std::make_unique<FileSource>(m_data.empty() ? ShippedFiles::find(ShippedFiles::kPartsList) : m_data);
    m_pRecords = std::make_unique<CsvReader>(*m_pFile);
    m_pParts = std::make_unique<PartsList>(*m_pRecords);
    for (const auto& [token, unit] : m_inputUnits.pairs())
        m_pParts->setInputUnit(ColumnName::tokenOf(token), unit);
}

// The sample data go with the default template, unless another one is named.
ReportTemplate ReportVerb::readTemplate() const
{
    const bool isDefault = m_templateName == kDefaultTemplate;
    if (!isDefault && (!isSample() || !m_templateName.empty()))
        return readTemplateFile(templatePath());
    ReportTemplate reportTemplate;
    reportTemplate.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    return reportTemplate;
}

ReportTemplate ReportVerb::readTemplateFile(const std::string& path) const
{
    FileSource file(path);
    return TemplateReader::read(path, file.readAll());
}

std::string ReportVerb::templatePath() const
{
    if (!m_templateName.empty())
        return m_templateName;
    const PartsList& parts = *m_pParts;
    return TemplateChoice::choose(m_pFile->name(),
                                  [&parts](const std::string& token) { return parts.find(token) != nullptr; });
}

void ReportVerb::loadSettings()
{
    for (const std::string& name : DisplaySettings::load(m_settingsFile, m_settings.pairs()))
        m_notes.push_back(m_settingsFile + " sets " + name + ", which lists do not use");
}

void ReportVerb::readData(Report& report)
{
    if (isSample())
        return takeSampleData(report.engineTemplate());
    noteMissingColumns(report);
    m_pParts->readRows(report.engineTemplate(), report.queryFilter());
}

void ReportVerb::takeSampleData(VorBomTemplate& reportTemplate) const
{
    const std::unique_ptr<VorBomData> pSample(VorBomData::createDefaultData());
    reportTemplate.getBomData()->setChild(pSample->child());
    pSample->setChild(nullptr);
}

void ReportVerb::noteMissingColumns(Report& report)
{
    std::string missing;
    for (const std::string& token : DataTokens::of(report.engineTemplate()))
        if (m_pParts->find(token) == nullptr)
            missing += (missing.empty() ? "" : ", ") + token;
    if (!missing.empty())
        m_notes.push_back(m_pFile->name() + " has no column for " + missing + ", which the template asks for");
}

void ReportVerb::noteMergedRows(const Report& report)
{
    const int numRows = report.numMergedRows();
    if (numRows > 0)
        m_notes.push_back(std::to_string(numRows) +
                          (numRows == 1 ? " line equal to the one before it was merged into it and is"
                                        : " lines equal to the one before them were merged into it and are") +
                          " not counted in totals; details that show %Handle stay apart");
}

void ReportVerb::write(Report& report) const
{
    std::unique_ptr<TextSink> pSink;
    if (m_output == kStandardStream)
        pSink = std::make_unique<StandardOutput>();
    else
        pSink = std::make_unique<OutputFile>(m_output);
    report.writeTable(*pSink);
}
}
