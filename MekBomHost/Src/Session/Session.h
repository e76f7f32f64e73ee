// One host's work with lists, all of it in memory: parts, a template and options in, a report out, as often as anything
// changes.
//
//   Session session;
//   session.addParts("parts.csv", "Handle,Name,Length\n2A0,HEA200,6000\n");
//   session.setTemplate("list.json", text);
//   session.setOptions("{ \"units\": \"imperial\" }");
//   if (session.evaluate() == kDone)
//       show(session.written("html"));
//   else
//       show(session.findings());
//
// All texts are UTF-8. Functions that may fail return a status and leave the session as it was where that is not kDone;
// findings() tells what was wrong. Nothing is thrown, no file is opened, and nothing of the process is looked at, so that
// sessions of different units live side by side. A session is for one thread at a time.
#pragma once

#include "ExitStatus.h"
#include "FindingList.h"
#include "JsonLines.h"
#include "ReportJob.h"
#include "RowProgress.h"
#include "RowTable.h"
#include "SessionOptions.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
// Told how far an evaluation is; false stops it.
using SessionProgress = std::function<bool(RowProgress::eStep, std::size_t numRowsDone)>;

class Session
{
public:
    // Adds a parts list, CSV, a workbook or JSON, whose rows follow those that are there. The bytes are copied; what they
    // are worth is found when the report is evaluated. `name` is what messages call it.
    void addParts(const std::string& name, std::string_view bytes);

    // Adds rows that are in no file: `fillIn` is called for each, from 0, and sets its cells, as many as there are headings.
    // Rows with the name and the headings of those added last go on behind them. kInvalidInput for what RowTable::add()
    // refuses; the rows before it stay.
    ExitStatus addRows(const std::string& name, const std::vector<std::string>& headings, std::size_t numRows,
                       const std::function<void(std::size_t row, Record&)>& fillIn);

    void removeParts();

    // The assemblies that parts name; bytes as above.
    void setAssemblies(const std::string& name, std::string_view bytes);

    // The template, JSON. In its place several may be offered: the one that suits the columns best is taken, and where none
    // does the columns are printed as they are. Setting one withdraws the offers.
    void setTemplate(const std::string& name, std::string_view bytes);
    void offerTemplate(const std::string& name, std::string_view bytes);

    // Replaces all options that were set before. kInvalidInput for what cannot be understood.
    ExitStatus setOptions(std::string_view json);

    // Replaces what is told of progress; empty to tell nobody.
    void setProgress(SessionProgress progress) { m_progress = std::move(progress); }

    // Makes the report: there must be parts or rows, and a template or offers. ReportJob tells what the status means, and kStopped is that of a report that was stopped. A
    // report made before is gone, whatever the status.
    ExitStatus evaluate();

    // Looks for mistakes of the template, and of the rows if there are any, without making a report.
    ExitStatus check();

    // What was found by the last evaluate() or check(), or by a call since then that failed; as JSON, an array with an
    // object for each.
    const std::vector<Finding>& findings() const { return m_findings.all(); }
    std::string findingsText() const;

    bool hasReport() const { return m_pLines != nullptr; }

    // The report in one of the formats of ReportFormats. None without a report, and for a name that is no format, for
    // which findings() has an error.
    std::optional<std::string> written(const std::string& format);

    // The columns of the report, its lines from `first` on, and the handles of the rows behind a line, in JSON. There
    // must be a report.
    std::string columns() const;
    std::size_t numLines() const { return m_pLines->count(); }
    std::string lines(std::size_t first, std::size_t numLines) { return m_pLines->textOf(first, numLines); }
    std::string handles(std::size_t line) { return m_pLines->handlesOf(line); }

private:
    struct NamedBytes
    {
        std::string name;
        std::string bytes;
    };
    class ProgressCall;

    ReportRequest request() const;
    ExitStatus requireAll() const;
    RowTable& tableOf(const std::string& name, const std::vector<std::string>& headings);
    ExitStatus keepFailure(const std::function<ExitStatus()>& action);
    ExitStatus keep(ExitStatus status, const FindingList& findings);
    void dropReport();

    std::vector<std::unique_ptr<NamedBytes>> m_parts; // sources refer to the bytes
    std::vector<std::unique_ptr<RowTable>> m_tables;
    std::optional<NamedBytes> m_assemblies;
    std::optional<NamedBytes> m_template;
    std::vector<std::unique_ptr<NamedBytes>> m_offers; // of templates, where none is set
    SessionOptions m_options;
    SessionProgress m_progress;
    FindingList m_findings;

    std::unique_ptr<ReportJob> m_pJob;
    std::unique_ptr<EvaluatedReport> m_pReport; // of the job
    std::unique_ptr<JsonLines> m_pLines;        // of the report; null without one
};
}
