#include "NumberText.h"

#include <charconv>
#include <cmath>

namespace mekbom
{
// std::to_chars alone would take the shorter of both ways of writing, "1e+06" for a million.
std::string numberText(double number)
{
    const double size = std::fabs(number);
    const bool isPlain = size == 0 || (size >= 1e-5 && size < 1e15);
    char text[40]; // sign, "0.0000" and 17 digits, or an exponent
    const std::to_chars_result end = std::to_chars(text, text + sizeof(text), number,
                                                   isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    return std::string(text, end.ptr);
}
}
