// Any text is read as wcstod and swscanf read it. Seeds in Seeds/VorNumberText: one number each.
#include "MekRoots/Exp/VorNumberText.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <limits>
#include <string>

namespace
{
// Of hexadecimal numbers below the normal ones the GNU C library (as of 2.36) gives the neighbour now and then.
template <class T>
bool isSame(const std::wstring& text, T expected, T value)
{
    if (std::isnan(expected) || std::isnan(value))
        return std::isnan(expected) && std::isnan(value);
    const bool isHexadecimal = text.find_first_of(L"xX") != std::wstring::npos;
    const bool isTiny = std::fabs(expected) <= std::numeric_limits<T>::min();
    if (std::signbit(expected) != std::signbit(value))
        return false;
    return expected == value || (isHexadecimal && isTiny && std::nextafter(expected, value) == value);
}

void check(bool isTrue)
{
    if (!isTrue)
        std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring text = std::wstring(data, data + size).c_str(); // up to the first zero

    const wchar_t* end = nullptr;
    wchar_t* expectedEnd = nullptr;
    const double value = VorNumberText::scanDouble(text.c_str(), end, 0);
    check(isSame(text, std::wcstod(text.c_str(), &expectedEnd), value) && end == expectedEnd);

    float single = 1;
    float expectedSingle = 1;
    const int result = VorNumberText::scanFloat(text.data(), text.data() + text.size(), single);
    check(result == std::swscanf(text.c_str(), L"%f", &expectedSingle) && isSame(text, expectedSingle, single));
    return 0;
}
