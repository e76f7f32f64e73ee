#include "InputOptions.h"

#include "ColumnHeading.h"
#include "CsvDelimiter.h"
#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"
#include "WordOption.h"

#include <CLI/CLI.hpp>

#include <string>

namespace mekbom
{
namespace
{
const WordOption::Choices<NumberNotation::eSign>& signs()
{
    static const WordOption::Choices<NumberNotation::eSign> signs = { { ".", NumberNotation::kPoint },
                                                                      { ",", NumberNotation::kComma } };
    return signs;
}

// The percent sign of the token may be left out, as in other options.
HeadingMapping mappingOf(const std::string& heading, const std::string& name)
{
    HeadingMapping mapping = { heading, ColumnHeading::tokenOf(name), true };
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
    WordOption::declare(command, "--delimiter", "SIGN", "Between columns of CSV: , ; | or tab [found in the file]",
                        CsvDelimiter::all(), [this](char delimiter) { m_choices.delimiter = delimiter; });
    WordOption::declare(command, "--decimal", "SIGN", "Decimal sign of CSV: . or , [found in the file]", signs(),
                        [this](NumberNotation::eSign sign) { m_choices.decimalSign = sign; });
    WordOption::declare(
        command, "--encoding", "NAME", "Encoding of CSV: utf-8, utf-16le, utf-16be or windows-1252 [found in the file]",
        TextEncoding::all(), [this](TextEncoding::eEncoding encoding) { m_choices.encoding = encoding; });
    m_headings.declareOn(command, "Token of a column that no table of headings knows");
    command.add_option("--sheet", m_choices.sheet, "Sheet of a workbook [the first]")->type_name("NAME");
}

InputChoices InputOptions::choices() const
{
    InputChoices choices = m_choices;
    for (const auto& [heading, token] : m_headings.pairs())
        choices.headings.push_back(mappingOf(heading, token));
    return choices;
}
}
