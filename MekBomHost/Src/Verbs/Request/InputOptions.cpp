#include "InputOptions.h"

#include "ColumnHeading.h"
#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
namespace
{
// The percent sign of the token may be left out, as in other options.
HeadingMapping mappingOf(const std::string& heading, const std::string& name)
{
    const HeadingMapping mapping = { heading, ColumnHeading::tokenOf(name), true };
    if (DataTokens::canBeColumn(Utf8::toWide(mapping.token)))
        return mapping;
    Finding finding =
        Finding::of(FindingCodes::kMappedToNoToken, inQuotes(mapping.token), "a token of a row such as %UserAttr1");
    finding.source = "--map " + heading + "=" + name;
    throw Fault(kWrongUsage, finding);
}
}

void InputOptions::declareOn(CLI::App& command)
{
    m_headings.declareOn(command, "Token of a column that no table of headings knows");
    command.add_option("--sheet", m_sheet, "Sheet of a workbook [the first]")->type_name("NAME");
}

InputChoices InputOptions::choices() const
{
    InputChoices choices;
    for (const auto& [heading, token] : m_headings.pairs())
        choices.headings.push_back(mappingOf(heading, token));
    choices.sheet = m_sheet;
    return choices;
}
}
