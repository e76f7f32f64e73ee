#include "OutputWords.h"

#include "CsvDelimiter.h"

namespace mekbom::OutputWords
{
const WordChoices::Choices<bool>& values()
{
    static const WordChoices::Choices<bool> values = { { "shown", false }, { "plain", true } };
    return values;
}

const WordChoices::Choices<char>& delimiters()
{
    return CsvDelimiter::all();
}

const WordChoices::Choices<char>& decimalSigns()
{
    static const WordChoices::Choices<char> signs = { { ".", '.' }, { ",", ',' } };
    return signs;
}

const WordChoices::Choices<OutputEncoding>& encodings()
{
    static const WordChoices::Choices<OutputEncoding> encodings = {
        { "utf-8", { TextEncoding::kUtf8, false } },
        { "utf-8-bom", { TextEncoding::kUtf8, true } },
        { "utf-16le", { TextEncoding::kUtf16LittleEndian, true } },
        { "windows-1252", { TextEncoding::kWindows1252, false } }
    };
    return encodings;
}

const WordChoices::Choices<ePaper>& papers()
{
    static const WordChoices::Choices<ePaper> papers = { { "a4", kA4Paper }, { "letter", kLetterPaper } };
    return papers;
}
}
