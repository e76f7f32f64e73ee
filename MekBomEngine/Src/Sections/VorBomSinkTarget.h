// Hands the sections of a report to a host's sink: a header when its group opens, a footer when it closes, a line when
// it is complete. Of each level a header that was handed over is given back, to make the next one of, and the line that the
// next is compared with is kept.
#pragma once

#include "VorBomSectionSink.h"
#include "VorBomSectionTarget.h"

#include <memory>

class VorBomSinkTarget : public VorBomSectionTarget
{
public:
    // Prepares the plans of all levels for what the sink asks for. It is not owned.
    VorBomSinkTarget(VorBomSectionSink& sink, VorBomEvaluationOptions::eEqualLines equalLines,
                     VorBomEngineStateArray& stack);

    void open(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits& units) override;
    void take(VorBomEngineStateArray& stack, int level) override;
    void takeMergedRow(const VorBomDataRow& row) override { m_sink.takeMergedRow(row); }
    int takeProgress(int numRowsDone) override { return m_sink.takeProgress(numRowsDone); }
    void takeEnd() override { m_sink.takeEnd(); }

private:
    using Section = std::unique_ptr<VorBomTemplateItem>; // nothing hangs in it, so it goes without empty()

    void handOverHeader(const VorBomTemplateItem& header, const VorBomEngineState& group, int level);
    void handOverFooter(const VorBomTemplateItem& footer, const VorBomEngineState& group, int level);
    void reportFailedFormulas(const VorBomEngineState& group);

    VorBomSectionSink& m_sink;
    bool m_takesFailures;
    Section m_pSectionBefore; // of the deepest level, handed over last
};
