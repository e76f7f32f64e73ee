// Numbers for people to read and programs to read again.
#pragma once

#include <string>

namespace mekbom
{
// The shortest text that identifies the number, without an exponent from a hundred-thousandth to below 1e15.
//   numberText(1e6)  ->  "1000000"
std::string numberText(double number);
}
