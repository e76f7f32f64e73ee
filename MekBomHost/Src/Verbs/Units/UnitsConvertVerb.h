// `mekbom units convert`: a quantity from one unit to another, shown as a list would show it.
//
//   mekbom units convert 2286 mm ft-in/16     7' 6"
//   mekbom units convert 100 kg lb/1          220.5
#pragma once

#include "Verb.h"

#include <string>

namespace mekbom
{
class UnitsConvertVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    // The text of the quantity in the other unit. Throws a Fault of status kWrongUsage for a word that is no unit, a
    // text that is no quantity, and units of different kinds.
    std::string convert() const;

    std::string m_value; // a number in m_from, or a quantity with a unit of its own
    std::string m_from;  // a symbol
    std::string m_to;    // a symbol and a precision

    // How the text is laid out, each 0 or 1: as lists do it when nobody sets anything.
    int m_nSuppressLastZeros = 1;
    int m_nSuppressZeroFeet = 1;
    int m_nSuppressZeroInch = 1;
    std::string m_separator; // "minus" or "blank"; empty is blank, too
};
}
