// Makes data rows of values that have been read and checked: takes them value by value, and makes some rows at a time.
//
//   rows.beginRow();
//   rows.setHandle("1A7");
//   rows.add(lengthToken, 2286.0);
//   rows.addText(nameToken, 3, "HEA200");      // the text of a cell of column 3
//   if (rows.isFull())
//       rows.build();                          // appended to the data
//
// Equal texts of a column share their characters (TextPool). Rows that nobody has built when the builder goes are lost.
#pragma once

#include "TextPool.h"

#include "VorBomData.h"
#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace mekbom
{
class RowBuilder
{
public:
    // `data` is not owned and outlives this; it owns the rows. A row has at most one datum for each column and two
    // more: its number and that of its pieces.
    RowBuilder(VorBomData& data, std::size_t numColumns);
    RowBuilder(const RowBuilder&) = delete;
    RowBuilder& operator=(const RowBuilder&) = delete;

    // Rows get room for that many more tuples.
    void reserveTuples(int numTuples) { m_numReserved = numTuples; }

    bool isFull() const { return m_numRows == kMostRows; }

    // The builder must not be full: once it is, build() comes first.
    void beginRow();

    // These complete the row begun last. Tokens are not owned and stay as they are until the row is built; texts are
    // copied, valid UTF-8 and not empty.
    void setHandle(std::string_view text);
    void add(const VorString& token, int value);
    void add(const VorString& token, double value);
    void addHandle(const VorString& token); // the one that was set, as a datum
    void addText(const VorString& token, std::size_t column, std::string_view text);

    // Appends the rows begun so far to the data, which may be none, and begins anew.
    void build();

private:
    static constexpr std::size_t kMostRows = 64; // measured: no faster beyond

    // A value of the kind that `type` says, still to become a tuple of its row.
    struct Datum
    {
        const VorString* pToken;
        VorBomDataValue::eBomDataValueType type;
        union
        {
            int whole;
            double number;
            const VorString* pText;
        };
    };

    struct Row
    {
        std::size_t firstDatum; // in m_values
        VorString handle;
        std::uint64_t shortHandle; // the same where it has up to eight bytes, until the row is built; else 0
    };

    // A short text that is still to be found in its pool.
    struct LookUp
    {
        Datum* pDatum;
        TextPool* pTexts;
        std::uint64_t key;
    };

    Datum& addDatum(const VorString& token, VorBomDataValue::eBomDataValueType type);
    void begin();
    void findTexts();
    void buildRow(Row& row, std::size_t endDatum);

    VorBomData& m_data;
    std::vector<TextPool> m_texts; // one for each column
    std::vector<Row> m_rows;       // the first m_numRows of them
    std::size_t m_numRows = 0;
    std::vector<Datum> m_values; // of all rows, one after the other: the first m_numValues of them
    std::size_t m_numValues = 0;
    std::vector<LookUp> m_lookUps;
    std::vector<VorString> m_unshared; // texts that are in no cache; has room for all that there may be
    int m_numReserved = 0;
};
}
