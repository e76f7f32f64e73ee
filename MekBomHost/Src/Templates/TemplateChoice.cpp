// Each candidate is read as a template, since its data stand all over its sections. A parts list with the columns %Name
// and %Weight has two of the three data of a template that shows %Name, %Length and %Weight, and one of the two of
// another that shows %BoltName and %Weight: the first suits it better.
#include "TemplateChoice.h"

#include "DataTokens.h"
#include "PossibleRows.h"
#include "TemplateReader.h"

#include <algorithm>
#include <cstddef>

namespace mekbom::TemplateChoice
{
namespace
{
// How much of its data a template finds: 3 of 5. Compared as fractions, without rounding: 3 of 5 is more than 1 of 2,
// because 3 * 2 > 1 * 5. A template without data counts as 0 of 1.
struct Cover
{
    std::size_t numCovered = 0;
    std::size_t numTokens = 1;

    bool isGreaterThan(const Cover& other) const { return numCovered * other.numTokens > other.numCovered * numTokens; }
    bool isHalf() const { return 2 * numCovered >= numTokens; }
};

// A candidate whose filter nothing could pass covers nothing, however many of its data there are: a list of bolts is
// none of parts that happen to have lengths and weights.
Cover coverOf(const NamedText& file, const std::function<bool(const std::string&)>& hasColumn)
{
    const ReportTemplate reportTemplate = TemplateReader::read(file.name, file.text);
    if (!PossibleRows::canPass(reportTemplate.queryFilter, hasColumn))
        return {};
    const std::vector<std::string> tokens = DataTokens::of(*reportTemplate.pTemplate);
    Cover cover;
    cover.numCovered = static_cast<std::size_t>(std::count_if(tokens.begin(), tokens.end(), hasColumn));
    cover.numTokens = std::max<std::size_t>(tokens.size(), 1);
    return cover;
}
}

// Of candidates that suit the columns equally well the first one stays, so their order is part of the rule.
const NamedText* choose(const std::vector<NamedText>& candidates,
                        const std::function<bool(const std::string&)>& hasColumn)
{
    const NamedText* pBest = nullptr;
    Cover best;
    for (const NamedText& candidate : candidates)
    {
        const Cover cover = coverOf(candidate, hasColumn);
        if (!cover.isGreaterThan(best))
            continue;
        pBest = &candidate;
        best = cover;
    }
    return best.isHalf() ? pBest : nullptr;
}
}
