// Takes an evaluated report section by section, each before what is under it, a footer after: the order in which
// VorBomItemBase::list writes the tree of the same report.
//
//   class TotalsOnly : public VorBomSectionSink
//   {
//       void takeHeader(const VorBomReportSection&) override {}
//       void takeFooter(const VorBomReportSection& footer) override { print(footer.section.getData(), footer.level); }
//   };
//   TotalsOnly totals;
//   VorBomEvaluator2::evaluate(pTemplate, totals);
//
//   rows  S235 2.5 kg, S235 1.5 kg, S355 4 kg  grouped by material   ->   1 [%SumBy:%Weight:4]
//                                                                         1 [%SumBy:%Weight:4]
//                                                                         0 [%SumBy:%Weight:8]
//
// A section is complete when it is handed over, and lives until the call returns. Levels count from 0, the outermost;
// details are headers of the deepest level. Lines that are merged away are not handed over: their rows are. A sink that
// asks for kEqualLines gets each of them, takeMergedRow is never called, and no row loses its place in the totals:
//
//   rows  P1 2.5 kg, P1 2.5 kg                    ->   P1 2.5, total 2.5       the second row is merged
//   the same, to a sink that asks for kEqualLines ->   P1 2.5, P1 2.5, total 5
//
// What a sink may touch. It may read everything that it is handed, and the template, its rows and units. It must change
// none of them: the evaluation holds on to tuples of rows and columns of sections while it calls. It may evaluate other
// templates meanwhile, into trees and into sinks.
//
// A call that throws ends the evaluation: all that the evaluation made is destroyed, what was thrown goes on to whoever
// called evaluate(), and rows are left as after a stop. Nothing is called after that.
//
// Whoever wants to keep the report and read it later needs no sink of his own: VorBomReport is one.
//
// All calls come on the thread that evaluates. One sink may serve several evaluations one after the other.
#pragma once

#include "VorBomReportSection.h"

#include "MekRoots/Exp/VorString.h"

class VorBomSectionSink
{
public:
    // What a sink has to ask for: since it costs time, or since a report differs by it.
    enum eRequests : int
    {
        kTextsAlone = 0,
        kTypedValues = 1,    // VorBomReportSection::pValues
        kFailedFormulas = 2, // calls of takeFailedFormula
        kEqualLines = 4      // a line for every row: none is merged, and every total counts them all
    };

    virtual ~VorBomSectionSink() = default;

    // Bits of eRequests.
    int requests() const { return m_nRequests; }

    virtual void takeHeader(const VorBomReportSection& header) = 0;
    virtual void takeFooter(const VorBomReportSection& footer) = 0;

    // The line of `row` reads as the section handed over last, of the same level and in the same group, and is merged
    // into it. No total of the groups around it counts the row, unless the evaluation's options say that all count
    // (VorBomEvaluationOptions::kMergeAndCountEqualLines).
    virtual void takeMergedRow(const VorBomDataRow& /*row*/) {}

    // A formula of a header or a line could not be computed for `row`, which opened the one or has the other; the
    // section shows the template's value in its place and is handed over after this call.
    //   "%Formula:%Weight/%Quantity" for a row with %Quantity 0   ->   "Division by zero"
    virtual void takeFailedFormula(const VorBomDataRow& /*row*/, const VorString& /*token*/,
                                   const VorString& /*message*/)
    {
    }

    // Called with 0 before the rows are sorted, then after each row has been placed in the report. Returns 1 to go on;
    // 0 to stop: nothing is called any more, evaluate() answers 0, and all it made is destroyed. Rows stay sorted, with
    // the results of formulas and the flags that they have got so far.
    virtual int takeProgress(int /*numRowsDone*/) { return 1; }

    // The report is complete; the last call of an evaluation that is neither stopped nor thrown out of.
    virtual void takeEnd() {}

protected:
    explicit VorBomSectionSink(int requests = kTextsAlone) : m_nRequests(requests) {}
    VorBomSectionSink(const VorBomSectionSink&) = default;
    VorBomSectionSink& operator=(const VorBomSectionSink&) = default;

private:
    int m_nRequests;
};
