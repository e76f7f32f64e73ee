#include "InputOptions.h"

#include "ColumnHeading.h"
#include "CsvDelimiter.h"
#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"

#include <CLI/CLI.hpp>

#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
template <class Value>
using Choices = std::vector<std::pair<const char*, Value>>;

const Choices<NumberNotation::eSign>& signs()
{
    static const Choices<NumberNotation::eSign> signs = { { ".", NumberNotation::kPoint },
                                                          { ",", NumberNotation::kComma } };
    return signs;
}

// An option that takes one of some words, and hands over what the word stands for. `choices` outlive the command.
template <class Value, class Take>
void addChoice(CLI::App& command, const std::string& name, const std::string& form, const std::string& help,
               const Choices<Value>& choices, const Take& take)
{
    const auto takeWord = [&choices, name, take](const std::string& word)
    {
        std::string known;
        for (const auto& choice : choices)
        {
            if (word == choice.first)
                return take(choice.second);
            known += std::string(" ") + choice.first;
        }
        throw CLI::ValidationError(name, inQuotes(word) + " is none of" + known);
    };
    command.add_option_function<std::string>(name, takeWord, help)->type_name(form);
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

// Help and messages show the words alone, not what each is taken for.
void InputOptions::declareOn(CLI::App& command)
{
    addChoice(command, "--delimiter", "SIGN", "Between columns of CSV: , ; | or tab [found in the file]",
              CsvDelimiter::all(), [this](char delimiter) { m_choices.delimiter = delimiter; });
    addChoice(command, "--decimal", "SIGN", "Decimal sign of CSV: . or , [found in the file]", signs(),
              [this](NumberNotation::eSign sign) { m_choices.decimalSign = sign; });
    addChoice(command, "--encoding", "NAME",
              "Encoding of CSV: utf-8, utf-16le, utf-16be or windows-1252 [found in the file]", TextEncoding::all(),
              [this](TextEncoding::eEncoding encoding) { m_choices.encoding = encoding; });
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
