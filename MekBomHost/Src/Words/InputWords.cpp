#include "InputWords.h"

#include "ColumnHeading.h"
#include "CsvDelimiter.h"
#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"

namespace mekbom::InputWords
{
const WordChoices::Choices<char>& delimiters()
{
    return CsvDelimiter::all();
}

const WordChoices::Choices<NumberNotation::eSign>& decimalSigns()
{
    static const WordChoices::Choices<NumberNotation::eSign> signs = { { ".", NumberNotation::kPoint },
                                                                       { ",", NumberNotation::kComma } };
    return signs;
}

const WordChoices::Choices<TextEncoding::eEncoding>& encodings()
{
    return TextEncoding::all();
}

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
