#include "ShapeRows.h"

#include <memory>
#include <random>

namespace
{
VorString numbered(const wchar_t* pattern, unsigned number)
{
    VorString text;
    text.format(pattern, number);
    return text;
}

unsigned textsFor(int numRows)
{
    return static_cast<unsigned>(numRows) / 20 + 1;
}

std::unique_ptr<VorBomDataRow> rowOf(const ShapeRow& cells, int numFormulas)
{
    auto pRow = std::make_unique<VorBomDataRow>();
    pRow->getData().setPhysicalLength(static_cast<int>(cells.size()) + numFormulas);
    for (const ShapeCell& cell : cells)
        std::visit([&](const auto& value) { pRow->addData(VorBomDataTuple(cell.token, value)); }, cell.value);
    return pRow;
}
}

ShapeRows::ShapeRows(int numRows)
    : positions(numberedTexts(L"%u", textsFor(numRows))),
      marks(numberedTexts(L"B%u", textsFor(numRows))),
      materials(numberedTexts(L"S%u35JR", 8)),
      profiles(numberedTexts(L"HEA%u", 60)),
      phases(numberedTexts(L"%u", 5)),
      types(numberedTexts(L"%u", 10)),
      coatings(numberedTexts(L"%u", 4))
{
    std::mt19937 random(1);
    const auto below = [&random](std::size_t limit) { return static_cast<unsigned>(random() % limit); };
    parts.resize(static_cast<std::size_t>(numRows));
    for (ShapePart& part : parts)
    {
        part.position = below(positions.size());
        part.mark = below(marks.size());
        part.material = below(materials.size());
        part.profile = below(profiles.size());
        part.length = 100.0 + below(120000) / 10.0;
        part.weight = 0.1 + below(100000) / 100.0;
        part.paint = 1000.0 * below(10000);
        part.quantity = static_cast<int>(below(20)) + 1;
        part.phase = below(phases.size());
        part.type = below(types.size());
        part.coating = below(coatings.size());
        part.thickness = 1.0 + below(40);
        part.width = 50.0 + below(400);
    }
}

ShapeRow ShapeRows::cellsOf(int index) const
{
    const ShapePart& part = parts[static_cast<std::size_t>(index)];
    return {
        { tokens.handle, numbered(L"%X", static_cast<unsigned>(index) + 4096) },
        { tokens.position, positions[part.position] },
        { tokens.mark, marks[part.mark] },
        { tokens.material, materials[part.material] },
        { tokens.profile, profiles[part.profile] },
        { tokens.length, part.length },
        { tokens.weight, part.weight },
        { tokens.paint, part.paint },
        { tokens.quantity, part.quantity },
        { tokens.phase, phases[part.phase] },
        { tokens.type, types[part.type] },
        { tokens.coating, coatings[part.coating] },
        { tokens.thickness, part.thickness },
        { tokens.width, part.width },
    };
}

void ShapeRows::addTo(VorBomData& data, const ChangeRow& change) const
{
    for (int i = 0; i < static_cast<int>(parts.size()); ++i)
    {
        ShapeRow cells = cellsOf(i);
        if (change)
            change(cells, i);
        data.addChild(rowOf(cells, numFormulas).release());
    }
}

std::vector<VorString> numberedTexts(const wchar_t* pattern, unsigned numTexts)
{
    std::vector<VorString> texts;
    for (unsigned i = 1; i <= numTexts; ++i)
        texts.push_back(numbered(pattern, i));
    return texts;
}
