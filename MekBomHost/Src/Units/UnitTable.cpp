// Each line of the table is one unit of the catalogue, and nothing in it is written down here: "in/3" is what
// VorUnitNotation writes for inches with their usual precision, "25.4 mm" what one inch is by their transform. Columns
// are as wide as their widest text on a terminal, where "m²" takes two places and three bytes.
#include "UnitTable.h"

#include "NumberText.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekUnits/Src/VorUnitDefinition.h"
#include "MekUnits/Src/VorUnitNotation.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace mekbom::UnitTable
{
namespace
{
const std::size_t kNumColumns = 6;
using Row = std::array<std::string, kNumColumns>;

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

Row rowOf(const VorUnitDefinition& unit)
{
    const MEKUnit asShown(unit.number, unit.number, unit.format);
    return { UnitKinds::find(unit.system)->name,
             Utf8::toBytes(unit.symbol),
             Utf8::toBytes(VorUnitNotation::write(asShown)),
             factorPrefixOf(unit) + factorOf(unit),
             Utf8::toBytes(unit.source),
             Utf8::toBytes(unit.names) };
}

// The headings, then kind by kind in the order of UnitKinds, each in the order of the catalogue.
std::vector<Row> rows()
{
    std::vector<Row> rows = { { "Kind", "Symbol", "--unit", "One is", "Source", "Names" } };
    for (const UnitKind& kind : UnitKinds::all())
        for (int i = 0; i < VorUnitsTransformArray::numUnits(); ++i)
            if (VorUnitsTransformArray::unitAt(i).system == kind.system)
                rows.push_back(rowOf(VorUnitsTransformArray::unitAt(i)));
    return rows;
}

int widthOf(const std::vector<Row>& rows, std::size_t column)
{
    int width = 0;
    for (const Row& row : rows)
        width = std::max(width, Utf8::displayWidth(row[column]));
    return width;
}
}

// The last column is not filled up, so that no line ends in blanks.
std::string text()
{
    const std::vector<Row> table = rows();
    std::string text;
    for (const Row& row : table)
    {
        for (std::size_t column = 0; column + 1 < kNumColumns; ++column)
        {
            const int numBlanks = widthOf(table, column) - Utf8::displayWidth(row[column]) + 2;
            text += row[column] + std::string(static_cast<std::size_t>(numBlanks), ' ');
        }
        text += row.back() + "\n";
    }
    return text + "\n" + kNotes;
}
}
