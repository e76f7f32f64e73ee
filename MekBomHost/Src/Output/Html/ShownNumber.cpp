#include "ShownNumber.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cstddef>

namespace mekbom::ShownNumber
{
namespace
{
bool areDigits(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), VorCharacters::isDigit<char>);
}

bool areDigitsOrBlanks(std::string_view text)
{
    const auto isEither = [](char c) { return c == ' ' || VorCharacters::isDigit(c); };
    return !text.empty() && VorCharacters::isDigit(text.front()) && VorCharacters::isDigit(text.back()) &&
           std::all_of(text.begin(), text.end(), isEither);
}
}

int numDecimals(std::string_view text)
{
    if (!text.empty() && text.front() == '-')
        text.remove_prefix(1);
    const std::size_t point = text.find('.');
    if (!areDigitsOrBlanks(text.substr(0, point)))
        return kNoDecimal;
    if (point == std::string_view::npos)
        return 0;
    const std::string_view decimals = text.substr(point + 1);
    return areDigits(decimals) ? static_cast<int>(decimals.size()) : kNoDecimal;
}

std::string fill(std::string_view text, int mostDecimals)
{
    const int decimals = numDecimals(text);
    if (decimals == kNoDecimal || decimals >= mostDecimals)
        return std::string();
    return (decimals == 0 ? "." : "") + std::string(static_cast<std::size_t>(mostDecimals - decimals), '0');
}

bool isPlain(std::string_view text)
{
    return numDecimals(text) != kNoDecimal && text.find(' ') == std::string_view::npos;
}
}
