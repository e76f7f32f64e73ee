// Writes random formulas: mostly sound ones, which get far into the evaluation, some of them spoiled in a few places.
//   Dice dice(4711);
//   RandomFormula(dice).write()  ->  for instance  L"x1=(a+ 5.)/-0x1p3;my length*2"
#pragma once

#include "ExpressionEvaluator/Test/Reference/RandomCases.h"

#include <string>
#include <vector>

class RandomFormula
{
public:
    explicit RandomFormula(Dice& dice) : m_dice(dice) {}

    std::wstring write();

    // The names that formulas use; hardly any other is. Some look like numbers and are therefore never seen.
    static std::vector<std::wstring> names();

private:
    void writeStatement();
    void writeSum(int depth);
    void writeFactor(int depth);
    void writeGap();
    void writeName();
    void writeNumber();
    void spoil(int numTimes);
    wchar_t anyOf(const wchar_t* characters);

    Dice& m_dice;
    std::wstring m_text;
};
