// Where something stands in a text, and how places are counted.
//
//   PlaceCounter places("a\n\u00E4bc");        // 'a', a line end, and a letter of two bytes before 'b'
//   places.placeOf(4)                    ->  line 2, column 2: the fourth byte is 'b'
//
// Lines and columns count from 1, columns in characters, so that an editor goes to the place when it is told both.
#pragma once

#include <cstddef>
#include <string_view>

namespace mekbom
{
struct TextPlace
{
    int line = 0;   // 0 where it is not known
    int column = 0; // 0 where the line as a whole is meant, or its column is not known
};

// From the first character of something to the one behind its last.
struct TextSpan
{
    TextPlace begin;
    TextPlace end;
};

// Finds the places of bytes of one text. Asked for in the order of the text, all places together cost one pass over it.
class PlaceCounter
{
public:
    // The bytes are not owned and must outlive the counter. They begin in line `firstLine` of their file.
    explicit PlaceCounter(std::string_view text, int firstLine = 1)
        : m_text(text), m_firstLine(firstLine), m_place{ firstLine, 1 }
    {
    }

    // The place of the byte at `offset`, and of the text's end for any offset beyond it. A line ends with LF.
    TextPlace placeOf(std::size_t offset);

private:
    std::string_view m_text;
    int m_firstLine;
    std::size_t m_offset = 0; // the offset asked for last; m_place is its place
    TextPlace m_place;
};
}
