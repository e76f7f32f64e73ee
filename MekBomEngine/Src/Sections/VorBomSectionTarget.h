// Where the sections of a report go while it is evaluated: into a tree (VorBomSectionTree), or to a host's sink
// (VorBomSinkTarget). The engine tells the steps of a report in one and the same order to either.
//
//   rows S235, S235, S355 grouped by material; levels 0 report, 1 group, 2 details
//     open 0, open 1, open 2, take 2, open 2, take 2
//     take 1, open 1, open 2, take 2
//     take 1, take 0
//
// open() comes when a level's header has been made for the row that opens its group; its numbers are numbers still. It
// may show and hand over the header, which is null then. take() comes when a group is complete, after those within it:
// the footer is shown, the header too unless open() handed it over, and both go.
#pragma once

#include "VorBomEngineState.h"
#include "VorBomEvaluationOptions.h"

class VorBomTemplateUnits;

class VorBomSectionTarget
{
public:
    virtual ~VorBomSectionTarget() = default;

    virtual void open(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits& units) = 0;

    // Leaves neither header nor footer in the level's state. Sets m_pSectionBefore of the deepest level to the section
    // that hangs last in its group now; it lives until the level's next section was taken or the group around it opens
    // anew.
    virtual void take(VorBomEngineStateArray& stack, int level) = 0;

    // What becomes of lines that read as the one before.
    VorBomEvaluationOptions::eEqualLines equalLines() const { return m_equalLines; }

    // The line of `row` is merged into the section before; it is not taken.
    virtual void takeMergedRow(const VorBomDataRow& row) = 0;

    // Called with 0 before the first row and after each; 0 stops the evaluation.
    virtual int takeProgress(int numRowsDone) = 0;

    // All sections were taken.
    virtual void takeEnd() = 0;

    // Destroys what the level has evaluated and nobody has taken, with all that hangs in it.
    static void destroySections(VorBomEngineState& state);

protected:
    explicit VorBomSectionTarget(VorBomEvaluationOptions::eEqualLines equalLines) : m_equalLines(equalLines) {}
    VorBomSectionTarget(const VorBomSectionTarget&) = default;
    VorBomSectionTarget& operator=(const VorBomSectionTarget&) = default;

private:
    VorBomEvaluationOptions::eEqualLines m_equalLines;
};
