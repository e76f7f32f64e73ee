// The sections of an evaluated report, each before what is under it, as they come in the report.
//
//   SectionWalk walk(result);
//   for (WalkedSection section; walk.next(section);)
//       use(*section.pItem, section.level);
//
// The walk is some sections ahead of its caller. What a section shows lies, for a large report, scattered over more
// memory than the processor's caches hold, and each text is found only through its value, each value through its tuple:
// on the way to the caller a section passes steps that ask for these one after the other, so that nobody waits for them.
#pragma once

#include "VorBomTemplateItem.h"

#include <array>
#include <cstddef>
#include <vector>

namespace mekbom
{
// A section and its depth, 0 for the children of the report's root. Not owned.
struct WalkedSection
{
    const VorBomTemplateItem* pItem = nullptr; // null past the end
    int level = 0;
};

class SectionWalk
{
public:
    // `result` is the root of an evaluated report, outlives the walk and does not change meanwhile.
    explicit SectionWalk(const VorBomItemBase& result);

    // The next section; false at the end.
    bool next(WalkedSection& section);

private:
    static constexpr std::size_t kStep =
        4; // sections from one step to the next; a power of two. Measured: see the .cpp
    static constexpr std::size_t kNumAhead = 4 * kStep;

    void moveOn();
    WalkedSection visit();
    void advance();
    const WalkedSection& entered(std::size_t numSectionsAgo) const;

    std::vector<const VorBomItemBase*> m_path;    // the section to be visited next and those it stands under
    std::array<WalkedSection, kNumAhead> m_ahead; // visited and not yet handed out, and empty ones at either end
    std::size_t m_numVisited = 0;
};
}
