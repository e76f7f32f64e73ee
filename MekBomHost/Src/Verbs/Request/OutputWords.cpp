#include "OutputWords.h"

#include "CsvDelimiter.h"

namespace mekbom::OutputWords
{
const WordOption::Choices<char>& delimiters()
{
    return CsvDelimiter::all();
}

const WordOption::Choices<char>& decimalSigns()
{
    static const WordOption::Choices<char> signs = { { ".", '.' }, { ",", ',' } };
    return signs;
}

const WordOption::Choices<OutputEncoding>& encodings()
{
    static const WordOption::Choices<OutputEncoding> encodings = {
        { "utf-8", { TextEncoding::kUtf8, false } },
        { "utf-8-bom", { TextEncoding::kUtf8, true } },
        { "utf-16le", { TextEncoding::kUtf16LittleEndian, true } },
        { "windows-1252", { TextEncoding::kWindows1252, false } }
    };
    return encodings;
}

const WordOption::Choices<ePaper>& papers()
{
    static const WordOption::Choices<ePaper> papers = { { "a4", kA4Paper }, { "letter", kLetterPaper } };
    return papers;
}
}
