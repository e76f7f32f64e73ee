#include "Roff.h"

#include "Utf8.h"

#include <cstdio>

namespace mekbom::Roff
{
namespace
{
const int kFirstBeyondAscii = 0x80;

// What formatters take for something else, or show as another character: quotes as curled ones, a minus as a hyphen.
struct Escape
{
    char character;
    const char* name;
};

const Escape kEscapes[] = {
    { '\\', "\\e" },  { '-', "\\-" },   { '\'', "\\(aq" }, { '"', "\\(dq" },
    { '`', "\\(ga" }, { '^', "\\(ha" }, { '~', "\\(ti" },
};

void append(std::string& line, int codePoint)
{
    if (codePoint >= kFirstBeyondAscii)
    {
        char name[16];
        line.append(name, static_cast<std::size_t>(
                              std::snprintf(name, sizeof name, "\\[u%04X]", static_cast<unsigned>(codePoint))));
        return;
    }
    for (const Escape& escape : kEscapes)
        if (escape.character == codePoint)
        {
            line += escape.name;
            return;
        }
    line += static_cast<char>(codePoint);
}
}

std::string escaped(std::string_view text)
{
    std::string line = !text.empty() && text.front() == '.' ? "\\&" : "";
    while (!text.empty())
        append(line, Utf8::takeCodePoint(text));
    return line;
}

std::string capitals(std::string_view text)
{
    std::string capitals(text);
    for (char& character : capitals)
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    return capitals;
}
}
