// What a user who waits at a terminal is told of a run, from the first row that is read to the last byte of its lists:
//
//   mekbom: 412160 rows read
//   mekbom: 98304 rows placed in the list
//   mekbom: 31 MB of list.csv written
//
//   RunProgress progress;
//   request.pProgress = progress.ofRows();
//   ReportJob job(std::move(request));
//   if (job.run() == kDone)
//       outputs.write(job.report(), &progress);
//
// Each line takes the place of the one before, and the last one is gone with this object: before findings are printed.
#pragma once

#include "ProgressLine.h"
#include "RowProgress.h"

#include <cstddef>
#include <string>
#include <utility>

namespace mekbom
{
class RunProgress : public RowProgress
{
public:
    explicit RunProgress(ProgressLine::Terminal terminal = ProgressLine::standardError()) : m_line(std::move(terminal))
    {
    }

    // For a ReportRequest: this object, or null where nothing is shown, so that nobody takes the trouble.
    RowProgress* ofRows() { return m_line.isThere() ? this : nullptr; }

    void take(eStep step, std::size_t numRowsDone) override;

    // So many bytes of an output have been written.
    void takeWritten(const std::string& fileName, std::size_t numBytes);

    // Something else is going to stand on the terminal: a list on standard output.
    void end() { m_line.erase(); }

private:
    ProgressLine m_line;
};
}
