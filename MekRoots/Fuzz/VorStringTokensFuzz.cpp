// Split and joined again, a text is itself without its delimiters; no piece is empty or holds one. The first line of the
// input holds the delimiters, the rest is the text. Seeds in Seeds/VorStringTokens.
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring input(data, data + size);
    const std::size_t lineEnd = std::min(input.find(L'\n'), input.size());
    const VorString delimiters(input.data(), static_cast<int>(lineEnd));
    const VorString text(input.data() + lineEnd, static_cast<int>(input.size() - lineEnd));

    VorStringArray pieces;
    VorString::getTokens(text, pieces, delimiters);

    VorString joined;
    VorString remaining(text);
    for (int i = 0; i < delimiters.length(); ++i)
        remaining.removeAll(delimiters.getStringW()[i]);
    for (const VorString& piece : pieces)
    {
        if (piece.isEmpty())
            std::abort();
        joined += piece;
    }
    if (joined != remaining)
        std::abort();
    return 0;
}
