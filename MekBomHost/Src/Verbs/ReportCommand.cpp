#include "ReportCommand.h"

#include "DataTokens.h"
#include "Fault.h"
#include "OutputFile.h"
#include "ShippedFiles.h"
#include "StandardOutput.h"
#include "TemplateChoice.h"
#include "TemplateReader.h"
#include "UnitChoice.h"

#include "VorBomData.h"

#include <cstdlib>
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
    for (const Finding& finding : reportTemplate.findings)
        m_notes.push_back(messageOf(finding));
    const DisplaySettings settings = readSettings();
    m_pReport = std::make_unique<Report>(std::move(reportTemplate), chooseUnits(), settings);
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
    m_pParts = std::make_unique<PartsList>(*m_pFile);
    for (const auto& [token, unit] : m_options.inputUnits)
        m_pParts->setInputUnit(token, unit);
}

// The sample data go with the default template, unless another one is named.
ReportTemplate ReportCommand::readTemplate() const
{
    const bool isDefault = m_options.templateName == ReportOptions::kDefaultTemplate;
    if (!isDefault && (!isSample() || !m_options.templateName.empty()))
        return readTemplateFile();
    ReportTemplate reportTemplate;
    reportTemplate.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    return reportTemplate;
}

ReportTemplate ReportCommand::readTemplateFile() const
{
    const NamedText file = m_options.templateName.empty() ? chooseTemplate() : contentOf(m_options.templateName);
    return TemplateReader::read(file.name, file.text);
}

NamedText ReportCommand::chooseTemplate() const
{
    std::vector<NamedText> candidates;
    for (const std::string& file : ShippedFiles::templates())
        candidates.push_back(contentOf(ShippedFiles::find(file)));
    const PartsList& parts = *m_pParts;
    return TemplateChoice::choose(m_pFile->name(), candidates,
                                  [&parts](const std::string& token) { return parts.find(token) != nullptr; });
}

DisplaySettings ReportCommand::readSettings()
{
    DisplaySettings::Origins origins;
    for (const std::string& name : DisplaySettings::names())
        if (const char* const pValue = std::getenv(name.c_str())) // NOLINT(concurrency-mt-unsafe): nobody changes it
            origins.environment.emplace_back(name, pValue);
    if (!m_options.settingsFile.empty())
        origins.file = contentOf(m_options.settingsFile);
    origins.options = m_options.settings;
    FindingList findings;
    const DisplaySettings settings = DisplaySettings::read(origins, findings);
    for (const Finding& finding : findings.all())
        m_notes.push_back(messageOf(finding));
    return settings;
}

// A word that is neither a base nor a file is refused as a base.
VorUnitsManager ReportCommand::chooseUnits() const
{
    std::error_code error;
    if (!UnitChoice::isBase(m_options.units) && std::filesystem::exists(m_options.units, error))
        return UnitChoice::unitsOf(contentOf(m_options.units), m_options.unitChoices);
    return UnitChoice::unitsOf(m_options.units, m_options.unitChoices);
}

NamedText ReportCommand::contentOf(const std::string& path)
{
    return { path, FileSource(path).readAll() };
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
