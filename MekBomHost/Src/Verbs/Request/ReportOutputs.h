// The outputs of one run, written from one evaluated report.
//
//   const ReportOutputs outputs(options.wanted(), options.choicesOver(OutputChoices()));
//   request.contents = outputs.contents();
//   ReportJob job(std::move(request));
//   if (job.run() == kDone)
//       outputs.write(job.report());
#pragma once

#include "Finding.h"
#include "OutputOptions.h"
#include "ReportWriter.h"

#include <memory>
#include <vector>

namespace mekbom
{
class RunProgress;

class ReportOutputs
{
public:
    // All formats must be known.
    ReportOutputs(const std::vector<WantedOutput>& outputs, const OutputChoices& choices);

    // What all writers together want of lines beside their texts.
    LineContents contents() const;

    // Writes all of them. No file is replaced before all outputs have been written to their end: when one fails, all
    // files are what they were before. `pProgress` is told what has been written; it is not owned and may be null. Throws a Fault of status kOutputNotWritten, and what a writer throws.
    void write(const EvaluatedReport& report, RunProgress* pProgress = nullptr) const;

    // What the list is made of, as notes, if some output has no place for it; none otherwise.
    std::vector<Finding> footNotes(const EvaluatedReport& report) const;

private:
    struct Output
    {
        WantedOutput wanted;
        std::unique_ptr<const ReportWriter> pWriter;
    };

    std::vector<Output> m_outputs; // files first
};
}
