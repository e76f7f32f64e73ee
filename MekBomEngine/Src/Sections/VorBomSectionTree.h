// Makes an evaluated report a tree: a section hangs under the header of the level around it, those of level 0 under the
// collector of their state, which is not owned.
//
//   result
//     header of level 0
//       header of level 1
//         details, details
//       footer of level 1
//     footer of level 0
//
// Headers stay numbers until their groups close. On purpose: a formula further in may lend their tokens a unit
// meanwhile, and reports show that. Pinned by VorBomSectionSinkTest.TreeShowsHeadersWhenTheirGroupsClose.
#pragma once

#include "VorBomSectionTarget.h"

class VorBomSectionTree : public VorBomSectionTarget
{
public:
    explicit VorBomSectionTree(VorBomEvaluationOptions::eEqualLines equalLines) : VorBomSectionTarget(equalLines) {}

    void open(VorBomEngineStateArray&, int, VorBomTemplateUnits&) override {}

    // Reports "NULL != completedGroup.m_pCollector" for sections of level 0 without a collector, and destroys them with
    // all that hangs in them.
    void take(VorBomEngineStateArray& stack, int level) override;

    void takeMergedRow(const VorBomDataRow&) override {}
    int takeProgress(int) override { return 1; }
    void takeEnd() override {}
};
