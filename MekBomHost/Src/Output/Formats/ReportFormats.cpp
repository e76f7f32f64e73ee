// A name asks for a format, and the ending of a file only promises one: "list.xlsx" is refused, since a text in it
// would not open, but neither "list.txt" nor "list.lst" asks for anything. Once there is a format for an ending, it is
// a line of the first table and no longer a word of the second.
#include "ReportFormats.h"

#include "TextTableWriter.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

namespace mekbom::ReportFormats
{
namespace
{
struct Format
{
    std::string_view name;
    std::unique_ptr<ReportWriter> (*createWriter)();
};

template <class Writer>
std::unique_ptr<ReportWriter> create()
{
    return std::make_unique<Writer>();
}

// A new format is a line here.
const Format kFormats[] = {
    { kText, create<TextTableWriter> },
};

// Endings that stand for a format which has no line above.
const std::string_view kOtherEndings[] = { "csv",  "tsv", "htm", "html", "json", "xml", "yaml", "xls",
                                           "xlsx", "ods", "doc", "docx", "odt",  "rtf", "pdf" };

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
}

std::unique_ptr<ReportWriter> createWriter(std::string_view format)
{
    for (const Format& known : kFormats)
        if (known.name == format)
            return known.createWriter();
    return nullptr;
}

bool promisesOtherFormat(std::string_view fileName)
{
    const std::string ending = endingOf(fileName);
    return std::find(std::begin(kOtherEndings), std::end(kOtherEndings), ending) != std::end(kOtherEndings);
}
}
