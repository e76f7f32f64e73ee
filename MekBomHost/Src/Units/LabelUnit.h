// What the label of a column has in brackets or parentheses at its end, where readers look for a unit.
//
//   LabelUnit::of("Weight [lb]")    ->  begin 7, text "lb", the pound
//   LabelUnit::of("Weight (net)")   ->  begin 7, text "net", no unit
//   LabelUnit::of("Weight")         ->  nothing
#pragma once

#include "MekUnits/Src/VorUnitDefinition.h"

#include <cstddef>
#include <string>

namespace mekbom
{
struct LabelUnit
{
    static LabelUnit of(const std::string& label);

    std::size_t begin = std::string::npos;    // of the bracket that opens; npos for a label without
    std::string text;                         // between the brackets, UTF-8
    const VorUnitDefinition* pUnit = nullptr; // that it names, of whatever kind; null when it is none
};
}
