// The new list is made first: which of the shipped lists suits is found in its columns, and the old one is made with the
// same. Of the old list only what is compared is kept, so that the rows of two large models are not held at once.
#include "DiffVerb.h"

#include "Changes.h"
#include "ComparedList.h"
#include "DataFile.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "ReportOutputs.h"
#include "RunProgress.h"
#include "ShippedFiles.h"
#include "TemplateFile.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <optional>
#include <thread>
#include <vector>

namespace mekbom
{
namespace
{
const char* const kNotes = R"(Both parts lists are made into the same list, and its lines are compared: first those that
stand for the same objects (Handle), so that a mark that was given to another part is told
from a part that has another mark, then those that the list groups and sorts alike. Lines are
added, removed or changed (old → new); columns with totals have their change beside them, and
groups the changes of their totals. Below stands what is to be ordered in addition, and what to be sent
back, where the old list was ordered.

Without --template the shipped list is taken that suits the new parts list.

Examples
  mekbom diff revision-a.csv revision-b.csv
  mekbom diff revision-a.csv revision-b.csv --template list.json -o changes.csv

Exit status
   0  nothing has changed
   1  something has
   2  wrong usage
   3  input unreadable or invalid, or a list that would be wrong
   4  output not written; what stood there before still does)";

// Runs the job; what it finds is told, but what was told of the other list already.
ExitStatus runJob(ReportJob& job, FindingList& findings)
{
    const ExitStatus status = job.run();
    findings.addAll(job.findings().all(), job.findings().numErrors());
    return status == kMistakes ? kInvalidInput : status; // status 1 is that of lists that differ
}
}

CLI::App& DiffVerb::declareOn(CLI::App& parent)
{
    CLI::App& diff = *parent.add_subcommand("diff", "Print what has changed from one parts list to another");
    diff.footer(kNotes);
    diff.add_option("old", m_oldData, "Parts list before the change")->required();
    diff.add_option("new", m_newData, "Parts list behind it")->required();
    m_template.declareOn(diff, "Template file, or a shipped list by its name [the list that suits the new data]");
    m_list.declareOn(diff);
    m_outputs.declareOn(diff);
    return diff;
}

ExitStatus DiffVerb::run(FindingList& findings)
{
    const Configuration configuration = m_list.configurationFor(m_template.name());
    const ReportOutputs outputs(m_outputs.wanted(), m_outputs.choicesOver(configuration.output()));
    std::vector<std::string> inputs = m_list.inputNames();
    inputs.insert(inputs.end(), { m_oldData, m_newData, m_template.name() });
    m_outputs.refuseInputs(inputs);
    m_outputs.refuseInputs(configuration.files());

    RunProgress progress;
    ReportRequest ofNew = request(m_newData, configuration);
    ofNew.pProgress = progress.ofRows();
    addTemplates(ofNew);
    ReportJob newJob(std::move(ofNew));
    if (const ExitStatus status = runJob(newJob, findings); status != kDone)
        return status;
    std::optional<ComparedList> oldList;
    {
        ReportRequest ofOld = request(m_oldData, configuration);
        ofOld.pProgress = progress.ofRows();
        setTemplate(ofOld, templateFor(newJob));
        ReportJob oldJob(std::move(ofOld));
        if (const ExitStatus status = runJob(oldJob, findings); status != kDone)
            return status;
        oldList.emplace(oldJob);
    }
    const Changes changes(*oldList, ComparedList(newJob), newJob, outputs.contents());
    const EvaluatedReport report = changes.report();
    outputs.write(report, &progress);
    if (const auto note = m_list.noteOfUnits(configuration))
        findings.add(*note);
    for (const Finding& note : outputs.footNotes(report))
        findings.add(note);
    return changes.any() ? kDifferent : kDone;
}

// The rows tell which objects lines stand for, and the values what has become of totals.
ReportRequest DiffVerb::request(const std::string& dataName, const Configuration& configuration) const
{
    ReportRequest request;
    request.parts.push_back(DataFile::open(dataName));
    request.numProcessors = std::thread::hardware_concurrency();
    m_list.fillIn(request, configuration);
    request.contents.values = true;
    request.contents.rows = true;
    return request;
}

void DiffVerb::addTemplates(ReportRequest& request) const
{
    if (const std::string name = m_template.name(); !name.empty())
        setTemplate(request, name);
    else
        for (const std::string& shipped : ShippedFiles::templateNames())
            request.candidates.push_back(TemplateFile::open(shipped, m_template.option()));
}

void DiffVerb::setTemplate(ReportRequest& request, const std::string& name) const
{
    if (name != TemplateFile::kDefault)
        request.pTemplate = TemplateFile::open(name, m_template.option());
}

// Data that suit no shipped list are printed as they are, by a list that is in no file.
std::string DiffVerb::templateFor(const ReportJob& newJob) const
{
    if (std::string name = m_template.name(); !name.empty())
        return name;
    const std::vector<std::string> shipped = ShippedFiles::templateNames();
    const std::string& chosen = newJob.reportTemplate().fileName;
    if (std::find(shipped.begin(), shipped.end(), chosen) != shipped.end())
        return chosen;
    Finding finding = Finding::stating(FindingCodes::kWrongArguments, "no shipped list suits " + m_newData);
    finding.remedy = "mekbom new-list " + m_newData + " > list.json writes one that does, for --template";
    finding.source = "diff";
    throw Fault(kWrongUsage, finding);
}
}
