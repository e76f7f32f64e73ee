// The rows of a report as they were before it was evaluated.
//
//   const VorBomInputRows before(data);   // P2 2.5, P1 4.0
//   evaluate(data);                       // P1 4.0 and a formula's 8.0, P2 2.5
//   before.restore(data)   ->  1          the rows are P2 2.5, P1 4.0 again
//
// Owns no row. Takes 16 bytes for each, and 16 for every tuple with a used flag other than 0.
#pragma once

#include "VorBomData.h"

#include <cstddef>
#include <vector>

class VorBomInputRows
{
public:
    explicit VorBomInputRows(VorBomData& data);

    // 0 with nothing changed when the data's rows are no longer those, whatever their order.
    int restore(VorBomData& data) const;

private:
    struct Row
    {
        VorBomDataRow* pRow;
        int numTuples;
        int useForSums;
    };
    struct UsedTuple
    {
        std::size_t row;
        int tuple;
        int used;
    };

    bool hasThose(const VorBomData& data) const;
    void relink(VorBomData& data) const;
    static void restoreTuples(const Row& row);

    std::vector<Row> m_rows;
    std::vector<UsedTuple> m_usedTuples;
};
