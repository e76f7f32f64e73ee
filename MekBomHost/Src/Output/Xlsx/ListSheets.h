// The sheets that a list stands on: one, and further ones for a list that is longer than a sheet.
//
//   ListSheets(report, XlsxSettings(), file, formats).write();
#pragma once

#include "CellFormats.h"
#include "EvaluatedReport.h"
#include "OutlineLevels.h"
#include "SheetColumn.h"
#include "SheetPen.h"
#include "WorkbookFile.h"
#include "XlsxSettings.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class ListSheets
{
public:
    // Of `settings` there is a copy. The others are not owned and outlive this object; the report keeps its values.
    ListSheets(const EvaluatedReport& report, const XlsxSettings& settings, WorkbookFile& file, CellFormats& formats);

    // Adds the sheets to the file. To be called once. Throws a Fault of status kOutputNotWritten for a list that no
    // sheet can hold, and for what cannot be written.
    void write();

private:
    // Where a column of the list stands on the sheet.
    struct Place
    {
        SheetColumn column;
        std::size_t index; // on the sheet
        bool hasBeside;    // its numbers stand in the sheet's next column
        bool isIndented;   // it has texts, and the column before it numbers
    };

    void placeColumns();
    void beginSheet();
    void writeAboveList();
    void writeHeadings();
    void writeLine(const ReportLine& line);
    void writeText(const Place& place, const ReportLine& line, std::string_view text);
    void writeCell(const Place& place, const ShownText& text, const VorBomTypedValue& value);
    void writeBeside(const Place& place, const VorBomTypedValue& value);
    CellLook lookOf(const LinePlace& place) const;
    void continueOnNextSheet();
    void endSheet();
    void setUpPage(double width);
    std::string nameOf(int sheet) const;

    const EvaluatedReport& m_report;
    const XlsxSettings m_settings;
    WorkbookFile& m_file;
    CellFormats& m_formats;
    const OutlineLevels m_outline;
    std::vector<Place> m_places;  // of each column of the report
    std::size_t m_numColumns = 0; // of the sheet

    int m_numSheets = 0;
    std::unique_ptr<SheetPen> m_pPen; // of the last of them
    lxw_row_t m_headingRow = 0;
    CellLook m_look; // of the cells of the line that is being written
};
}
