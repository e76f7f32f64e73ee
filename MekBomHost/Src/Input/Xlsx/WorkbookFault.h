// Ends the reading of a workbook that is damaged, or made to do harm.
//
//   WorkbookFault::inPart({ "parts.xlsx", "xl/workbook.xml" }, "no sheet", "at least one");
//
//   parts.xlsx: xl/workbook.xml: found no sheet, expected at least one: open it in a spreadsheet program and save it anew
#pragma once

#include <cstddef>
#include <string>

namespace mekbom
{
// A part is one of the files that are packed into a workbook.
struct WorkbookPart
{
    std::string workbook; // as the user named it
    std::string path;     // "xl/worksheets/sheet1.xml"; empty for the workbook as a whole
};

namespace WorkbookFault
{
// Each throws a Fault of status kInvalidInput that names the part.
[[noreturn]] void inPart(const WorkbookPart& part, const std::string& found, const std::string& expected);

//   tooLarge(part, "a row or text", 8 << 20)   found a row or text of more than 8 MB, expected less
[[noreturn]] void tooLarge(const WorkbookPart& part, const std::string& what, std::size_t mostBytes);

//   ofOtherKind("parts.ods", "an OpenDocument file")   found an OpenDocument file, expected a workbook (.xlsx) or CSV
[[noreturn]] void ofOtherKind(const std::string& workbook, const std::string& found, const std::string& remedy);
}
}
