// The characters of a format are looked at one by one, apart from those that are shown as they are:
//
//   [Red]#,##0.00" kg";-0     the colour is passed, the comma stands between digits, "kg" is a unit
//   yyyy\-mm\-dd              y, m and d make it a date
//   0.00E+00                  an exponent, and no era's year
//   0.0,,"M"                  commas behind the digits divide by a thousand each
#include "NumberFormat.h"

#include "InputUnits.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
const std::string_view kGeneral = "General";

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool isDigitPlace(char c)
{
    return c == '0' || c == '#' || c == '?';
}

// [h], [mm] and [ss] count hours beyond a day; other words in brackets are colours, conditions and currencies.
bool isElapsedTime(std::string_view word)
{
    return !word.empty() && std::all_of(word.begin(), word.end(),
                                        [&](char c) {
                                            return lowerCase(c) == lowerCase(word.front()) &&
                                                   std::string_view("hms").find(lowerCase(c)) != word.npos;
                                        });
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == text.npos ? "" : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

class FormatScan
{
public:
    explicit FormatScan(std::string_view code) : m_code(code) {}

    NumberFormat format()
    {
        for (; m_pos < m_code.size(); ++m_pos)
            take(m_code[m_pos]);
        if (m_isDate)
            return { NumberFormat::kDate, "" };
        if (m_isPercent)
            return { NumberFormat::kPercent, "" };
        if (m_isScaled)
            return { NumberFormat::kScaled, "" };
        std::string unit(trimmed(m_words));
        const bool isUnit = !unit.empty() && InputUnits::find(unit, VorBomTemplateUnits::kNoUnit).has_value();
        return isUnit ? NumberFormat{ NumberFormat::kWithUnit, unit } : NumberFormat();
    }

private:
    void take(char c)
    {
        switch (lowerCase(c))
        {
            case '"': addWord(textUpTo('"')); break;
            case '[': m_isDate = isElapsedTime(textUpTo(']')) || m_isDate; break;
            case '\\': addWord(m_code.substr(++m_pos, 1)); break;
            case '_': // a blank as wide as the next character
            case '*': // the next character as often as there is room
                ++m_pos;
                break;
            case ';': m_isFirstSection = false; break;
            case '%': m_isPercent = true; break;
            case ',': m_isScaled = m_isScaled || isBehindDigits(); break;
            case 'g': passGeneral(); break;
            case 'e': m_isDate = m_isDate || !isExponent(); break;
            case 'y':
            case 'm':
            case 'd':
            case 'h':
            case 's':
            case 'b': m_isDate = true; break;
            default: break;
        }
    }

    // What stands between here and the next `end`, which is passed.
    std::string_view textUpTo(char end)
    {
        const std::size_t begin = m_pos + 1;
        m_pos = std::min(m_code.find(end, begin), m_code.size());
        return begin < m_pos ? m_code.substr(begin, m_pos - begin) : "";
    }

    // Other sections are for negative numbers and zeros, and have the same words.
    void addWord(std::string_view word)
    {
        if (m_isFirstSection)
            m_words += word;
    }

    // "General" has letters of dates in other languages only, but a 'g' alone is one of an era.
    void passGeneral()
    {
        const std::string_view word = m_code.substr(m_pos, kGeneral.size());
        const bool isGeneral = word.size() == kGeneral.size() &&
                               std::equal(word.begin(), word.end(), kGeneral.begin(),
                                          [](char left, char right) { return lowerCase(left) == lowerCase(right); });
        m_pos += isGeneral ? kGeneral.size() - 1 : 0;
        m_isDate = m_isDate || !isGeneral;
    }

    bool isExponent() const
    {
        const char next = m_pos + 1 < m_code.size() ? m_code[m_pos + 1] : '\0';
        return next == '+' || next == '-';
    }

    bool isBehindDigits() const
    {
        const char next = m_pos + 1 < m_code.size() ? m_code[m_pos + 1] : '\0';
        return m_pos > 0 && isDigitPlace(m_code[m_pos - 1]) && !isDigitPlace(next);
    }

    std::string_view m_code;
    std::size_t m_pos = 0;
    bool m_isFirstSection = true;
    bool m_isDate = false;
    bool m_isPercent = false;
    bool m_isScaled = false;
    std::string m_words; // those of the first section
};

bool isWithin(int number, int first, int last)
{
    return number >= first && number <= last;
}
}

NumberFormat NumberFormat::parse(std::string_view code)
{
    return FormatScan(code).format();
}

// 9 is 0%, 10 is 0.00%; 27 to 36 and 50 to 58 are the dates of eastern Asia.
NumberFormat NumberFormat::builtIn(int number)
{
    if (isWithin(number, 14, 22) || isWithin(number, 27, 36) || isWithin(number, 45, 47) || isWithin(number, 50, 58))
        return { kDate, "" };
    return isWithin(number, 9, 10) ? NumberFormat{ kPercent, "" } : NumberFormat();
}
}
