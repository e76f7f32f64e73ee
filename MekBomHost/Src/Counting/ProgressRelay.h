// Tells a user who waits how many rows have been placed in the list.
//
//   ProgressRelay relay(sections, progress);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), relay);
#pragma once

#include "RowProgress.h"
#include "SectionRelay.h"

#include <cstddef>

namespace mekbom
{
class ProgressRelay : public SectionRelay
{
public:
    static constexpr int kRowsBetween = 1024; // arbitrary: a millisecond or so

    // Neither is owned; both outlive this sink.
    ProgressRelay(VorBomSectionSink& next, RowProgress& progress) : SectionRelay(next), m_progress(progress) {}

    int takeProgress(int numRowsDone) override
    {
        if (numRowsDone % kRowsBetween == 0)
            m_progress.take(RowProgress::kEvaluating, static_cast<std::size_t>(numRowsDone));
        return SectionRelay::takeProgress(numRowsDone);
    }

private:
    RowProgress& m_progress;
};
}
