// Characters are added to a line one by one; when one goes too far, the line is cut at its last blank, which goes, or,
// without a blank, before that character:
//
//   "Base plate, corner", 10 wide
//     "Base plate,"    11 wide: cut at the blank     ->   "Base", and "plate," goes on
//     "plate, corn"    11 wide: cut at the blank     ->   "plate,", and "corn" goes on
//     "corner"         the text ends                 ->   "corner"
#include "WordWrap.h"

#include "Utf8.h"

#include <algorithm>
#include <cstddef>

namespace mekbom::WordWrap
{
namespace
{
const int kReplacement = 0xFFFD;

// What has the characters behind it shown in another order, to the end of the line: "12.5" becomes "5.21".
bool turnsOthersRound(int codePoint)
{
    return (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
}

bool isControl(int codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) || turnsOthersRound(codePoint);
}

// Fills lines up to the width; a line that grows too wide is cut at its last blank, or before the character that went
// too far.
class LineFiller
{
public:
    explicit LineFiller(int width) : m_width(width) {}

    void add(int codePoint)
    {
        if (codePoint == ' ')
        {
            m_breakLength = m_line.size();
            m_breakWidth = m_lineWidth;
        }
        Utf8::appendCodePoint(m_line, codePoint);
        m_lineWidth += Utf8::displayWidth(codePoint);
        if (m_width > 0 && m_lineWidth > m_width)
            cut(codePoint);
    }

    void endLine()
    {
        m_lines.push_back(m_line);
        m_line.clear();
        m_lineWidth = 0;
        m_breakLength = 0;
    }

    std::vector<std::string> takeLines()
    {
        endLine();
        return std::move(m_lines);
    }

private:
    // `codePoint` is the one that went too far and stands at the line's end. What goes on is all that stands behind the
    // last blank, or that character alone: it holds no blank, so endLine() may forget where the last one was.
    void cut(int codePoint)
    {
        std::string last;
        Utf8::appendCodePoint(last, codePoint);
        const bool isAtBlank = m_breakLength > 0;
        const std::size_t keep = isAtBlank ? m_breakLength : m_line.size() - last.size();
        if (keep == 0)
            return; // wider than the column all by itself
        const int restWidth = isAtBlank ? m_lineWidth - m_breakWidth - 1 : Utf8::displayWidth(codePoint);
        const std::string rest = m_line.substr(isAtBlank ? keep + 1 : keep);
        m_line.resize(keep);
        endLine();
        m_line = rest;
        m_lineWidth = restWidth;
    }

    int m_width;
    std::vector<std::string> m_lines;
    std::string m_line;
    int m_lineWidth = 0;
    std::size_t m_breakLength = 0; // of the line up to its last blank; 0 without one
    int m_breakWidth = 0;
};

// How many bytes of the text hold the characters that end within the width.
std::size_t lengthWithin(std::string_view text, int width)
{
    std::string_view rest = text;
    std::size_t length = 0;
    while (!rest.empty() && (width -= Utf8::displayWidth(Utf8::takeCodePoint(rest))) >= 0)
        length = text.size() - rest.size();
    return length;
}
}

// The CR of a CRLF is dropped; the LF then ends the line.
std::vector<std::string> wrap(std::string_view text, int width)
{
    LineFiller filler(width);
    while (!text.empty())
    {
        const int codePoint = Utf8::takeCodePoint(text);
        const bool isPair = codePoint == '\r' && !text.empty() && text.front() == '\n';
        if (isPair)
            continue;
        if (codePoint == '\n' || codePoint == '\r')
            filler.endLine();
        else
            filler.add(codePoint == '\t' ? ' ' : isControl(codePoint) ? kReplacement : codePoint);
    }
    return filler.takeLines();
}

// All that wrap() replaces, and all that ends a line, is a control character.
int widthOfLine(std::string_view text)
{
    int width = 0;
    while (!text.empty())
    {
        const int codePoint = Utf8::takeCodePoint(text);
        if (isControl(codePoint))
            return kNotOneLine;
        width += Utf8::displayWidth(codePoint);
    }
    return width;
}

// What is to stay is found before the ellipsis is added: all characters that end within the width it leaves.
std::string cut(const std::vector<std::string>& lines, int width, std::string_view ellipsis)
{
    std::string line = lines.front();
    const bool isTooWide = width > 0 && Utf8::displayWidth(line) > width;
    if (lines.size() == 1 && !isTooWide)
        return line;
    if (width > 0)
    {
        const int ellipsisWidth = std::min(Utf8::displayWidth(ellipsis), width);
        line.resize(lengthWithin(line, width - ellipsisWidth));
        ellipsis = ellipsis.substr(0, lengthWithin(ellipsis, ellipsisWidth));
    }
    return line.append(ellipsis);
}
}
