// Scans have one fast path and one general path behind the white space and the sign.
//   fast      "12.5 kg"      the digits 125 with one decimal are 125 / 10, which is exact (scanShortDecimal)
//   general   "0x1.8p3mm"    the characters "1.8p3" up to "mm", as a hexadecimal number, are 12.0
// The general path first finds how far the number reaches, copying its characters to a narrow text, and then converts
// that text with std::from_chars, which knows no locale. It takes what the fast one declines: more digits than are
// exact, exponents, hexadecimal numbers, decimal commas. Where both could read a number, both give the same one.
#include "VorNumberText.h"

#include "VorCharacters.h"
#include "VorPowersOfTen.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace
{
using VorCharacters::isDigit;
using VorCharacters::toLower;

bool isHexDigit(wchar_t c)
{
    return isDigit(c) || (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F');
}

// Answers the number of characters. What std::to_chars writes is ASCII, so that every byte is a character.
int copyWide(const char* pFirst, const char* pEnd, wchar_t* out)
{
    int length = 0;
    for (; pFirst != pEnd; ++pFirst)
        out[length++] = static_cast<wchar_t>(*pFirst);
    return length;
}

// The characters of a text from left to right, zeros past its end. So a rule looks ahead as far as it likes and need
// not ask how much is left.
class Reader
{
public:
    Reader(const wchar_t* text, const wchar_t* textEnd) : m_pText(text), m_pEnd(textEnd) {}

    wchar_t peek(int ahead = 0) const { return m_pEnd - m_pText > ahead ? m_pText[ahead] : L'\0'; }
    void skip(int numCharacters) { m_pText += numCharacters; }
    const wchar_t* position() const { return m_pText; }

    void skipSpaces()
    {
        while (VorCharacters::isSpace(peek()))
            skip(1);
    }

    // Passes over `word`, given in lower case, in any case; false with nothing passed when it does not stand here.
    bool skipWord(const char* word)
    {
        int length = 0;
        for (; word[length] != '\0'; ++length)
            if (toLower(peek(length)) != static_cast<wchar_t>(word[length]))
                return false;
        skip(length);
        return true;
    }

private:
    const wchar_t* m_pText;
    const wchar_t* m_pEnd;
};

// Passes over one sign, if there is one; true for a minus.
bool skipSign(Reader& reader)
{
    const wchar_t c = reader.peek();
    if (c != L'-' && c != L'+')
        return false;
    reader.skip(1);
    return c == L'-';
}

// digits [ point digits ] with at least one digit; copies them with '.' as the point.
bool copyMantissa(Reader& reader, bool (*isDigitHere)(wchar_t), bool decimalComma, std::string& narrow)
{
    bool hasDigits = false;
    bool hasPoint = false;
    for (;; reader.skip(1))
    {
        const wchar_t c = reader.peek();
        const bool isPoint = !hasPoint && (c == L'.' || (decimalComma && c == L','));
        if (!isPoint && !isDigitHere(c))
            return hasDigits;
        narrow += isPoint ? '.' : static_cast<char>(c);
        hasPoint = hasPoint || isPoint;
        hasDigits = hasDigits || !isPoint;
    }
}

// [ mark [ sign ] digits ]; an exponent without digits is left where it stands.
void copyExponent(Reader& reader, wchar_t mark, std::string& narrow)
{
    if (toLower(reader.peek()) != mark)
        return;
    const bool hasSign = reader.peek(1) == L'-' || reader.peek(1) == L'+';
    if (!isDigit(reader.peek(hasSign ? 2 : 1)))
        return;
    narrow += static_cast<char>(mark);
    if (reader.peek(1) == L'-')
        narrow += '-';
    reader.skip(hasSign ? 2 : 1);
    for (; isDigit(reader.peek()); reader.skip(1))
        narrow += static_cast<char>(reader.peek());
}

// Whether a number too large or too small for its type is the former: the decimal (or hexadecimal) place of its first
// nonzero digit against its exponent. "0.001e400" begins three places behind the point, and 400 is above 3: huge.
// "1000e-500" begins four places before it, and -500 is below -4: tiny. There is a nonzero digit, as zero is in range
// with any exponent; an exponent that 64 bits cannot hold decides by its sign.
bool isHuge(const std::string& narrow, int exponentPerDigit)
{
    const char mark = exponentPerDigit == 1 ? 'e' : 'p';
    const std::size_t mantissaEnd = std::min(narrow.find(mark), narrow.size());
    const std::size_t point = std::min(narrow.find('.'), mantissaEnd);
    const std::size_t firstDigit = narrow.find_first_not_of("0.");
    const long long place =
        firstDigit < point ? static_cast<long long>(point - firstDigit) : -static_cast<long long>(firstDigit - point);

    long long exponent = 0;
    if (mantissaEnd < narrow.size())
    {
        const char* pExponent = narrow.data() + mantissaEnd + 1;
        const std::from_chars_result result = std::from_chars(pExponent, narrow.data() + narrow.size(), exponent);
        if (result.ec == std::errc::result_out_of_range)
            return *pExponent != '-';
    }
    return exponent > -place * exponentPerDigit;
}

// std::from_chars tells neither zero from infinity nor sets a value when a number is beyond its type.
template <class Number>
Number convert(const std::string& narrow, bool isHexadecimal)
{
    Number value = 0;
    const std::chars_format format = isHexadecimal ? std::chars_format::hex : std::chars_format::general;
    const std::from_chars_result result = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value, format);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    return isHuge(narrow, isHexadecimal ? 4 : 1) ? std::numeric_limits<Number>::infinity() : Number(0);
}

// Decimal numbers so short that their digits and the power of ten behind the point are exact: the quotient of the two
// is the number nearest to the text. False with nothing passed for all others. What stands behind the digits may belong
// to the number as well: a digit too many, an exponent, the rest of "0x", a decimal comma. The general path knows.
template <class Number>
bool scanShortDecimal(Reader& reader, Number& value)
{
    constexpr int kMostDigits = sizeof(Number) == sizeof(float) ? 7 : 15; // 10^7 is below 2^24, 10^15 below 2^53
    Reader digits = reader;
    long long mantissa = 0;
    int numDigits = 0;
    std::size_t numDecimals = 0;
    bool hasPoint = false;
    for (;; digits.skip(1))
    {
        const wchar_t c = digits.peek();
        if (isDigit(c) && numDigits < kMostDigits)
        {
            mantissa = mantissa * 10 + (c - L'0');
            ++numDigits;
            numDecimals += hasPoint ? 1U : 0U;
        }
        else if (c == L'.' && !hasPoint)
            hasPoint = true;
        else
            break;
    }
    const wchar_t next = toLower(digits.peek());
    if (numDigits == 0 || isDigit(next) || next == L'e' || next == L'x' || next == L',')
        return false;
    value = static_cast<Number>(mantissa) / VorPowersOfTen::kAll<Number>[numDecimals];
    reader = digits;
    return true;
}

// Digits, with exponent, in either base; false when there are none. "0x" without digits is the number 0 and an "x".
template <class Number>
bool scanDigits(Reader& reader, bool decimalComma, Number& value)
{
    if (scanShortDecimal(reader, value))
        return true;
    std::string narrow;
    Reader hexadecimal = reader;
    if (hexadecimal.skipWord("0x") && copyMantissa(hexadecimal, isHexDigit, decimalComma, narrow))
    {
        copyExponent(hexadecimal, L'p', narrow);
        value = convert<Number>(narrow, true);
        reader = hexadecimal;
        return true;
    }
    narrow.clear();
    Reader decimal = reader;
    if (!copyMantissa(decimal, isDigit, decimalComma, narrow))
        return false;
    copyExponent(decimal, L'e', narrow);
    value = convert<Number>(narrow, false);
    reader = decimal;
    return true;
}

// "(" letters, digits and underscores ")" after "nan"; passed over when whole. One without its closing parenthesis is
// left where it stands.
void skipNanPayload(Reader& reader)
{
    if (reader.peek() != L'(')
        return;
    int length = 1;
    while (isDigit(reader.peek(length)) || reader.peek(length) == L'_' ||
           (toLower(reader.peek(length)) >= L'a' && toLower(reader.peek(length)) <= L'z'))
        ++length;
    if (reader.peek(length) == L')')
        reader.skip(length + 1);
}

// As wcstod reads what stands behind the sign: the longest number, going back as far as need be.
bool scanUnsignedDouble(Reader& reader, bool decimalComma, double& value)
{
    if (reader.skipWord("infinity") || reader.skipWord("inf"))
    {
        value = std::numeric_limits<double>::infinity();
        return true;
    }
    if (reader.skipWord("nan"))
    {
        skipNanPayload(reader);
        value = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    return scanDigits(reader, decimalComma, value);
}

// As swscanf does. Stream scanning never goes back more than one character, so a text that starts like "infinity" or
// "0x" and breaks off is no number at all: "infin", "0xg". Only "0x." has gone far enough to be the number 0.
bool scanUnsignedFloat(Reader& reader, float& value)
{
    if (reader.skipWord("inf"))
    {
        value = std::numeric_limits<float>::infinity();
        return toLower(reader.peek()) != L'i' || reader.skipWord("inity");
    }
    if (reader.skipWord("nan"))
    {
        value = std::numeric_limits<float>::quiet_NaN();
        return true;
    }
    Reader prefix = reader;
    if (prefix.skipWord("0x") && !isHexDigit(prefix.peek()) && prefix.peek() != L'.')
        return false;
    return scanDigits(reader, false, value);
}
}

int VorNumberText::writeInteger(long long value, wchar_t* out)
{
    char narrow[kIntegerRoom];
    return copyWide(narrow, std::to_chars(narrow, narrow + sizeof narrow, value).ptr, out);
}

int VorNumberText::writeGeneral(double value, wchar_t* out)
{
    char narrow[kGeneralRoom];
    const auto result = std::to_chars(narrow, narrow + sizeof narrow, value, std::chars_format::general, 6);
    return copyWide(narrow, result.ptr, out);
}

// All digits of the number, as printf has them: 0.1 to twenty decimals is 0.10000000000000000555.
int VorNumberText::writeFixed(double value, int decimals, wchar_t* out)
{
    char narrow[fixedRoom(kMostDecimals)];
    const auto result = std::to_chars(narrow, narrow + sizeof narrow, value, std::chars_format::fixed, decimals);
    return copyWide(narrow, result.ptr, out);
}

// The sign is put on at the end and not by a negation, so that "-0" and "-nan" have theirs.
double VorNumberText::scanDouble(const wchar_t* text, const wchar_t*& end, int decimalComma)
{
    Reader reader(text, text + std::char_traits<wchar_t>::length(text));
    reader.skipSpaces();
    const bool isNegative = skipSign(reader);
    double value = 0;
    if (!scanUnsignedDouble(reader, decimalComma != 0, value))
    {
        end = text;
        return 0;
    }
    end = reader.position();
    return std::copysign(value, isNegative ? -1.0 : 1.0);
}

// Three answers, as swscanf has three: of " " nothing is left to read, "x" is no number, and " 2x" is 2.
VorNumberText::eScanResult VorNumberText::scanFloat(const wchar_t* text, const wchar_t* textEnd, float& value)
{
    Reader reader(text, textEnd);
    reader.skipSpaces();
    if (reader.peek() == L'\0')
        return kEndOfText;
    const bool isNegative = skipSign(reader);
    float magnitude = 0;
    if (!scanUnsignedFloat(reader, magnitude))
        return kNoNumber;
    value = std::copysign(magnitude, isNegative ? -1.0F : 1.0F);
    return kNumber;
}
