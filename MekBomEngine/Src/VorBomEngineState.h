// One level of a report while it is evaluated: which section opens and closes its groups, and the group now open.
//
//   level 0   report header, report footer     rows of the whole report
//   level 1   group header, group footer       rows of the group now open
//   level 2   details                          the row just being placed
//
// Owns none of the sections and rows it points to. Copies are field by field and share the plan.
//
// The levels of a template form an array, outermost first: the stack that the steps of an evaluation are handed. One
// row passes through all of them in that order. A group is taken after those within it, which stand later in the array.
//
// After rows A and A of a report grouped by name that is kept as a tree, the levels above hold:
//   level 0   the report header; rows A A; a group open
//   level 1   the header of group A; rows A A; a group open
//   level 2   no section, no row: the lines of both rows were taken, or the second was merged into the first
//
// Invariants between two rows:
//   1. m_dataRows is empty exactly where no group is open; on the deepest level it always is.
//   2. m_pEvaluatedHeader and m_pEvaluatedFooter are null on the deepest level: its line was taken.
//   3. No level has an evaluated footer: it is made when a group closes and taken with it.
//
// The array is made for one evaluation and is used by its thread alone. Sections that were evaluated and not yet taken
// are destroyed by the evaluation when it ends early, not by this class.
//
// Rows that do not count in sums stand among m_dataRows as well: a group is compared with the last row that came,
// counted or not, and who adds up passes them over.
#pragma once

#include "VorBomDataRow.h"
#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"

#include <memory>

class VorBomLevelPlan;
class VorBomSectionTarget;

using VorBomDataRowPointerArray = VorArray<VorBomDataRow*>;

class MEK_BOM_API VorBomEngineState
{
public:
    // A group of a large report holds thousands of rows.
    static constexpr int kRowsGrowBy = 2000;

    VorBomTemplateItem* m_pHeader = nullptr;             // of the template
    VorBomTemplateItem* m_pFooter = nullptr;             // of the template; null when the level has none
    VorBomDataRowPointerArray m_dataRows{ kRowsGrowBy }; // of the group now open, in the order of arrival
    VorBomTemplateItem* m_pEvaluatedHeader = nullptr;    // made from m_pHeader for the group; null once it was taken
    VorBomTemplateItem* m_pEvaluatedFooter = nullptr;    // made from m_pFooter when the group closed; likewise
    VorBomItemBase* m_pCollector = nullptr;              // where level 0 hangs its sections; null on all other levels
    int m_bGroupOpen = 0;                                // 1 while a group is open

    // What an evaluation keeps beside these.
    std::shared_ptr<VorBomLevelPlan> m_pPlan;             // what the two sections ask of every row, read from them once
    VorBomSectionTarget* m_pTarget = nullptr;             // takes the sections of all levels; set on level 0 alone
    const VorBomTemplateItem* m_pSectionBefore = nullptr; // of the deepest level, the last in the group around it
};

using VorBomEngineStateArray = VorArray<VorBomEngineState>;
