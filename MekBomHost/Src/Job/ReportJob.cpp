// The order of the steps decides which mistake a user is told of first, and most need what an earlier one has found:
//
//   header row of the parts list     says which columns there are
//   template                         without one named, the candidate that suits these columns best
//   settings, units, Report          the template's tokens get their kinds of quantity
//   mistakes of the template         what it uses may be known from the catalogue, from itself or from the data
//   records                          are read in these kinds, and only the data that the template asks for
//   mistakes that the rows show      once those are left out that the list is not about
//   evaluation                       only now is it known how many rows were merged
#include "ReportJob.h"

#include "ColumnHeading.h"
#include "CsvReader.h"
#include "DataTokens.h"
#include "DisplaySettings.h"
#include "Excuses.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "Guard.h"
#include "InQuotes.h"
#include "NamedText.h"
#include "RowsCheck.h"
#include "TemplateCheck.h"
#include "TemplateChoice.h"
#include "TemplateReader.h"
#include "UnitChoice.h"
#include "Utf8.h"

#include "VorBomData.h"
#include "VorBomTokenCatalogue.h"

#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
NamedText textOf(ByteSource& source)
{
    return { source.name(), source.readAll() };
}

DisplaySettings settingsOf(const ReportRequest& request, FindingList& findings)
{
    DisplaySettings::Origins origins;
    origins.environment = request.environment;
    if (request.pSettings != nullptr)
        origins.file = textOf(*request.pSettings);
    origins.options = request.settings;
    return DisplaySettings::read(origins, findings);
}

VorUnitsManager unitsOf(const ReportRequest& request)
{
    if (request.pUnits != nullptr)
        return UnitChoice::unitsOf(textOf(*request.pUnits), request.unitChoices);
    return UnitChoice::unitsOf(request.units, request.unitChoices);
}

[[noreturn]] void refuseInputUnits()
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, "the sample data are no parts list");
    finding.source = "--input-unit";
    throw Fault(kWrongUsage, finding);
}
}

ReportJob::ReportJob(ReportRequest request) : m_request(std::move(request)) {}

ExitStatus ReportJob::run()
{
    return runGuarded(m_findings, [this] { return makeReport(); });
}

ExitStatus ReportJob::check()
{
    m_isCheckOnly = true;
    return runGuarded(m_findings, [this] { return checkReport(); });
}

ExitStatus ReportJob::makeReport()
{
    prepareReport();
    checkTemplate();
    readRows();
    checkRows();
    if (m_findings.numErrors() > 0)
        return kMistakes;
    m_pReport->evaluate();
    noteMergedRows();
    return kDone;
}

ExitStatus ReportJob::checkReport()
{
    prepareReport();
    checkTemplate();
    if (hasRows())
    {
        readRows();
        checkRows();
    }
    return m_findings.numErrors() > 0 ? kMistakes : kDone;
}

void ReportJob::prepareReport()
{
    openParts();
    ReportTemplate reportTemplate = readTemplate();
    const DisplaySettings settings = settingsOf(m_request, m_findings);
    m_pReport = std::make_unique<Report>(std::move(reportTemplate), unitsOf(m_request), settings, m_request.contents);
    addFilter();
}

// A report without a parts list is made of the sample rows.
bool ReportJob::hasRows() const
{
    return m_pParts != nullptr || !m_isCheckOnly;
}

// The sample rows show how the engine can be used: their tokens have no percent sign, on purpose.
KnownTokens ReportJob::knownTokens() const
{
    std::vector<std::string> dataTokens;
    if (m_pParts == nullptr && hasRows())
        dataTokens = { "PosNum", "Weight", "Material" };
    if (m_pParts != nullptr)
        for (const InputColumn& column : m_pParts->columns())
            dataTokens.push_back(column.token);
    return { m_pReport->reportTemplate(), dataTokens };
}

void ReportJob::checkTemplate()
{
    takeMistakes(TemplateCheck::run(m_pReport->reportTemplate(), knownTokens(), hasRows()));
}

void ReportJob::checkRows()
{
    m_pReport->filter();
    takeMistakes(RowsCheck::run(m_pReport->reportTemplate(), knownTokens(), *m_pReport->engineTemplate().getBomData()));
}

void ReportJob::takeMistakes(const std::vector<Finding>& mistakes)
{
    const Excuses excuses(m_pReport->reportTemplate().allowed, m_request.allowed);
    for (const Finding& mistake : excuses.without(mistakes))
        if (m_isCheckOnly || mistake.severity != Finding::kNote)
            m_findings.add(mistake);
}

void ReportJob::openParts()
{
    if (m_request.pParts == nullptr)
    {
        if (!m_request.inputUnits.empty())
            refuseInputUnits();
        return;
    }
    m_pRecords = std::make_unique<CsvReader>(*m_request.pParts);
    m_pParts = std::make_unique<PartsList>(*m_pRecords);
    for (const auto& [token, unit] : m_request.inputUnits)
        m_pParts->setInputUnit(ColumnHeading::tokenOf(token), unit);
}

ReportTemplate ReportJob::readTemplate()
{
    if (m_request.pTemplate != nullptr)
        return TemplateReader::read(m_request.pTemplate->name(), m_request.pTemplate->readAll());
    if (m_pParts != nullptr && !m_request.candidates.empty())
        return readSuitableTemplate();
    ReportTemplate reportTemplate;
    reportTemplate.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    reportTemplate.allowed = excusesOfBuiltInTemplate();
    return reportTemplate;
}

// The sources can be read only once, so their texts are kept: the one that is chosen is parsed again.
ReportTemplate ReportJob::readSuitableTemplate()
{
    std::vector<NamedText> candidates;
    for (const std::unique_ptr<ByteSource>& pCandidate : m_request.candidates)
        candidates.push_back(textOf(*pCandidate));
    const auto hasColumn = [this](const std::string& token) { return m_pParts->find(token) != nullptr; };
    const NamedText& file = TemplateChoice::choose(m_pRecords->name(), candidates, hasColumn);
    return TemplateReader::read(file.name, file.text);
}

void ReportJob::readRows()
{
    if (m_pParts == nullptr)
        return takeSampleRows();
    noteMissingColumns();
    checkFilterTokens();
    std::vector<VorString> otherTokens = m_pReport->filterTokens();
    for (const VorString& token : RowsCheck::neededTokens(m_pReport->reportTemplate(), knownTokens()))
        otherTokens.push_back(token);
    m_pParts->readRows(m_pReport->engineTemplate(), otherTokens);
}

void ReportJob::addFilter()
{
    RowFilter filter;
    if (auto finding = RowFilter::parse(m_request.where, filter))
        m_pReport->failInFilter(*finding, false);
    m_pReport->addFilter(filter);
}

// A misspelled token would leave out every row, or none.
void ReportJob::checkFilterTokens() const
{
    for (const VorString& token : m_pReport->filterTokens())
        if (VorBomTokenCatalogue::find(token) == nullptr && m_pParts->find(Utf8::toBytes(token)) == nullptr)
            m_pReport->failInFilter(Finding::of(FindingCodes::kNoQueryFilter, inQuotes(Utf8::toBytes(token)),
                                                "a token of the catalogue or a column of " + m_pRecords->name()),
                                    m_pReport->reportTemplate().queryFilter.names(token));
}

// The rows change hands: the sample has to let go of them, or both would delete them.
void ReportJob::takeSampleRows()
{
    const std::unique_ptr<VorBomData> pSample(VorBomData::createDefaultData());
    m_pReport->engineTemplate().getBomData()->setChild(pSample->child());
    pSample->setChild(nullptr);
}

void ReportJob::noteMissingColumns()
{
    std::string missing;
    for (const std::string& token : DataTokens::of(m_pReport->engineTemplate()))
        if (m_pParts->find(token) == nullptr)
            missing += (missing.empty() ? "" : ", ") + token;
    if (missing.empty())
        return;
    Finding finding = Finding::saying(FindingCodes::kColumnMissing, m_pRecords->name() + " has no column for " +
                                                                        missing + ", which the template asks for");
    finding.source = m_pRecords->name();
    m_findings.add(finding);
}

void ReportJob::noteMergedRows()
{
    const int numRows = m_pReport->numMergedRows();
    if (numRows == 0)
        return;
    m_findings.add(Finding::saying(FindingCodes::kRowsMerged,
                                   std::to_string(numRows) +
                                       (numRows == 1 ? " line equal to the one before it was merged into it and is"
                                                     : " lines equal to the one before them were merged into it and "
                                                       "are") +
                                       " not counted in totals; details that show %Handle stay apart"));
}
}
