// A text is passed word by word, a word being digits with all signs and groups that go with them. Each is read with
// both signs: "1.234,5 kg" has one, which only the comma allows to read, "1234.5"; "7'-6,5\"" has two, of which "7" is
// the same with either. Where the readings differ, "1.234" of "1.234 kg", somebody must have settled the sign.
//
// A blank or an apostrophe between digits may be something else than a separator: "5 100/128 in" is five and a
// fraction, "1'234" no number of feet. It counts only before three digits, behind which a unit or nothing stands.
#include "NumberNotation.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
using VorCharacters::isDigit;

const std::size_t kGroupSize = 3;

// Signs between groups that are no decimal signs: blanks, also those that printed text keeps unbroken, and apostrophes.
const std::string_view kGap[] = { " ", "'", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89", "\xE2\x80\x99" };

char characterOf(NumberNotation::eSign sign)
{
    return sign == NumberNotation::kComma ? ',' : '.';
}

bool isSign(char character)
{
    return character == '.' || character == ',';
}

bool isLetter(char character)
{
    const auto lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'z';
}

std::size_t numDigitsAt(std::string_view text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit<char>);
    return static_cast<std::size_t>(end - text.begin());
}

// The length of the sign between groups that `text` begins with; 0 when it begins with none.
std::size_t gapLength(std::string_view text)
{
    for (const std::string_view gap : kGap)
        if (text.substr(0, gap.size()) == gap)
            return gap.size();
    return 0;
}

// The length of a gap and the group behind it.
std::size_t gapAndGroupLength(std::string_view text)
{
    const std::size_t gap = gapLength(text);
    return gap > 0 && numDigitsAt(text.substr(gap)) == kGroupSize ? gap + kGroupSize : 0;
}

// Whether nothing follows a number but perhaps its unit.
bool isUnitOrNothing(std::string_view rest)
{
    while (!rest.empty() && (rest[0] == ' ' || rest.substr(0, 2) == "\xC2\xA0"))
        rest.remove_prefix(rest[0] == ' ' ? 1 : 2);
    return rest.empty() || isLetter(rest[0]) || rest.substr(0, 2) == "\xC2\xB0" || rest.substr(0, 2) == "\xC2\xB5";
}

bool startsWord(std::string_view text)
{
    return !text.empty() && (isDigit(text[0]) || (isSign(text[0]) && text.size() > 1 && isDigit(text[1])));
}

// word := { digit | '.' | ',' | gap digit digit digit }
std::size_t wordLength(std::string_view text)
{
    std::size_t firstGap = std::string_view::npos;
    std::size_t length = 0;
    for (std::size_t step = 1; step > 0; length += step)
    {
        const std::string_view rest = text.substr(length);
        const bool isInWord = !rest.empty() && (isDigit(rest[0]) || isSign(rest[0]));
        step = isInWord ? 1 : gapAndGroupLength(rest);
        if (step > 1)
            firstGap = std::min(firstGap, length);
    }
    return firstGap < length && !isUnitOrNothing(text.substr(length)) ? firstGap : length;
}

// Digits are not grouped before an exponent: "1.234e5".
bool isExponent(std::string_view text)
{
    if (text.size() < 2 || (text[0] | 0x20) != 'e')
        return false;
    return isDigit(text[1]) || ((text[1] == '+' || text[1] == '-') && text.size() > 2 && isDigit(text[2]));
}

// whole := digits | digits of one to three, not beginning with 0 { separator three digits }
// All separators are alike, and none is the decimal sign, which stands behind all of `whole`.
bool appendWhole(std::string_view whole, bool mayBeGrouped, std::string& plain)
{
    std::size_t length = numDigitsAt(whole);
    plain += whole.substr(0, length);
    if (length == whole.size())
        return true;
    if (!mayBeGrouped || length == 0 || length > kGroupSize || whole[0] == '0')
        return false;
    const std::size_t separatorLength = isSign(whole[length]) ? 1 : gapLength(whole.substr(length));
    const std::string_view separator = whole.substr(length, separatorLength);
    for (whole.remove_prefix(length); !whole.empty(); whole.remove_prefix(separatorLength + kGroupSize))
    {
        if (whole.substr(0, separatorLength) != separator || numDigitsAt(whole.substr(separatorLength)) != kGroupSize)
            return false;
        plain += whole.substr(separatorLength, kGroupSize);
    }
    return true;
}

// number := whole [ sign [ digits ] ]
// Empty when the word is no number with that sign.
std::string plainWord(std::string_view word, NumberNotation::eSign sign, bool mayBeGrouped)
{
    const std::size_t wholeLength = std::min(word.find(characterOf(sign)), word.size());
    const std::string_view decimals = word.substr(std::min(wholeLength + 1, word.size()));
    std::string plain;
    if (!appendWhole(word.substr(0, wholeLength), mayBeGrouped, plain) || numDigitsAt(decimals) != decimals.size())
        return std::string();
    if (wholeLength < word.size())
        plain += '.';
    plain += decimals;
    return plain;
}

// A number in front of `text`, which is that number, perhaps with its sign and a unit; empty where it is not.
std::string_view onlyWordOf(std::string_view& text)
{
    text = VorCharacters::trimmed(text, " \t");
    if (!text.empty() && (text[0] == '-' || text[0] == '+'))
        text.remove_prefix(1);
    if (!startsWord(text))
        return std::string_view();
    const std::string_view word = text.substr(0, wordLength(text));
    text.remove_prefix(word.size());
    return isUnitOrNothing(text) ? word : std::string_view();
}
}

NumberNotation NumberNotation::ofEither(const NumberNotation& one, const NumberNotation& other)
{
    if (one.m_sign == other.m_sign)
        return one.m_certainty < other.m_certainty ? one : other;
    return { one.isSettled() ? one.m_sign : other.m_sign, kMixed, one.isSettled() ? one.m_reason : other.m_reason };
}

NumberNotation::eReading NumberNotation::toPlain(std::string_view text, std::string& plain) const
{
    plain.clear();
    while (!text.empty())
    {
        const std::size_t length = startsWord(text) ? wordLength(text) : 0;
        const std::string_view word = text.substr(0, length);
        text.remove_prefix(length);
        const eReading reading = length > 0 ? addWord(word, !isExponent(text), plain) : kReadable;
        if (reading != kReadable)
            return reading;
        if (length == 0)
        {
            plain += text[0];
            text.remove_prefix(1);
        }
    }
    return kReadable;
}

// Where the point is merely assumed, "1.234" is read as programs write it, while nobody knows what the comma of "1,234"
// is.
NumberNotation::eReading NumberNotation::addWord(std::string_view word, bool mayBeGrouped, std::string& plain) const
{
    const std::string own = plainWord(word, m_sign, mayBeGrouped);
    const std::string other = plainWord(word, otherThan(m_sign), mayBeGrouped);
    if (own.empty() && !other.empty())
        return kOtherSign;
    const bool isTaken = isSettled() || (m_certainty == kAssumed && word.find(',') == std::string_view::npos);
    if (!isTaken && !own.empty() && !other.empty() && own != other)
        return kUnclear;
    plain += own.empty() ? std::string(word) : own;
    return kReadable;
}

NumberNotation::eSign NumberNotation::shownBy(std::string_view text)
{
    if (std::none_of(text.begin(), text.end(), [](char c) { return c == '.' || c == ','; }))
        return kNoSign;
    const std::string_view word = onlyWordOf(text);
    const bool mayBeGrouped = !isExponent(text);
    const bool withPoint = !plainWord(word, kPoint, mayBeGrouped).empty();
    const bool withComma = !plainWord(word, kComma, mayBeGrouped).empty();
    if (withPoint == withComma)
        return kNoSign;
    return withPoint ? kPoint : kComma;
}

std::string NumberNotation::readWith(eSign sign, std::string_view text)
{
    std::string plain;
    const NumberNotation notation(sign, kChosen, std::string());
    return notation.toPlain(text, plain) == kReadable ? plain : std::string();
}

std::string NumberNotation::nameOf(eSign sign)
{
    return sign == kComma ? "decimal comma" : "decimal point";
}
}
