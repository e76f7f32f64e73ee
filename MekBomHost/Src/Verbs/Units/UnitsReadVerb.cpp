// Which kind a quantity is of is found by trying one kind after the other. Lengths come first, so that "2286", which
// any of them would take, is a length; "100 lb" is none, and is taken by the reader of weights.
#include "UnitsReadVerb.h"

#include "NumberText.h"
#include "QuantityWords.h"
#include "StandardOutput.h"
#include "UnitKinds.h"
#include "UnitsVerb.h"
#include "Utf8.h"

#include "MekUnits/Src/VorQuantityReader.h"
#include "MekUnits/Src/VorUnitDefinition.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
namespace
{
using Catalogue = VorUnitsTransformArray;

// A text that says by itself of which kind it is: a length, unless it has a unit or the sign of another kind.
//   "7'"  ->  2133.6      "100 lb"  ->  45.359237      "90°"  ->  1.570796
double readOfAnyKind(const std::string& text)
{
    const VorString wideText = Utf8::toWide(text);
    double value = 0;
    for (const UnitKind& kind : UnitKinds::all())
        if (VorQuantityReader(Catalogue::findUnitOfModel(kind.system)->number).read(wideText, value) == 1)
            return value;
    // What is wrong is explained by the kind that was most likely meant.
    const bool isAngle = wideText.find(L"\u00B0", 0) >= 0;
    const VorQuantityReader likely(
        Catalogue::findUnitOfModel(isAngle ? Catalogue::kAngle : Catalogue::kDistance)->number);
    QuantityWords::refuse(FindingCodes::kNoQuantity, text, "a quantity such as 2286, 7.5 ft, 7'-6 1/2\" or 12°30'",
                          likely.explain(wideText));
}
}

CLI::App& UnitsReadVerb::declareOn(CLI::App& parent)
{
    CLI::App& read = *parent.add_subcommand("read", "Print a quantity in mm, kg, rad ...");
    read.footer(UnitsVerb::kNotes);
    read.add_option("value", m_value, "A quantity; a length where it says no kind")->required();
    return read;
}

ExitStatus UnitsReadVerb::run(FindingList&)
{
    StandardOutput::print(numberText(readOfAnyKind(m_value)) + "\n");
    return kDone;
}
}
