// In which order `-o list.txt -o - -o list.csv` is written:
//
//   list.txt, list.csv   are opened, so that a place that cannot be written is told before anything is
//   list.txt, list.csv   are filled, each in its temporary file
//   -                    gets its text
//   list.txt, list.csv   take the places of the old files
//
// What went to standard output cannot be taken back, and so it comes behind all that may fail.
#include "ReportOutputs.h"

#include "FindingCodes.h"
#include "OutputFile.h"
#include "ReportFormats.h"
#include "RunProgress.h"
#include "StandardOutput.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const std::size_t kBytesBetween = 1 << 16; // arbitrary: a look at the clock is nothing against writing so many

// Hands on what is written, and keeps the end for later: a writer finishes its sink, and so each file would be replaced
// before the next output has been tried. Tells what has been written, but for standard output, where the list shows.
class HeldSink : public TextSink
{
public:
    HeldSink(std::unique_ptr<TextSink> pSink, const WantedOutput& output, RunProgress* pProgress)
        : m_pSink(std::move(pSink)), m_output(output), m_pProgress(pProgress)
    {
    }

    void write(std::string_view text) override
    {
        m_pSink->write(text);
        m_numBytes += text.size();
        if (m_pProgress == nullptr || m_output.isStandardOutput() || m_numBytes < m_numTold + kBytesBetween)
            return;
        m_pProgress->takeWritten(m_output.fileName, m_numBytes);
        m_numTold = m_numBytes;
    }

    void finish() override {}
    void release() { m_pSink->finish(); }

private:
    std::unique_ptr<TextSink> m_pSink;
    const WantedOutput& m_output; // not owned
    RunProgress* m_pProgress;     // not owned; may be null
    std::size_t m_numBytes = 0;
    std::size_t m_numTold = 0; // of these
};

std::unique_ptr<TextSink> sinkOf(const WantedOutput& output)
{
    if (output.isStandardOutput())
        return std::make_unique<StandardOutput>();
    return std::make_unique<OutputFile>(output.fileName);
}
}

ReportOutputs::ReportOutputs(const std::vector<WantedOutput>& outputs, const OutputChoices& choices)
{
    for (const WantedOutput& output : outputs)
        m_outputs.push_back({ output, ReportFormats::createWriter(output.format, choices) });
    std::stable_partition(m_outputs.begin(), m_outputs.end(),
                          [](const Output& output) { return !output.wanted.isStandardOutput(); });
}

LineContents ReportOutputs::contents() const
{
    LineContents contents;
    for (const Output& output : m_outputs)
        contents.add(output.pWriter->contents());
    return contents;
}

// The standard output is the last one and the first that is finished: when its device is full, the files stay.
void ReportOutputs::write(const EvaluatedReport& report, RunProgress* pProgress) const
{
    std::vector<std::unique_ptr<HeldSink>> sinks;
    for (const Output& output : m_outputs)
        sinks.push_back(std::make_unique<HeldSink>(sinkOf(output.wanted), output.wanted, pProgress));
    for (std::size_t i = 0; i < sinks.size(); ++i)
    {
        if (m_outputs[i].wanted.isStandardOutput() && pProgress != nullptr)
            pProgress->end();
        m_outputs[i].pWriter->write(report, *sinks[i]);
    }
    std::for_each(sinks.rbegin(), sinks.rend(), [](const auto& pSink) { pSink->release(); });
}

std::vector<Finding> ReportOutputs::footNotes(const EvaluatedReport& report) const
{
    std::vector<Finding> notes;
    const auto tells = [](const Output& output) { return output.pWriter->tellsFoot(); };
    if (std::all_of(m_outputs.begin(), m_outputs.end(), tells))
        return notes;
    for (const std::string& line : report.foot().lines())
        notes.push_back(Finding::saying(FindingCodes::kFootOfList, line));
    return notes;
}
}
