// What a part of the writer of workbooks makes of a workbook, as WorkbookText has it.
//
//   writtenWorkbook([](WorkbookFile& file, CellFormats& formats) { SheetPen(file, formats, "List", 1).beginRow(); })
#pragma once

#include "HostTestSupport.h"
#include "WorkbookText.h"

#include "CellFormats.h"
#include "WorkbookFile.h"

#include <functional>
#include <string>

namespace mekbom
{
inline std::string writtenWorkbook(const std::function<void(WorkbookFile&, CellFormats&)>& write)
{
    WorkbookFile file("List");
    CellFormats formats(file.workbook());
    write(file, formats);
    StringSink sink;
    file.writeTo(sink);
    return WorkbookText::of(sink.text);
}

// The text from the first row of the first sheet on, without what stands above rows: of a sheet of one cell
// "0  A1 \"HEA200\"\n".
inline std::string rowsOfWorkbook(const std::string& text)
{
    const std::size_t widths = text.find("\nwidths");
    const std::size_t begin = text.find('\n', widths + 1) + 1;
    return text.substr(begin, text.find("sheet \"", begin) - begin);
}
}
