#include "TextFile.h"

#include "FileSource.h"
#include "LineReader.h"
#include "Utf8.h"

#include <string_view>

namespace mekbom::TextFile
{
VorString read(const std::string& path)
{
    FileSource file(path);
    LineReader reader(file);
    std::string text;
    for (std::string_view line; reader.next(line);)
        text += line;
    return Utf8::toWide(text);
}
}
