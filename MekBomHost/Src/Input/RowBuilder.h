// Makes data rows of values that have been read and checked.
//
//   RowBuilder rows(data, 4);          // of a list of four columns
//   rows.build(batch);                 // appended to the data
//
// Equal texts of a column share their characters (TextPool).
#pragma once

#include "RowBatch.h"
#include "TextPool.h"

#include "VorBomData.h"
#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mekbom
{
class RowBuilder
{
public:
    // `data` is not owned and outlives this; it owns the rows.
    RowBuilder(VorBomData& data, std::size_t numColumns);
    RowBuilder(const RowBuilder&) = delete;
    RowBuilder& operator=(const RowBuilder&) = delete;

    // Rows get room for that many more tuples.
    void reserveTuples(int numTuples) { m_numReserved = numTuples; }

    // Appends the rows of the batch to the data.
    void build(const RowBatch& batch);

private:
    // A text that is still to be found in its pool.
    struct LookUp
    {
        const VorString** pFound;
        TextPool* pTexts;
        std::uint64_t text;
    };

    void beginLookUps(const RowBatch& batch, const RowBatch::Datum* pBegin, const RowBatch::Datum* pEnd);
    void beginLookUp(const RowBatch& batch, const RowBatch::Datum& datum, const VorString*& pFound);
    void findTexts(const RowBatch& batch);
    void buildRow(const RowBatch& batch, std::size_t row, const VorString* const* pTexts);

    VorBomData& m_data;
    std::vector<TextPool> m_texts; // one for each column
    int m_numReserved = 0;

    // Of the rows that are being built.
    std::vector<LookUp> m_lookUps;
    std::vector<const VorString*> m_found; // for each datum its text, null for other data
    std::vector<VorString> m_unshared;     // texts that are in no pool; has room for all that there may be
};
}
