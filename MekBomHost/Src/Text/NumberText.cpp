#include "NumberText.h"

#include <charconv>
#include <cmath>

namespace mekbom
{
namespace
{
// std::to_chars alone would take the shorter of both ways of writing, "1e+06" for a million.
template <class Number>
std::string shortestText(Number number)
{
    const Number size = std::fabs(number);
    const bool isPlain = size == 0 || (size >= Number(1e-5) && size < Number(1e15));
    char text[40]; // sign, "0.0000" and 17 digits, or an exponent
    const std::to_chars_result end = std::to_chars(text, text + sizeof(text), number,
                                                   isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    return std::string(text, end.ptr);
}
}

std::string numberText(double number)
{
    return shortestText(number);
}

std::string singleText(float number)
{
    return shortestText(number);
}
}
