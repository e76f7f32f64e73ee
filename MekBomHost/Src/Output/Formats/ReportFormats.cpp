// A name asks for a format by its ending, or, as "list.lst" does, for none; and "list.pdf" is refused, since what would
// stand in it would not open. Once there is a format for an ending, it stands in the first table and no longer in the
// second.
#include "ReportFormats.h"

#include "CsvWriter.h"
#include "HtmlWriter.h"
#include "JsonListWriter.h"
#include "TextTableWriter.h"
#include "XlsxWriter.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <type_traits>

namespace mekbom::ReportFormats
{
namespace
{
struct Format
{
    std::string_view name;
    std::string_view endings; // "htm html": of files that ask for it
    unsigned choices;         // bits of OutputChoices::eChoice that its writers understand
    std::unique_ptr<ReportWriter> (*createWriter)(const OutputChoices& choices);
};

// A writer that has no choices is not bothered with any.
template <class Writer>
std::unique_ptr<ReportWriter> create([[maybe_unused]] const OutputChoices& choices)
{
    if constexpr (std::is_constructible_v<Writer, const OutputChoices&>)
        return std::make_unique<Writer>(choices);
    else
        return std::make_unique<Writer>();
}

const unsigned kChoicesOfRecords =
    OutputChoices::kValues | OutputChoices::kFoot | OutputChoices::kDecimalSign | OutputChoices::kEncoding;

// A new format is a line here.
const Format kFormats[] = {
    { kText, "txt", OutputChoices::kWidth | OutputChoices::kCut | OutputChoices::kAscii, create<TextTableWriter> },
    { "csv", "csv", kChoicesOfRecords | OutputChoices::kDelimiter, create<CsvWriter> },
    { "tsv", "tsv", kChoicesOfRecords, create<TsvWriter> },
    { "html", "html htm", OutputChoices::kPaper, create<HtmlWriter> },
    { "json", "json", 0, create<JsonListWriter> },
    { "xlsx", "xlsx", OutputChoices::kValues | OutputChoices::kPaper, create<XlsxWriter> },
};

// Endings that stand for a format which has no line above.
const std::string_view kOtherEndings = "jsonl xml yaml xls ods doc docx odt rtf pdf";

// "Parts.XLSX" -> "xlsx"; empty for "list" and for "lists.d/list".
std::string endingOf(std::string_view fileName)
{
    const std::size_t dot = fileName.find_last_of("./\\");
    if (dot == std::string_view::npos || fileName[dot] != '.')
        return std::string();
    std::string ending(fileName.substr(dot + 1));
    std::transform(ending.begin(), ending.end(), ending.begin(), VorCharacters::toLower<char>);
    return ending;
}

// Whether `word` is one of `words`, between which there are blanks.
bool isAmong(std::string_view words, std::string_view word)
{
    while (!words.empty())
    {
        const std::string_view first = words.substr(0, words.find(' '));
        if (first == word)
            return true;
        words.remove_prefix(std::min(first.size() + 1, words.size()));
    }
    return false;
}

const Format* find(std::string_view name)
{
    const auto* const pFound = std::find_if(std::begin(kFormats), std::end(kFormats),
                                            [name](const Format& format) { return format.name == name; });
    return pFound == std::end(kFormats) ? nullptr : pFound;
}

// The names of the formats that do all of `choices`.
std::vector<std::string> namesOf(unsigned choices)
{
    std::vector<std::string> names;
    for (const Format& format : kFormats)
        if ((format.choices & choices) == choices)
            names.emplace_back(format.name);
    return names;
}
}

std::unique_ptr<ReportWriter> createWriter(std::string_view format, const OutputChoices& choices)
{
    const Format* const pFormat = find(format);
    return pFormat == nullptr ? nullptr : pFormat->createWriter(choices);
}

std::vector<std::string> names()
{
    return namesOf(0);
}

std::string_view formatOf(std::string_view fileName)
{
    const std::string ending = endingOf(fileName);
    for (const Format& format : kFormats)
        if (isAmong(format.endings, ending))
            return format.name;
    return std::string_view();
}

bool promisesOtherFormat(std::string_view fileName)
{
    return isAmong(kOtherEndings, endingOf(fileName));
}

bool takes(std::string_view format, OutputChoices::eChoice choice)
{
    const Format* const pFormat = find(format);
    return pFormat != nullptr && (pFormat->choices & choice) != 0;
}

std::vector<std::string> namesTaking(OutputChoices::eChoice choice)
{
    return namesOf(choice);
}
}
