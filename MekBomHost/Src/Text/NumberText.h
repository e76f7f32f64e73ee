// Numbers for people to read and programs to read again. The same in every locale.
#pragma once

#include <string>

namespace mekbom
{
// The shortest text that identifies the number, without an exponent from a hundred-thousandth to 2^53, the last up to which a
// double has every whole number.
//   numberText(1e6)    ->  "1000000"
//   numberText(0.1)    ->  "0.1"
//   numberText(1e-6)   ->  "1e-06"
std::string numberText(double number);

// The same for a number of single precision, which takes fewer digits to identify.
//   singleText(0.1F)   ->  "0.1", where numberText(0.1F) is "0.10000000149011612"
std::string singleText(float number);

// How a list writes numbers that have no unit.
struct NumberStyle
{
    static constexpr int kAllDecimals = -1; // as many as identify the number

    int decimals = kAllDecimals;
    bool keepsZeros = false;   // at the end of `decimals`: "12.50" instead of "12.5"
    bool hasThousands = false; // a blank between groups of three digits
};

// The number in full: rounded to the decimals of the style, half away from zero, as its shortest decimal text has it.
// Beyond 2^53 it has an exponent; what rounds to zero has no sign; and what is no number is "inf", "-inf" or "nan".
//   listedText(1234567.89, NumberStyle())       ->  "1234567.89"
//   listedText(0.1 + 0.2, { 1, false, false })  ->  "0.3"
//   listedText(2.675, { 2, false, false })      ->  "2.68"
//   listedText(48637.9, { 2, true, true })      ->  "48 637.90"
std::string listedText(double number, const NumberStyle& style);

// Puts a blank between groups of three digits of a text's first number, from its point to the left. A plain blank, on
// purpose: it is as wide as a digit wherever columns align, and no terminal lacks it.
//   "-1234567.8912"  ->  "-1 234 567.8912"      "1234'-6\""  ->  "1 234'-6\""      "1.5e+20"  stays
void groupThousands(std::string& text);

// How many decimals identify the number: 2 for 12.35, 0 for 4.0, for what has an exponent, and for what is no number.
int numDecimals(double number);
}
