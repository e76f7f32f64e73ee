#include "TableText.h"

#include "AsciiText.h"
#include "TextDirection.h"

namespace mekbom
{
std::vector<std::string> TableText::wrapped(std::string_view text, int width) const
{
    return m_isAscii ? WordWrap::wrap(AsciiText::of(text), width) : WordWrap::wrap(text, width);
}

std::vector<std::string> TableText::fitted(std::string_view text, int width) const
{
    if (!m_cuts)
        return wrapped(text, width);
    const std::vector<std::string> lines = wrapped(text, 0);
    return { WordWrap::cut(lines, width, m_isAscii ? "..." : "…") };
}

// A text from right to left gets marks around it.
int TableText::widthBeyondAscii(std::string_view text) const
{
    return m_isAscii || TextDirection::hasRightToLeft(text) ? kNotAsIs : WordWrap::widthOfLine(text);
}
}
