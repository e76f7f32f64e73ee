// A template alone is read and told; nothing is evaluated, and no job is needed. With data a report is made exactly as
// mekbom report makes it, but for two things: nothing is printed of it, and it keeps what words about it need:
//
//   values   "Weight, %Weight added up: 250 + 250 + 14 = 514 kg" needs the numbers behind the texts
//   rows     "Counts row 1 (2A3), row 2 (2A4) and row 3 (2A5)" needs the rows behind the lines
//
// So a list that a report refuses is not explained either: its findings are told, and the run ends with their status.
#include "ExplainVerb.h"

#include "DataFile.h"
#include "ExplainedReport.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "LineInWords.h"
#include "ReportJob.h"
#include "RunProgress.h"
#include "StandardOutput.h"
#include "TemplateFile.h"
#include "TemplateInWords.h"
#include "TemplateReader.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <utility>

namespace mekbom
{
namespace
{
const char* const kNotes = R"(Without --data the template alone is told: what each level groups, sorts, shows, adds up
and computes. With data the lines of the list follow, each with its number, and with
--line that line alone is told: the rows that made it, each total written out as an
addition, what was merged or counted into it, and what keeps it apart from its neighbours.

Lines are counted from 1: each line of values in the printed list is one, even if its
texts go on in the next. Title, headings, rules, blank lines and what stands below the
list do not count. Rows are counted from 1 as well, the first being the one under the
header row of the parts list; blank lines do not count.

The options that say which rows are listed, and in which units, must be those that the list was
printed with.

Examples
  mekbom explain bolt-list
  mekbom explain list.json --data parts.csv
  mekbom explain list.json --data parts.csv --line 3 --units imperial

Exit status
   0  done
   2  wrong usage, or no such line
   3  input unreadable or invalid)";

[[noreturn]] void refuseLineWithoutData()
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, "a template alone has no lines; give --data");
    finding.source = "--line";
    throw Fault(kWrongUsage, finding);
}
}

CLI::App& ExplainVerb::declareOn(CLI::App& parent)
{
    CLI::App& explain = *parent.add_subcommand("explain", "Say in words what a template or a line of a list is");
    explain.footer(kNotes);
    explain.add_option("template", m_templateName, "Template file, a shipped list by its name, or default")->required();
    m_data.declareOn(explain, "Parts list; - reads standard input, hall takes the shipped one");
    explain.add_option("--line", m_line, "Line of the list to tell of, from 1")->type_name("NUMBER");
    m_list.declareOn(explain);
    return explain;
}

ExitStatus ExplainVerb::run(FindingList& findings)
{
    if (!m_data.names().empty())
        return explainList(findings);
    if (m_line)
        refuseLineWithoutData();
    return explainTemplate();
}

ExitStatus ExplainVerb::explainTemplate() const
{
    ReportTemplate reportTemplate;
    if (m_templateName == TemplateFile::kDefault)
        reportTemplate.pTemplate.reset(VorBomTemplate::createDefaultTemplate());
    else
    {
        const std::unique_ptr<ByteSource> pFile = TemplateFile::open(m_templateName, "template");
        reportTemplate = TemplateReader::read(pFile->name(), pFile->readAll());
    }
    StandardOutput::print(TemplateInWords(reportTemplate).text());
    return kDone;
}

// The words look at the job, which lives until they are printed.
ExitStatus ExplainVerb::explainList(FindingList& findings) const
{
    const Configuration configuration = m_list.configurationFor(m_templateName);
    RunProgress progress;
    ReportRequest wanted = request(configuration);
    wanted.pProgress = progress.ofRows();
    ReportJob job(std::move(wanted));
    const ExitStatus status = job.run();
    progress.end();
    findings.addAll(job.findings().all(), job.findings().numErrors());
    if (status != kDone)
        return status;
    if (const auto note = m_list.noteOfUnits(configuration))
        findings.add(*note);
    const EvaluatedReport report = job.report();
    const ExplainedReport explained{ job.reportTemplate(), job.units(), report, job.rowNumbers() };
    const LineInWords lines(explained);
    StandardOutput::print(m_line ? lines.text(*m_line)
                                 : TemplateInWords(job.reportTemplate()).text() + "\n" + lines.overview());
    return kDone;
}

ReportRequest ExplainVerb::request(const Configuration& configuration) const
{
    ReportRequest request;
    request.parts = DataFile::openAll(m_data.names());
    if (m_templateName != TemplateFile::kDefault)
        request.pTemplate = TemplateFile::open(m_templateName, "template");
    m_list.fillIn(request, configuration);
    request.contents.values = true;
    request.contents.rows = true;
    return request;
}
}
