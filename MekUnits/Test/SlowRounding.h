// Rounding as done by hand: on strings of decimal digits, one digit at a time. Plain and slow on purpose; it shares
// nothing with the library.
#pragma once

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

namespace SlowRounding
{
// The shortest text that identifies the size of `value`, without exponent: "2.675", "100", "0.00001".
inline std::string shortestText(double value)
{
    char text[800];
    return std::string(text, std::to_chars(text, text + sizeof(text), std::fabs(value), std::chars_format::fixed).ptr);
}

// "9.95" and one more in the last place: "9.96"; "9.99" -> "10.00".
inline std::string oneMore(std::string text)
{
    for (std::size_t i = text.size(); i-- > 0;)
    {
        if (text[i] == '.')
            continue;
        if (text[i] != '9')
        {
            ++text[i];
            return text;
        }
        text[i] = '0';
    }
    return "1" + text;
}

// `text` at `numDecimals` decimals, halves rounded up: "2.675" -> "2.68", "2" -> "2.00".
inline std::string rounded(std::string text, int numDecimals)
{
    if (text.find('.') == std::string::npos)
        text += '.';
    const std::size_t end = text.find('.') + 1 + static_cast<std::size_t>(numDecimals);
    while (text.size() <= end)
        text += '0';
    const bool roundsUp = text[end] >= '5';
    text.resize(numDecimals == 0 ? end - 1 : end);
    return roundsUp ? oneMore(text) : text;
}

// "0.5" times 16 is "8.0".
inline std::string times(std::string text, int factor)
{
    int carry = 0;
    for (std::size_t i = text.size(); i-- > 0;)
    {
        if (text[i] == '.')
            continue;
        carry += (text[i] - '0') * factor;
        text[i] = static_cast<char>('0' + carry % 10);
        carry /= 10;
    }
    return carry == 0 ? text : std::to_string(carry) + text;
}

// "0.5" over 4 is "0.125" and more zeros: 40 decimals are added.
inline std::string over(std::string text, std::uint64_t divisor)
{
    if (text.find('.') == std::string::npos)
        text += '.';
    text.append(40, '0');
    std::uint64_t remainder = 0;
    for (char& digit : text)
    {
        if (digit == '.')
            continue;
        remainder = remainder * 10 + static_cast<std::uint64_t>(digit - '0');
        digit = static_cast<char>('0' + remainder / divisor);
        remainder %= divisor;
    }
    return text;
}

inline std::string withoutLastZeros(std::string text)
{
    if (text.find('.') == std::string::npos)
        return text;
    while (text.back() == '0')
        text.pop_back();
    if (text.back() == '.')
        text.pop_back();
    return text;
}

// A minus before `text` where `value` is negative and the text not zero.
inline std::string withSign(double value, const std::string& text)
{
    return value < 0 && text.find_first_of("123456789") != std::string::npos ? "-" + text : text;
}
}
