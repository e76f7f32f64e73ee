// Blanks are owed rather than written: those that fill up a column wait for a text that stands behind them, so that a
// row whose last texts are empty ends with its last text. Widths are those on a terminal, where "m²" takes two places
// and three bytes.
#include "AlignedTable.h"

#include "Utf8.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
const int kGap = 2;
}

std::string AlignedTable::text() const
{
    const std::vector<int> columnWidths = widths();
    std::string text;
    for (const Row& row : m_rows)
    {
        int numBlanks = 0;
        for (std::size_t column = 0; column < row.size(); ++column)
        {
            const int numFree = columnWidths[column] - Utf8::displayWidth(row[column]);
            numBlanks += m_isRight[column] ? numFree : 0;
            if (!row[column].empty())
            {
                text.append(static_cast<std::size_t>(numBlanks), ' ').append(row[column]);
                numBlanks = 0;
            }
            numBlanks += (m_isRight[column] ? 0 : numFree) + kGap;
        }
        text += '\n';
    }
    return text;
}

// The headings are a row as any other here: a column is as wide as its heading at least.
std::vector<int> AlignedTable::widths() const
{
    std::vector<int> widths(m_rows.front().size());
    for (const Row& row : m_rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], Utf8::displayWidth(row[column]));
    return widths;
}
}
