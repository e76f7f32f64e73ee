// One report from texts to evaluated lines: the whole program but its files and its command line.
//
//   ReportJob job(std::move(request));
//   if (job.run() == kDone)
//       writer.write(job.report(), sink);
//   for (const Finding& finding : job.findings().all())
//       tell(messageOf(finding));
//
// A job touches nothing but its request: no files, no streams, no state of the process. Jobs with other units and other
// settings may therefore run one after the other, side by side, and on several threads, each job on one at a time. It
// owns its rows, its template and all that they refer to, until it goes.
#pragma once

#include "ExitStatus.h"
#include "FindingList.h"
#include "KnownTokens.h"
#include "PartsFacts.h"
#include "PartsList.h"
#include "RecordSource.h"
#include "Report.h"
#include "ReportRequest.h"
#include "ReportTemplate.h"
#include "TokenNames.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
class ReportJob
{
public:
    explicit ReportJob(ReportRequest request);

    // Makes the report. Throws nothing: returns kDone when there is one, and otherwise what kind of mistake kept it
    // from being made, with at least one error among the findings. To be called once, or else check().
    //
    // Mistakes of the template's author that nobody excuses are among the findings: kMistakes where one is an error.
    // Those that are only worth knowing are left to check().
    ExitStatus run();

    // Looks for mistakes without making a report. Reads the rows only where the request has a parts list. Otherwise as
    // run(), and tells of everything.
    ExitStatus check();

    // What was found until now. Findings that are no errors may stand beside a report.
    const FindingList& findings() const { return m_findings; }

    // What is known of the rows that were read; of the sample rows, nothing. Only once run() has returned kDone.
    const PartsFacts& partsFacts() const { return m_partsFacts; }

    // Whether the parts list says which objects its rows are. Rows that are merely numbered have no handles to rely on.
    bool hasHandles() const { return m_pParts != nullptr && m_pParts->find(TokenNames::kHandle) != nullptr; }

    // The evaluated report, good for as long as the job is. Only once run() has returned kDone.
    EvaluatedReport report() const { return m_pReport->evaluated(); }

    // The template, the units, the settings and the numbers of the rows that the report was made with, under the same
    // conditions.
    // Rows have numbers only where the request asks for the rows of lines.
    const ReportTemplate& reportTemplate() const { return m_pReport->reportTemplate(); }
    const VorUnitsManager& units() const { return m_pReport->units(); }
    const DisplaySettings& settings() const { return m_pReport->settings(); }
    const RowNumbers& rowNumbers() const { return m_pReport->rowNumbers(); }

private:
    ExitStatus makeReport();
    ExitStatus checkReport();

    // The status for the errors found, of which there is at least one.
    ExitStatus statusOfErrors() const;

    // What both are made of. Each may throw a Fault, which ends the job.
    void prepareReport();
    bool hasRows() const;
    KnownTokens knownTokens() const;
    void checkTemplate();
    void checkRows();
    void takeMistakes(const std::vector<Finding>& mistakes);
    void openParts(const HeadingChoices& choices);
    std::optional<ReportTemplate> readNamedTemplate();
    ReportTemplate readOtherTemplate();
    ReportTemplate readSuitableTemplate();
    HeadingChoices headingChoices(const std::optional<ReportTemplate>& named) const;
    ReportTemplate readColumnsTemplate();
    void addFilter();
    void readRows();
    void multiplyPieces();
    void checkFilterTokens() const;
    void takeSampleRows();
    void noteColumns();
    bool isMadeHere(const std::string& token) const;
    void evaluate();
    void checkLostTotals();
    void checkFactors();

    ReportRequest m_request;
    FindingList m_findings;
    bool m_isCheckOnly = false;               // no report is made, and so all mistakes are told, notes included
    std::unique_ptr<RecordSource> m_pRecords; // null for the sample rows, as m_pParts is
    std::unique_ptr<PartsList> m_pParts;
    PartsFacts m_partsFacts;
    std::unique_ptr<Report> m_pReport;
};
}
