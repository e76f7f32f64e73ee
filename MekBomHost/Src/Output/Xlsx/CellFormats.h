// The formats of the cells of one workbook, each made when a cell first asks for it.
//
//   CellFormats formats(workbook);
//   formats.of({ CellLook::kTotal, true }, *SheetNumber::of("8.50", 8.5));   bold, right, "0.00", a rule above it
//
// A workbook has as many as its cells look different, some dozens.
#pragma once

#include "SheetNumber.h"

#include <xlsxwriter.h>

#include <cstdint>
#include <unordered_map>

namespace mekbom
{
// What a cell looks like beside its number or text.
struct CellLook
{
    enum eRole
    {
        kTitle,
        kRemark, // what the list is made of
        kHeading,
        kLine,        // one of the ordinary lines: the deepest that the list has
        kGroupHeader, // opens a group of lines
        kGroupTotal,  // closes it
        kTotal        // of the whole list
    };

    // Whether a line of these cells has a rule across the list, so that empty cells look like something, too. The band of
    // a group's header ends with its texts: of a list of small groups a quarter of all cells would be empty ones.
    bool isAcross() const { return role == kTotal; }

    eRole role = kLine;
    bool isRight = false;
    bool wraps = false;      // the text goes on in further lines of its cell
    bool isIndented = false; // the text keeps off numbers that end where its cell begins
};

class CellFormats
{
public:
    // The workbook is not owned, owns the formats and outlives this object.
    explicit CellFormats(lxw_workbook& workbook) : m_workbook(workbook) {}

    // The format of a number, of a text, and of a text that is longer than kLongestTyped. The workbook owns all of them.
    lxw_format* of(const CellLook& look, const SheetNumber& number);
    lxw_format* ofText(const CellLook& look);
    lxw_format* ofLongText(const CellLook& look);

    // Some programs show longer texts as "####" in cells that have the format of texts.
    static constexpr std::size_t kLongestTyped = 255;

private:
    enum eContent
    {
        kNumber,
        kText,
        kLongText
    };

    lxw_format* find(const CellLook& look, eContent content, const SheetNumber& number);
    lxw_format* create(const CellLook& look, eContent content, const SheetNumber& number);

    lxw_workbook& m_workbook;
    std::unordered_map<std::uint32_t, lxw_format*> m_formats;
};
}
