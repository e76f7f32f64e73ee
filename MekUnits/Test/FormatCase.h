// One row of a table of formatted values.
#pragma once

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cwchar>

struct FormatCase
{
    double value; // in the model's unit
    int unit;
    int format;
    const wchar_t* flags; // z, f, i suppress last zeros, zero feet, zero inches; s shows the symbol
    wchar_t separator;
    const wchar_t* expected;
};

inline VorString formatted(const FormatCase& c)
{
    const auto isSet = [&c](wchar_t flag) { return std::wcschr(c.flags, flag) != nullptr ? 1 : 0; };
    return MEKUnit(c.unit, c.unit, c.format)
        .getVorUnitTransform()
        .formatValue(c.value, isSet(L'z'), isSet(L's'), isSet(L'f'), isSet(L'i'), c.separator);
}

template <int numCases>
void expectFormatted(const FormatCase (&cases)[numCases])
{
    for (const FormatCase& c : cases)
        EXPECT_EQ(VorString(c.expected), formatted(c))
            << c.value << " in unit " << c.unit << ", format " << c.format << ", flags " << VorString(c.flags);
}
