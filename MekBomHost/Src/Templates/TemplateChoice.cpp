#include "TemplateChoice.h"

#include "DataTokens.h"
#include "Fault.h"
#include "FileSource.h"
#include "ShippedFiles.h"
#include "TemplateReader.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace mekbom::TemplateChoice
{
namespace
{
struct Candidate
{
    std::string path;
    std::size_t numCovered = 0;
    std::size_t numTokens = 1;

    bool suitsBetterThan(const Candidate& other) const
    {
        return numCovered * other.numTokens > other.numCovered * numTokens;
    }
};

Candidate assess(const std::string& path, const std::function<bool(const std::string&)>& hasColumn)
{
    FileSource file(path);
    const ReportTemplate reportTemplate = TemplateReader::read(path, file.readAll());
    const std::vector<std::string> tokens = DataTokens::of(*reportTemplate.pTemplate);
    Candidate candidate;
    candidate.path = path;
    candidate.numCovered = static_cast<std::size_t>(std::count_if(tokens.begin(), tokens.end(), hasColumn));
    candidate.numTokens = std::max<std::size_t>(tokens.size(), 1);
    return candidate;
}
}

std::string choose(const std::string& dataName, const std::function<bool(const std::string&)>& hasColumn)
{
    Candidate best;
    for (const std::string& file : ShippedFiles::templates())
    {
        const Candidate candidate = assess(ShippedFiles::find(file), hasColumn);
        if (candidate.suitsBetterThan(best))
            best = candidate;
    }
    if (2 * best.numCovered < best.numTokens)
        throw Fault(kInvalidInput, dataName + ": found columns that suit no shipped template, expected columns such as "
                                              "%Name, %Material, %Quantity, %Length and %Weight, or option --template");
    return best.path;
}
}
