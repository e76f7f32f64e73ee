// A number of a report, and the text that it is shown as, lie in the same eight bytes:
//   VorBomDataValue value(12.5)       the double stands in them
//   value.set(VorString(L"12.5"))     the text does, which refers to its characters elsewhere
//   value.set(13)                     the text's life ends, and the int stands in its place
//   value = VorBomDataValue()         changes nothing, on purpose
#include "VorBomDataValue.h"

#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorNumberText.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace
{
// Of a double 2 to the power of 64 no integer can be made again.
bool isExactAsDouble(unsigned long long size)
{
    const auto number = static_cast<double>(size);
    return number < 18446744073709551616.0 && static_cast<unsigned long long>(number) == size;
}

VorString digitsOf(bool isNegative, unsigned long long size)
{
    char digits[std::numeric_limits<unsigned long long>::digits10 + 1];
    const char* const pEnd = std::to_chars(std::begin(digits), std::end(digits), size).ptr;
    VorString text(isNegative ? L"-" : L"");
    for (const char* pDigit = digits; pDigit != pEnd; ++pDigit)
        text += static_cast<wchar_t>(*pDigit);
    return text;
}

const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomDataValue";

// Doubles closer than this compare equal. Absolute, whatever their size; grouping in existing reports depends on it.
const double kEqualTolerance = 1e-6;

void reportMisuse(int line)
{
    VorAssert::vorAssert(L"false", kSourcePath, line);
}

int compareInts(int first, int second)
{
    if (first == second)
        return 0;
    return first < second ? -1 : 1;
}

VorString textOf(int value)
{
    wchar_t text[VorNumberText::kIntegerRoom];
    return VorString(text, VorNumberText::writeInteger(value, text));
}

VorString textOf(double value)
{
    wchar_t text[VorNumberText::kGeneralRoom];
    return VorString(text, VorNumberText::writeGeneral(value, text));
}
}

// Through set(), which ends a text's life where one is replaced.
VorBomDataValue& VorBomDataValue::operator=(const VorBomDataValue& other)
{
    if (this == &other)
        return *this;
    switch (other.m_nType)
    {
        case kUnknownData: break;
        case kIntData: set(other.m_payload.whole); break;
        case kDoubleData: set(other.m_payload.number); break;
        case kStringData: set(other.m_payload.text); break;
        default: reportMisuse(__LINE__); break;
    }
    return *this;
}

// What is no text is assigned as a named value is: there is nothing to take over, and both ways must mean the same.
VorBomDataValue& VorBomDataValue::operator=(VorBomDataValue&& other) noexcept
{
    if (this == &other)
        return *this;
    if (other.m_nType == kStringData)
        set(std::move(other.m_payload.text));
    else
        *this = static_cast<const VorBomDataValue&>(other);
    if (other.m_nType == kStringData || other.hasNoText())
        other.empty(); // a corrupt one was reported, once, and stays what it is
    return *this;
}

int VorBomDataValue::compareAnew(const VorBomDataValue& other) const
{
    if (m_nType != other.m_nType)
    {
        reportMisuse(__LINE__); // kinds are never converted
        return -1;
    }
    switch (m_nType)
    {
        case kIntData: return compareInts(m_payload.whole, other.m_payload.whole);
        case kDoubleData: return compareDoubles(m_payload.number, other.m_payload.number);
        case kStringData: return VorString::compare(m_payload.text, other.m_payload.text);
        default: break;
    }
    reportMisuse(__LINE__); // empty values have no order
    return 0;
}

int VorBomDataValue::compareDoubles(double first, double second)
{
    if (std::fabs(first - second) < kEqualTolerance)
        return 0;
    // Two equal infinities come here as well: their difference is a NaN, which is less than nothing.
    if (second > first)
        return -1;
    return first > second ? 1 : 0; // 0 for a NaN, which is neither
}

int VorBomDataValue::compareAlphanumeric(const VorBomDataValue& other) const
{
    if (m_nType != other.m_nType)
    {
        reportMisuse(__LINE__);
        return -1;
    }
    if (m_nType == kStringData)
        return VorString::compareWithNumbers(m_payload.text, other.m_payload.text);
    reportMisuse(__LINE__); // numbers have no digit runs
    return 0;
}

VorString VorBomDataValue::asString() const
{
    switch (m_nType)
    {
        case kIntData: return textOf(m_payload.whole);
        case kDoubleData: return textOf(m_payload.number);
        case kStringData: return m_payload.text;
        default: return VorString();
    }
}

void VorBomDataValue::empty()
{
    if (m_nType == kStringData)
        m_payload.text.~VorString();
    else if (!hasNoText())
        reportMisuse(__LINE__); // what the payload is, nobody knows
    m_nType = kUnknownData;
}

// 2147483648 is an int below zero alone.
void VorBomDataValue::setWide(bool isNegative, unsigned long long size)
{
    const unsigned long long largestInt = std::numeric_limits<int>::max();
    if (size <= largestInt + (isNegative ? 1U : 0U))
        set(static_cast<int>(isNegative ? -static_cast<long long>(size) : static_cast<long long>(size)));
    else if (isExactAsDouble(size))
        set(isNegative ? -static_cast<double>(size) : static_cast<double>(size));
    else
        set(digitsOf(isNegative, size));
}
