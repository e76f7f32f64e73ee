// Any double and any integer come out of every pattern here as swprintf prints them. The first character chooses the
// patterns, the rest is the number. Seeds in Seeds/VorStringFormat.
#include "MekRoots/Exp/VorString.h"

#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <string>

namespace
{
const wchar_t* const kDoublePatterns[] = { L"%g",    L"%f",    L"%.2f", L"%.0f",  L"%e",    L"%+.3g",  L"% 012.4f",
                                           L"%-20e", L"%.17g", L"%G",   L"%#.0f", L"%.40f", L"%10.1e", L"%020g" };
const wchar_t* const kIntegerPatterns[] = { L"%lld",    L"%llu",    L"%llx",   L"%#llX",
                                            L"%+20lld", L"%020lld", L"%.5lld", L"%#llo" };

template <class Number>
void expectAsPrinted(const wchar_t* pattern, Number number)
{
    wchar_t expected[500];
    VorString text;
    text.format(pattern, number);
    if (std::swprintf(expected, 500, pattern, number) != text.length() || text != VorString(expected))
        std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    const std::string number(data + 1, data + size);
    const double value = std::strtod(number.c_str(), nullptr);
    const long long integer = std::strtoll(number.c_str(), nullptr, 10);
    expectAsPrinted(kDoublePatterns[data[0] % (sizeof(kDoublePatterns) / sizeof(kDoublePatterns[0]))], value);
    expectAsPrinted(kIntegerPatterns[data[0] % (sizeof(kIntegerPatterns) / sizeof(kIntegerPatterns[0]))], integer);
    return 0;
}
