#include "InputOptions.h"

#include "InputWords.h"
#include "WordOption.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void InputOptions::declareOn(CLI::App& command)
{
    WordOption::declare(command, "--delimiter", "SIGN", "Between columns of CSV: , ; | or tab [found in the file]",
                        InputWords::delimiters(), [this](char delimiter) { m_choices.delimiter = delimiter; });
    WordOption::declare(command, "--decimal", "SIGN", "Decimal sign of CSV: . or , [found in the file]",
                        InputWords::decimalSigns(),
                        [this](NumberNotation::eSign sign) { m_choices.decimalSign = sign; });
    WordOption::declare(
        command, "--encoding", "NAME", "Encoding of CSV: utf-8, utf-16le, utf-16be or windows-1252 [found in the file]",
        InputWords::encodings(), [this](TextEncoding::eEncoding encoding) { m_choices.encoding = encoding; });
    m_headings.declareOn(command, "Token of a column that no table of headings knows");
    command.add_option("--sheet", m_choices.sheet, "Sheet of a workbook [the first]")->type_name("NAME");
}

InputChoices InputOptions::choices() const
{
    InputChoices choices = m_choices;
    for (const auto& [heading, token] : m_headings.pairs())
        choices.headings.push_back(InputWords::mappingOf(heading, token));
    return choices;
}
}
