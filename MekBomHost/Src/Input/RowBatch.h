// The values of some rows of a parts list, read and checked, until RowBuilder makes data rows of them.
//
//   RowBatch batch(4);                           // of a list of four columns
//   batch.beginRow();
//   batch.setHandle("1A7");
//   batch.add(lengthToken, 2286.0);
//   batch.addText(nameToken, 3, "HEA200");       // the text of a cell of column 3
//   batch.numRows()                         ->   1
//
// Copies no VorString: texts belong to the thread that evaluates them, and a batch may be filled on another one. A text
// of up to eight bytes is the number that ByteWord makes of it; a longer one stands among the bytes of the batch, and
// its number tells where.
#pragma once

#include "ByteWord.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class RowBatch
{
public:
    enum eKind
    {
        kWhole,
        kNumber,
        kText,
        kHandle // the row's handle, as a datum
    };

    // A value that is to become a tuple of its row.
    struct Datum
    {
        const VorString* pToken; // not owned
        eKind kind;
        std::uint32_t column; // of a text
        union
        {
            int whole;
            double number;
            std::uint64_t text;
        };
    };

    // Arbitrary: few enough to stay in the caches between two threads, many against what handing over takes.
    static constexpr std::size_t kMostRows = 512;

    explicit RowBatch(std::size_t numColumns);

    // Whether enough rows stand here: kMostRows, or fewer where rows are wide or texts long.
    bool isFull() const { return m_rows.size() >= m_mostRows || m_bytes.size() >= kMostBytes; }

    // Forgets all rows; the memory is kept for the next ones.
    void clear();

    void beginRow() { m_rows.push_back({ m_data.size(), 0 }); }

    // These complete the row begun last. Tokens are not owned and stay as they are until rows were made; texts are
    // copied, valid UTF-8 and not empty.
    void setHandle(std::string_view text) { m_rows.back().handle = keep(text); }
    void add(const VorString& token, int value) { addDatum(token, kWhole).whole = value; }
    void add(const VorString& token, double value) { addDatum(token, kNumber).number = value; }
    void addHandle(const VorString& token) { addDatum(token, kHandle); } // the one that was set
    void addText(const VorString& token, std::size_t column, std::string_view text);

    std::size_t numRows() const { return m_rows.size(); }

    // The data of row `row`, counted from 0; those of row numRows() would begin behind the last.
    const Datum* dataOf(std::size_t row) const
    {
        return m_data.data() + (row < m_rows.size() ? m_rows[row].firstDatum : m_data.size());
    }

    // The number of the row's handle, 0 without one.
    std::uint64_t handleOf(std::size_t row) const { return m_rows[row].handle; }

    // What the number of a text means: the lowest byte is that of its first character, and 0 where it is a long one's.
    static bool isLong(std::uint64_t text) { return (text & 0xFF) == 0 && text != 0; }
    std::string_view longText(std::uint64_t text) const;

private:
    // Both arbitrary: rows of some twenty columns, and of texts of some hundred bytes, are not fewer.
    static constexpr std::size_t kMostCells = 1 << 14;
    static constexpr std::size_t kMostBytes = 1 << 18;

    struct Row
    {
        std::size_t firstDatum; // in m_data
        std::uint64_t handle;
    };

    Datum& addDatum(const VorString& token, eKind kind)
    {
        m_data.push_back({ &token, kind, 0, {} });
        return m_data.back();
    }
    std::uint64_t keep(std::string_view text);

    std::size_t m_mostRows;
    std::vector<Row> m_rows;
    std::vector<Datum> m_data;              // of all rows, one after the other
    std::string m_bytes;                    // of long texts, one after the other
    std::vector<std::size_t> m_bounds{ 0 }; // where each begins and the one before it ends
};
}
