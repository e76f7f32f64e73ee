#include "CellNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace mekbom::CellNumber
{
namespace
{
bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::string_view withoutBlanks(std::string_view text)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \t"), text.size());
    const std::size_t end = text.find_last_not_of(" \t") + 1;
    return end > begin ? text.substr(begin, end - begin) : std::string_view();
}

// std::from_chars knows no plus sign.
std::string_view withoutPlus(std::string_view text)
{
    return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

std::string_view withoutSign(std::string_view text)
{
    return !text.empty() && (text[0] == '+' || text[0] == '-') ? text.substr(1) : text;
}

template <class T>
bool parseBare(std::string_view text, T& value)
{
    T parsed = 0;
    const std::from_chars_result result = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size())
        return false;
    value = parsed;
    return true;
}

// Nearly all numbers stand bare; only the others are looked at for what may surround them.
template <class T>
bool parseAll(std::string_view text, T& value)
{
    return parseBare(text, value) || parseBare(withoutPlus(withoutBlanks(text)), value);
}
}

bool parse(std::string_view text, int& value)
{
    return parseAll(text, value);
}

bool parse(std::string_view text, double& value)
{
    double parsed = 0;
    if (!parseAll(text, parsed) || !std::isfinite(parsed))
        return false;
    value = parsed;
    return true;
}

bool isWhole(std::string_view text)
{
    text = withoutSign(withoutBlanks(text));
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool hasLeadingZeros(std::string_view text)
{
    text = withoutSign(withoutBlanks(text));
    return text.size() > 1 && text[0] == '0' && isDigit(text[1]);
}
}
