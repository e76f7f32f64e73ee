// VorString::format. One directive, told on "%-8.3f" with 2.5:
//   flags "-", width 8, precision 3, conversion 'f'  ->  digits "2.500"  ->  padded to "2.500   "
// The C library's printf would do most of this, but it asks the locale for its decimal point. Digits come from
// std::to_chars; what is done by hand is what surrounds them: sign or base mark, zeros and blanks up to the width.
// A directive that nobody knows, "%y", stands in the text as it is and takes no argument.
#include "VorCharacters.h"
#include "VorNumberText.h"
#include "VorString.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

namespace
{
// Widths and precisions stop here, so that a wrong argument cannot ask for gigabytes. Arbitrary.
constexpr int kLargestWidth = 1000000;

// Of an integer among the arguments, as the length mark in front of the conversion gives it.
enum class eSize
{
    kInt,
    kChar,
    kShort,
    kLong,
    kLongLong
};

// What stands between '%' and the conversion, and the conversion: "%-8.3f".
struct Directive
{
    bool isLeftAligned = false;
    bool showsPlus = false;
    bool showsBlank = false;
    bool isAlternate = false;
    bool isZeroPadded = false;
    int width = 0;
    int precision = -1; // -1 when none is given
    eSize size = eSize::kInt;
    wchar_t conversion = L'\0';
};

// The arguments in the order in which the directives take them.
class Arguments
{
public:
    explicit Arguments(std::va_list& list) { va_copy(m_list, list); }
    ~Arguments() { va_end(m_list); }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): the constructor has copied the list
    int takeInt() { return va_arg(m_list, int); }
    double takeDouble() { return va_arg(m_list, double); }
    const wchar_t* takeText() { return va_arg(m_list, const wchar_t*); }

    // Arguments shorter than an int are passed as one and cut back here: "%hhd" shows 300 as 44.
    long long takeSigned(eSize size)
    {
        switch (size)
        {
            case eSize::kChar: return static_cast<signed char>(takeInt());
            case eSize::kShort: return static_cast<short>(takeInt());
            case eSize::kLong: return va_arg(m_list, long);
            case eSize::kLongLong: return va_arg(m_list, long long);
            default: return takeInt();
        }
    }

    unsigned long long takeUnsigned(eSize size)
    {
        switch (size)
        {
            case eSize::kChar: return static_cast<unsigned char>(takeInt());
            case eSize::kShort: return static_cast<unsigned short>(takeInt());
            case eSize::kLong: return va_arg(m_list, unsigned long);
            case eSize::kLongLong: return va_arg(m_list, unsigned long long);
            default: return va_arg(m_list, unsigned int);
        }
    }

private:
    std::va_list m_list;
};

// Reads what stands between '%' and the conversion.
class DirectiveReader
{
public:
    DirectiveReader(const wchar_t* text, Arguments& arguments) : m_pText(text), m_arguments(arguments) {}

    // The position after the directive. When the pattern ends within it, its conversion is the zero character.
    const wchar_t* read(Directive& directive)
    {
        while (readFlag(directive))
            ++m_pText;
        readWidth(directive);
        readPrecision(directive);
        readSize(directive);
        directive.conversion = *m_pText;
        return *m_pText == L'\0' ? m_pText : m_pText + 1;
    }

private:
    // Sets the flag that stands here, and answers with it that there was one.
    bool readFlag(Directive& directive) const
    {
        switch (*m_pText)
        {
            case L'-': return directive.isLeftAligned = true;
            case L'+': return directive.showsPlus = true;
            case L' ': return directive.showsBlank = true;
            case L'#': return directive.isAlternate = true;
            case L'0': return directive.isZeroPadded = true;
            default: return false;
        }
    }

    // Digits, or a '*' for an argument; 0 when there is neither.
    void readWidth(Directive& directive)
    {
        directive.width = readNumber();
        if (directive.width >= 0)
            return;
        directive.isLeftAligned = true; // a negative '*' is a flag and a width
        directive.width = -directive.width;
    }

    // A point alone asks for a precision of 0; a negative '*' is no precision.
    void readPrecision(Directive& directive)
    {
        if (*m_pText != L'.')
            return;
        ++m_pText;
        directive.precision = std::max(readNumber(), -1);
    }

    // Digits go on being read past the largest width, as they belong to the directive, but count no more.
    int readNumber()
    {
        if (*m_pText == L'*')
        {
            ++m_pText;
            return std::clamp(m_arguments.takeInt(), -kLargestWidth, kLargestWidth);
        }
        int number = 0;
        for (; VorCharacters::isDigit(*m_pText); ++m_pText)
            number = std::min(number * 10 + static_cast<int>(*m_pText - L'0'), kLargestWidth);
        return number;
    }

    // An 'h' makes it a short, and a second one a char; an 'l' makes it a long, and a second one a long long.
    void readSize(Directive& directive)
    {
        for (;; ++m_pText)
        {
            switch (*m_pText)
            {
                case L'h': directive.size = directive.size == eSize::kShort ? eSize::kChar : eSize::kShort; break;
                case L'l': directive.size = directive.size == eSize::kLong ? eSize::kLongLong : eSize::kLong; break;
                case L'j': directive.size = sizeOf(sizeof(std::intmax_t)); break;
                case L'z': directive.size = sizeOf(sizeof(std::size_t)); break;
                case L't': directive.size = sizeOf(sizeof(std::ptrdiff_t)); break;
                default: return;
            }
        }
    }

    // The marks j, z and t stand for types of this platform, which are as wide as int or as long long.
    static eSize sizeOf(std::size_t numBytes) { return numBytes == sizeof(int) ? eSize::kInt : eSize::kLongLong; }

    const wchar_t* m_pText;
    Arguments& m_arguments;
};

void appendPadded(VorString& out, const Directive& directive, const wchar_t* text, int length)
{
    const int padding = directive.width - length;
    if (!directive.isLeftAligned)
        out.append(L' ', padding);
    out.append(text, length);
    if (directive.isLeftAligned)
        out.append(L' ', padding);
}

// Appends the sign or base mark, zeros up to the width when asked for, and the digits: "-" and "42" are "-0042" in
// "%05d". Zeros give way to a '-' flag. The caller says where else they must not stand: integers with a precision,
// infinities and NaNs are filled up with blanks.
void appendNumber(VorString& out, const Directive& directive, const std::string& mark, const std::string& digits,
                  bool mayPadWithZeros)
{
    const std::size_t length = mark.size() + digits.size();
    const auto width = static_cast<std::size_t>(directive.width);
    std::wstring text(mark.begin(), mark.end());
    if (directive.isZeroPadded && !directive.isLeftAligned && mayPadWithZeros && length < width)
        text.append(width - length, L'0');
    text.append(digits.begin(), digits.end());
    appendPadded(out, directive, text.data(), static_cast<int>(text.size()));
}

// Of the two flags for numbers that are not negative, '+' beats the blank.
std::string signMark(const Directive& directive, bool isNegative)
{
    return isNegative ? "-" : (directive.showsPlus ? "+" : (directive.showsBlank ? " " : ""));
}

void makeUpperCase(std::string& text)
{
    for (char& c : text)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
}

// The digits of an integer, at least `precision` of them: 5 with precision 3 is "005". For 0 with precision 0
// there are none.
std::string integerDigits(unsigned long long value, int base, int precision)
{
    char buffer[64]; // enough for base 2
    std::string digits(buffer, std::to_chars(buffer, buffer + sizeof buffer, value, base).ptr);
    if (value == 0 && precision == 0)
        digits.clear();
    const auto wanted = static_cast<std::size_t>(std::max(precision, 0));
    return digits.size() < wanted ? std::string(wanted - digits.size(), '0') + digits : digits;
}

// The smallest number has no positive one of its type, so its size is computed in bits.
void appendSigned(VorString& out, const Directive& directive, long long value)
{
    const auto bits = static_cast<unsigned long long>(value);
    const std::string digits = integerDigits(value < 0 ? 0 - bits : bits, 10, directive.precision);
    appendNumber(out, directive, signMark(directive, value < 0), digits, directive.precision < 0);
}

// The alternate form marks a hexadecimal number with "0x", unless it is 0, and an octal one with a zero in front,
// unless it has one.
void appendUnsigned(VorString& out, const Directive& directive, unsigned long long value)
{
    const bool isHexadecimal = directive.conversion == L'x' || directive.conversion == L'X';
    const int base = isHexadecimal ? 16 : (directive.conversion == L'o' ? 8 : 10);
    std::string mark = directive.isAlternate && isHexadecimal && value != 0 ? "0x" : "";
    std::string digits = integerDigits(value, base, directive.precision);
    if (directive.isAlternate && base == 8 && (digits.empty() || digits[0] != '0'))
        digits.insert(0, 1, '0');
    if (directive.conversion == L'X')
    {
        makeUpperCase(mark);
        makeUpperCase(digits);
    }
    appendNumber(out, directive, mark, digits, directive.precision < 0);
}

// The buffer holds the largest double with all its whole digits, a point and the decimals, or an exponent.
std::string floatDigits(double magnitude, std::chars_format format, int precision)
{
    const auto room = std::size_t{ VorNumberText::kLargestDouble } + 10 + static_cast<std::size_t>(precision);
    std::string digits(room, '\0');
    const auto result = std::to_chars(digits.data(), digits.data() + room, magnitude, format, precision);
    digits.resize(static_cast<std::size_t>(result.ptr - digits.data()));
    return digits;
}

// "%#g": all significant digits, trailing zeros too. Which form it is depends on the exponent after rounding: 9.99 to
// two digits is 1.0e+01, and shown as "10.".
std::string generalDigitsWithZeros(double magnitude, int precision)
{
    const int numDigits = std::max(precision, 1);
    std::string scientific = floatDigits(magnitude, std::chars_format::scientific, numDigits - 1);
    const int exponent = std::atoi(scientific.c_str() + scientific.find('e') + 1);
    if (exponent < -4 || exponent >= numDigits)
        return scientific;
    return floatDigits(magnitude, std::chars_format::fixed, numDigits - 1 - exponent);
}

// The alternate form has a point even when no digit follows it.
void ensurePoint(std::string& digits)
{
    if (digits.find('.') == std::string::npos)
        digits.insert(std::min(digits.find('e'), digits.size()), 1, '.');
}

std::string directiveDigits(const Directive& directive, double magnitude)
{
    const int precision = directive.precision < 0 ? 6 : directive.precision;
    const bool isAlternate = directive.isAlternate && std::isfinite(magnitude);
    std::string digits;
    switch (directive.conversion)
    {
        case L'f':
        case L'F': digits = floatDigits(magnitude, std::chars_format::fixed, precision); break;
        case L'e':
        case L'E': digits = floatDigits(magnitude, std::chars_format::scientific, precision); break;
        default:
            digits = isAlternate ? generalDigitsWithZeros(magnitude, precision)
                                 : floatDigits(magnitude, std::chars_format::general, precision);
            break;
    }
    if (isAlternate)
        ensurePoint(digits);
    return digits;
}

// The sign is the bit of the number: "-0.0" has a minus, although it is not below zero.
void appendFloat(VorString& out, const Directive& directive, double value)
{
    std::string digits = directiveDigits(directive, std::fabs(value));
    if (directive.conversion == L'F' || directive.conversion == L'E' || directive.conversion == L'G')
        makeUpperCase(digits);
    appendNumber(out, directive, signMark(directive, std::signbit(value)), digits, std::isfinite(value));
}

// With a precision the text need not end in a zero, so no more of its characters are looked at than will be shown.
void appendText(VorString& out, const Directive& directive, const wchar_t* text)
{
    const wchar_t* pFirst = text == nullptr ? L"(null)" : text;
    int length = 0;
    while ((directive.precision < 0 || length < directive.precision) && pFirst[length] != L'\0')
        ++length;
    appendPadded(out, directive, pFirst, length);
}

// "%n", which would write to an address among the arguments, is among those that nobody knows.
// False when the conversion is unknown; nothing is appended then.
bool appendConverted(VorString& out, const Directive& directive, Arguments& arguments)
{
    switch (directive.conversion)
    {
        case L'd':
        case L'i': appendSigned(out, directive, arguments.takeSigned(directive.size)); return true;
        case L'u':
        case L'x':
        case L'X':
        case L'o': appendUnsigned(out, directive, arguments.takeUnsigned(directive.size)); return true;
        case L'f':
        case L'F':
        case L'e':
        case L'E':
        case L'g':
        case L'G': appendFloat(out, directive, arguments.takeDouble()); return true;
        case L's': appendText(out, directive, arguments.takeText()); return true;
        case L'c':
        {
            const auto character = static_cast<wchar_t>(arguments.takeInt());
            appendPadded(out, directive, &character, 1);
            return true;
        }
        case L'%': out += L'%'; return true;
        default: return false;
    }
}

// Appends what the directive at `pDirective`, which points to its '%', gives; returns the position after it. Of "50%"
// the '%' is the whole directive, and stands in the text.
const wchar_t* appendDirective(VorString& out, const wchar_t* pDirective, Arguments& arguments)
{
    Directive directive;
    const wchar_t* pEnd = DirectiveReader(pDirective + 1, arguments).read(directive);
    if (!appendConverted(out, directive, arguments))
        out.append(pDirective, static_cast<int>(pEnd - pDirective));
    return pEnd;
}

void appendFormatted(VorString& out, const wchar_t* pattern, Arguments& arguments)
{
    while (*pattern != L'\0')
    {
        const wchar_t* pDirective = pattern;
        while (*pDirective != L'\0' && *pDirective != L'%')
            ++pDirective;
        out.append(pattern, static_cast<int>(pDirective - pattern));
        pattern = *pDirective == L'\0' ? pDirective : appendDirective(out, pDirective, arguments);
    }
}
}

void VorString::format(const wchar_t* pattern, ...)
{
    VorString formatted; // apart, since the pattern and the arguments may be characters of this text
    std::va_list list;
    va_start(list, pattern);
    Arguments arguments(list);
    if (pattern != nullptr)
        appendFormatted(formatted, pattern, arguments);
    va_end(list);
    *this = std::move(formatted);
}
