// The stack of levels, the making of evaluated sections, grouping and the main loop.
//
// Told on rows A, A, B under levels 0 report, 1 group by name, 2 details:
//   A  opens 0, 1 and 2; 2 closes at once and hangs a details section in the header of 1
//   A  joins 0 and 1; opens and closes 2
//   B  joins 0; closes 1, which makes the footer over both A and hangs header and footer in the header of 0; opens 1, 2
//   end: closes 1, then 0, whose header and footer go to the result.
#include "VorBomEvaluator2.h"

#include "VorBomLevelPlan.h"
#include "VorBomRowsAhead.h"

#include "MekRoots/Exp/VorAssert.h"

#include <memory>
#include <utility>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // named in assertion reports

VorBomTemplateItem* asSection(VorBomItemBase* pItem)
{
    return static_cast<VorBomTemplateItem*>(pItem); // children of sections are sections
}

bool isLastLevel(const VorBomEngineStateArray& stack, int level)
{
    return level == stack.length() - 1;
}
}

int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomTemplate* pResult)
{
    if (pTemplate == nullptr)
        return 0;
    VorBomEngineStateArray stack = getTemplateStack(pTemplate);
    if (stack.isEmpty())
        return 0;
    stack[0].m_pCollector = pResult;
    evaluateRows(*pTemplate, stack);
    return 1;
}

int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomSectionSink& sink)
{
    if (pTemplate == nullptr)
        return 0;
    VorBomEngineStateArray stack = getTemplateStack(pTemplate);
    if (stack.isEmpty())
        return 0;
    for (VorBomEngineState& state : stack)
        state.m_pSink = &sink;
    evaluateRows(*pTemplate, stack);
    return 1;
}

void VorBomEvaluator2::evaluateRows(VorBomTemplate& reportTemplate, VorBomEngineStateArray& stack)
{
    VorBomData* pData = reportTemplate.getBomData();
    if (pData == nullptr)
        return;
    VorBomTemplateUnits* pUnits = reportTemplate.getBomTemplateUnits();
    sortInpuDataBySortingTokens(pData, stack);
    VorBomRowsAhead ahead(pData->child());
    for (VorBomItemBase* pRow = pData->child(); pRow != nullptr; pRow = pRow->next())
    {
        ahead.advance();
        evaluateData(static_cast<VorBomDataRow*>(pRow), stack, pUnits);
    }
    for (int level = stack.length() - 1; level >= 0; --level)
        endGroup(stack, level, pUnits);
    handOverFooters(stack, 0);
    forgetGroup(stack, 0);
}

VorBomEngineStateArray VorBomEvaluator2::getTemplateStack(VorBomTemplate* pTemplate)
{
    const auto pLayouts = std::make_shared<VorBomRowLayouts>();
    VorBomEngineStateArray stack;
    for (VorBomTemplateItem* pItem = asSection(pTemplate->child()); pItem != nullptr; pItem = asSection(pItem->child()))
    {
        VorBomEngineState state;
        state.m_pHeader = pItem;
        state.m_pFooter = asSection(pItem->next());
        state.m_pPlan = std::make_shared<VorBomLevelPlan>(pLayouts, *state.m_pHeader, state.m_pFooter);
        stack.append(std::move(state));
    }
    return stack;
}

VorBomTemplateItem* VorBomEvaluator2::process(VorBomTemplateItem* pTemplateItem, VorBomDataRow* pRow)
{
    if (pTemplateItem == nullptr)
    {
        VorAssert::vorAssert(L"NULL != pTemplateItem", kSourcePath, __LINE__);
        return nullptr;
    }
    return VorBomHeaderPlan(std::make_shared<VorBomRowLayouts>(), *pTemplateItem).process(*pRow).release();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a caller may empty its array meanwhile
VorBomTemplateItem* VorBomEvaluator2::process(VorBomTemplateItem* pTemplateItem, VorBomDataRowPointerArray rows)
{
    if (pTemplateItem == nullptr)
    {
        VorAssert::vorAssert(L"NULL != pTemplateItem", kSourcePath, __LINE__);
        return nullptr;
    }
    return VorBomFooterPlan(std::make_shared<VorBomRowLayouts>(), *pTemplateItem).finish(rows).release();
}

int VorBomEvaluator2::evaluateData(VorBomDataRow* pRow, VorBomEngineStateArray& stack, VorBomTemplateUnits* pUnits)
{
    VorBomEngineState* pStates = stack.begin();
    for (int level = 0; level < stack.length(); ++level)
    {
        if (pStates[level].m_dataRows.isEmpty())
        {
            beginGroup(pRow, stack, level);
            handOverHeader(stack, level, pUnits);
            if (isLastLevel(stack, level))
                endGroup(stack, level, pUnits);
        }
        else if (!dataMatchGroup(pRow, pStates[level]))
        {
            for (int inner = level; inner < stack.length(); ++inner)
                endGroup(stack, inner, pUnits);
            handOverFooters(stack, level);
            beginGroup(pRow, stack, level);
            handOverHeader(stack, level, pUnits);
        }
        else
        {
            addedInGroup(pRow, stack, level);
        }
    }
    // Only now is it settled whether the row counts and which formulas it carries.
    for (VorBomEngineState& state : stack)
        if (state.m_pFooter != nullptr)
            state.m_pPlan->footer->takeNewRows(state.m_dataRows);
    return 1;
}

int VorBomEvaluator2::beginGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level)
{
    forgetGroup(stack, level);
    VorBomEngineState& state = stack.begin()[level];
    state.m_bGroupOpen = 1;
    std::unique_ptr<VorBomTemplateItem> pEvaluated = state.m_pPlan->header.process(*pRow);
    state.m_pPlan->header.computeFormulas(*pEvaluated, *pRow);
    pEvaluated->setFirstDataRow(pRow);
    state.m_pEvaluatedHeader = pEvaluated.release();
    state.m_dataRows.append(pRow);
    return 1;
}

int VorBomEvaluator2::addedInGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& state = stack.begin()[level];
    if (state.m_pHeader->type() == VorBomTemplateItem::kDetails) // details that are not the deepest level
        VorAssert::vorAssert(L"VorBomTemplateItem::kDetails != state.m_pHeader->type()", kSourcePath, __LINE__);
    state.m_dataRows.append(pRow);
    return 1;
}

// On purpose: formulas are computed in headers only, not in the footer made here.
// Pinned by VorBomEvaluator2Test.FooterFormulasAreNotComputed.
int VorBomEvaluator2::endGroup(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits)
{
    VorBomEngineState& state = stack.begin()[level];
    if (state.m_bGroupOpen != 1)
        return 1;
    state.m_bGroupOpen = 0;
    if (state.m_pFooter != nullptr)
        state.m_pEvaluatedFooter = state.m_pPlan->footer->finish(state.m_dataRows).release();
    return groupIsCompleted(stack, level, pUnits);
}

int VorBomEvaluator2::groupIsCompleted(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits)
{
    VorBomEngineState& completedGroup = stack.begin()[level];
    if (completedGroup.m_pEvaluatedHeader != nullptr)
        completedGroup.m_pPlan->header.showInUnits(*pUnits, *completedGroup.m_pEvaluatedHeader);
    if (completedGroup.m_pEvaluatedFooter != nullptr)
        completedGroup.m_pPlan->footer->showInUnits(*pUnits, *completedGroup.m_pEvaluatedFooter);
    if (level > 0 && isLastLevel(stack, level))
        dropDuplicateDetails(stack, level);
    handOverLine(stack, level);
    hangSections(stack, level);
    completedGroup.m_dataRows.empty();
    return 1;
}

int VorBomEvaluator2::dataMatchGroup(VorBomDataRow* pRow, VorBomEngineState& state)
{
    if (state.m_pHeader == nullptr || state.m_dataRows.isEmpty() || state.m_pHeader->groupingTokens().isEmpty())
        return 1;
    return state.m_pPlan->isSameGroup(*pRow, *state.m_dataRows.last());
}

// Deletes a details section that reads as the one before it under the same parent, and takes its row out of all sums.
void VorBomEvaluator2::dropDuplicateDetails(VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& completedGroup = stack.begin()[level];
    VorBomTemplateItem* pDetails = completedGroup.m_pEvaluatedHeader;
    if (pDetails == nullptr || pDetails->type() != VorBomTemplateItem::kDetails)
        return;
    VorBomTemplateItem* pParent = stack[level - 1].m_pEvaluatedHeader;
    if (pParent->child() == nullptr || pParent->lastChild() == nullptr ||
        isEqualAsEvaluated(pDetails, asSection(pParent->lastChild())) == 0)
        return;

    if (completedGroup.m_dataRows.length() != 1)
        VorAssert::vorAssert(L"1 == completedGroup.m_dataRows.length()", kSourcePath, __LINE__);
    for (VorBomDataRow* pRow : completedGroup.m_dataRows)
        pRow->setUseThisDataForSums(0);
    delete pDetails;
    completedGroup.m_pEvaluatedHeader = nullptr;
}

// Appends the level's header, then its footer, to the sections of the level above, or at level 0 to the collector. When
// a sink has them already they only take the place of those before: the next line is compared with its predecessor.
void VorBomEvaluator2::hangSections(VorBomEngineStateArray& stack, int level)
{
    const VorBomEngineState& completedGroup = stack.begin()[level];
    VorBomItemBase* pTarget = level == 0 ? completedGroup.m_pCollector : stack[level - 1].m_pEvaluatedHeader;
    const bool isKept = completedGroup.m_pSink == nullptr;
    if (pTarget == nullptr)
    {
        if (isKept)
            VorAssert::vorAssert(L"NULL != completedGroup.m_pCollector", kSourcePath, __LINE__);
        return;
    }
    if (!isKept && (completedGroup.m_pEvaluatedHeader != nullptr || completedGroup.m_pEvaluatedFooter != nullptr))
    {
        pTarget->empty();
        pTarget->setChild(nullptr);
    }
    pTarget->addChild(completedGroup.m_pEvaluatedHeader);
    pTarget->addChild(completedGroup.m_pEvaluatedFooter);
}

// Makes the level ready for its next group. What it evaluated hangs in the tree above, unless level 0 had no collector:
// then it is destroyed with everything under it, only now, since inner groups are hung in it after it was closed.
void VorBomEvaluator2::forgetGroup(VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& state = stack.begin()[level];
    if (level == 0 && state.m_pCollector == nullptr)
    {
        if (state.m_pEvaluatedHeader != nullptr)
            state.m_pEvaluatedHeader->empty();
        delete state.m_pEvaluatedHeader;
        delete state.m_pEvaluatedFooter;
    }
    state.m_dataRows.empty();
    state.m_pEvaluatedHeader = nullptr;
    state.m_pEvaluatedFooter = nullptr;
}

void VorBomEvaluator2::handOverHeader(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits)
{
    const VorBomEngineState& openedGroup = stack.begin()[level];
    if (openedGroup.m_pSink == nullptr || isLastLevel(stack, level))
        return;
    openedGroup.m_pPlan->header.showInUnits(*pUnits, *openedGroup.m_pEvaluatedHeader);
    openedGroup.m_pSink->takeHeader(
        { *openedGroup.m_pEvaluatedHeader, level, openedGroup.m_pEvaluatedHeader->getFirstDataRow() });
}

void VorBomEvaluator2::handOverFooters(VorBomEngineStateArray& stack, int outermost)
{
    for (int level = stack.length() - 2; level >= outermost; --level)
    {
        const VorBomEngineState& closedGroup = stack.begin()[level];
        if (closedGroup.m_pSink != nullptr && closedGroup.m_pEvaluatedFooter != nullptr)
            closedGroup.m_pSink->takeFooter({ *closedGroup.m_pEvaluatedFooter, level });
    }
}

void VorBomEvaluator2::handOverLine(VorBomEngineStateArray& stack, int level)
{
    const VorBomEngineState& line = stack.begin()[level];
    if (line.m_pSink == nullptr || !isLastLevel(stack, level))
        return;
    if (line.m_pEvaluatedHeader != nullptr)
        line.m_pSink->takeHeader({ *line.m_pEvaluatedHeader, level, line.m_pEvaluatedHeader->getFirstDataRow() });
    if (line.m_pEvaluatedFooter != nullptr)
        line.m_pSink->takeFooter({ *line.m_pEvaluatedFooter, level });
}
