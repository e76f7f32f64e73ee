#include "OddCells.h"

namespace mekbom
{
std::vector<std::string> OddCells::texts(const std::string& noun) const
{
    std::vector<std::string> texts;
    for (const Oddity& oddity : m_oddities)
    {
        std::string text = messageOf(oddity.first);
        if (oddity.number > 1)
            text += " (and " + std::to_string(oddity.number - 1) + " more " + noun + (oddity.number > 2 ? "s)" : ")");
        texts.push_back(text);
    }
    return texts;
}
}
