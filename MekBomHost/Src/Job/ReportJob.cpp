// The order of the steps decides which mistake a user is told of first, and most need what an earlier one has found:
//
//   template that is named           may say what columns are called
//   header row of the parts list     says which columns there are
//   template, if none is named       the candidate that suits these columns best; if none does, one that shows the
//                                    columns as they are
//   settings, units, Report          the template's tokens get their kinds of quantity
//   mistakes of the template         what it uses may be known from the catalogue, from itself or from the data
//   records                          are read in these kinds, and only the data that the template asks for
//   mistakes that the rows show      once those are left out that the list is not about
//   evaluation                       only now is it known how many rows were merged, and what left the totals
#include "ReportJob.h"

#include "AssemblyRecords.h"
#include "ColumnHeading.h"
#include "ColumnNotes.h"
#include "ColumnsTemplate.h"
#include "DataTokens.h"
#include "DisplaySettings.h"
#include "Excuses.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "Guard.h"
#include "InQuotes.h"
#include "MistakeCodes.h"
#include "NamedText.h"
#include "OtherTotals.h"
#include "PartsFormats.h"
#include "PieceTokens.h"
#include "RowsCheck.h"
#include "TemplateCheck.h"
#include "TemplateChoice.h"
#include "TemplateLevels.h"
#include "TemplateReader.h"
#include "TokenNames.h"
#include "UnitChoice.h"
#include "Utf8.h"

#include "VorBomData.h"
#include "VorBomDataTuple.h"
#include "VorBomTokenCatalogue.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
// Reads a source to its end; it has nothing left then.
NamedText textOf(ByteSource& source)
{
    return { source.name(), source.readAll() };
}

DisplaySettings settingsOf(const ReportRequest& request, FindingList& findings)
{
    DisplaySettings::Origins origins;
    origins.configuration = request.configuredSettings;
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

// "12 rows read like the one before them, are merged into its line and are in no total: Weight 2140 kg"
std::string lossIn(const ListFoot& foot)
{
    const std::string rows = foot.numLosing == 1 ? "1 row reads like the one before it, is merged into its line and is"
                                                 : std::to_string(foot.numLosing) +
                                                       " rows read like the one before them, are merged into its line "
                                                       "and are";
    return rows + " in no total: " + foot.lossText();
}

// A line of merged rows shows the pieces of the first one alone.
std::string lostPiecesIn(const ListFoot& foot)
{
    return foot.numMerged == 1
               ? "1 row reads like the one before it and is merged into its line, which does not show its pieces"
               : std::to_string(foot.numMerged) + " rows read like those before them and are merged into their lines, "
                                                  "which do not show their pieces";
}

// Whether lines have a cell with such a token.
template <class Predicate>
bool linesShow(const ReportTemplate& reportTemplate, const Predicate& isMeant)
{
    const TemplateLevels levels(*reportTemplate.pTemplate);
    const VorBomTemplateItem& details = levels.details();
    const std::vector<int> shown = reportTemplate.shownTuplesOf(details);
    return std::any_of(shown.begin(), shown.end(),
                       [&](int tuple) { return isMeant(details.getData()[tuple].token().token()); });
}

// Whether a line has a cell that is wrong as soon as it stands for more rows than one: "%Quantity", or what grows with
// it.
bool linesShowPieces(const ReportTemplate& reportTemplate)
{
    return linesShow(reportTemplate, PieceTokens::growWithPieces);
}

bool linesShowFactors(const ReportTemplate& reportTemplate)
{
    return linesShow(reportTemplate, [](const VorString& token) { return token == TokenNames::kWideFactors; });
}

// The finding with the place of the details, whose lines are the ones that merge.
Finding inDetails(const Finding& finding, const ReportTemplate& reportTemplate)
{
    const TemplateLevels levels(*reportTemplate.pTemplate);
    const TemplatePlace& place = reportTemplate.styleOf(&levels.details()).place;
    Finding placed = finding.in(reportTemplate.fileName, place.span);
    placed.path = place.path;
    return placed;
}

// The tokens that a template asks for, or says something of, and the catalogue does not know.
std::set<std::string> ownTokensOf(const ReportTemplate& reportTemplate)
{
    std::vector<std::string> tokens = DataTokens::of(*reportTemplate.pTemplate);
    for (const VorString& token : reportTemplate.queryFilter.tokens())
        tokens.push_back(Utf8::toBytes(token));
    for (const auto& [token, kind] : reportTemplate.ownTokens)
        tokens.push_back(token);
    std::set<std::string> ownTokens;
    std::copy_if(tokens.begin(), tokens.end(), std::inserter(ownTokens, ownTokens.end()),
                 [](const std::string& token) { return VorBomTokenCatalogue::find(Utf8::toWide(token)) == nullptr; });
    return ownTokens;
}

[[noreturn]] void failForMissing(const std::string& token, const std::string& source)
{
    Finding finding =
        Finding::stating(FindingCodes::kParentColumnMissing, source + " has no column " + inQuotes(token) +
                                                                 ", and so nothing tells which row is a part of which");
    finding.remedy = "give --map \"HEADING=" + token + "\" for the column that does";
    finding.source = "--flatten";
    throw Fault(kWrongUsage, finding);
}

// The sample rows have no columns that an option could be about.
[[noreturn]] void refuseForSample(const std::string& option)
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, "the sample data are no parts list");
    finding.source = option;
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

// All mistakes that can be told are told before the report is given up: those of the template do not keep the rows from
// being read, as an author mends both in one go.
ExitStatus ReportJob::makeReport()
{
    prepareReport();
    checkTemplate();
    readRows();
    checkRows();
    if (m_findings.numErrors() > 0)
        return statusOfErrors();
    if (m_request.checksTotals)
        m_pReport->checkTotals();
    if (m_request.isSummary)
        m_pReport->summarize();
    evaluate();
    m_pReport->facts().numWarnings = m_findings.numWarnings();
    return m_findings.numErrors() > 0 ? kMistakes : kDone;
}

// Rows are evaluated only where nothing is wrong until then: that totals lose rows is not known before.
ExitStatus ReportJob::checkReport()
{
    prepareReport();
    checkTemplate();
    if (hasRows())
    {
        readRows();
        checkRows();
    }
    if (hasRows() && m_findings.numErrors() == 0)
        evaluate();
    return m_findings.numErrors() > 0 ? statusOfErrors() : kDone;
}

void ReportJob::evaluate()
{
    m_pReport->setProgress(m_request.pProgress);
    m_pReport->evaluate();
    takeMistakes(m_pReport->mistakes());
    checkLostTotals();
    checkFactors();
}

// What only the author of the list can mend is another thing than a file that cannot be read.
ExitStatus ReportJob::statusOfErrors() const
{
    for (const Finding& finding : m_findings.all())
        if (finding.severity == Finding::kError && !MistakeCodes::has(finding.code))
            return kInvalidInput;
    return kMistakes;
}

void ReportJob::prepareReport()
{
    std::optional<ReportTemplate> named = readNamedTemplate();
    openParts(headingChoices(named));
    ReportTemplate reportTemplate = named ? std::move(*named) : readOtherTemplate();
    const DisplaySettings settings = settingsOf(m_request, m_findings);
    m_pReport = std::make_unique<Report>(std::move(reportTemplate), unitsOf(m_request), settings, m_request.contents);
    if (m_pParts != nullptr)
        m_pParts->registerKinds(*m_pReport->engineTemplate().getBomTemplateUnits());
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
    if (m_request.pieces.changePieces())
        dataTokens.insert(dataTokens.end(), { TokenNames::kPieces, TokenNames::kFactors });
    return { m_pReport->reportTemplate(), dataTokens };
}

// What the rules find in a template, and what its columns say of numbers that cannot be.
void ReportJob::checkTemplate()
{
    takeMistakes(TemplateCheck::run(m_pReport->reportTemplate(), knownTokens(), hasRows()));
    takeMistakes(m_pReport->columnErrors());
}

// A row that the list is not about lacks nothing, so the filters come first. evaluate() does not filter again.
void ReportJob::checkRows()
{
    m_pReport->filter();
    takeMistakes(RowsCheck::run(m_pReport->reportTemplate(), knownTokens(), *m_pReport->engineTemplate().getBomData()));
}

// Excused mistakes are as good as none, and a report keeps an author's notes to itself: check() tells them.
void ReportJob::takeMistakes(const std::vector<Finding>& mistakes)
{
    const Excuses excuses(m_pReport->reportTemplate().allowed, m_request.allowed);
    for (const Finding& mistake : excuses.without(mistakes))
        if (m_isCheckOnly || mistake.severity != Finding::kNote || !MistakeCodes::has(mistake.code))
            m_findings.add(mistake);
}

// Only the header row is read: which template suits, and what of the rows will be needed, depends on it.
void ReportJob::openParts(const HeadingChoices& choices)
{
    if (m_request.parts.empty() && m_request.records.empty())
    {
        if (!m_request.inputUnits.empty())
            refuseForSample("--input-unit");
        if (!m_request.rowTotals.empty())
            refuseForSample("--row-totals");
        if (m_request.pAssemblies != nullptr)
            refuseForSample("--assemblies");
        if (m_request.pieces.isFlattened)
            refuseForSample("--flatten");
        if (m_request.pieces.numSets > 1)
            refuseForSample("--sets");
        if (!m_request.input.sheet.empty())
            refuseForSample("--sheet");
        if (!m_request.input.headings.empty())
            refuseForSample("--map");
        return;
    }
    m_pRecords =
        PartsFormats::openAll(m_request.parts, std::move(m_request.records), m_request.input, choices, m_findings);
    if (m_request.pAssemblies != nullptr)
        m_pRecords = std::make_unique<AssemblyRecords>(
            std::move(m_pRecords), PartsFormats::open(*m_request.pAssemblies, m_request.input, m_findings), choices);
    m_pParts = std::make_unique<PartsList>(*m_pRecords, choices, m_request.numProcessors);
    for (const auto& [token, unit] : m_request.inputUnits)
        m_pParts->setInputUnit(ColumnHeading::tokenOf(token), unit);
    for (const std::string& token : m_request.rowTotals)
        m_pParts->setRowTotal(ColumnHeading::tokenOf(token));
}

std::optional<ReportTemplate> ReportJob::readNamedTemplate()
{
    if (m_request.pTemplate == nullptr)
        return std::nullopt;
    return TemplateReader::read(m_request.pTemplate->name(), m_request.pTemplate->readAll());
}

// The user's mappings come behind those of the template, and so over them.
HeadingChoices ReportJob::headingChoices(const std::optional<ReportTemplate>& named) const
{
    HeadingChoices choices;
    if (named)
    {
        choices.ownTokens = ownTokensOf(*named);
        for (const auto& [heading, token] : named->headings)
            choices.mappings.push_back({ heading, token });
    }
    choices.mappings.insert(choices.mappings.end(), m_request.input.headings.begin(), m_request.input.headings.end());
    return choices;
}

// Without a template that is named the candidates are asked, and the built-in one is for the sample rows and for whoever
// offers no candidates.
ReportTemplate ReportJob::readOtherTemplate()
{
    if (m_pParts != nullptr && !m_request.candidates.empty())
        return readSuitableTemplate();
    ReportTemplate reportTemplate;
    reportTemplate.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    reportTemplate.equalLines = kMergeEqualLines; // its lists stay what they have always been
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
    const NamedText* const pFile = TemplateChoice::choose(candidates, hasColumn);
    if (pFile == nullptr)
        return readColumnsTemplate();
    ReportTemplate reportTemplate = TemplateReader::read(pFile->name, pFile->text);
    m_findings.add(ColumnNotes::chosen(pFile->name, reportTemplate.title));
    return reportTemplate;
}

ReportTemplate ReportJob::readColumnsTemplate()
{
    m_findings.add(ColumnNotes::printedAsTheyAre(*m_pParts, m_pRecords->name()));
    for (const InputColumn& column : m_pParts->columns())
        if (column.doubt)
            m_findings.add(ColumnNotes::inDoubt(column, m_pRecords->name()));
    return TemplateReader::read("list of " + m_pRecords->name(), ColumnsTemplate::textOf(m_pParts->columns()));
}

// Rows carry only what somebody asks for: the list, the filters, and the rules on data.
void ReportJob::readRows()
{
    if (m_pParts == nullptr)
        return takeSampleRows();
    noteColumns();
    checkFilterTokens();
    m_pParts->setProgress(m_request.pProgress);
    m_pParts->setOwnTokens(m_pReport->reportTemplate().ownTokens);
    std::vector<VorString> otherTokens = m_pReport->filterTokens();
    for (const VorString& token : RowsCheck::neededTokens(m_pReport->reportTemplate(), knownTokens()))
        otherTokens.push_back(token);
    if (m_pParts->find(TokenNames::kParent) != nullptr)
        otherTokens.emplace_back(TokenNames::kWideParent);
    if (m_request.pieces.changePieces())
        otherTokens.emplace_back(TokenNames::kWidePieces);
    if (OtherTotals::areIn(m_pReport->reportTemplate()))
        otherTokens.emplace_back(TokenNames::kWidePieces); // means are those of pieces
    m_partsFacts = m_pParts->readRows(m_pReport->engineTemplate(), otherTokens);
    m_pReport->facts().areUnitsAssumed = m_pParts->assumesUnits();
    m_pReport->facts().numEmptyRows = m_partsFacts.numEmptyRows;
    m_pReport->facts().countsRowsAsPieces = m_pParts->find(TokenNames::kPieces) == nullptr;
    takeMistakes(m_pParts->findings());
    multiplyPieces();
}

// Parts within parts are found by the one column and the other, so that a list to be flattened must have both.
void ReportJob::multiplyPieces()
{
    for (const char* const pToken : { TokenNames::kHandle, TokenNames::kParent })
        if (m_request.pieces.isFlattened && m_pParts->find(pToken) == nullptr)
            failForMissing(pToken, m_pRecords->name());
    const InputColumn* const pParent = m_pParts->find(TokenNames::kParent);
    if (pParent == nullptr && !m_request.pieces.changePieces())
        return;
    auto finding = m_pReport->multiplyPieces(m_request.pieces);
    if (!finding)
        return;
    finding->source = m_pRecords->name();
    finding->field = pParent == nullptr ? "" : pParent->name;
    if (finding->severity == Finding::kError)
        throw Fault(kInvalidInput, *finding);
    m_findings.add(*finding);
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
        {
            const std::string name = Utf8::toBytes(token);
            const std::string nearest = knownTokens().nearestTo(name);
            Finding finding = Finding::of(FindingCodes::kNoQueryFilter, inQuotes(name),
                                          "a token of the catalogue or a column of " + m_pRecords->name());
            finding.remedy = nearest.empty() ? "" : "did you mean " + inQuotes(nearest) + "?";
            m_pReport->failInFilter(finding, m_pReport->reportTemplate().queryFilter.names(token));
        }
}

// The rows change hands: the sample has to let go of them, or both would delete them. Each is one piece, as a row of a
// parts list is that does not say how many it stands for.
void ReportJob::takeSampleRows()
{
    const std::unique_ptr<VorBomData> pSample(VorBomData::createDefaultData());
    VorBomTemplate& reportTemplate = m_pReport->engineTemplate();
    reportTemplate.getBomData()->setChild(pSample->child());
    pSample->setChild(nullptr);
    const VorString piecesToken = TokenNames::kWidePieces;
    if (!reportTemplate.isTokenRequired(piecesToken))
        return;
    for (VorBomItemBase* pRow = reportTemplate.getBomData()->child(); pRow != nullptr; pRow = pRow->next())
        if (pRow->getTupleAt(piecesToken) == nullptr)
            pRow->addData(VorBomDataTuple(piecesToken, 1));
}

// A column that is missing is no error, since a list may do without it, but "Wieght" in a file should be noticed. What
// is in doubt is refused soon.
void ReportJob::noteColumns()
{
    const std::vector<std::string> tokens = DataTokens::of(m_pReport->engineTemplate());
    if (const auto reading = m_pParts->readingOf({ tokens.begin(), tokens.end() }))
        m_findings.add(*reading);
    std::vector<std::string> missing;
    for (const std::string& token : tokens)
        if (m_pParts->find(token) == nullptr && !m_pParts->isInDoubt(token) && !isMadeHere(token))
            missing.push_back(token);
    if (!missing.empty())
        m_findings.add(ColumnNotes::missing(*m_pParts, m_pRecords->name(), missing));
}

// What rows get once their pieces are multiplied.
bool ReportJob::isMadeHere(const std::string& token) const
{
    return m_request.pieces.changePieces() && token == TokenNames::kFactors;
}

// A line of two rows with "4 × 3" shows 24 pieces beside it, or merges one of them away.
void ReportJob::checkFactors()
{
    const ListFoot foot = m_pReport->evaluated().foot();
    const ReportTemplate& reportTemplate = m_pReport->reportTemplate();
    if (!linesShowFactors(reportTemplate) || (foot.numLines == foot.numListed && foot.numMerged == 0))
        return;
    Finding finding =
        Finding::stating(FindingCodes::kFactorsOfSeveralRows,
                         std::string("lines stand for several rows and show the ") + TokenNames::kFactors + " of one");
    finding.remedy = "say \"equalLines\": \"keep\" for a line each, or leave the column out";
    m_findings.add(inDetails(finding, reportTemplate));
}

// MB307 trips on two rows of HEA200 with 10 kg each, details of %Name and %Weight, and a total of 10 kg; it does not on
// a template that says "equalLines", be it "merge". Whoever says what is to become of equal lines gets that; who has
// not thought of it must not lose a weight by it. The evaluation alone shows it, as lines are compared by what they
// print.
void ReportJob::checkLostTotals()
{
    const ListFoot foot = m_pReport->evaluated().foot();
    const ReportTemplate& reportTemplate = m_pReport->reportTemplate();
    const bool losesPieces = foot.numMerged > 0 && linesShowPieces(reportTemplate);
    if (reportTemplate.equalLines != kEqualLinesOpen || (foot.losses.empty() && !losesPieces))
        return;
    Finding finding =
        Finding::stating(MistakeCodes::kTotalsLoseRows, foot.losses.empty() ? lostPiecesIn(foot) : lossIn(foot));
    finding.remedy = "say \"equalLines\": \"count\" for one line with the pieces and totals of all, \"keep\" for a "
                     "line each, or \"merge\" to leave these rows out";
    takeMistakes({ inDetails(finding, reportTemplate) });
}
}
