#include "CellNumber.h"

#include "ByteWord.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

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

// Ten to the power of up to kMostDigits, as doubles all exact.
const double kPowersOfTen[] = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15 };
const std::size_t kMostDigits = 15;

// digits [ '.' digits ], as nearly all numbers are written; false for any other text, which may be a number all the same.
// So few digits are an exact double, and the quotient of two exact doubles is the double next to the number, which
// std::from_chars finds by a longer way.
bool parseShort(std::string_view text, double& value)
{
    std::int64_t digits = 0;
    std::size_t numDecimals = 0;
    std::size_t pos = 0;
    if (text.empty() || text.size() > kMostDigits)
        return false;
    for (; pos < text.size() && isDigit(text[pos]); ++pos)
        digits = digits * 10 + (text[pos] - '0');
    if (pos > 0 && pos + 1 < text.size() && text[pos] == '.')
    {
        numDecimals = text.size() - pos - 1;
        for (++pos; pos < text.size() && isDigit(text[pos]); ++pos)
            digits = digits * 10 + (text[pos] - '0');
    }
    if (pos < text.size())
        return false;
    value = static_cast<double>(digits) / kPowersOfTen[numDecimals];
    return true;
}

// The number of `numDigits` digits, 1 to 8 of them, the first one lowest in `word`; false when one is no digit. Brings
// digits together in pairs, fours and eights.
bool readDigits(std::uint64_t word, std::size_t numDigits, std::uint64_t& number)
{
    using namespace ByteWord;
    word = (word ^ kEachByte * '0') << 8 * (kSize - numDigits);
    const std::uint64_t beyondNine = (word + kEachByte * (0x7F - 9)) | word;
    if ((beyondNine & kEachByte * 0x80) != 0)
        return false;
    word = (word * 10 + (word >> 8)) & 0x00FF00FF00FF00FF;
    word = (word * 100 + (word >> 16)) & 0x0000FFFF0000FFFF;
    number = (word * 10000 + (word >> 32)) & 0xFFFFFFFF;
    return true;
}

// As parseShort, for texts of one word: without a loop over digits, whose number differs from cell to cell.
bool parseWord(std::string_view text, double& value)
{
    using namespace ByteWord;
    if (text.empty() || text.size() > kSize)
        return false;
    const std::uint64_t word = of(text);
    const std::uint64_t pointIsZero = word ^ kEachByte * '.';
    const std::uint64_t points = (pointIsZero - kEachByte) & ~pointIsZero & kEachByte * 0x80;
    std::uint64_t number = 0;
    if (points == 0)
    {
        if (!readDigits(word, text.size(), number))
            return false;
        value = static_cast<double>(static_cast<std::int64_t>(number));
        return true;
    }
    const auto point = static_cast<std::size_t>(lowestBit(points)) / 8;
    if (point == 0 || point + 1 == text.size())
        return false;
    const std::uint64_t before = word & ((std::uint64_t{ 1 } << 8 * point) - 1);
    const std::uint64_t behind = word >> 8 * (point + 1) << 8 * point;
    if (!readDigits(before | behind, text.size() - 1, number))
        return false;
    value = static_cast<double>(static_cast<std::int64_t>(number)) / kPowersOfTen[text.size() - 1 - point];
    return true;
}

bool parseWord(std::string_view text, int& value)
{
    std::uint64_t number = 0;
    if (text.empty() || text.size() > ByteWord::kSize || !readDigits(ByteWord::of(text), text.size(), number))
        return false;
    value = static_cast<int>(number);
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
    return parseWord(text, value) || parseAll(text, value);
}

bool parse(std::string_view text, double& value)
{
    if (parseWord(text, value) || parseShort(text, value))
        return true;
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
