// Stands before a tree or a sink while somebody looks on: hands everything on, and tells of progress, of formulas that
// fail and of rows that are merged.
#pragma once

#include "VorBomEvaluationOptions.h"
#include "VorBomFinding.h"
#include "VorBomSectionTarget.h"

class VorBomObservedTarget : public VorBomSectionTarget
{
public:
    // None is owned. Prepares the plans of all levels for what the observers are told.
    VorBomObservedTarget(VorBomSectionTarget& next, const VorBomEvaluationOptions& options,
                         VorBomEngineStateArray& stack);

    void open(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits& units) override;
    void take(VorBomEngineStateArray& stack, int level) override;
    void takeMergedRow(const VorBomDataRow& row) override;
    int takeProgress(int numRowsDone) override;
    void takeEnd() override { m_next.takeEnd(); }

private:
    void tellOfFailures(const VorBomEngineState& group) const;

    VorBomSectionTarget& m_next;
    const VorBomEvaluationOptions& m_options;
    const VorBomDataRow* m_pRowOfLine = nullptr; // that the section taken last on the deepest level was made for
};
