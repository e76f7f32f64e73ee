// What was found goes two ways. The author's mistakes are the answer to the command, and go to standard output, where
// an editor or a pipe takes them; what kept the check from looking is about the run, and goes with all other messages:
//
//   list.json:5:32: error MB201: ...          standard output
//   mekbom: parts.csv: cannot be read         standard error
//
// A program that asks for JSON gets both in one array, as it would have to read two streams otherwise.
#include "CheckVerb.h"

#include "DataFile.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingJson.h"
#include "FindingList.h"
#include "InQuotes.h"
#include "MistakeCodes.h"
#include "MistakePage.h"
#include "ReportJob.h"
#include "ReportRequest.h"
#include "StandardOutput.h"
#include "TemplateFile.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <utility>

namespace mekbom
{
namespace
{
const char* const kAllCodes = "all";
const char* const kJson = "json";

const char* const kNotes =
    R"(Findings are printed as file:line:column: severity code: what; help: how to write it right.
Errors stop mekbom report, unless the template excuses them, "allow": { "MB105": "reason" },
or --allow does.

Examples
  mekbom check list.json
  mekbom check list.json --data parts.csv --format json
  mekbom check cutting-list --data frame.csv --input-unit %Paint=m2
  mekbom check --explain MB105

Exit status
   0  no error among the findings
   1  an error among the findings
   2  wrong usage
   3  input unreadable or invalid)";

[[noreturn]] void refuse(const std::string& statement)
{
    throw Fault(kWrongUsage, Finding::stating(FindingCodes::kWrongArguments, statement));
}
}

CLI::App& CheckVerb::declareOn(CLI::App& parent)
{
    CLI::App& check = *parent.add_subcommand("check", "Find mistakes in a template");
    check.footer(kNotes);
    check.add_option("template", m_templateName, "Template file, a shipped list by its name, or default");
    m_data.declareOn(check, "Parts list, for mistakes that only data show; - reads standard input, hall takes the "
                            "shipped one");
    m_rows.declareOn(check, "Which rows are listed");
    check.add_option("--format", m_format, "How to print what is found: text or json [text]")
        ->check(CLI::IsMember({ "text", kJson }));
    m_allowed.declareOn(check, "Mistakes to pass over, such as MB105");
    check.add_option("--explain", m_code, "Print what a code means, or all of them as a page")->type_name("CODE");
    return check;
}

ExitStatus CheckVerb::run(FindingList& findings)
{
    return m_code.empty() ? check(findings) : explain();
}

// A code wins over everything else that is given: the page is the same for every template.
ExitStatus CheckVerb::explain() const
{
    if (m_code != kAllCodes && !MistakeCodes::has(m_code))
        refuse(inQuotes(m_code) + " is no code of a mistake, such as MB105");
    StandardOutput::print(m_code == kAllCodes ? MistakePage::ofAll() : MistakePage::of(m_code));
    return kDone;
}

ExitStatus CheckVerb::check(FindingList& findings) const
{
    if (m_templateName.empty())
        refuse("check needs a template, or --explain; see mekbom check --help");
    ReportRequest request;
    m_rows.fillIn(request);
    request.allowed = m_allowed.words();
    if (m_templateName != TemplateFile::kDefault)
        request.pTemplate = TemplateFile::open(m_templateName, "template");
    request.parts = DataFile::openAll(m_data.names());
    ReportJob job(std::move(request));
    const ExitStatus status = job.check();
    if (m_format == kJson)
    {
        StandardOutput::print(FindingJson::textOf(job.findings().all()));
        return status;
    }
    std::string text; // without "mekbom: " in front: editors jump to what a line begins with
    for (const Finding& finding : job.findings().all())
        if (MistakeCodes::has(finding.code))
            text += messageOf(finding) + "\n";
        else
            findings.add(finding);
    StandardOutput::print(text);
    return status;
}
}
