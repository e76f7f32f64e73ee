// Columns count in letters without a zero: behind Z comes AA, so each place is one less than its letter's number.
//
//   C    2                 AA   (0 + 1) * 26 + 0 = 26          XFD   ((23 + 1) * 26 + 5 + 1) * 26 + 3 = 16383
#include "CellName.h"

#include "InQuotes.h"
#include "XlsxLimits.h"

#include <algorithm>
#include <charconv>

namespace mekbom::CellName
{
namespace
{
const int kNumLetters = 26;

bool isWordByte(char c)
{
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
    return isLetter || (c >= '0' && c <= '9') || c == '_';
}
}

std::string of(const CellPlace& place)
{
    std::string letters;
    for (int left = place.column + 1; left > 0; left = (left - 1) / kNumLetters)
        letters.insert(letters.begin(), static_cast<char>('A' + (left - 1) % kNumLetters));
    return letters + std::to_string(place.row);
}

std::optional<CellPlace> parse(std::string_view name)
{
    int column = 0; // from 1 here
    for (; !name.empty() && name.front() >= 'A' && name.front() <= 'Z'; name.remove_prefix(1))
    {
        column = column * kNumLetters + (name.front() - 'A' + 1);
        if (column > XlsxLimits::kMostColumns)
            return std::nullopt;
    }
    int row = 0;
    const char* const pEnd = name.data() + name.size();
    const auto [pStop, error] = std::from_chars(name.data(), pEnd, row);
    if (column == 0 || error != std::errc() || pStop != pEnd || row < 1 || row > XlsxLimits::kMostRows)
        return std::nullopt;
    return CellPlace{ row, column - 1 };
}

std::string inSheet(std::string_view sheet, const std::string& name)
{
    const bool isWord = std::all_of(sheet.begin(), sheet.end(), isWordByte);
    return (isWord ? harmless(sheet) : "'" + harmless(sheet) + "'") + "!" + name;
}
}
