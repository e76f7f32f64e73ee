// The observers hear of a row before the tree or the sink does: a sink that throws is behind them.
#include "VorBomObservedTarget.h"

#include "VorBomDiagnostics.h"
#include "VorBomLevelPlan.h"
#include "VorBomProgress.h"

VorBomObservedTarget::VorBomObservedTarget(VorBomSectionTarget& next, const VorBomEvaluationOptions& options,
                                           VorBomEngineStateArray& stack)
    : VorBomSectionTarget(next.equalLines()), m_next(next), m_options(options)
{
    if (options.pDiagnostics == nullptr)
        return;
    for (VorBomEngineState& state : stack)
        state.m_pPlan->header.keepFailures();
}

void VorBomObservedTarget::open(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits& units)
{
    if (m_options.pDiagnostics != nullptr)
        tellOfFailures(stack.begin()[level]);
    m_next.open(stack, level, units);
}

void VorBomObservedTarget::take(VorBomEngineStateArray& stack, int level)
{
    const VorBomTemplateItem* const pHeader = stack.begin()[level].m_pEvaluatedHeader;
    if (level == stack.length() - 1 && pHeader != nullptr)
        m_pRowOfLine = pHeader->getFirstDataRow();
    m_next.take(stack, level);
}

void VorBomObservedTarget::takeMergedRow(const VorBomDataRow& row)
{
    if (m_options.pDiagnostics != nullptr)
    {
        VorBomFinding finding;
        finding.kind = VorBomFinding::kRowMerged;
        finding.pRow = &row;
        finding.pOtherRow = m_pRowOfLine;
        m_options.pDiagnostics->takeFinding(finding);
    }
    m_next.takeMergedRow(row);
}

int VorBomObservedTarget::takeProgress(int numRowsDone)
{
    if (m_options.pProgress != nullptr && m_options.pProgress->takeProgress(numRowsDone) == 0)
        return 0;
    return m_next.takeProgress(numRowsDone);
}

void VorBomObservedTarget::tellOfFailures(const VorBomEngineState& group) const
{
    for (const VorBomHeaderPlan::Failure& failure : group.m_pPlan->header.failures())
    {
        VorBomFinding finding;
        finding.kind = VorBomFinding::kFormulaFailed;
        finding.pSection = group.m_pHeader;
        finding.tuple = failure.tuple;
        finding.token = failure.token;
        finding.message = failure.message;
        finding.position = failure.position;
        finding.pRow = group.m_pEvaluatedHeader->getFirstDataRow();
        m_options.pDiagnostics->takeFinding(finding);
    }
}
