// Numbers as the C library scans them in the C locale, to hold VorNumberText against.
#pragma once

#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cmath>
#include <cwchar>
#include <limits>
#include <string>

inline VorString shown(const std::wstring& text)
{
    return VorString(text.data(), static_cast<int>(text.size()));
}

// Equal to the last bit, zeros' signs included; of a NaN the sign alone.
template <class T>
bool isSame(T a, T b)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(a) && std::isnan(b) && std::signbit(a) == std::signbit(b);
    return a == b && std::signbit(a) == std::signbit(b);
}

// The GNU C library (as of 2.36) loses bits when it rounds hexadecimal numbers below the normal ones, and may be one unit
// away; those have a test of their own.
template <class T>
bool isWithinItsFault(const std::wstring& text, T expected, T value)
{
    const bool isHexadecimal = text.find_first_of(L"xX") != std::wstring::npos;
    const bool isTiny = std::fabs(expected) <= std::numeric_limits<T>::min();
    return isHexadecimal && isTiny && std::nextafter(expected, value) == value;
}

inline void expectAsWcstod(const std::wstring& text)
{
    wchar_t* expectedEnd = nullptr;
    const double expected = std::wcstod(text.c_str(), &expectedEnd);

    const wchar_t* end = nullptr;
    const double value = VorNumberText::scanDouble(text.c_str(), end, 0);

    ASSERT_TRUE(isSame(expected, value) || isWithinItsFault(text, expected, value))
        << shown(text) << " gives " << value << ", not " << expected;
    ASSERT_EQ(expectedEnd - text.c_str(), end - text.c_str()) << shown(text);
}

inline void expectAsSwscanf(const std::wstring& text)
{
    const float untouched = -77.25F;
    float expected = untouched;
    const int expectedResult = std::swscanf(text.c_str(), L"%f", &expected);

    float value = untouched;
    const int result = VorNumberText::scanFloat(text.data(), text.data() + text.size(), value);

    ASSERT_EQ(expectedResult, result) << shown(text);
    ASSERT_TRUE(isSame(expected, value) || isWithinItsFault(text, expected, value))
        << shown(text) << " gives " << value << ", not " << expected;
}

inline std::wstring widen(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}
