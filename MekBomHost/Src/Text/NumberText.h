// Numbers for people to read and programs to read again.
#pragma once

#include <string>

namespace mekbom
{
// The shortest text that identifies the number, without an exponent from a hundred-thousandth to below 1e15. The same
// in every locale.
//   numberText(1e6)    ->  "1000000"
//   numberText(0.1)    ->  "0.1"
//   numberText(1e-6)   ->  "1e-06"
std::string numberText(double number);

// The same for a number of single precision, which takes fewer digits to identify.
//   singleText(0.1F)   ->  "0.1", where numberText(0.1F) is "0.10000000149011612"
std::string singleText(float number);
}
