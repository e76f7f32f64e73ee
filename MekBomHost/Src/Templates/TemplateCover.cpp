#include "TemplateCover.h"

#include "DataTokens.h"
#include "PossibleRows.h"
#include "TemplateReader.h"

#include <algorithm>
#include <iterator>

namespace mekbom
{
namespace
{
// A template whose filter nothing could pass finds nothing, however many of its data there are; nor does one without
// data, which counts as 0 of 1.
std::size_t partOf(const TemplateCover& cover)
{
    return cover.canRowsPass ? cover.numFound() : 0;
}

std::size_t wholeOf(const TemplateCover& cover)
{
    return std::max<std::size_t>(cover.numTokens, 1);
}
}

TemplateCover TemplateCover::of(const NamedText& file, const std::function<bool(const std::string&)>& hasColumn)
{
    const ReportTemplate reportTemplate = TemplateReader::read(file.name, file.text);
    const std::vector<std::string> tokens = DataTokens::of(*reportTemplate.pTemplate);
    TemplateCover cover;
    cover.name = file.name;
    cover.title = reportTemplate.title;
    cover.filter = reportTemplate.queryFilter.text();
    cover.canRowsPass = PossibleRows::canPass(reportTemplate.queryFilter, hasColumn);
    cover.numTokens = tokens.size();
    std::copy_if(tokens.begin(), tokens.end(), std::back_inserter(cover.missing),
                 [&hasColumn](const std::string& token) { return !hasColumn(token); });
    return cover;
}

bool TemplateCover::suitsBetterThan(const TemplateCover& other) const
{
    return partOf(*this) * wholeOf(other) > partOf(other) * wholeOf(*this);
}
}
