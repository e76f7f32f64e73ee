// A sink that hands on all it takes: what stands between the engine and the sink that keeps the report, and looks on or
// steps in at the calls that it overrides.
//
//   class FooterCount : public SectionRelay
//   {
//   public:
//       explicit FooterCount(VorBomSectionSink& next) : SectionRelay(next) {}
//       void takeFooter(const VorBomReportSection& footer) override
//       {
//           ++numFooters;
//           SectionRelay::takeFooter(footer);
//       }
//       int numFooters = 0;
//   };
//
// The engine sees the first sink of such a chain alone, so each asks it for what those behind it want.
#pragma once

#include "VorBomSectionSink.h"

namespace mekbom
{
class SectionRelay : public VorBomSectionSink
{
public:
    void takeHeader(const VorBomReportSection& header) override { m_next.takeHeader(header); }
    void takeFooter(const VorBomReportSection& footer) override { m_next.takeFooter(footer); }
    void takeMergedRow(const VorBomDataRow& row) override { m_next.takeMergedRow(row); }
    void takeFailedFormula(const VorBomDataRow& row, const VorString& token, const VorString& message) override
    {
        m_next.takeFailedFormula(row, token, message);
    }
    int takeProgress(int numRowsDone) override { return m_next.takeProgress(numRowsDone); }
    void takeEnd() override { m_next.takeEnd(); }

protected:
    // `next` is not owned and must outlive this sink. `requests` are wanted beside those of `next`.
    explicit SectionRelay(VorBomSectionSink& next, int requests = kTextsAlone)
        : VorBomSectionSink(next.requests() | requests), m_next(next)
    {
    }

private:
    VorBomSectionSink& m_next;
};
}
