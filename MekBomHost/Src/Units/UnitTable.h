// The catalogue of units as a table for users: kind, symbol, how it is asked for, what it is, source and names. The
// lines are those of the catalogue, so a unit that is added there shows here.
//
//   Kind    Symbol  --unit  One is   Source              Names
//   length  mm      mm/1    1 mm     SI (NIST SP 811)    millimetre, millimetres, millimeter, millimeters
//   length  in      in/3    25.4 mm  yard and pound ...  inch, inches
#pragma once

#include <string>
#include <vector>

namespace mekbom::UnitTable
{
// One line of the table, in UTF-8.
struct Line
{
    std::string kind;     // a name of UnitKinds
    std::string symbol;   // "in"
    std::string notation; // "in/3": with the precision that it is usually shown with
    std::string oneIs;    // "25.4 mm"
    std::string source;
    std::string names; // with commas between them
};

// Kind by kind in the order of UnitKinds, each in the order of the catalogue.
std::vector<Line> lines();

// The table in UTF-8, aligned for a terminal, with a line end behind each line and an explanation below.
std::string text();
}
