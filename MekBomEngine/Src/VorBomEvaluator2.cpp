// The stack of levels, the making of evaluated sections, grouping and the main loop.
//
// Told on rows A, A, B under levels 0 report, 1 group by name, 2 details:
//   A  opens 0, 1 and 2; the line of 2 is complete at once and is taken
//   A  joins 0 and 1; its line reads as the one before and is merged into it
//   B  joins 0; closes 1, whose footer over the first A is taken; opens 1 and 2 anew
//   end: 1 closes and is taken, then 0
//
// Whoever takes the sections (VorBomSectionTarget) hangs them in a tree or hands them to a host's sink; what is told
// here is the same for both.
#include "VorBomEvaluator2.h"

#include "VorBomDataCheck.h"
#include "VorBomLevelPlan.h"
#include "VorBomObservedTarget.h"
#include "VorBomRowsAhead.h"
#include "VorBomSectionTree.h"
#include "VorBomSinkTarget.h"
#include "VorBomTemplateCheck.h"

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

int lastLevelOf(const VorBomEngineStateArray& stack)
{
    return stack.length() - 1;
}

bool isLastLevel(const VorBomEngineStateArray& stack, int level)
{
    return level == lastLevelOf(stack);
}

// Whenever a level opens, all below it open for the same row: the formula computed last is one of the deepest level
// that has any.
void leaveLastFormula(VorBomEngineStateArray& stack)
{
    int level = lastLevelOf(stack);
    while (level >= 0 && stack[level].m_pPlan->header.leaveLastFormula() == 0)
        --level;
}

// Tells the plan of a section's numbers which of them the host shows.
void setFormats(const VorBomTemplate& reportTemplate, const VorBomTemplateItem& section, VorBomDisplayPlan& plan)
{
    for (int tuple = 0; tuple < section.getData().length(); ++tuple)
        plan.setFormat(tuple, reportTemplate.numberFormat(section, tuple));
}

// Sections that belong to nobody yet; they go with this object, unless they are moved on.
class CollectedSections
{
public:
    CollectedSections() = default;
    CollectedSections(const CollectedSections&) = delete;
    CollectedSections& operator=(const CollectedSections&) = delete;
    ~CollectedSections() { m_root.empty(); }

    VorBomItemBase& root() { return m_root; }

    // One by one, as addChild() takes them.
    void moveTo(VorBomItemBase& parent)
    {
        VorBomItemBase* pSection = m_root.child();
        m_root.setChild(nullptr);
        while (pSection != nullptr)
        {
            VorBomItemBase* const pNext = pSection->next();
            pSection->setNext(nullptr);
            parent.addChild(pSection);
            pSection = pNext;
        }
    }

private:
    VorBomItemBase m_root;
};

// Destroys, when it goes, what an evaluation that ends early has made and nobody has taken.
class SectionsInProgress
{
public:
    explicit SectionsInProgress(VorBomEngineStateArray& stack) : m_stack(stack) {}
    SectionsInProgress(const SectionsInProgress&) = delete;
    SectionsInProgress& operator=(const SectionsInProgress&) = delete;
    ~SectionsInProgress()
    {
        for (VorBomEngineState& state : m_stack)
            VorBomSectionTarget::destroySections(state);
    }

private:
    VorBomEngineStateArray& m_stack;
};
}

int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomTemplate* pResult)
{
    if (pTemplate == nullptr)
        return 0;
    VorBomEngineStateArray stack = getTemplateStack(pTemplate);
    if (stack.isEmpty())
        return 0;
    stack[0].m_pCollector = pResult;
    VorBomSectionTree tree(VorBomEvaluationOptions::kMergeEqualLines);
    return evaluateRows(*pTemplate, stack, tree);
}

int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomSectionSink& sink)
{
    if (pTemplate == nullptr)
        return 0;
    return evaluate(pTemplate, sink, VorBomEvaluationOptions());
}

// The first level hands its sections over as its groups close; they are kept apart until it is certain that all come.
int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomTemplate* pResult,
                               const VorBomEvaluationOptions& options)
{
    if (pTemplate == nullptr)
        return 0;
    VorBomEngineStateArray stack = getTemplateStack(pTemplate);
    if (stack.isEmpty())
        return 0;
    CollectedSections collected;
    stack[0].m_pCollector = pResult == nullptr ? nullptr : &collected.root();
    VorBomSectionTree tree(options.equalLines);
    if (evaluateObserved(*pTemplate, stack, tree, options) == 0)
        return 0;
    if (pResult != nullptr)
        collected.moveTo(*pResult);
    return 1;
}

int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomSectionSink& sink,
                               const VorBomEvaluationOptions& options)
{
    if (pTemplate == nullptr)
        return 0;
    VorBomEngineStateArray stack = getTemplateStack(pTemplate);
    if (stack.isEmpty())
        return 0;
    VorBomSinkTarget target(sink, options.equalLines, stack);
    return evaluateObserved(*pTemplate, stack, target, options);
}

int VorBomEvaluator2::evaluateObserved(VorBomTemplate& reportTemplate, VorBomEngineStateArray& stack,
                                       VorBomSectionTarget& target, const VorBomEvaluationOptions& options)
{
    if (options.pProgress == nullptr && options.pDiagnostics == nullptr)
        return evaluateRows(reportTemplate, stack, target);
    if (options.pDiagnostics != nullptr)
    {
        VorBomTemplateCheck::check(reportTemplate, *options.pDiagnostics);
        VorBomDataCheck(reportTemplate).tell(*options.pDiagnostics);
    }
    VorBomObservedTarget observed(target, options, stack);
    return evaluateRows(reportTemplate, stack, observed);
}

int VorBomEvaluator2::evaluateRows(VorBomTemplate& reportTemplate, VorBomEngineStateArray& stack,
                                   VorBomSectionTarget& target)
{
    // Before anything changes: a sink that stops here leaves the rows in the order in which they came.
    if (target.takeProgress(0) == 0)
        return 0;
    VorBomData* pData = reportTemplate.getBomData();
    if (pData == nullptr)
    {
        target.takeEnd();
        return 1;
    }
    sortInpuDataBySortingTokens(pData, stack, reportTemplate);

    stack[0].m_pTarget = &target;
    // From here on a sink may stop the report or throw while groups are open.
    const SectionsInProgress sectionsInProgress(stack);
    VorBomTemplateUnits* pUnits = reportTemplate.getBomTemplateUnits();
    VorBomRowsAhead ahead(pData->child(), stack[0].m_pPlan->positions());
    int numRowsDone = 0;
    for (VorBomItemBase* pRow = pData->child(); pRow != nullptr; pRow = pRow->next())
    {
        ahead.advance();
        evaluateData(static_cast<VorBomDataRow*>(pRow), stack, pUnits);
        if (target.takeProgress(++numRowsDone) == 0)
            return 0;
    }
    for (int level = lastLevelOf(stack); level >= 0; --level)
        endGroup(stack, level, pUnits);
    handOverGroups(stack, 0);
    leaveLastFormula(stack);
    target.takeEnd();
    return 1;
}

// Of report header RH with the children group header GH and group footer GF, and RH's sibling RF, in a template:
//   level 0   header RH, the first child of the template; footer RF, its next sibling
//   level 1   header GH, the first child of RH;           footer GF
// Types are not looked at: where a section stands says what it does.
VorBomEngineStateArray VorBomEvaluator2::getTemplateStack(VorBomTemplate* pTemplate)
{
    // One for all levels: each asks about the same row, which is looked at once.
    const auto pPositions = std::make_shared<VorBomTuplePositions>();
    VorBomEngineStateArray stack;
    for (VorBomTemplateItem* pItem = asSection(pTemplate->child()); pItem != nullptr; pItem = asSection(pItem->child()))
    {
        VorBomEngineState state;
        state.m_pHeader = pItem;
        state.m_pFooter = asSection(pItem->next());
        state.m_pPlan = std::make_shared<VorBomLevelPlan>(pPositions, *state.m_pHeader, state.m_pFooter);
        setFormats(*pTemplate, *state.m_pHeader, state.m_pPlan->header.display());
        if (state.m_pFooter != nullptr)
            setFormats(*pTemplate, *state.m_pFooter, state.m_pPlan->footer->display());
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
    return VorBomHeaderPlan(std::make_shared<VorBomTuplePositions>(), *pTemplateItem).process(*pRow).release();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a caller may empty its array meanwhile
VorBomTemplateItem* VorBomEvaluator2::process(VorBomTemplateItem* pTemplateItem, VorBomDataRowPointerArray rows)
{
    if (pTemplateItem == nullptr)
    {
        VorAssert::vorAssert(L"NULL != pTemplateItem", kSourcePath, __LINE__);
        return nullptr;
    }
    return VorBomFooterPlan(std::make_shared<VorBomTuplePositions>(), *pTemplateItem).finish(rows).release();
}

int VorBomEvaluator2::evaluateData(VorBomDataRow* pRow, VorBomEngineStateArray& stack, VorBomTemplateUnits* pUnits)
{
    // A level that opens a new group leaves those after it without rows, so that they open anew for the same row; the
    // deepest has none between two rows and opens for every one.
    VorBomEngineState* pStates = stack.begin();
    for (int level = 0; level < stack.length(); ++level)
    {
        if (pStates[level].m_dataRows.isEmpty())
        {
            beginGroup(pRow, stack, level, pUnits);
            if (isLastLevel(stack, level))
                endGroup(stack, level, pUnits);
        }
        else if (!dataMatchGroup(pRow, pStates[level]))
        {
            for (int inner = level; inner < stack.length(); ++inner)
                endGroup(stack, inner, pUnits);
            handOverGroups(stack, level);
            beginGroup(pRow, stack, level, pUnits);
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

int VorBomEvaluator2::beginGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level,
                                 VorBomTemplateUnits* pUnits)
{
    VorBomEngineState& state = stack.begin()[level];
    state.m_bGroupOpen = 1;
    state.m_pEvaluatedHeader = state.m_pPlan->header.process(*pRow).release();
    state.m_pPlan->header.computeFormulas(*state.m_pEvaluatedHeader, pRow);
    state.m_pEvaluatedHeader->setFirstDataRow(pRow);
    state.m_dataRows.append(pRow);
    // The line before stands in another group, where nothing may be merged into it.
    if (!isLastLevel(stack, level))
        stack.begin()[level + 1].m_pSectionBefore = nullptr;
    stack.begin()->m_pTarget->open(stack, level, *pUnits);
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
    // No group is open on any level of a report without rows, nor on the deepest level, where it closed with its row.
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
    // A sink took the header, shown, when the group opened; then there is none here.
    if (completedGroup.m_pEvaluatedHeader != nullptr)
        completedGroup.m_pPlan->header.display().show(*pUnits, completedGroup.m_pEvaluatedHeader->getData());
    if (completedGroup.m_pEvaluatedFooter != nullptr)
        completedGroup.m_pPlan->footer->display().show(*pUnits, completedGroup.m_pEvaluatedFooter->getData());
    if (isLastLevel(stack, level))
        handOverLine(stack);
    return 1;
}

int VorBomEvaluator2::dataMatchGroup(VorBomDataRow* pRow, VorBomEngineState& state)
{
    if (state.m_pHeader == nullptr || state.m_dataRows.isEmpty() || state.m_pHeader->groupingTokens().isEmpty())
        return 1;
    // With the row before, not with the group's first: lengths of 0, 0.8e-6 and 1.6e-6 make one group, although the
    // first and the last differ.
    return state.m_pPlan->isSameGroup(*pRow, *state.m_dataRows.last());
}

// Both were shown by now, so the texts are compared: 12.501 and 12.502 are one line where both read "12.5".
int VorBomEvaluator2::readsAsTheSectionBefore(VorBomEngineState& line)
{
    return line.m_pSectionBefore != nullptr && line.m_pEvaluatedHeader->type() == VorBomTemplateItem::kDetails &&
                   isEqualAsEvaluated(line.m_pEvaluatedHeader, line.m_pSectionBefore) != 0
               ? 1
               : 0;
}

// The deepest level's group is over with its row, so it is handed over at once. What a merged line leaves to hand over
// is its footer, if it has one.
void VorBomEvaluator2::handOverLine(VorBomEngineStateArray& stack)
{
    const int level = lastLevelOf(stack);
    VorBomEngineState& line = stack.begin()[level];
    VorBomSectionTarget& target = *stack.begin()->m_pTarget;
    // Lines that stand under nothing, in a template of one level, are never merged.
    const bool isMerged = level > 0 && target.equalLines() != VorBomEvaluationOptions::kKeepEqualLines &&
                          readsAsTheSectionBefore(line) != 0;
    if (isMerged)
        mergeLine(line, target);
    target.take(stack, level);
    if (isMerged && target.equalLines() == VorBomEvaluationOptions::kMergeEqualLines)
        for (VorBomDataRow* pRow : line.m_dataRows)
            pRow->setUseThisDataForSums(0); // only now: its own footer, if it has one, has counted it
    line.m_dataRows.empty();
}

void VorBomEvaluator2::mergeLine(VorBomEngineState& line, VorBomSectionTarget& target)
{
    if (line.m_dataRows.length() != 1)
        VorAssert::vorAssert(L"1 == completedGroup.m_dataRows.length()", kSourcePath, __LINE__);
    delete std::exchange(line.m_pEvaluatedHeader, nullptr);
    for (const VorBomDataRow* pRow : line.m_dataRows)
        target.takeMergedRow(*pRow);
}

// Innermost first, so that a group is complete when the one around it is taken. Lines were taken when they were made.
void VorBomEvaluator2::handOverGroups(VorBomEngineStateArray& stack, int outermost)
{
    for (int level = lastLevelOf(stack) - 1; level >= outermost; --level)
    {
        VorBomDataRowPointerArray& rows = stack.begin()[level].m_dataRows;
        if (rows.isEmpty())
            continue; // no group was open
        stack.begin()->m_pTarget->take(stack, level);
        rows.empty();
    }
}
