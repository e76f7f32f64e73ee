#include "ReportCommand.h"

#include "CsvReader.h"
#include "DataTokens.h"
#include "DisplaySettings.h"
#include "Fault.h"
#include "OutputFile.h"
#include "ShippedFiles.h"
#include "StandardOutput.h"
#include "TemplateChoice.h"
#include "TemplateReader.h"
#include "UnitChoice.h"

#include "VorBomData.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace mekbom
{
void ReportCommand::run()
{
    checkOutput();
    openParts();
    ReportTemplate reportTemplate = readTemplate();
    m_notes = reportTemplate.notes;
    loadSettings();
    m_pReport = std::make_unique<Report>(std::move(reportTemplate),
                                         UnitChoice::unitsOf(m_options.units, m_options.unitChoices));
    readData(*m_pReport);
    m_pReport->evaluate();
    noteMergedRows(*m_pReport);
    write(*m_pReport);
}

// A slip such as `-o parts.csv` must not cost the parts list.
void ReportCommand::checkOutput() const
{
    if (m_options.output == ReportOptions::kStandardStream)
        return;
    std::error_code error;
    for (const std::string& input : { m_options.data, m_options.templateName, m_options.units, m_options.settingsFile })
        if (std::filesystem::equivalent(input, m_options.output, error))
            throw Fault(kWrongUsage, "--output " + m_options.output + ": is the same file as the input " + input);
}

void ReportCommand::openParts()
{
    if (isSample() && !m_options.inputUnits.empty())
        throw Fault(kWrongUsage, "--input-unit: the sample data are no parts list");
    if (isSample())
        return;
    if (m_options.data == ReportOptions::kStandardStream)
        m_pFile = std::make_unique<FileSource>();
    else
        m_pFile = std::make_unique<FileSource>(m_options.data.empty() ? ShippedFiles::find(ShippedFiles::kPartsList)
                                                                      : m_options.data);
    m_pRecords = std::make_unique<CsvReader>(*m_pFile);
    m_pParts = std::make_unique<PartsList>(*m_pRecords);
    for (const auto& [token, unit] : m_options.inputUnits)
        m_pParts->setInputUnit(token, unit);
}

// The sample data go with the default template, unless another one is named.
ReportTemplate ReportCommand::readTemplate() const
{
    const bool isDefault = m_options.templateName == ReportOptions::kDefaultTemplate;
    if (!isDefault && (!isSample() || !m_options.templateName.empty()))
        return readTemplateFile(templatePath());
    ReportTemplate reportTemplate;
    reportTemplate.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    return reportTemplate;
}

ReportTemplate ReportCommand::readTemplateFile(const std::string& path) const
{
    FileSource file(path);
    return TemplateReader::read(path, file.readAll());
}

std::string ReportCommand::templatePath() const
{
    if (!m_options.templateName.empty())
        return m_options.templateName;
    const PartsList& parts = *m_pParts;
    return TemplateChoice::choose(m_pFile->name(),
                                  [&parts](const std::string& token) { return parts.find(token) != nullptr; });
}

void ReportCommand::loadSettings()
{
    for (const std::string& name : DisplaySettings::load(m_options.settingsFile, m_options.settings))
        m_notes.push_back(m_options.settingsFile + " sets " + name + ", which lists do not use");
}

void ReportCommand::readData(Report& report)
{
    if (isSample())
        return takeSampleData(report.engineTemplate());
    noteMissingColumns(report);
    m_pParts->readRows(report.engineTemplate(), report.queryFilter());
}

void ReportCommand::takeSampleData(VorBomTemplate& reportTemplate) const
{
    const std::unique_ptr<VorBomData> pSample(VorBomData::createDefaultData());
    reportTemplate.getBomData()->setChild(pSample->child());
    pSample->setChild(nullptr);
}

void ReportCommand::noteMissingColumns(Report& report)
{
    std::string missing;
    for (const std::string& token : DataTokens::of(report.engineTemplate()))
        if (m_pParts->find(token) == nullptr)
            missing += (missing.empty() ? "" : ", ") + token;
    if (!missing.empty())
        m_notes.push_back(m_pFile->name() + " has no column for " + missing + ", which the template asks for");
}

void ReportCommand::noteMergedRows(const Report& report)
{
    const int numRows = report.numMergedRows();
    if (numRows > 0)
        m_notes.push_back(std::to_string(numRows) +
                          (numRows == 1 ? " line equal to the one before it was merged into it and is"
                                        : " lines equal to the one before them were merged into it and are") +
                          " not counted in totals; details that show %Handle stay apart");
}

void ReportCommand::write(Report& report) const
{
    std::unique_ptr<TextSink> pSink;
    if (m_options.output == ReportOptions::kStandardStream)
        pSink = std::make_unique<StandardOutput>();
    else
        pSink = std::make_unique<OutputFile>(m_options.output);
    report.writeTable(*pSink);
}
}
