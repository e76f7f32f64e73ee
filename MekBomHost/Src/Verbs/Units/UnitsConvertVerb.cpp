// A quantity goes by way of the unit that the model keeps its kind in:
//
//   "7.5" ft  ->  2286 mm  ->  7' 6"       for  mekbom units convert 7.5 ft ft-in/16
//
// The unit it is given in decides what kind it is of; the other one must be of the same. A quantity that names a unit
// itself, such as 2286mm, is read in that.
#include "UnitsConvertVerb.h"

#include "QuantityWords.h"
#include "StandardOutput.h"
#include "UnitKinds.h"
#include "UnitsVerb.h"
#include "Utf8.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekUnits/Src/VorQuantityReader.h"
#include "MekUnits/Src/VorUnitDefinition.h"
#include "MekUnits/Src/VorUnitNotation.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace mekbom
{
namespace
{
using Catalogue = VorUnitsTransformArray;

const char* const kBlank = "blank";
const char* const kMinus = "minus";

// The unit of a symbol such as "ft", which carries no precision: it is for a number that is read.
const VorUnitDefinition& findUnit(const std::string& symbol)
{
    const VorUnitDefinition* const pUnit = Catalogue::findUnit(Utf8::toWide(symbol));
    if (pUnit == nullptr)
        QuantityWords::refuse(FindingCodes::kUnitUnknown, symbol,
                              "a unit such as mm, ft-in or lb; mekbom units lists them all");
    return *pUnit;
}

// The unit of "ft-in/16" with its precision. What is read overwrites all that the unit begins with.
MEKUnit readUnit(const std::string& word)
{
    MEKUnit unit(Catalogue::findUnitOfModel(Catalogue::kDistance)->number, 0, 0);
    if (VorUnitNotation::read(Utf8::toWide(word), unit) == 0)
        QuantityWords::refuse(FindingCodes::kUnitUnknown, word,
                              "a unit, and after a slash a precision if need be, such as mm, lb/1 or ft-in/16");
    return unit;
}

// The quantity in the model's unit.
double readQuantity(const std::string& text, const VorUnitDefinition& unit, const std::string& symbol)
{
    const VorString wideText = Utf8::toWide(text);
    const VorQuantityReader reader(unit.number);
    double value = 0;
    if (reader.read(wideText, value) == 0)
        QuantityWords::refuse(FindingCodes::kNoQuantity, text, "a quantity in " + symbol, reader.explain(wideText));
    return value;
}
}

CLI::App& UnitsConvertVerb::declareOn(CLI::App& parent)
{
    CLI::App& convert = *parent.add_subcommand("convert", "Print a quantity in another unit");
    convert.footer(UnitsVerb::kNotes);
    convert.add_option("value", m_value, "A number, or a quantity with its unit or marks")->required();
    convert.add_option("from", m_from, "Unit of the number")->required();
    convert.add_option("to", m_to, "Unit to print in, with a precision if need be")->required();
    const std::pair<const char*, int*> flags[] = { { "--suppress-zeros", &m_nSuppressLastZeros },
                                                   { "--suppress-zero-feet", &m_nSuppressZeroFeet },
                                                   { "--suppress-zero-inch", &m_nSuppressZeroInch } };
    for (const auto& [name, pFlag] : flags)
        convert.add_option(name, *pFlag, "0 or 1 [1]")->check(CLI::IsMember({ 0, 1 }))->type_name("FLAG");
    convert.add_option("--separator", m_separator, "Between feet and inches: blank or minus [blank]")
        ->check(CLI::IsMember({ kBlank, kMinus }))
        ->type_name("WORD");
    return convert;
}

ExitStatus UnitsConvertVerb::run(FindingList&)
{
    StandardOutput::print(convert() + "\n");
    return kDone;
}

std::string UnitsConvertVerb::convert() const
{
    const VorUnitDefinition& from = findUnit(m_from);
    const MEKUnit to = readUnit(m_to);
    const VorUnitTransform& transform = to.getVorUnitTransform();
    if (transform.system() != from.system)
        QuantityWords::refuse(FindingCodes::kUnitUnknown, m_to,
                              UnitKinds::find(from.system)->expectation + std::string(", as ") + m_from + " is");
    const int showUnitSymbol = 0; // who asked for the unit knows it, and scripts want a number
    return Utf8::toBytes(transform.formatValue(readQuantity(m_value, from, m_from), m_nSuppressLastZeros,
                                               showUnitSymbol, m_nSuppressZeroFeet, m_nSuppressZeroInch,
                                               m_separator == kMinus ? L'-' : L' '));
}
}
