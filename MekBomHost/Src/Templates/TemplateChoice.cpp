#include "TemplateChoice.h"

#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "TemplateReader.h"

#include <algorithm>
#include <cstddef>

namespace mekbom::TemplateChoice
{
namespace
{
// How much of its data a template finds.
struct Cover
{
    std::size_t numCovered = 0;
    std::size_t numTokens = 1;

    bool isGreaterThan(const Cover& other) const { return numCovered * other.numTokens > other.numCovered * numTokens; }
    bool isHalf() const { return 2 * numCovered >= numTokens; }
};

Cover coverOf(const NamedText& file, const std::function<bool(const std::string&)>& hasColumn)
{
    const ReportTemplate reportTemplate = TemplateReader::read(file.name, file.text);
    const std::vector<std::string> tokens = DataTokens::of(*reportTemplate.pTemplate);
    Cover cover;
    cover.numCovered = static_cast<std::size_t>(std::count_if(tokens.begin(), tokens.end(), hasColumn));
    cover.numTokens = std::max<std::size_t>(tokens.size(), 1);
    return cover;
}

Finding noneSuits(const std::string& dataName)
{
    Finding finding = Finding::of(FindingCodes::kNoSuitableTemplate, "columns that suit no shipped template",
                                  "columns such as %Name, %Material, %Quantity, %Length and %Weight, or option "
                                  "--template");
    finding.source = dataName;
    return finding;
}
}

const NamedText& choose(const std::string& dataName, const std::vector<NamedText>& candidates,
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
    if (pBest == nullptr || !best.isHalf())
        throw Fault(kInvalidInput, noneSuits(dataName));
    return *pBest;
}
}
