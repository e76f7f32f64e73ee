// The catalogue of units as a table for users: kind, symbol, how it is asked for, what it is, source and names. The
// lines are those of the catalogue, so a unit that is added there shows here.
//
//   Kind    Symbol  --unit  One is   Source              Names
//   length  mm      mm/1    1 mm     SI (NIST SP 811)    millimetre, millimetres, millimeter, millimeters
//   length  in      in/3    25.4 mm  yard and pound ...  inch, inches
#pragma once

#include <string>

namespace mekbom::UnitTable
{
// The table in UTF-8, aligned for a terminal, with a line end behind each line and an explanation below.
std::string text();
}
