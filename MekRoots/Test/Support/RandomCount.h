// How many cases a seeded random test makes. MEK_RANDOM_CASES in the environment replaces the usual number.
#pragma once

#include <cstdlib>

inline int numRandomCases(int usualCount)
{
    const char* text = std::getenv("MEK_RANDOM_CASES");
    return text == nullptr ? usualCount : std::atoi(text);
}
