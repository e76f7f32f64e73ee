// Rows of a parts list that a shape may change before they are made.
//
//   ShapeRows rows(100000);                      // the plain ones, always the same for the same number
//   for (ShapePart& part : rows.parts)
//       part.length += 4e-7;                     // what a part is
//   rows.addTo(data, [](ShapeRow& row, int) { row.pop_back(); });    // how a row tells it
//
// Equal texts of a column share one text, and equal tokens share theirs, as a host that reads a file makes them. Only the
// handle is a text of its own. Rows of another ShapeRows share nothing with them, so that threads do not meet in texts.
#pragma once

#include "MekBomEngine/Src/VorBomData.h"

#include <functional>
#include <variant>
#include <vector>

// What a plain row tells of a part. Numbers count from 0 in the column's list of texts.
struct ShapePart
{
    unsigned position, mark, material, profile, phase, type, coating;
    double length, weight, paint, thickness, width; // mm, kg, mm²
    int quantity;
};

// A row before it is made of tuples, so that what is taken out of it never took memory.
struct ShapeCell
{
    VorString token;
    std::variant<int, double, VorString> value;
};
using ShapeRow = std::vector<ShapeCell>;

// One text for each token, shared by all rows of a list.
struct ShapeTokens
{
    VorString handle{ L"%Handle" }, position{ L"%Num" }, mark{ L"%MNum" }, material{ L"%Material" },
        profile{ L"%Name" }, length{ L"%Length" }, weight{ L"%Weight" }, paint{ L"%Paint" }, quantity{ L"%Quantity" },
        phase{ L"%Phase" }, type{ L"%Class" }, coating{ L"%Coating" }, thickness{ L"%Thick" }, width{ L"%Width" };
};

class ShapeRows
{
public:
    using ChangeRow = std::function<void(ShapeRow& row, int index)>;

    // 8 materials, 60 profiles, and as many marks and as many positions as there are rows by twenty. Lengths have one
    // decimal, weights two.
    explicit ShapeRows(int numRows);

    ShapeTokens tokens;
    std::vector<ShapePart> parts;
    std::vector<VorString> positions, marks, materials, profiles, phases, types, coatings;
    int numFormulas = 1; // that a row has room for without its tuples being moved

    // Hangs a new row for each part under `data`, which owns it.
    void addTo(VorBomData& data, const ChangeRow& change = nullptr) const;

private:
    ShapeRow cellsOf(int index) const;
};

// "S135JR", "S235JR" and so on for a pattern of VorString::format and the numbers from 1.
std::vector<VorString> numberedTexts(const wchar_t* pattern, unsigned numTexts);
