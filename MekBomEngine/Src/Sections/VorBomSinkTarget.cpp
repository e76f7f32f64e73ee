// Told on rows A, A, B grouped by name, under levels 0 report, 1 group, 2 details:
//   open 0, open 1    each header is shown, handed over and destroyed
//   open 2, take 2    the line of the first A is handed over when it is complete, and kept, to compare the next with
//   open 2            the line of the second A reads as that one: the engine destroys it
//   takeMergedRow     its row is handed over instead
//   take 2            no section is left: the first A's line stays the one to compare with
//   take 1            the footer of group A is handed over and destroyed; then B goes as A did
#include "VorBomSinkTarget.h"

#include "VorBomLevelPlan.h"

#include <utility>

namespace
{
using Options = VorBomEvaluationOptions;
}

VorBomSinkTarget::VorBomSinkTarget(VorBomSectionSink& sink, Options::eEqualLines equalLines,
                                   VorBomEngineStateArray& stack)
    : VorBomSectionTarget((sink.requests() & VorBomSectionSink::kEqualLines) != 0 ? Options::kKeepEqualLines
                                                                                  : equalLines),
      m_sink(sink),
      m_takesFailures((sink.requests() & VorBomSectionSink::kFailedFormulas) != 0)
{
    for (VorBomEngineState& state : stack)
    {
        if ((sink.requests() & VorBomSectionSink::kTypedValues) != 0)
            state.m_pPlan->keepValues();
        if (m_takesFailures)
            state.m_pPlan->header.keepFailures();
    }
}

void VorBomSinkTarget::open(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits& units)
{
    VorBomEngineState& group = stack.begin()[level];
    reportFailedFormulas(group);
    if (level == stack.length() - 1)
        return; // the line may be merged still
    group.m_pPlan->header.display().show(units, group.m_pEvaluatedHeader->getData());
    Section pHeader(std::exchange(group.m_pEvaluatedHeader, nullptr));
    handOverHeader(*pHeader, group, level);
    group.m_pPlan->header.takeBack(std::move(pHeader));
}

void VorBomSinkTarget::take(VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& group = stack.begin()[level];
    Section pHeader(std::exchange(group.m_pEvaluatedHeader, nullptr));
    Section pFooter(std::exchange(group.m_pEvaluatedFooter, nullptr));
    if (pHeader != nullptr)
        handOverHeader(*pHeader, group, level);
    if (pFooter != nullptr)
        handOverFooter(*pFooter, group, level);
    // What no line is compared with need not be kept.
    if (equalLines() != Options::kKeepEqualLines && level == stack.length() - 1 &&
        (pHeader != nullptr || pFooter != nullptr))
    {
        std::swap(m_pSectionBefore, pFooter != nullptr ? pFooter : pHeader);
        group.m_pSectionBefore = m_pSectionBefore.get();
    }
    if (pHeader != nullptr)
        group.m_pPlan->header.takeBack(std::move(pHeader));
}

void VorBomSinkTarget::handOverHeader(const VorBomTemplateItem& header, const VorBomEngineState& group, int level)
{
    const VorBomTypedValue* const pValues = group.m_pPlan->header.display().values();
    m_sink.takeHeader({ header, level, header.getFirstDataRow(), {}, pValues, nullptr, group.m_pHeader });
}

void VorBomSinkTarget::handOverFooter(const VorBomTemplateItem& footer, const VorBomEngineState& group, int level)
{
    VorBomFooterPlan& plan = *group.m_pPlan->footer;
    const VorBomCountedRows rows(group.m_dataRows);
    m_sink.takeFooter({ footer, level, nullptr, rows, plan.typedValues(), plan.numRowsWithDatum(), group.m_pFooter });
}

void VorBomSinkTarget::reportFailedFormulas(const VorBomEngineState& group)
{
    if (!m_takesFailures)
        return;
    for (const VorBomHeaderPlan::Failure& failure : group.m_pPlan->header.failures())
        m_sink.takeFailedFormula(*group.m_pEvaluatedHeader->getFirstDataRow(), failure.token, failure.message);
}
