// The text may be anything, a whole file in one cell among it, so it is read character by character and no further than
// it is shown: of "a", ESC, "[2J", which would clear the screen, remains "a?[2J".
#include "InQuotes.h"

#include "Utf8.h"

namespace mekbom
{
namespace
{
// C0 and C1: what a terminal may take as a command.
bool isControl(int codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}
}

std::string harmless(std::string_view text, int most)
{
    std::string result;
    for (int n = 0; n < most && !text.empty(); ++n)
    {
        const int codePoint = Utf8::takeCodePoint(text);
        Utf8::appendCodePoint(result, isControl(codePoint) ? '?' : codePoint);
    }
    return result + (text.empty() ? "" : "...");
}

std::string inQuotes(std::string_view text, int most)
{
    return "\"" + harmless(text, most) + "\"";
}
}
