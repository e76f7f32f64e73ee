// Told on 8.5744 kg, printed "8.57" in a list of two decimals, and on 1.5 in, printed "1 1/2":
//   "8.57"    is made of digits and a point: the printed number is 8.57, and its format has two decimals
//   8.5744    is less than half a hundredth away from it: in that format it is shown as "8.57", whoever rounds it, and
//             may stand in the cell
//   "1 1/2"   is a number in no format that shows just that for every fraction: it stays a text
#include "SheetNumber.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace mekbom
{
namespace
{
const std::size_t kGroupSize = 3;
const std::size_t kLongest = 40; // characters, more than any text of a number that is printed without an exponent

// A number that is safely nearer to what is printed than to its neighbours is shown so by whatever program.
const double kSafelyWithinHalf = 0.499999;

// Up to there a half more or less of a number of the last decimal is exact, and has no more digits than are shown.
const double kMostSteps = 1e14;

// The parts of a text that is a number.
class PrintedNumber
{
public:
    // Whether all of `text` is a number: "-1 234.50", with groups of three digits behind the first blank.
    bool take(std::string_view text)
    {
        if (text.size() > kLongest)
            return false;
        if (!text.empty() && text.front() == '-')
            takeSign(text);
        if (!takeWhole(text))
            return false;
        return text.empty() || (text.front() == '.' && takeDecimals(text.substr(1)));
    }

    double value() const
    {
        double number = 0;
        std::from_chars(m_plain, m_plain + m_length, number);
        return number;
    }

    // From the first digit that is not zero to the last.
    int numDigits() const { return m_numDigits - m_numZerosAtEnd; }

    bool isNegative = false;
    int numDecimals = 0;
    int numGroups = 1;

private:
    void takeSign(std::string_view& text)
    {
        isNegative = true;
        add('-');
        text.remove_prefix(1);
    }

    // Stops at what is neither a digit nor a blank before three of them.
    bool takeWhole(std::string_view& text)
    {
        std::size_t inGroup = 0;
        for (; !text.empty() && text.front() != '.'; text.remove_prefix(1))
        {
            const bool isBlank = text.front() == ' ';
            if (isBlank ? inGroup == 0 || (numGroups > 1 && inGroup != kGroupSize)
                        : !VorCharacters::isDigit(text.front()))
                return false;
            numGroups += isBlank ? 1 : 0;
            inGroup = isBlank ? 0 : inGroup + 1;
            if (!isBlank)
                addDigit(text.front());
        }
        return numGroups > 1 ? inGroup == kGroupSize : inGroup > 0;
    }

    bool takeDecimals(std::string_view text)
    {
        add('.');
        for (const char digit : text)
        {
            if (!VorCharacters::isDigit(digit))
                return false;
            addDigit(digit);
        }
        numDecimals = static_cast<int>(text.size());
        return numDecimals > 0;
    }

    void addDigit(char digit)
    {
        add(digit);
        if (digit != '0' || m_numDigits > 0)
            ++m_numDigits;
        m_numZerosAtEnd = digit == '0' && m_numDigits > 0 ? m_numZerosAtEnd + 1 : 0;
    }

    void add(char character) { m_plain[m_length++] = character; }

    char m_plain[kLongest] = {}; // without blanks
    std::size_t m_length = 0;
    int m_numDigits = 0; // from the first that is not zero
    int m_numZerosAtEnd = 0;
};

// Whether `value` is the number in the middle between `printed` and the one before it, as 15.965 is before 15.97: the
// decimal number, to which the double is the nearest there is. Lists and spreadsheets round that away from zero.
bool isMiddleBefore(double value, double printed, double stepsPerOne)
{
    const double steps = std::round(std::fabs(printed) * stepsPerOne);
    return steps < kMostSteps && std::fabs(value) == (steps - 0.5) / stepsPerOne;
}

// Whether programs that round `value` to that many decimals show `printed`. A number that is printed without a sign must
// not have one: some programs would show "-0".
bool isShownAs(double value, double printed, int numDecimals)
{
    const double stepsPerOne = std::pow(10.0, numDecimals);
    return std::signbit(value) == std::signbit(printed) &&
           (std::fabs(value - printed) * stepsPerOne < kSafelyWithinHalf ||
            isMiddleBefore(value, printed, stepsPerOne));
}
}

// No number is shown as "-0".
std::optional<SheetNumber> SheetNumber::of(std::string_view text, double value)
{
    PrintedNumber printed;
    if (!printed.take(text) || printed.numDigits() > kMostDigits || (printed.isNegative && printed.numDigits() == 0))
        return std::nullopt;
    const double number = printed.value();
    return SheetNumber{ isShownAs(value, number, printed.numDecimals) ? value : number, printed.numDecimals,
                        printed.numGroups };
}

// The blanks are characters of the format, each behind a backslash: in a format, what divides thousands is a comma, and
// is shown as whatever the reader's country has.
std::string SheetNumber::format() const
{
    std::string format = numGroups > 1 ? "#" : "0";
    for (int group = 1; group < numGroups; ++group)
        format += group + 1 < numGroups ? "\\ ###" : "\\ ##0";
    if (numDecimals > 0)
        format.append(".").append(static_cast<std::size_t>(numDecimals), '0');
    return format;
}
}
