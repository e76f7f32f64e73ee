// Told by a job how far it is, for whoever shows that to a user who waits.
//
//   class Dots : public RowProgress
//   {
//   public:
//       void take(eStep, std::size_t) override { std::fputc('.', stderr); }
//   };
//
// A job calls it once for many rows, and on the thread that evaluates.
#pragma once

#include <cstddef>

namespace mekbom
{
class RowProgress
{
public:
    enum eStep
    {
        kReading,   // rows of parts lists
        kEvaluating // rows that have been placed in the list
    };

    RowProgress() = default;
    RowProgress(const RowProgress&) = delete;
    RowProgress& operator=(const RowProgress&) = delete;
    virtual ~RowProgress() = default;

    // So many rows of the step are done. A step begins with 0 rows.
    virtual void take(eStep step, std::size_t numRowsDone) = 0;
};
}
