#include "TextFile.h"

#include "FileSource.h"
#include "TextCheck.h"
#include "Utf8.h"

#include <string>
#include <string_view>

namespace mekbom::TextFile
{
VorString read(const std::string& path)
{
    FileSource file(path);
    const std::string bytes = file.readAll();
    const std::string_view text = Utf8::withoutByteOrderMark(bytes);
    requireText(text, path);
    return Utf8::toWide(text);
}
}
