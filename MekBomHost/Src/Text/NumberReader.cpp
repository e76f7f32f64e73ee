// Nearly all numbers are a few digits, perhaps with a point among them. "12.50" is read as the digits 1250, two of them
// behind the point, and is 1250 / 100: so few digits are an exact double, a power of ten is another, and the quotient
// of exact doubles is the double next to the true one, 12.5. That is the number std::from_chars finds by a longer way,
// which all other texts take.
#include "NumberReader.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorPowersOfTen.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace mekbom::NumberReader
{
namespace
{
using VorCharacters::isDigit;

const int kMostDecimals = std::numeric_limits<double>::digits10;

struct PlainNumber
{
    std::int64_t digits = 0;     // 1250
    std::size_t numDecimals = 0; // 2, of "12.50"
};

// digits [ '.' digits ], of up to as many characters as a double holds digits; false for any other text, which may be a
// number all the same.
// `numBehindPoint` counts the point as well, so that 0 says that there is none. A text that ends in its point, "12.",
// is left to the longer way.
bool readPlain(std::string_view text, PlainNumber& number)
{
    const std::size_t size = text.size();
    if (size == 0 || size > static_cast<std::size_t>(kMostDecimals))
        return false;
    std::size_t numBehindPoint = 0;
    for (std::size_t i = 0; i < size; ++i)
    {
        if (isDigit(text[i]))
            number.digits = number.digits * 10 + (text[i] - '0');
        else if (text[i] == '.' && numBehindPoint == 0 && i > 0)
            numBehindPoint = size - i;
        else
            return false;
    }
    number.numDecimals = numBehindPoint == 0 ? 0 : numBehindPoint - 1;
    return numBehindPoint != 1;
}

std::string_view withoutBlanks(std::string_view text)
{
    return VorCharacters::trimmed(text, " \t");
}

// std::from_chars knows no plus sign.
std::string_view withoutPlus(std::string_view text)
{
    return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

// Of a text that is a number:  mantissa 'e' exponent. An exponent beyond an int is that of zero, "0e9999999999".
int numDecimalsBeforeExponent(std::string_view number)
{
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = number.substr(0, mantissaEnd).find('.');
    const auto numWritten = static_cast<long long>(point < mantissaEnd ? mantissaEnd - point - 1 : 0);
    int exponent = 0;
    if (mantissaEnd < number.size())
        read(number.substr(mantissaEnd + 1), exponent);
    return static_cast<int>(std::clamp<long long>(numWritten - exponent, 0, kMostDecimals));
}

// Of a text that is a number. Most that come here have a point and digits up to the end.
int numDecimalsOf(std::string_view number)
{
    std::size_t numDigits = 0;
    while (numDigits < number.size() && isDigit(number[number.size() - numDigits - 1]))
        ++numDigits;
    if (numDigits < number.size() && number[number.size() - numDigits - 1] == '.')
        return static_cast<int>(std::min<std::size_t>(numDigits, kMostDecimals));
    return numDecimalsBeforeExponent(number);
}

std::string_view withoutSign(std::string_view text)
{
    return !text.empty() && (text[0] == '+' || text[0] == '-') ? text.substr(1) : text;
}

template <class Number>
// The longer way. from_chars() must have taken the whole text: "12 kg" begins with a number and is none.
bool readAny(std::string_view text, Number& value)
{
    text = withoutPlus(withoutBlanks(text));
    Number number = 0;
    const char* const pEnd = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), pEnd, number);
    if (text.empty() || result.ec != std::errc() || result.ptr != pEnd)
        return false;
    value = number;
    return true;
}
}

bool read(std::string_view text, int& value)
{
    PlainNumber number;
    if (!readPlain(text, number) || number.numDecimals > 0 || number.digits > std::numeric_limits<int>::max())
        return readAny(text, value);
    value = static_cast<int>(number.digits);
    return true;
}

bool read(std::string_view text, double& value)
{
    int numDecimals = 0;
    return read(text, value, numDecimals);
}

bool read(std::string_view text, double& value, int& numDecimals)
{
    PlainNumber plain;
    if (readPlain(text, plain))
    {
        value = static_cast<double>(plain.digits) / VorPowersOfTen::kAll<double>[plain.numDecimals];
        numDecimals = static_cast<int>(plain.numDecimals);
        return true;
    }
    double number = 0;
    if (!readAny(text, number) || !std::isfinite(number))
        return false;
    value = number;
    numDecimals = numDecimalsOf(withoutBlanks(text));
    return true;
}

bool isWhole(std::string_view text)
{
    text = withoutSign(withoutBlanks(text));
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit<char>);
}

std::string_view withoutZeroDecimals(std::string_view text)
{
    text = withoutBlanks(text);
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos || text.find_first_not_of('0', point + 1) != std::string_view::npos)
        return text;
    return text.substr(0, point);
}

// plain := [ sign ] digits [ '.' [ digits ] ] | [ sign ] '.' digits
// Zeros in front make a text of a number, as "0417" is: they would be gone when it is written again. A lone 0 is fine,
// "0.5".
bool isPlain(std::string_view text)
{
    text = withoutSign(withoutBlanks(text));
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view decimals = text.substr(std::min(point + 1, text.size()));
    return !(whole.empty() && decimals.empty()) && std::all_of(whole.begin(), whole.end(), isDigit<char>) &&
           std::all_of(decimals.begin(), decimals.end(), isDigit<char>) &&
           whole.size() <= static_cast<std::size_t>(kMostDecimals) && !(whole.size() > 1 && whole[0] == '0');
}
}
