// Is told how far an evaluation has come, and may end it.
//
//   class Bar : public VorBomProgress
//   {
//   public:
//       int takeProgress(int numRowsDone) override { return drawBar(numRowsDone) ? 0 : 1; }   // 0 when cancelled
//   };
//
// Handed to an evaluation with VorBomEvaluationOptions, for a report that is kept as a tree as well as for one that
// goes to a sink.
#pragma once

class VorBomProgress
{
public:
    virtual ~VorBomProgress() = default;

    // Called with 0 before the rows are sorted, then after each row has been placed, on the thread that evaluates.
    // Returns 1 to go on; 0 to stop: evaluate() answers 0 then. It may read everything and change nothing, and what it
    // throws ends the evaluation and passes through.
    virtual int takeProgress(int numRowsDone) = 0;
};
