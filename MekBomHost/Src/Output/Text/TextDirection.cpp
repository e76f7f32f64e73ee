#include "TextDirection.h"

#include "Utf8.h"

#include <algorithm>
#include <iterator>

namespace mekbom::TextDirection
{
namespace
{
const int kBegin = 0x2068; // what follows has a direction of its own, that of its letters
const int kEnd = 0x2069;

// The blocks that Unicode keeps for scripts from right to left, whether all of their characters are assigned or not, and
// the mark that stands for a letter of one.
struct Block
{
    int first;
    int last;
};
const Block kBlocks[] = { { 0x0590, 0x08FF }, { 0x200F, 0x200F },   { 0xFB1D, 0xFDFF },
                          { 0xFE70, 0xFEFE }, { 0x10800, 0x10FFF }, { 0x1E800, 0x1EFFF } };

bool isRightToLeft(int codePoint)
{
    return std::any_of(std::begin(kBlocks), std::end(kBlocks),
                       [codePoint](const Block& block) { return codePoint >= block.first && codePoint <= block.last; });
}
}

bool hasRightToLeft(std::string_view text)
{
    while (!text.empty())
        if (isRightToLeft(Utf8::takeCodePoint(text)))
            return true;
    return false;
}

void append(std::string& line, std::string_view text)
{
    if (!hasRightToLeft(text))
    {
        line.append(text);
        return;
    }
    Utf8::appendCodePoint(line, kBegin);
    line.append(text);
    Utf8::appendCodePoint(line, kEnd);
}
}
