// `mekbom units read`: a quantity in the unit that the model keeps its kind in.
//
//   mekbom units read "7'-6 1/2\""     2298.7
//   mekbom units read "100 lb"         45.359237
#pragma once

#include "Verb.h"

#include <string>

namespace mekbom
{
class UnitsReadVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    std::string m_value; // in UTF-8, with its unit unless it is a length in mm
};
}
