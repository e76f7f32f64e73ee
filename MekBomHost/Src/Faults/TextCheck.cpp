// Nearly all files are text, and the whole of them is looked at without counting lines. Only when a byte is wrong is
// its place counted, from the front: of "a\r\nTr\xE4ger" offset 5 is line 2, column 3. The first wrong byte is the one
// that is named, whether it is a zero byte or no UTF-8.
#include "TextCheck.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "TextPlace.h"
#include "Utf8.h"

#include <cstddef>

namespace mekbom
{
namespace
{
std::string byteName(char byte)
{
    const char* const digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return { '0', 'x', digits[value >> 4], digits[value & 15] };
}

// Behind the line end that starts at `offset`.
std::size_t behindLineEnd(std::string_view text, std::size_t offset)
{
    return offset + (text.substr(offset, 2) == "\r\n" ? 2 : 1);
}

// Lines end as the readers of files take them, with LF, CRLF or CR, so that the place is the one that an editor shows.
TextPlace placeOf(std::string_view text, std::size_t offset, int line)
{
    std::size_t begin = 0;
    for (std::size_t end = text.find_first_of("\r\n"); end < offset; end = text.find_first_of("\r\n", begin), ++line)
        begin = behindLineEnd(text, end);
    return { line, static_cast<int>(Utf8::countCharacters(text.substr(begin, offset - begin))) + 1 };
}
}

void requireText(std::string_view bytes, const std::string& source, int firstLine, const std::string& remedy)
{
    const std::size_t invalid = Utf8::findInvalid(bytes);
    const std::size_t zero = bytes.substr(0, invalid).find('\0');
    if (invalid == bytes.size() && zero == std::string_view::npos)
        return;
    const bool isZero = zero != std::string_view::npos;
    Finding finding =
        isZero ? Finding::of(FindingCodes::kTextHasZeroByte, "a zero byte", "text")
               : Finding::of(FindingCodes::kTextIsNotUtf8, "byte " + byteName(bytes[invalid]), "text in UTF-8");
    finding.source = source;
    finding.remedy = remedy;
    finding.begin = placeOf(bytes, isZero ? zero : invalid, firstLine);
    finding.end = { finding.begin.line, finding.begin.column + 1 };
    throw Fault(kInvalidInput, finding);
}
}
