#include "UnitsCommand.h"

#include "Fault.h"
#include "MessageText.h"
#include "NumberText.h"
#include "UnitKinds.h"
#include "UnitTable.h"
#include "Utf8.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekUnits/Src/VorQuantityReader.h"
#include "MekUnits/Src/VorUnitDefinition.h"
#include "MekUnits/Src/VorUnitNotation.h"

namespace mekbom::UnitsCommand
{
namespace
{
using Catalogue = VorUnitsTransformArray;

[[noreturn]] void fail(const std::string& found, const std::string& expected)
{
    throw Fault(kWrongUsage, "found " + inQuotes(found) + ", expected " + expected);
}

const VorUnitDefinition& findUnit(const std::string& symbol)
{
    const VorUnitDefinition* const pUnit = Catalogue::findUnit(Utf8::toWide(symbol));
    if (pUnit == nullptr)
        fail(symbol, "a unit such as mm, ft-in or lb; mekbom units lists them all");
    return *pUnit;
}

MEKUnit readUnit(const std::string& word)
{
    MEKUnit unit(Catalogue::findUnitOfModel(Catalogue::kDistance)->number, 0, 0);
    if (VorUnitNotation::read(Utf8::toWide(word), unit) == 0)
        fail(word, "a unit, and after a slash a precision if need be, such as mm, lb/1 or ft-in/16");
    return unit;
}

std::string withHint(const std::string& expected, const VorString& hint)
{
    return hint.isEmpty() == 1 ? expected : expected + ": " + Utf8::toBytes(hint);
}

// A text that says by itself of which kind it is: a length, unless it has a unit or the sign of another kind.
double readOfAnyKind(const std::string& text)
{
    const VorString wideText = Utf8::toWide(text);
    double value = 0;
    for (const UnitKind& kind : UnitKinds::all())
        if (VorQuantityReader(Catalogue::findUnitOfModel(kind.system)->number).read(wideText, value) == 1)
            return value;
    const bool isAngle = wideText.find(L"\u00B0", 0) >= 0;
    const VorQuantityReader likely(
        Catalogue::findUnitOfModel(isAngle ? Catalogue::kAngle : Catalogue::kDistance)->number);
    fail(text, withHint("a quantity such as 2286, 7.5 ft, 7'-6 1/2\" or 12°30'", likely.explain(wideText)));
}

std::string convert(const UnitsOptions& options)
{
    const VorUnitDefinition& from = findUnit(options.from);
    const MEKUnit to = readUnit(options.to);
    const VorUnitTransform& transform = to.getVorUnitTransform();
    if (transform.system() != from.system)
        fail(options.to, UnitKinds::find(from.system)->expectation + std::string(", as ") + options.from + " is");
    const VorQuantityReader reader(from.number);
    double value = 0;
    if (reader.read(Utf8::toWide(options.value), value) == 0)
        fail(options.value, withHint("a quantity in " + options.from, reader.explain(Utf8::toWide(options.value))));
    const int showUnitSymbol = 0;
    return Utf8::toBytes(transform.formatValue(value, options.suppressLastZeros, showUnitSymbol,
                                               options.suppressZeroFeet, options.suppressZeroInch,
                                               options.separator == UnitsOptions::kMinus ? L'-' : L' '));
}

}

std::string textOf(const UnitsOptions& options)
{
    switch (options.task)
    {
        case UnitsOptions::kConvert: return convert(options) + "\n";
        case UnitsOptions::kRead: return numberText(readOfAnyKind(options.value)) + "\n";
        default: return UnitTable::text();
    }
}
}
