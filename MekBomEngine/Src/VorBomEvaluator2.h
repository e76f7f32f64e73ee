// Turns a template with its data into the evaluated report: sorted, grouped, summed, computed and shown in the
// template's units.
//
//   pTemplate->setUnitsForTokens(&units);              // 1. the units to show numbers in
//   pTemplate->findUsedTokens();                       // 2. fills the grouping and sorting caches of the sections
//   VorBomTemplate result;
//   VorBomEvaluator2::evaluate(pTemplate, &result);    // 3. of sections as children, rows under getBomData()
//
// Call order. evaluate() reads the sections' grouping and sorting caches as they stand and fills none: without step 2 a
// report is neither grouped nor sorted. setUnitsForTokens and findUsedTokens may be called in either order.
//
// The template is read as a chain of levels: an item's first child is the next level's header, that child's next
// sibling its footer; further siblings are not evaluated. The deepest level makes one section for every row.
//
//   rows  S235 2.5 kg, S235 1.5 kg, S355 4 kg  grouped by material, with a sum of weights in the group footer:
//     result
//       report header
//         group header S235          children: one details section per row
//         group footer 4.00
//         group header S355
//         group footer 4.00
//       report footer
//
// What one evaluation changes in its input, whether it comes to its end or not, and nothing else:
//   - the rows are brought into sorted order, by relinking them. On purpose the data's lastChild() goes on naming the row
//     that was last before; nothing may be appended to the data afterwards.
//   - tuples that were copied into a header or details section have their used flag set;
//   - each row gets a tuple "%Formula:..." for every formula computed for it;
//   - rows whose details section equals the one before under the same parent are merged away: that section is dropped
//     and getUseThisDataForSums() of the row becomes 0, so that no total counts it; not for a sink that asks for equal
//     lines (VorBomSectionSink::kEqualLines), and not where options keep or count them;
//   - the template's units learn the unit of each formula shown.
// Whoever wants to evaluate a second time from the start builds fresh data, or has the rows restored
// (VorBomData::rememberRows); they may serve another template then (VorBomTemplate::exchangeBomData).
//
// Threads: evaluations on different threads may run at once, each with its own template, data and result.
#pragma once

#include "VorBomEngineState.h"
#include "VorBomEvaluationOptions.h"
#include "VorBomSectionSink.h"
#include "VorBomTemplate.h"
#include "VorHeaderFooterSortingStruct.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorGenericString.h"

class VorBomSectionTarget;

class MEK_BOM_API VorBomEvaluator2
{
public:
    // Evaluates pTemplate with its data and units, and appends the evaluated sections of the first level to pResult,
    // which owns them then. Returns 1; 0 with pResult untouched when pTemplate is null or has no section. Without data,
    // or with data without rows, nothing is appended and the answer is 1. With a null pResult the report is evaluated
    // all the same, and its input changed; "NULL != completedGroup.m_pCollector" is reported and the sections are
    // destroyed.
    static int evaluate(VorBomTemplate* pTemplate, VorBomTemplate* pResult);

    // The same report, handed to `sink` section by section as evaluation goes on instead of being kept. For each level
    // it takes a pointer to every row of the group now open, and the memory of a line. Returns 1; 0 without template or
    // section, and when the sink stopped it. What the sink throws passes through. The header of a sink says what it
    // gets.
    //
    // One difference: the sink gets a header when its group opens, the tree shows it when the group closes. A formula
    // further in that lends its text a unit meanwhile changes a header's column under that very text in the tree alone.
    static int evaluate(VorBomTemplate* pTemplate, VorBomSectionSink& sink);

    // The same two with options: what becomes of equal lines, and who is told of progress and findings. Of a tree that
    // was stopped nothing is appended to pResult; what an observer throws passes through, and nothing is appended
    // either. The options are read while it runs. They cost nothing that they do not ask for.
    static int evaluate(VorBomTemplate* pTemplate, VorBomTemplate* pResult, const VorBomEvaluationOptions& options);
    static int evaluate(VorBomTemplate* pTemplate, VorBomSectionSink& sink, const VorBomEvaluationOptions& options);

private:
    friend struct VorBomEvaluator2Access; // lets tests call one step at a time

    // One state per level, outermost first.
    static VorBomEngineStateArray getTemplateStack(VorBomTemplate* pTemplate);
    // 0 when an observer or `target` stopped it.
    static int evaluateObserved(VorBomTemplate& reportTemplate, VorBomEngineStateArray& stack,
                                VorBomSectionTarget& target, const VorBomEvaluationOptions& options);
    // 0 when `target` stopped it.
    static int evaluateRows(VorBomTemplate& reportTemplate, VorBomEngineStateArray& stack, VorBomSectionTarget& target);

    // A header or details section for one row: a copy of pTemplateItem without links, its values taken from the row
    // where the row has them. Formulas stay as they are. Marks the row's tuples it took as used. The caller owns it.
    // Reports "NULL != pTemplateItem" and gives null without one.
    static VorBomTemplateItem* process(VorBomTemplateItem* pTemplateItem, VorBomDataRow* pRow);

    // A footer for a group: plain tokens end with the value of the last counted row that has them, "%SumBy:" tokens
    // with their starting value plus those of all counted rows. Marks nothing. The caller owns it.
    static VorBomTemplateItem* process(VorBomTemplateItem* pTemplateItem, VorBomDataRowPointerArray rows);

    // Grouping. All return 1 but dataMatchGroup. Level 0 names the target that sections go to.
    static int evaluateData(VorBomDataRow* pRow, VorBomEngineStateArray& stack, VorBomTemplateUnits* pUnits);
    static int beginGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits);
    static int addedInGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level);
    static int endGroup(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits);
    // Shows what was evaluated for the group; a line, whose level is the deepest, goes to the target at once.
    static int groupIsCompleted(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits);
    // 1 when the row belongs to the group that is open in `state`; also when none is, or the level groups by nothing.
    static int dataMatchGroup(VorBomDataRow* pRow, VorBomEngineState& state);

    // A details line that reads as the section before it in the same group is merged into that: dropped, and its row
    // taken out of all sums.
    static void handOverLine(VorBomEngineStateArray& stack);
    static int readsAsTheSectionBefore(VorBomEngineState& line);
    static void mergeLine(VorBomEngineState& line, VorBomSectionTarget& target);
    // The closed groups of `outermost` and the levels within, innermost first: a footer stands before those around it.
    static void handOverGroups(VorBomEngineStateArray& stack, int outermost);

    // Sorting. The comparisons are callbacks over pointers to elements: VorBomDataRow* and
    // VorHeaderFooterSortingStruct. All return 1 but the comparisons, which answer -1, 0 or 1, and isEqualAsEvaluated.
    static int sortInpuDataBySortingTokens(VorBomData* pData, VorBomEngineStateArray& stack,
                                           const VorBomTemplate& reportTemplate);
    static int compareDataRow(const void* pFirst, const void* pSecond);
    static int sortSubGroupsOnLevels(VorBomTemplateItem* pItem, VorBomEngineStateArray& stack, int level);
    static int sortItemList(VorBomTemplateItem*& pFirst, const VorStringArray& sortingTokens);
    static int compareEvaluatedItems(const void* pFirst, const void* pSecond);
    // 1 when both hold as many tuples and equal values in them, whatever their tokens.
    static int isEqualAsEvaluated(const VorBomTemplateItem* pFirst, const VorBomTemplateItem* pSecond);

    // Computes the formulas of a section that was made from the row, or from none when that is null, and appends their
    // results to the row. The formula computed last leaves its variables and errors in the thread's lists.
    static void evaluateExpressions(VorBomTemplateItem* pItem, VorBomDataRow* pRow);
    // Replaces numbers by the texts that a report shows for them.
    static void applyUnitsForData(VorBomTemplateUnits* pUnits, VorBomDataTupleArray& tuples);
    // Appends the row's data, not null, as plain entries: doubles to one decimal. Reports "false" for an empty value.
    static void fillGenericString(VorGenericString& target, const VorBomDataRow* pRow);

    // What the comparisons sort by: entry i of an order array, 1 ascending or 0 descending, is for token i, as is entry i
    // of the sort types, an eSortType or VorBomSortKeys::kByCatalogue. Refilled before each sort, one set per thread.
    static thread_local VorStringArray m_arrTokensToSortDataRow;
    static thread_local VorArray<int> m_arrSortOrderForDataRow;
    static thread_local VorArray<int> m_arrSortTypeForDataRow;
    static thread_local VorStringArray m_arrTokensToSortEvaluatedItems;
    static thread_local VorArray<int> m_arrSortOrderForEvaluatedItems;
};
