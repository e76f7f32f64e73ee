// Gives equal cells of a column one and the same text, so that a million rows of "S355J2" hold its characters once.
//
// Remembers a fixed number of texts, the newest at each place: columns of few different texts are shared in full. In a
// column where it finds next to nothing, such as one of numbers of parts, it stops looking for some thousand texts, since
// each look touches a text that has left the processor's caches. One for each column, so that a column of marks does not
// drive out one of materials.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class TextCache
{
public:
    // The wide text of `bytes`, valid UTF-8 and not empty; good until the next call.
    const VorString& textOf(std::string_view bytes);

private:
    struct Entry
    {
        std::string bytes;
        VorString text;
    };

    bool isWorthALook();

    std::vector<Entry> m_entries; // none before the first use
    VorString m_unshared;         // the text given out last, where none was looked for
    int m_numLooks = 0;           // in the round of looks in progress; negative while it does not look
    int m_numFound = 0;           // in that round
};
}
