// Each candidate is read as a template, since its data stand all over its sections. A parts list with the columns %Name
// and %Weight has two of the three data of a template that shows %Name, %Length and %Weight, and one of the two of
// another that shows %BoltName and %Weight: the first suits it better.
#include "TemplateChoice.h"

#include <algorithm>
#include <utility>

namespace mekbom::TemplateChoice
{
std::vector<TemplateCover> coversOf(const std::vector<NamedText>& candidates,
                                    const std::function<bool(const std::string&)>& hasColumn)
{
    std::vector<TemplateCover> covers;
    covers.reserve(candidates.size());
    for (const NamedText& candidate : candidates)
        covers.push_back(TemplateCover::of(candidate, hasColumn));
    std::stable_sort(covers.begin(), covers.end(),
                     [](const TemplateCover& one, const TemplateCover& other) { return one.suitsBetterThan(other); });
    return covers;
}

// Of candidates that suit the columns equally well the first one stays, so their order is part of the rule.
const NamedText* choose(const std::vector<NamedText>& candidates,
                        const std::function<bool(const std::string&)>& hasColumn)
{
    const NamedText* pBest = nullptr;
    TemplateCover best;
    for (const NamedText& candidate : candidates)
    {
        TemplateCover cover = TemplateCover::of(candidate, hasColumn);
        if (!cover.suitsBetterThan(best))
            continue;
        pBest = &candidate;
        best = std::move(cover);
    }
    return best.suits() ? pBest : nullptr;
}
}
