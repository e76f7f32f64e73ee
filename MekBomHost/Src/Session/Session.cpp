#include "Session.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "FindingJson.h"
#include "Guard.h"
#include "InQuotes.h"
#include "JsonColumn.h"
#include "MemorySource.h"
#include "NearestWord.h"
#include "ReportFormats.h"
#include "TableRecords.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
// Keeps what is written.
class TextOfSink : public TextSink
{
public:
    void write(std::string_view more) override { text += more; }
    void finish() override {}

    std::string text;
};

Finding unknownFormat(const std::string& format)
{
    const std::vector<std::string> names = ReportFormats::names();
    std::string expected;
    for (const std::string& name : names)
        expected += (expected.empty() ? "one of " : ", ") + name;
    Finding finding = Finding::of(FindingCodes::kFormatUnknown, inQuotes(format), expected);
    finding.remedy = NearestWord::question(format, names);
    return finding;
}
}

// Hands on how far a job is. What stops it is an exception, as that ends reading and evaluating alike.
class Session::ProgressCall : public RowProgress
{
public:
    explicit ProgressCall(const SessionProgress& progress) : m_progress(progress) {}

    void take(eStep step, std::size_t numRowsDone) override
    {
        if (!m_progress(step, numRowsDone))
            throw Fault(kStopped, Finding::saying(FindingCodes::kStopped, "the report was stopped"));
    }

private:
    const SessionProgress& m_progress;
};

void Session::addParts(const std::string& name, std::string_view bytes)
{
    m_parts.push_back(std::make_unique<NamedBytes>(NamedBytes{ name, std::string(bytes) }));
}

ExitStatus Session::addRows(const std::string& name, const std::vector<std::string>& headings, std::size_t numRows,
                            const std::function<void(std::size_t row, Record&)>& fillIn)
{
    return keepFailure(
        [&]
        {
            if (headings.empty() && numRows > 0)
                throw Fault(kInvalidInput,
                            Finding::saying(FindingCodes::kSessionIncomplete, name + " has rows without a column"));
            RowTable& table = tableOf(name, headings);
            Record record(headings.size());
            for (std::size_t row = 0; row < numRows; ++row)
            {
                fillIn(row, record);
                table.add(record);
            }
            return kDone;
        });
}

RowTable& Session::tableOf(const std::string& name, const std::vector<std::string>& headings)
{
    if (m_tables.empty() || m_tables.back()->name() != name || m_tables.back()->headings() != headings)
        m_tables.push_back(std::make_unique<RowTable>(name, headings));
    return *m_tables.back();
}

void Session::removeParts()
{
    m_parts.clear();
    m_tables.clear();
}

void Session::setAssemblies(const std::string& name, std::string_view bytes)
{
    m_assemblies = NamedBytes{ name, std::string(bytes) };
}

void Session::setTemplate(const std::string& name, std::string_view bytes)
{
    m_template = NamedBytes{ name, std::string(bytes) };
    m_offers.clear();
}

void Session::offerTemplate(const std::string& name, std::string_view bytes)
{
    m_offers.push_back(std::make_unique<NamedBytes>(NamedBytes{ name, std::string(bytes) }));
    m_template.reset();
}

ExitStatus Session::setOptions(std::string_view json)
{
    return keepFailure(
        [this, json]
        {
            m_options = SessionOptions::read(json);
            return kDone;
        });
}

ExitStatus Session::evaluate()
{
    dropReport();
    if (const ExitStatus status = keepFailure([this] { return requireAll(); }); status != kDone)
        return status;
    ReportRequest wanted = request();
    wanted.contents = { true, true };
    ProgressCall progress(m_progress); // nobody replaces it meanwhile
    if (m_progress)
        wanted.pProgress = &progress;
    m_pJob = std::make_unique<ReportJob>(std::move(wanted));
    const ExitStatus status = m_pJob->run();
    if (status == kDone)
    {
        m_pReport = std::make_unique<EvaluatedReport>(m_pJob->report());
        m_pLines = std::make_unique<JsonLines>(*m_pReport);
    }
    return keep(status, m_pJob->findings());
}

ExitStatus Session::check()
{
    ReportJob job(request());
    const ExitStatus status = job.check();
    return keep(status, job.findings());
}

std::string Session::findingsText() const
{
    return FindingJson::textOf(m_findings.all());
}

std::optional<std::string> Session::written(const std::string& format)
{
    TextOfSink sink;
    const auto write = [&]
    {
        const auto pWriter = ReportFormats::createWriter(format, m_options.output());
        if (pWriter == nullptr)
            throw Fault(kWrongUsage, unknownFormat(format));
        pWriter->write(*m_pReport, sink);
        return kDone;
    };
    return keepFailure(write) == kDone ? std::optional<std::string>(std::move(sink.text)) : std::nullopt;
}

std::string Session::columns() const
{
    return JsonColumn::textOf(m_pReport->columns()) + "\n";
}

// A job without parts makes a report of the sample rows, and one without a template takes the built-in one. A host that
// forgot them must not show either.
ExitStatus Session::requireAll() const
{
    if (m_parts.empty() && m_tables.empty())
        throw Fault(kWrongUsage,
                    Finding::saying(FindingCodes::kSessionIncomplete, "there are no parts to make a list of"));
    if (!m_template && m_offers.empty())
        throw Fault(kWrongUsage, Finding::saying(FindingCodes::kSessionIncomplete, "there is no template of a list"));
    return kDone;
}

ReportRequest Session::request() const
{
    ReportRequest request;
    m_options.fillIn(request);
    for (const std::unique_ptr<NamedBytes>& pParts : m_parts)
        request.parts.push_back(std::make_unique<MemorySource>(pParts->name, pParts->bytes));
    for (const std::unique_ptr<RowTable>& pTable : m_tables)
        request.records.push_back(std::make_unique<TableRecords>(*pTable));
    if (m_assemblies)
        request.pAssemblies = std::make_unique<MemorySource>(m_assemblies->name, m_assemblies->bytes);
    for (const std::unique_ptr<NamedBytes>& pOffer : m_offers)
        request.candidates.push_back(std::make_unique<MemorySource>(pOffer->name, pOffer->bytes));
    if (m_template)
        request.pTemplate = std::make_unique<MemorySource>(m_template->name, m_template->bytes);
    return request;
}

ExitStatus Session::keepFailure(const std::function<ExitStatus()>& action)
{
    FindingList findings;
    const ExitStatus status = runGuarded(findings, action);
    return status == kDone ? kDone : keep(status, findings);
}

ExitStatus Session::keep(ExitStatus status, const FindingList& findings)
{
    m_findings = findings;
    return status;
}

void Session::dropReport()
{
    m_pLines.reset();
    m_pReport.reset();
    m_pJob.reset();
}
}
