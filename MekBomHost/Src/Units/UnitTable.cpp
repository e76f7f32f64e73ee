// Each line of the table is one unit of the catalogue, and nothing in it is written down here: "in/3" is what
// VorUnitNotation writes for inches with their usual precision, "25.4 mm" what one inch is by their transform.
#include "UnitTable.h"

#include "AlignedTable.h"
#include "NumberText.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekUnits/Src/VorUnitDefinition.h"
#include "MekUnits/Src/VorUnitNotation.h"

namespace mekbom::UnitTable
{
namespace
{
const char* const kNotes =
    "--unit takes a unit as in the third column, which has the precision that it is usually shown with.\n";

// "25.4 mm": one of the unit in the unit of the model.
std::string factorOf(const VorUnitDefinition& unit)
{
    const double factor = MEKUnit(unit.number, unit.number, 0).getVorUnitTransform().toInternalUnits(1.0);
    return numberText(factor) + " " + Utf8::toBytes(VorUnitsTransformArray::findUnitOfModel(unit.system)->symbol);
}

// Feet and inches are inches in numbers, degrees, minutes and seconds are seconds.
std::string factorPrefixOf(const VorUnitDefinition& unit)
{
    switch (unit.layout)
    {
        case VorUnitDefinition::kFeetAndInches: return "inch: ";
        case VorUnitDefinition::kDegreesAndMinutes: return "second: ";
        default: return "";
    }
}

Line lineOf(const VorUnitDefinition& unit)
{
    const MEKUnit asShown(unit.number, unit.number, unit.format);
    return { UnitKinds::find(unit.system)->name,
             Utf8::toBytes(unit.symbol),
             Utf8::toBytes(VorUnitNotation::write(asShown)),
             factorPrefixOf(unit) + factorOf(unit),
             Utf8::toBytes(unit.source),
             Utf8::toBytes(unit.names) };
}
}

std::vector<Line> lines()
{
    std::vector<Line> lines;
    for (const UnitKind& kind : UnitKinds::all())
        for (int i = 0; i < VorUnitsTransformArray::numUnits(); ++i)
            if (VorUnitsTransformArray::unitAt(i).system == kind.system)
                lines.push_back(lineOf(VorUnitsTransformArray::unitAt(i)));
    return lines;
}

std::string text()
{
    AlignedTable table({ "Kind", "Symbol", "--unit", "One is", "Source", "Names" });
    for (const Line& line : lines())
        table.add({ line.kind, line.symbol, line.notation, line.oneIs, line.source, line.names });
    return table.text() + "\n" + kNotes;
}
}
