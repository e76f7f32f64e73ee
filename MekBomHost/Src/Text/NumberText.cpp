// A number is rounded as the text that a person would write for it, not as the bits of a double:
//
//   2.675          the double is a little below; its shortest text is "2.675"
//   to 2 decimals  the text is cut to "2.67", and the digit behind the cut, 5, raises it to "2.68"
//   9.996          "9.99" is raised to "10.00": digits carry
#include "NumberText.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace mekbom
{
namespace
{
const double kMostInFull = 9007199254740992.0; // 2^53: up to here a double has every whole number
const std::size_t kGroupSize = 3;

// The shortest text that identifies the number.
template <class Number>
std::string shortestText(Number number, std::chars_format format)
{
    char text[400]; // the longest, without an exponent, is that of the least double
    const std::to_chars_result end = std::to_chars(text, text + sizeof(text), number, format);
    return std::string(text, end.ptr);
}

// True for what is no number, too: no comparison with it holds.
bool hasExponent(double number)
{
    return !(std::fabs(number) <= kMostInFull);
}

// std::to_chars alone would take the shorter of both ways of writing, "1e+06" for a million.
template <class Number>
std::string readableText(Number number)
{
    const Number size = std::fabs(number);
    const bool isPlain = size == 0 || (size >= Number(1e-5) && size <= Number(kMostInFull));
    return shortestText(number, isPlain ? std::chars_format::fixed : std::chars_format::scientific);
}

// Counts the digits up from the last one: "2.67" becomes "2.68", "-9.99" becomes "-10.00".
void raiseLastDigit(std::string& text)
{
    std::size_t position = text.size();
    while (position > 0 && text[position - 1] != '-')
    {
        char& c = text[--position];
        if (c == '.')
            continue;
        if (c != '9')
        {
            ++c;
            return;
        }
        c = '0';
    }
    text.insert(position, 1, '1');
}

// `point` is where the decimal point stands.
void cutDecimals(std::string& text, std::size_t point, std::size_t numDecimals)
{
    const std::size_t cut = point + 1 + numDecimals;
    if (cut >= text.size())
        return;
    const bool isRaised = text[cut] >= '5';
    text.resize(numDecimals == 0 ? point : cut);
    if (isRaised)
        raiseLastDigit(text);
}

// "12.50" becomes "12.5" and "12.00" becomes "12"; "1200" has no decimals to drop.
void dropZeros(std::string& text)
{
    if (text.find('.') == std::string::npos)
        return;
    text.resize(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
}

// "12.5" becomes "12.50" for two decimals, and "12" becomes "12.00".
void addZeros(std::string& text, std::size_t numDecimals)
{
    if (numDecimals == 0)
        return;
    std::size_t point = text.find('.');
    if (point == std::string::npos)
    {
        point = text.size();
        text += '.';
    }
    text.resize(std::max(text.size(), point + 1 + numDecimals), '0');
}

// "-0.00" is what -0.001 is rounded to, and reads as if there were less than nothing.
void dropSignOfZero(std::string& text)
{
    if (text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos)
        text.erase(0, 1);
}
}

std::string numberText(double number)
{
    return readableText(number);
}

std::string singleText(float number)
{
    return readableText(number);
}

// A number with an exponent is not rounded: from 1e15 on a double has no decimals to speak of.
std::string listedText(double number, const NumberStyle& style)
{
    if (std::isnan(number))
        return "nan"; // of either sign
    if (hasExponent(number))
        return shortestText(number, std::chars_format::scientific);
    std::string text = shortestText(number, std::chars_format::fixed);
    if (style.decimals != NumberStyle::kAllDecimals)
    {
        const auto numDecimals = static_cast<std::size_t>(style.decimals);
        if (const std::size_t point = text.find('.'); point != std::string::npos)
            cutDecimals(text, point, numDecimals);
        style.keepsZeros ? addZeros(text, numDecimals) : dropZeros(text);
    }
    dropSignOfZero(text);
    if (style.hasThousands)
        groupThousands(text);
    return text;
}

// Only the digits of the first number up to its point: "1234567.8912" has groups on the left of it alone. From the
// right, so that the places further left stay where they are.
void groupThousands(std::string& text)
{
    const auto first = std::find_if(text.begin(), text.end(), VorCharacters::isDigit<char>);
    const auto begin = static_cast<std::size_t>(first - text.begin());
    auto position =
        static_cast<std::size_t>(std::find_if_not(first, text.end(), VorCharacters::isDigit<char>) - text.begin());
    for (; position > begin + kGroupSize; position -= kGroupSize)
        text.insert(position - kGroupSize, 1, ' ');
}

int numDecimals(double number)
{
    if (hasExponent(number))
        return 0;
    const std::string text = shortestText(number, std::chars_format::fixed);
    const std::size_t point = text.find('.');
    return point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
}
}
